// Keys of a screen's buttons, pressed where the focus is.
#include "widgets/shortcuts.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialog>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "tests/support/test_environment.h"
#include "tests/support/user.h"
#include "widgets/field_families.h"

namespace tarn::test {
namespace {

class ShortcutsTest : public testing::Test {
protected:
    void SetUp() override {
        auto* layout = new QVBoxLayout(&screen);
        for (QWidget* widget :
             std::initializer_list<QWidget*>{&date, &list, &lines, &act, &close}) {
            layout->addWidget(widget);
        }
        list.addItems({"a", "b"});
        new DateField(&date, KeyFilter::Integer, seams.environment, DateField::Test::Calendar);
        act.setAutoDefault(false);
        act.setToolTip(QStringLiteral("Imprimir"));
        close.setAutoDefault(false);
        close.setToolTip(QStringLiteral("Fechar a tela"));
        giveKeys(act, {ScreenKey::Print, ScreenKey::MainAct});
        giveKeys(close, {ScreenKey::Escape, ScreenKey::Close});
        QObject::connect(&act, &QPushButton::clicked, [this] {
            ++acts;
            seen = date.text();
        });
        QObject::connect(&close, &QPushButton::clicked, [this] { ++closes; });
        screen.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
        lines.setFocus();
    }
    void stroke(Qt::Key key, Qt::KeyboardModifiers with = Qt::ControlModifier) {
        atLeisure([&] { QTest::keyClick(screen.focusWidget(), key, with); });
    }

    TestEnvironment seams;
    QDialog screen;
    QLineEdit date;
    QComboBox list;
    QPlainTextEdit lines;
    QPushButton act;
    QPushButton close;
    int acts = 0;
    int closes = 0;
    QString seen;
};

TEST_F(ShortcutsTest, ToolTipsNameThem) {
    EXPECT_EQ(act.toolTip(), QStringLiteral("Imprimir (Ctrl+P ou Ctrl+Enter)"));
    EXPECT_EQ(close.toolTip(), QStringLiteral("Fechar a tela (Esc ou Ctrl+W)"));
}

TEST_F(ShortcutsTest, PressTheirButtonFromAnywhere) {
    stroke(Qt::Key_P);
    stroke(Qt::Key_Return);
    EXPECT_EQ(acts, 2) << "also in a text of several lines";
    EXPECT_EQ(lines.toPlainText(), QString());
    EXPECT_EQ(screen.focusWidget(), &lines) << "the keyboard stays where it was";
    list.setFocus();
    stroke(Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_EQ(acts, 3);
    stroke(Qt::Key_W);
    EXPECT_EQ(closes, 1);
    close.setFocus();
    stroke(Qt::Key_Return);
    EXPECT_EQ(acts, 4) << "the key's button, not the one with the focus";
    EXPECT_EQ(closes, 1);
}

TEST_F(ShortcutsTest, AHeldKeyActsOnce) {
    stroke(Qt::Key_Return);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_P, Qt::Key_W}) {
        QTest::simulateEvent(screen.focusWidget(), true, key, Qt::ControlModifier, {}, true);
    }
    EXPECT_EQ(acts, 1);
    EXPECT_EQ(closes, 0);
    EXPECT_EQ(lines.toPlainText(), QString());
}

TEST_F(ShortcutsTest, ADisabledOrHiddenButtonIsNotPressed) {
    act.setEnabled(false);
    stroke(Qt::Key_P);
    act.setEnabled(true);
    act.hide();
    stroke(Qt::Key_P);
    EXPECT_EQ(acts, 0);
}

TEST_F(ShortcutsTest, ADialogOrAnOpenListInFrontKeepsItsKeys) {
    list.setFocus();
    list.showPopup();
    QTest::keyClick(list.view(), Qt::Key_W, Qt::ControlModifier);
    QTest::keyClick(&list, Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(acts + closes, 0);
    list.hidePopup();
    QDialog dialog(&screen);
    dialog.setModal(true);
    dialog.show();
    QTest::keyClick(&lines, Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(acts, 0);
}

TEST_F(ShortcutsTest, AFieldBeingTypedInIsCompletedFirst) {
    date.setFocus();
    keys(date, "01022012");
    stroke(Qt::Key_P);
    EXPECT_EQ(acts, 1);
    EXPECT_EQ(seen, QStringLiteral("01/02/2012"));
    date.setFocus();
    date.selectAll();
    keys(date, "01032012");
    stroke(Qt::Key_W);
    EXPECT_EQ(closes, 1);
    EXPECT_EQ(date.text(), QStringLiteral("01032012")) << "closing asks nothing of a field";
}

TEST_F(ShortcutsTest, AFieldThatRefusesItsTextStopsTheAct) {
    date.setFocus();
    keys(date, "31022012");
    stroke(Qt::Key_P);
    EXPECT_EQ(seams.boxes.shown.size(), 1U);
    EXPECT_EQ(acts, 0);
    EXPECT_EQ(screen.focusWidget(), &date);
}

}  // namespace
}  // namespace tarn::test
