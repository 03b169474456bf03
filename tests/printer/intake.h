// A printer that takes jobs, and what it told of each.
#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <QTest>
#include <string>
#include <vector>

#include "dotmatrix/paper_text.h"
#include "printer/intake/job_intake.h"

namespace tarn::test {

inline constexpr int limit = 60000;  // milliseconds; for a busy machine and an unoptimised build

struct Ended {
    QString name;
    QString remark;
};

class Intake : public testing::Test {
protected:
    explicit Intake(qint64 mostBytes = dotmatrix::JobIntake::maxJobBytes)
        : intake_(roll_, mostBytes) {
        QObject::connect(&intake_, &dotmatrix::JobIntake::jobEnded, &intake_,
                         [this](const QString& name, const QString& remark) {
                             ended_.push_back({name, remark});
                         });
    }
    bool waitForJobs(std::size_t count) {
        return QTest::qWaitFor([&] { return ended_.size() >= count; }, limit);
    }
    std::string text() {
        std::string out;
        for (std::size_t form = 0; form < roll_.printedForms(); ++form) {
            out += form > 0 ? "\f" : "";
            appendText(out, *roll_.page(form));
        }
        return out;
    }

    dotmatrix::PaperRoll roll_{dotmatrix::Dialect{}};
    dotmatrix::JobIntake intake_;
    std::vector<Ended> ended_;
};

class SmallIntake : public Intake {
protected:
    SmallIntake() : Intake(10) {}
};

}  // namespace tarn::test
