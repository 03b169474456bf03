// A printer that holds what comes in, and the queue it passes it on to.
#pragma once

#include <QTemporaryDir>

#include "printer/held/hold_desk.h"
#include "tests/printer/intake.h"
#include "tests/printer/queue.h"

namespace tarn::test {

class HeldIntake : public Intake {
protected:
    HeldIntake() { restart(); }

    // As the next start of the program finds what is held.
    void restart() {
        intake_.keepIn(nullptr);
        desk_.reset();
        desk_ = std::make_unique<dotmatrix::HoldDesk>(
            [this] { return std::make_unique<SpoolerOfQueue>(queue_); });
        desk_->setPause(std::chrono::milliseconds(50));
        EXPECT_EQ(desk_->open(held_.filePath("retidos")), QString());
        intake_.keepIn(desk_.get());
    }
    bool job(const QByteArray& bytes, const QString& remark = {}) {
        return intake_.begin("rede", dotmatrix::JobIntake::Kind::Printed) && intake_.take(bytes) &&
               intake_.end(remark);
    }
    hold::State state(int number) { return desk_->entry(number)->job.state; }
    bool waitFor(int number, hold::State wanted) {
        return QTest::qWaitFor([&] { return state(number) == wanted; }, limit);
    }

    QTemporaryDir held_;
    Queue queue_;
    std::unique_ptr<dotmatrix::HoldDesk> desk_;
};

}  // namespace tarn::test
