// What a field does with Enter, with the focus and with what a rule made of its text.
#include "widgets/field_controller.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QVBoxLayout>

#include "tests/support/screen_test.h"

namespace tarn::test {
namespace {

using EnterKey = FieldController::EnterKey;

// Counts its comings and goings, and leaves as it is told to.
class ToldField : public FieldController {
public:
    using FieldController::FieldController;

    int comings = 0;
    int goings = 0;
    bool selects = false;
    std::optional<FieldResult> result;

protected:
    void entered() override {
        ++comings;
        if (selects) {
            edit().selectAll();
        }
    }
    void left() override {
        ++goings;
        if (result) {
            apply(*result);
        }
    }
};

class FieldControllerTest : public ScreenTest {
protected:
    FieldControllerTest() {
        auto* layout = new QVBoxLayout(&screen);
        layout->addWidget(&field);
        layout->addWidget(&next);
        screen.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&screen));
        next.setFocus();
    }
    ToldField& control(KeyFilter filter, EnterKey enterKey) {
        auto* control = new ToldField(&field, filter, environment, enterKey);
        field.setFocus();
        return *control;
    }
    bool movesOn() {
        field.setFocus();
        QTest::keyClick(&field, Qt::Key_Return);
        return next.hasFocus();
    }

    QWidget screen;
    QLineEdit field;
    QLineEdit next;
};

TEST_F(FieldControllerTest, EnterIsTheTabStrokeThenTheFiltersBeep) {
    control(KeyFilter::Integer, EnterKey::TabAndBeep);
    EXPECT_TRUE(movesOn());
    EXPECT_EQ(machine.beeps, 1);
}

TEST_F(FieldControllerTest, WithoutAFilterEnterIsTheTabStrokeAlone) {
    control(KeyFilter::None, EnterKey::TabAndBeep);
    EXPECT_TRUE(movesOn());
    EXPECT_EQ(machine.beeps, 0);
}

TEST_F(FieldControllerTest, EnterMayBeTheTabStrokeAlone) {
    control(KeyFilter::Decimal, EnterKey::TabOnly);
    EXPECT_TRUE(movesOn());
    EXPECT_EQ(machine.beeps, 0);
}

TEST_F(FieldControllerTest, EnterMayBeTheFiltersBeepAlone) {
    control(KeyFilter::Integer, EnterKey::BeepOnly);
    EXPECT_FALSE(movesOn());
    EXPECT_EQ(machine.beeps, 1);
}

TEST_F(FieldControllerTest, TheTabStrokeGoesToTheNextField) {
    field.setFocus();
    sendTab(field);
    EXPECT_TRUE(next.hasFocus());
}

TEST_F(FieldControllerTest, AFieldIsLeftForAnotherField) {
    ToldField& control = this->control(KeyFilter::None, EnterKey::TabOnly);
    QSignalSpy wasLeft(&control, &FieldController::wasLeft);
    EXPECT_EQ(control.comings, 1);
    next.setFocus();
    EXPECT_EQ(control.goings, 1);
    EXPECT_EQ(wasLeft.count(), 1);
    field.setFocus();
    EXPECT_EQ(control.comings, 2);
}

TEST_F(FieldControllerTest, AFocusThatComesBackByItselfIsNoLeaving) {
    ToldField& control = this->control(KeyFilter::None, EnterKey::TabOnly);
    for (const Qt::FocusReason reason :
         {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
        QFocusEvent gone(QEvent::FocusOut, reason);
        QCoreApplication::sendEvent(&field, &gone);
        QFocusEvent back(QEvent::FocusIn, reason);
        QCoreApplication::sendEvent(&field, &back);
    }
    EXPECT_EQ(control.comings, 1);
    EXPECT_EQ(control.goings, 0);
}

TEST_F(FieldControllerTest, AFieldThatIsHiddenIsNotLeft) {
    ToldField& control = this->control(KeyFilter::None, EnterKey::TabOnly);
    field.hide();
    EXPECT_EQ(control.goings, 0);
}

TEST_F(FieldControllerTest, WhatIsSelectedOnEnteringStaysSoAfterTheClick) {
    ToldField& control = this->control(KeyFilter::None, EnterKey::TabOnly);
    field.setText(QStringLiteral("15032012"));
    next.setFocus();
    control.selects = true;
    QTest::mouseClick(&field, Qt::LeftButton, {}, {4, field.height() / 2});
    EXPECT_EQ(field.selectedText(), QStringLiteral("15032012"));
    QTest::mouseClick(&field, Qt::LeftButton, {}, {4, field.height() / 2});
    EXPECT_EQ(field.selectedText(), QString()) << "the field had the focus";
}

TEST_F(FieldControllerTest, ATextIsShownAtOnce) {
    ToldField& control = this->control(KeyFilter::None, EnterKey::TabOnly);
    control.result = FieldResult{.text = "1,000", .box = std::nullopt};
    next.setFocus();
    EXPECT_EQ(field.text(), QStringLiteral("1,000"));
    EXPECT_EQ(boxes.shown, Boxes{});
}

TEST_F(FieldControllerTest, ARefusalComesOnceTheFocusHasSettled) {
    ToldField& control = this->control(KeyFilter::None, EnterKey::TabOnly);
    const Box refusal{"Quantidade inválido.     ", BoxIcon::Exclamation, "Aviso"};
    control.result = FieldResult{
        .text = "0,000", .box = refusal, .refocus = true, .textUnderBox = std::string("x1")};
    field.setText(QStringLiteral("x"));
    QString under;
    boxes.onShow = [&](const Box&) { under = field.text(); };
    next.setFocus();
    EXPECT_EQ(field.text(), QStringLiteral("x1"));
    EXPECT_EQ(boxes.shown, Boxes{}) << "not before";
    control.result.reset();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !boxes.shown.empty(); }));
    EXPECT_EQ(boxes.shown, Boxes{refusal});
    EXPECT_EQ(under, QStringLiteral("x1"));
    EXPECT_EQ(field.text(), QStringLiteral("0,000"));
    EXPECT_TRUE(field.hasFocus());
}

TEST_F(FieldControllerTest, ARefusalMayLeaveTheFocusWhereItWent) {
    ToldField& control = this->control(KeyFilter::None, EnterKey::TabOnly);
    control.result = FieldResult{.text = "", .box = Box{"Data inválida."}};
    field.setText(QStringLiteral("99"));
    next.setFocus();
    EXPECT_EQ(field.text(), QStringLiteral("99")) << "nothing else under the box";
    EXPECT_TRUE(QTest::qWaitFor([this] { return !boxes.shown.empty(); }));
    EXPECT_EQ(field.text(), QString());
    EXPECT_TRUE(next.hasFocus());
}

}  // namespace
}  // namespace tarn::test
