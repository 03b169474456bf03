#include "widgets/focus_return.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QTest>

namespace tarn::test {
namespace {

class FocusReturnTest : public testing::Test {
protected:
    FocusReturnTest() { open(desk); }
    static void open(QWidget& window) {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    // A window of another program that the window manager would choose.
    static bool becomesActive(const QWidget& window) {
        return QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; });
    }

    QWidget desk;
};

TEST_F(FocusReturnTest, TheWindowBehindGetsTheKeyboard) {
    QDialog dialog(&desk);
    dialog.setModal(true);
    open(dialog);
    QWidget other;
    dialog.hide();
    EXPECT_TRUE(becomesActive(desk));
}

TEST_F(FocusReturnTest, TwoThatCloseAtOnceGiveItToTheOneBehindBoth) {
    QDialog dialog(&desk);
    dialog.setModal(true);
    open(dialog);
    QDialog box(&dialog);
    box.setModal(true);
    open(box);
    box.hide();
    dialog.hide();
    EXPECT_TRUE(becomesActive(desk));
}

TEST_F(FocusReturnTest, AWindowWithoutTheKeyboardClosesQuietly) {
    QDialog dialog(&desk);
    dialog.setModal(true);
    open(dialog);
    QWidget other;
    open(other);
    dialog.hide();
    QCoreApplication::processEvents();
    EXPECT_EQ(QApplication::activeWindow(), &other);
}

}  // namespace
}  // namespace tarn::test
