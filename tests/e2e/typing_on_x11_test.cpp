// Not one character is lost: typing at several paces against answers that come late, in
// the fields whose leaving asks the server and in screens over the order list, which reads
// itself anew meanwhile.
#include <gtest/gtest.h>

#include "billing/frm_oft.h"
#include "platform/qt/tick.h"
#include "tests/e2e/desk_x11.h"
#include "widgets/free_text_field.h"

namespace tarn::test {
namespace {

using namespace std::chrono_literals;

struct Pace {
    int answer;
    int key;
};

std::vector<Pace> paces() {
    std::vector<Pace> all;
    for (const int answer : {50, 150, 300, 2000}) {
        for (const int key : {60, 90, 120, 150}) {
            all.push_back({answer, key});
        }
    }
    return all;
}

std::string nameOf(const testing::TestParamInfo<Pace>& each) {
    return "AnswerAfter" + std::to_string(each.param.answer) + "KeyEach" +
           std::to_string(each.param.key);
}

class TypingOn : public DeskX11, public testing::WithParamInterface<Pace> {
protected:
    Time answer() const { return Time(GetParam().answer); }
    Time pace() const { return Time(GetParam().key); }
    static std::string text(const QWidget& screen, const char* field) {
        return named<QLineEdit>(screen, field).text().toStdString();
    }
    // The order list behind what opens next reads itself anew all the time.
    void openTickingList(X11User& hands) {
        opens(hands, "mOFT", "FrmOFT");
        hands.inProgram([this] {
            auto& tick = named<Tick>(menu, "Timer");
            tick.setInterval(700);
        });
        delay("sel_ordem_fatu", answer());
        page.takeQueries();
    }
    static void waitForAll(const X11User& hands) {
        EXPECT_TRUE(hands.waitUntil([] { return isReady(); }));
        hands.wait(50ms);
        EXPECT_TRUE(hands.waitUntil([] { return isReady(); }));
    }
};

TEST_P(TypingOn, TheChequeHoldsWhatWasTyped) {
    delay("seleciona_um_controle_cheque_emitido", answer());
    user.does([&](X11User& hands) {
        QWidget& screen = opens(hands, "mnuChequeImpressao", "frmCheque");
        hands.inProgram([&] { named<QComboBox>(screen, "cboBancoAgConta").setCurrentIndex(1); });
        focus(hands, named<QWidget>(screen, "txtNumeroCheque"));
        hands.type("778", pace());
        hands.tap("Return");
        hands.type("a", pace());
        hands.tap("Return");
        hands.type("12345,67", pace());
        hands.tap("Return");
        hands.type("joao da silva", pace());
        hands.tap("Tab");
        waitForAll(hands);
        hands.inProgram([&] {
            EXPECT_EQ(text(screen, "txtNumeroCheque"), "778");
            EXPECT_EQ(text(screen, "txtSerie"), "a");
            EXPECT_EQ(text(screen, "txtValor"), "12.345,67");
            EXPECT_EQ(text(screen, "txtFavorecido"), "joao da silva");
        });
    });
    EXPECT_EQ(asked("seleciona_um_controle_cheque_emitido"), 2U);
}

const std::string longText = "0123456789 abcdefghij 9876543210 jihgfedcba";

TEST_P(TypingOn, TheObservationOverTheOrderListHoldsWhatWasTyped) {
    user.does([&](X11User& hands) {
        openTickingList(hands);
        hands.inProgram([this] {
            QTimer::singleShot(0, &menu, [this] { named<QPushButton>(menu, "cmdDetOFT").click(); });
        });
        QWidget& screen = appears(hands, "frmManutDetOFT");
        auto& field = named<FreeTextField>(screen, "txtObs");
        hands.inProgram([&field] { field.clear(); });
        focus(hands, field);
        hands.type(longText.c_str(), pace());
        hands.inProgram([this] { named<Tick>(menu, "Timer").stop(); });
        waitForAll(hands);
        hands.inProgram([&] { EXPECT_EQ(field.toPlainText().toStdString(), longText); });
    });
    EXPECT_GT(asked("sel_ordem_fatu"), 0U);
}

struct OverTheList {
    const char* entry;
    const char* screen;
    const char* field;
    const char* typed;
    const char* shown;
};

TEST_P(TypingOn, EachFieldOverTheOrderListHoldsWhatWasTyped) {
    for (const OverTheList& which :
         {OverTheList{"mnuBoleto", "frmPesqBoleto", "txtNr_Bol_Banc", "1234567890123",
                      "1234567890123"},
          OverTheList{"mnuBoleto", "frmPesqBoleto", "txtDtVncAte", "15032013", "15032013"},
          OverTheList{"mnuDuplicata", "FrmPesqDupli", "txtDtVncDe", "15032013", "15032013"},
          OverTheList{"mnuChequeImpressao", "frmCheque", "txtFavorecido", "jose maria e filhos",
                      "jose maria e filhos"}}) {
        SCOPED_TRACE(which.field);
        user.does([&](X11User& hands) {
            openTickingList(hands);
            QWidget& screen = opens(hands, which.entry, which.screen);
            focus(hands, named<QWidget>(screen, which.field));
            hands.type(which.typed, pace());
            hands.inProgram([this] { named<Tick>(menu, "Timer").stop(); });
            waitForAll(hands);
            hands.inProgram([&] { EXPECT_EQ(text(screen, which.field), which.shown); });
        });
        closeInnerScreens();
        page.heal();
    }
}

INSTANTIATE_TEST_SUITE_P(Each, TypingOn, testing::ValuesIn(paces()), nameOf);

}  // namespace
}  // namespace tarn::test
