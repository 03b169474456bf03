#include "widgets/field_families.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

#include "tests/support/entering.h"
#include "tests/support/screen_test.h"

namespace tarn::test {
namespace {

// A form with one field of each family and a button.
class Form : public QWidget {
public:
    Form(Environment& environment)
        : first("first"),
          second("second"),
          plain("plain"),
          quantity("quantity"),
          weight("weight"),
          money("money"),
          deposit("deposit"),
          number("number") {
        auto* layout = new QVBoxLayout(this);
        for (QWidget* widget : std::initializer_list<QWidget*>{
                 &first, &second, &plain, &quantity, &weight, &money, &deposit, &number, &button}) {
            layout->addWidget(widget);
        }
        button.setObjectName(QStringLiteral("button"));
        quantity.setText(QStringLiteral("0,000"));
        weight.setText(QStringLiteral("0,000"));
        new DateField(&first, KeyFilter::Decimal, environment);
        new DateField(&second, KeyFilter::Decimal, environment);
        new FieldController(&plain, KeyFilter::Decimal, environment);
        new QuantityField(&quantity, messagesQtde, environment);
        new QuantityField(&weight, grossWeightMessages, environment);
        new MoneyField(&money, environment);
        new DateField(&deposit, KeyFilter::Integer, environment, DateField::Test::Calendar);
        new FieldController(&number, KeyFilter::Integer, environment,
                            FieldController::EnterKey::BeepOnly);
        show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(this));
        button.setFocus();
    }

    struct Field : QLineEdit {
        explicit Field(const char* name) { setObjectName(QLatin1StringView(name)); }
    };
    Field first, second, plain, quantity, weight, money, deposit, number;
    QPushButton button;
};

class FieldFamilies : public ScreenTest {
protected:
    // Types into the field and leaves it by Tab.
    std::string left(QLineEdit& field, const char* typed) {
        field.setFocus();
        field.selectAll();
        tarn::test::keys(field, typed);
        QTest::keyClick(&field, Qt::Key_Tab);
        return field.text().toStdString();
    }
    void settle() {
        for (int turn = 0; turn < 3; ++turn) {
            QCoreApplication::processEvents();
        }
    }
    bool hasFocus(const QWidget& widget) { return form.focusWidget() == &widget; }

    Form form{environment};
};

TEST_F(FieldFamilies, DateIsCompletedFromToday) {
    const std::pair<const char*, const char*> dates[] = {
        {"15", "15/03/2012"},      {"1", "01/03/2012"},        {"1504", "15/04/2012"},
        {"150412", "15/04/2012"},  {"15042015", "15/04/2015"}, {"15045", "15/04/2005"},
        {"1504999", "15/04/2999"}, {"99992012", "99/99/2012"}, {"150", "15/00/2012"},
        {"1,", "01/03/2012"}};
    for (const auto& [typed, shown] : dates) {
        EXPECT_EQ(left(form.first, typed), shown) << typed;
    }
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(FieldFamilies, EmptyDateStaysEmpty) {
    form.first.setFocus();
    QTest::keyClick(&form.first, Qt::Key_Tab);
    EXPECT_EQ(form.first.text(), QString());
    EXPECT_EQ(machine.beeps, 0);
}

TEST_F(FieldFamilies, DateIsEditedAsSelectedDigits) {
    left(form.first, "15032012");
    EXPECT_EQ(form.first.maxLength(), 10);
    form.first.setFocus(Qt::BacktabFocusReason);
    EXPECT_EQ(form.first.text(), QStringLiteral("15032012"));
    EXPECT_EQ(form.first.selectedText(), QStringLiteral("15032012"));
    EXPECT_EQ(form.first.maxLength(), 8);
}

TEST_F(FieldFamilies, DateTakesEightCharactersWhileEdited) {
    EXPECT_EQ(left(form.first, "1503201299"), "15/03/2012");
}

TEST_F(FieldFamilies, AClickIntoTheFieldLeavesItSelected) {
    left(form.first, "15032012");
    QTest::mouseClick(&form.first, Qt::LeftButton, {}, {4, form.first.height() / 2});
    EXPECT_EQ(form.first.selectedText(), QStringLiteral("15032012"));
    QTest::mouseClick(&form.first, Qt::LeftButton, {}, {4, form.first.height() / 2});
    EXPECT_EQ(form.first.selectedText(), QString()) << "a second click places the cursor";
}

TEST_F(FieldFamilies, RefusedKeysBeepAndDontArrive) {
    form.plain.setFocus();
    keys(form.plain, "1.2-3ax ,,ç");
    EXPECT_EQ(form.plain.text(), QStringLiteral("123,,"));
    EXPECT_EQ(machine.beeps, 6);
    QTest::keyClick(&form.plain, Qt::Key_Backspace);
    EXPECT_EQ(form.plain.text(), QStringLiteral("123,"));
    EXPECT_EQ(machine.beeps, 6);
}

TEST_F(FieldFamilies, TheIntegerFilterRefusesTheComma) {
    form.number.setFocus();
    QTest::keyClicks(&form.number, QStringLiteral("1,2"));
    EXPECT_EQ(form.number.text(), QStringLiteral("12"));
    EXPECT_EQ(machine.beeps, 1);
}

TEST_F(FieldFamilies, EditingKeysPassWithoutABeep) {
    left(form.plain, "123");
    form.plain.setFocus();
    for (const Qt::Key stroke : {Qt::Key_Home, Qt::Key_Delete, Qt::Key_End, Qt::Key_Left,
                                 Qt::Key_Shift, Qt::Key_Escape, Qt::Key_F1}) {
        QTest::keyClick(&form.plain, stroke);
    }
    EXPECT_EQ(form.plain.text(), QStringLiteral("23"));
    EXPECT_EQ(machine.beeps, 0);
}

TEST_F(FieldFamilies, EachTakesNumbersOnlyHoweverTheyCome) {
    for (const char* name : {"first", "plain", "quantity", "money"}) {
        expectNumbersOnly(form, name, machine, Comma::Taken);
    }
    for (const char* name : {"deposit", "number"}) {
        expectNumbersOnly(form, name, machine, Comma::LeftOut);
    }
}

TEST_F(FieldFamilies, APastedDateIsTakenWithoutItsPunctuation) {
    for (QLineEdit* field : {&form.first, &form.deposit}) {
        for (const char* pasted : {"31/03/2012", "31-03-2012", "31.03.2012", " 31032012 "}) {
            field->setFocus();
            field->selectAll();
            paste(*field, QString::fromUtf8(pasted));
            EXPECT_EQ(field->text(), QStringLiteral("31032012")) << pasted;
            QTest::keyClick(field, Qt::Key_Tab);
            EXPECT_EQ(field->text(), QStringLiteral("31/03/2012")) << pasted;
        }
    }
    settle();
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_EQ(machine.beeps, 0);
}

TEST_F(FieldFamilies, APastedAmountIsReadAsTheOneThatWasCopied) {
    for (QLineEdit* field : {&form.quantity, &form.money}) {
        field->setFocus();
        paste(*field, QStringLiteral("1.234,5"));
        QTest::keyClick(field, Qt::Key_Tab);
        EXPECT_EQ(field->text().left(7), QStringLiteral("1.234,5"));
    }
    EXPECT_EQ(machine.beeps, 0);
}

TEST_F(FieldFamilies, EnterInADateTabsAndBeeps) {
    form.first.setFocus();
    QTest::keyClicks(&form.first, QStringLiteral("15"));
    QTest::keyClick(&form.first, Qt::Key_Return);
    EXPECT_TRUE(hasFocus(form.second));
    EXPECT_EQ(form.first.text(), QStringLiteral("15/03/2012"));
    EXPECT_EQ(machine.beeps, 1);
    QTest::keyClick(&form.second, Qt::Key_Enter);
    EXPECT_TRUE(hasFocus(form.plain));
    EXPECT_EQ(machine.beeps, 2);
    QTest::keyClick(&form.plain, Qt::Key_Return);
    EXPECT_TRUE(hasFocus(form.quantity));
    EXPECT_EQ(machine.beeps, 3);
}

TEST_F(FieldFamilies, EnterInAQuantityTabsInSilence) {
    form.quantity.setFocus();
    QTest::keyClick(&form.quantity, Qt::Key_Return);
    EXPECT_TRUE(hasFocus(form.weight));
    EXPECT_EQ(machine.beeps, 0);
}

TEST_F(FieldFamilies, EnterCanBeepAndStay) {
    form.number.setFocus();
    QTest::keyClick(&form.number, Qt::Key_Return);
    EXPECT_TRUE(hasFocus(form.number));
    EXPECT_EQ(machine.beeps, 1);
}

TEST_F(FieldFamilies, EnterInMoneyTabsAndBeeps) {
    form.money.setFocus();
    QTest::keyClick(&form.money, Qt::Key_Return);
    EXPECT_TRUE(hasFocus(form.deposit));
    EXPECT_EQ(machine.beeps, 1);
}

TEST_F(FieldFamilies, QuantityIsFormatted) {
    EXPECT_EQ(left(form.quantity, "1234,5"), "1.234,500");
    EXPECT_EQ(form.quantity.maxLength(), 13);
    EXPECT_EQ(left(form.quantity, "9999999,9995"), "10.000.000,000");
    EXPECT_EQ(form.quantity.alignment() & Qt::AlignHorizontal_Mask, Qt::AlignRight);
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(FieldFamilies, WhatFormattingLeftPassesAgain) {
    left(form.quantity, "9999999,999");
    form.quantity.setFocus();
    EXPECT_EQ(form.quantity.selectedText(), QStringLiteral("9.999.999,999"));
    QTest::keyClick(&form.quantity, Qt::Key_Tab);
    EXPECT_EQ(form.quantity.text(), QStringLiteral("9.999.999,999"));
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(FieldFamilies, EmptyQuantityIsRefused) {
    std::string duringBox;
    boxes.onShow = [&](const Box& /*box*/) { duringBox = form.quantity.text().toStdString(); };
    form.quantity.setFocus();
    QTest::keyClick(&form.quantity, Qt::Key_Delete);
    QTest::keyClick(&form.quantity, Qt::Key_Tab);
    settle();
    EXPECT_EQ(boxes.shown,
              (Boxes{Box{"Quantidade inválido.     ", BoxIcon::Information, "Atenção"}}));
    EXPECT_EQ(duringBox, "") << "the box comes before the text is set";
    EXPECT_EQ(form.quantity.text(), QStringLiteral("0,000"));
    EXPECT_EQ(form.quantity.selectedText(), QStringLiteral("0,000"));
    EXPECT_TRUE(hasFocus(form.quantity));
}

TEST_F(FieldFamilies, TooLargeAQuantityIsRefused) {
    left(form.quantity, "12345678,9");
    settle();
    EXPECT_EQ(boxes.shown, (Boxes{Box{"Quantidade máxima permitida é 9.999.999,999 ",
                                      BoxIcon::Information, "Atenção"}}));
    EXPECT_EQ(form.quantity.text(), QStringLiteral("0,000"));
    EXPECT_TRUE(hasFocus(form.quantity));
    left(form.weight, "10000000");
    settle();
    EXPECT_EQ(boxes.shown.back().text, "Peso Bruto máximo permitido é 9.999.999,999 ");
}

TEST_F(FieldFamilies, AClickThatLeavesABadFieldIsLost) {
    int clicks = 0;
    QObject::connect(&form.button, &QPushButton::clicked, [&] { ++clicks; });
    form.quantity.setFocus();
    QTest::keyClick(&form.quantity, Qt::Key_Delete);
    form.button.setFocusPolicy(Qt::StrongFocus);
    QTest::mouseClick(&form.button, Qt::LeftButton);
    settle();
    EXPECT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(clicks, 0);
    EXPECT_TRUE(hasFocus(form.quantity));
    QTest::mouseClick(&form.button, Qt::LeftButton);
    EXPECT_EQ(clicks, 1) << "the reset text lets the user go";
}

TEST_F(FieldFamilies, MoneyIsFormattedAndLimited) {
    EXPECT_EQ(left(form.money, "1234,5"), "1.234,50");
    EXPECT_EQ(left(form.money, ""), "1.234,50");
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_EQ(left(form.money, "10000000000000"), "10000000000000");
    settle();
    EXPECT_EQ(boxes.shown, (Boxes{Box{"O valor máximo permitido é de R$ 9.999.999.999.999,99",
                                      BoxIcon::Exclamation}}));
    EXPECT_TRUE(hasFocus(form.money));
    EXPECT_EQ(form.money.selectedText(), QStringLiteral("10000000000000"));
}

TEST_F(FieldFamilies, EmptyMoneyStaysEmpty) {
    form.money.setFocus();
    QTest::keyClick(&form.money, Qt::Key_Tab);
    EXPECT_EQ(form.money.text(), QString());
}

TEST_F(FieldFamilies, ALoneCommaInMoneyEndsTheProgram) {
    left(form.money, ",");
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Critical);
    EXPECT_EQ(boxes.shown[0].title, "TarnEmissao");
    EXPECT_EQ(boxes.shown[0].text.rfind("Erro em tempo de execução '13':\r\r", 0), 0U)
        << boxes.shown[0].text;
    EXPECT_TRUE(end.ended());
    EXPECT_EQ(end.status(), 3);
}

TEST_F(FieldFamilies, TheTestedDateRefusesWhatIsNoDay) {
    std::string duringBox;
    boxes.onShow = [&](const Box& /*box*/) { duringBox = form.deposit.text().toStdString(); };
    for (const auto& [wrong, completed] :
         {std::pair{"31022012", "31/02/2012"}, std::pair{"29022011", "29/02/2011"},
          std::pair{"12312012", "12/31/2012"}, std::pair{"99992012", "99/99/2012"},
          std::pair{"3113", "31/13/2012"}}) {
        boxes.shown.clear();
        left(form.deposit, wrong);
        settle();
        EXPECT_EQ(duringBox, completed) << "so the clerk sees which day was put together";
        EXPECT_EQ(boxes.shown, (Boxes{Box{"Data Inválida.      ", BoxIcon::Critical, "Aviso"}}))
            << wrong;
        EXPECT_EQ(form.deposit.text(), QString());
        EXPECT_TRUE(hasFocus(form.deposit));
    }
    boxes.shown.clear();
    EXPECT_EQ(left(form.deposit, "29022012"), "29/02/2012");
    EXPECT_EQ(left(form.deposit, "15"), "15/03/2012");
    settle();
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(FieldFamilies, AnotherWindowInFrontIsNoLeaving) {
    form.quantity.setFocus();
    QTest::keyClick(&form.quantity, Qt::Key_Delete);
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    settle();
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_EQ(form.quantity.text(), QString());
}

TEST_F(FieldFamilies, AnUnfilteredFieldTakesAnyCharacterAndTabsInSilence) {
    QLineEdit free(&form);
    new FieldController(&free, KeyFilter::None, environment, FieldController::EnterKey::TabOnly);
    free.show();
    free.setFocus();
    tarn::test::keys(free, "a-1,ç .");
    EXPECT_EQ(free.text(), QStringLiteral("a-1,ç ."));
    QTest::keyClick(&free, Qt::Key_Return);
    EXPECT_FALSE(hasFocus(free));
    EXPECT_EQ(machine.beeps, 0);
}

TEST_F(FieldFamilies, LeavingIsToldOnceAndAfterTheTextWasFormatted) {
    const QSignalSpy left(form.money.findChild<FieldController*>(), &FieldController::wasLeft);
    form.money.setFocus();
    tarn::test::keys(form.money, "1234,5");
    QWidget other;
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_EQ(left.count(), 0) << "another window in front is no leaving";
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    QString shown;
    QObject::connect(form.money.findChild<FieldController*>(), &FieldController::wasLeft, &form,
                     [&] { shown = form.money.text(); });
    form.button.setFocus();
    EXPECT_EQ(left.count(), 1);
    EXPECT_EQ(shown, QStringLiteral("1.234,50"));
}

}  // namespace
}  // namespace tarn::test
