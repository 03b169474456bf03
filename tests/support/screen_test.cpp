#include "tests/support/screen_test.h"

namespace tarn::test {

BoxAnswer BoxesOverTicks::show(const Box& box) {
    const TicksWait noTicks(InputGate::ofApplication());
    return ScriptedBoxes::show(box);
}

ScreenTest::ScreenTest() = default;
ScreenTest::~ScreenTest() = default;

void ScreenTest::SetUp() {
    static_cast<DeskApplication*>(qApp)->setErrorReport(
        [this](const std::exception_ptr& error) { reportError(desk, error); });
    QObject::connect(&end, &ProgramEnd::didEnd, &end, [this] { blocking.close(); });
}

void ScreenTest::TearDown() {
    static_cast<DeskApplication*>(qApp)->setErrorReport(nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "a cursor was left behind";
}

void ScreenTest::entered(std::int32_t company, std::int32_t establishment) {
    session.NCOMPANYCODE = company;
    session.ID_ETB_TARN = establishment;
    session.UserCode = "77";
    session.SERVERNAME = "SRV1";
    session.DATA = "15/03/2012";
}

}  // namespace tarn::test
