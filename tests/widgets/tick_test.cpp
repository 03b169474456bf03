#include "platform/qt/tick.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QEventLoop>
#include <QTest>

namespace tarn::test {
namespace {

class TickTest : public testing::Test {
protected:
    TickTest() {
        QObject::connect(&tick, &Tick::ticked, [this] { ++ticks; });
    }
    // The event loop turns until a timer like the tick's own came due several times.
    static void wait() {
        int turns = 0;
        QTimer other;
        QEventLoop loop;
        QObject::connect(&other, &QTimer::timeout, [&] {
            if (++turns == 5) {
                loop.quit();
            }
        });
        other.start(3);
        loop.exec();
    }

    InputGate& gate = InputGate::ofApplication();
    Tick tick{2, nullptr};
    int ticks = 0;
};

TEST_F(TickTest, FiresWhereNothingIsUnderWay) {
    wait();
    EXPECT_EQ(ticks, 0);
    tick.start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks > 1; }));
}

TEST_F(TickTest, WaitsForTheGateAndFiresOnce) {
    tick.start();
    gate.shut();
    wait();
    EXPECT_EQ(ticks, 0);
    gate.open();
    EXPECT_EQ(ticks, 0) << "not from within the end of the work";
    tick.setInterval(3600000);
    wait();
    EXPECT_EQ(ticks, 1);
}

TEST_F(TickTest, WaitsForTheLastOfTheBoxes) {
    tick.start();
    {
        const TicksWait box(gate);
        wait();
        {
            const TicksWait second(gate);
            wait();
        }
        wait();
        EXPECT_EQ(ticks, 0);
        tick.setInterval(3600000);
    }
    wait();
    EXPECT_EQ(ticks, 1);
}

TEST_F(TickTest, BetweenTwoRequestsOfARoutineItWaitsOn) {
    tick.start();
    gate.shut();
    wait();
    gate.open();
    gate.shut();
    wait();
    EXPECT_EQ(ticks, 0);
    gate.open();
    wait();
    EXPECT_GE(ticks, 1);
}

TEST_F(TickTest, StoppedItFiresNoMore) {
    tick.start();
    gate.shut();
    wait();
    tick.stop();
    gate.open();
    wait();
    EXPECT_EQ(ticks, 0);
    EXPECT_FALSE(tick.isActive());
}

TEST_F(TickTest, FiresUnderAScreen) {
    QDialog screen;
    tick.start();
    QObject::connect(&tick, &Tick::ticked, &screen, &QDialog::accept);
    screen.exec();
    EXPECT_GE(ticks, 1);
}

}  // namespace
}  // namespace tarn::test
