// Where jobs come from while the program runs: the network and a directory.
#pragma once

#include <QString>
#include <memory>

#include "apps/tarnimpressora/options.h"
#include "printer/intake/folder_watch.h"
#include "printer/intake/job_intake.h"
#include "printer/intake/job_server.h"

namespace tarn::printer {

class Reception {
public:
    explicit Reception(dotmatrix::JobIntake& intake) : intake_(intake) {}

    // What could not be opened, a whole sentence in Portuguese; empty for nothing. A folder
    // is made where it isn't there; one that can't be made is waited for, if the program
    // can wait with `patient`.
    QString open(const Options& options, bool patient);
    // Where jobs are waited for, in words for the user.
    QString places() const { return places_; }

private:
    QString listen(const Options& options);
    QString watch(const Options& options, bool patient);

    dotmatrix::JobIntake& intake_;
    std::unique_ptr<dotmatrix::JobServer> server_;
    std::unique_ptr<dotmatrix::FolderWatch> folder_;
    QString places_;
};

}  // namespace tarn::printer
