// Keeps the jobs that come in, before their sender hears that they were taken.
#pragma once

#include <QString>
#include <string_view>

#include "platform/job_kind.h"

namespace tarn::dotmatrix {

struct Arrival {
    QString name;
    QString source;  // the file it was read from, as it was then; empty for none
    QString remark;  // why it isn't whole; empty when it is
    JobKind kind{};  // as its sender told it
};

class JobKeeper {
public:
    virtual ~JobKeeper() = default;
    // One job at a time. False where the disk takes no more: the job is dropped then.
    virtual bool begin() = 0;
    virtual bool add(std::string_view bytes) = 0;
    virtual bool keep(const Arrival& arrival) = 0;
    virtual void drop() = 0;
    // Whether a job of this source was kept already.
    virtual bool knows(const QString& source) const = 0;
};

}  // namespace tarn::dotmatrix
