#include "widgets/form_helpers.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTest>
#include <array>

#include "tests/support/screen_test.h"
#include "widgets/look.h"

namespace tarn::test {
namespace {

TEST(FillList, StandsOnTheFirstItemAndForgetsTheOthers) {
    QComboBox list;
    EXPECT_EQ(currentItemData(list), 0);
    fillList(list, std::array{ListItem{"velho", 1}});
    fillList(list, std::array{ListItem{"MATRIZ", 7}, ListItem{"FILIAL", -8}});
    EXPECT_EQ(list.count(), 2);
    EXPECT_EQ(list.currentText(), QStringLiteral("MATRIZ"));
    EXPECT_EQ(currentItemData(list), 7);
    list.setCurrentIndex(1);
    EXPECT_EQ(currentItemData(list), -8);
    fillList(list, {});
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(currentItemData(list), 0);
}

TEST(ShowCustomer, TheCodeGoesAlongBehindTheName) {
    QLineEdit field;
    EXPECT_EQ(customerId(field), "");
    showCustomer(field, "4711", "JOSÉ & FILHOS");
    EXPECT_EQ(field.text(), QStringLiteral("JOSÉ & FILHOS"));
    EXPECT_EQ(customerId(field), "4711");
    showCustomer(field, "", "");
    EXPECT_EQ(field.text(), QString());
    EXPECT_EQ(customerId(field), "");
}

TEST(FocusField, GoesToTheFieldThatIsNamed) {
    enum class Field { First, Second };
    QWidget screen;
    QLineEdit first(&screen);
    QLineEdit second(&screen);
    screen.show();
    focusField(Field::Second, {{Field::First, &first}, {Field::Second, &second}});
    EXPECT_EQ(screen.focusWidget(), &second);
    focusField(Field::First, {{Field::First, &first}, {Field::Second, &second}});
    EXPECT_EQ(screen.focusWidget(), &first);
}

TEST(Buttons, HaveTheirPictureAndTheirRoutine) {
    QWidget screen;
    QPushButton button(&screen);
    int clicks = 0;
    const Buttons buttons(&screen, setLargeIcon);
    buttons.add(&button, "close", [&clicks] { ++clicks; });
    EXPECT_FALSE(button.icon().isNull());
    button.click();
    EXPECT_EQ(clicks, 1);
}

TEST(PrepareButton, AnAccessKeyBringsTheFocusAlong) {
    QWidget screen;
    QLineEdit field(&screen);
    QPushButton button(&screen);
    prepareButton(button, "close");
    EXPECT_FALSE(button.autoDefault());
    screen.show();
    field.setFocus();
    button.click();
    EXPECT_EQ(screen.focusWidget(), &button);
}

TEST(CloseScreen, TakesTheInnerWindowAlong) {
    QMdiArea area;
    auto* screen = new QWidget;
    QMdiSubWindow* inner = area.addSubWindow(screen);
    area.show();
    ASSERT_TRUE(inner->isVisible());
    closeScreen(*screen);
    EXPECT_FALSE(inner->isVisible());
    QWidget alone;
    alone.show();
    closeScreen(alone);
    EXPECT_FALSE(alone.isVisible());
}

}  // namespace
}  // namespace tarn::test
