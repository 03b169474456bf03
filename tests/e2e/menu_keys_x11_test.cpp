// Screens that the menu opens by its keys: the next key is theirs.
#include <gtest/gtest.h>

#include <QMenuBar>
#include <QTableView>

#include "tests/e2e/desk_x11.h"

namespace tarn::test {
namespace {

class MenuKeys : public DeskX11 {
protected:
    QWidget& opensByKeys(X11User& hands, const char* entry, const char* screen) {
        hands.chord("Alt_L", "n");
        if (!hands.waitUntil([] { return QApplication::activePopupWidget() != nullptr; })) {
            throw std::runtime_error("no menu came");
        }
        hands.tap(entry);
        QWidget& opened = appears(hands, screen);
        hands.settle();
        return opened;
    }
};

TEST_F(MenuKeys, TheOrderListTakesItsShortcutAtOnce) {
    user.does([&](X11User& hands) {
        opensByKeys(hands, "i", "FrmOFT");
        hands.chord("Control_L", "Return");
        hands.settle();
    });
    EXPECT_EQ(asked("SP_GERA_NF"), 1U);
}

TEST_F(MenuKeys, AMenuThatIsOffTakesNoKeys) {
    user.does([&](X11User& hands) {
        QWidget& screen = opens(hands, "mOFT", "FrmOFT");
        focus(hands, named<QTableView>(screen, "sprDados"));
        hands.chord("Alt_L", "n");
        hands.tap("Down");
        hands.settle();
        hands.inProgram([&] {
            EXPECT_EQ(menu.menuBar()->activeAction(), nullptr);
            EXPECT_EQ(named<QTableView>(screen, "sprDados").currentIndex().row(), 1);
        });
    });
}

TEST_F(MenuKeys, TheReprintTakesTheNextTabAtOnce) {
    user.does([&](X11User& hands) {
        const QWidget& screen = opensByKeys(hands, "r", "FrmReImprimeNF");
        hands.tap("Tab");
        hands.type("8529", X11User::Time(40));
        hands.settle();
        hands.inProgram(
            [&] { EXPECT_EQ(named<QLineEdit>(screen, "txtNF").text().toStdString(), "8529"); });
    });
}

}  // namespace
}  // namespace tarn::test
