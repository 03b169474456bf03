#include "widgets/desk_dialog.h"

#include <QPushButton>
#include <QShowEvent>
#include <QTest>

#include "tests/support/screen_test.h"

namespace tarn::test {
namespace {

class Dialog : public DeskDialog {
public:
    using Esc = DeskDialog::Esc;

    Dialog(DeskContext& desk, Esc esc) : DeskDialog(desk, esc, nullptr) {
        button.setDefault(true);
        connect(&button, &QPushButton::clicked, this, [this] { ++clicks; });
        setFocusPolicy(Qt::StrongFocus);
        show();
        setFocus();
    }

    QPushButton button{this};
    int openings = 0;
    int enters = 0;
    int clicks = 0;

protected:
    void opened() override { ++openings; }
    void enterPressed() override { ++enters; }
};

class DeskDialogTest : public ScreenTest {};

TEST_F(DeskDialogTest, OpensOnceForEachShowing) {
    Dialog dialog(desk, Dialog::Esc::Closes);
    EXPECT_EQ(dialog.openings, 1);
    dialog.hide();
    dialog.show();
    EXPECT_EQ(dialog.openings, 2);
}

TEST_F(DeskDialogTest, DoesNotOpenWhenTheDesktopBringsItBack) {
    Dialog dialog(desk, Dialog::Esc::Closes);
    QShowEvent back;
    QSpontaneKeyEvent::setSpontaneous(&back);
    qApp->notify(&dialog, &back);
    EXPECT_EQ(dialog.openings, 1);
}

TEST_F(DeskDialogTest, EnterGoesToTheScreenAndNotToTheDefaultButton) {
    Dialog dialog(desk, Dialog::Esc::Closes);
    QTest::keyClick(&dialog, Qt::Key_Return);
    QTest::keyClick(&dialog, Qt::Key_Enter);
    EXPECT_EQ(dialog.enters, 2);
    EXPECT_EQ(dialog.clicks, 0);
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(DeskDialogTest, EscClosesOnlyWhereItIsTold) {
    Dialog closes(desk, Dialog::Esc::Closes);
    QTest::keyClick(&closes, Qt::Key_Escape);
    EXPECT_FALSE(closes.isVisible());
    Dialog stays(desk, Dialog::Esc::ClosesNothing);
    QTest::keyClick(&stays, Qt::Key_Escape);
    EXPECT_TRUE(stays.isVisible());
    EXPECT_EQ(stays.enters, 0);
}

}  // namespace
}  // namespace tarn::test
