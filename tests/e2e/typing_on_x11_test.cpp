// Not one character is lost: typing at several paces against answers that come late, in
// the fields whose leaving asks the server and in screens over the order list, which reads
// itself anew meanwhile.
#include <gtest/gtest.h>

#include <iostream>

#include "platform/qt/tick.h"
#include "tests/e2e/desk_x11.h"
#include "tests/e2e/ways_x11.h"
#include "tests/support/typing_pace.h"
#include "widgets/free_text_field.h"

namespace tarn::test {
namespace {

using namespace std::chrono_literals;

struct Field {
    const char* name;
    const char* typed;
};

struct Screen {
    const char* entry;  // of the menu; null: a button of the order list
    const char* button;
    const char* name;
    std::vector<Field> fields;
    ways::Way way = nullptr;  // in place of the first two
};

class TypingOn : public DeskX11, public testing::WithParamInterface<Pace> {
protected:
    Time answer() const { return Time(GetParam().answer); }
    Time pace() const { return Time(GetParam().key); }
    static std::string text(const QWidget& screen, const char* field) {
        if (const auto* line = screen.findChild<QLineEdit*>(QLatin1StringView(field))) {
            return line->text().toStdString();
        }
        return named<FreeTextField>(screen, field).text();
    }
    static void clear(const QWidget& screen, const char* field) {
        QMetaObject::invokeMethod(&named<QWidget>(screen, field), "clear");
    }
    QWidget& openOverList(X11User& hands, const Screen& which) {
        QWidget& orders = opens(hands, "mOFT", "FrmOFT");
        if (which.way != nullptr) {
            return which.way(*this, hands);
        }
        if (which.button == nullptr) {
            return opens(hands, which.entry, which.name);
        }
        QWidget& behind =
            which.entry == nullptr ? orders : opens(hands, which.entry, "FrmPesqDupli");
        press(hands, behind, which.button);
        return appears(hands, which.name);
    }
    // A row of a table for the reader of the test's output.
    void tell(const char* screen, const char* field, const std::string& typed,
              const std::string& held) const {
        std::cout << "| " << screen << " | " << field << " | " << GetParam().answer << " | "
                  << GetParam().key << " | " << typed.size() << " | " << held.size() << " | "
                  << (typed == held ? "all, in order" : "NOT: " + held) << " |" << std::endl;
        EXPECT_EQ(held, typed) << screen << " " << field;
    }
    // The order list behind the screen reads itself anew all the time.
    void typeOverList(const Screen& which) {
        user.does([&](X11User& hands) {
            QWidget& screen = openOverList(hands, which);
            auto& timer = named<Tick>(menu, "Timer");
            hands.inProgram([&timer] {
                timer.stop();
                timer.setInterval(200);
            });
            delay("sel_ordem_fatu", answer());
            page.takeQueries();
            for (const Field& field : which.fields) {
                hands.inProgram([&] { clear(screen, field.name); });
                focus(hands, named<QWidget>(screen, field.name));
                hands.inProgram([&timer] { timer.start(); });
                hands.type(field.typed, pace());
                hands.inProgram([&timer] { timer.stop(); });
                hands.settle();
                hands.inProgram(
                    [&] { tell(which.name, field.name, field.typed, text(screen, field.name)); });
            }
        });
        EXPECT_GT(asked("sel_ordem_fatu"), 0U) << "the list was to read itself meanwhile";
    }
};

TEST_P(TypingOn, TheChequeHoldsWhatWasTyped) {
    delay("seleciona_um_controle_cheque_emitido", answer());
    user.does([&](X11User& hands) {
        QWidget& screen = opens(hands, "mnuChequeImpressao", "frmCheque");
        hands.inProgram([&] {
            named<QComboBox>(screen, "cboBancoAgConta").setCurrentIndex(1);
            named<QLineEdit>(screen, "txtSerie").setText(QStringLiteral("z"));
        });
        focus(hands, named<QWidget>(screen, "txtNumeroCheque"));
        hands.type("778", pace());
        hands.tap("Return");
        hands.type("a", pace());
        hands.tap("Return");
        hands.type("12345,67", pace());
        hands.tap("Return");
        hands.type("joao da silva", pace());
        hands.tap("Tab");
        hands.settle();
        hands.inProgram([&] {
            const auto holds = [&](const char* field, const char* typed) {
                tell("frmCheque, checks under way", field, typed, text(screen, field));
            };
            EXPECT_EQ(text(screen, "txtValor"), "12.345,67");
            holds("txtNumeroCheque", "778");
            holds("txtSerie", "a");
            holds("txtFavorecido", "joao da silva");
        });
    });
    EXPECT_EQ(asked("seleciona_um_controle_cheque_emitido"), 2U);
}

TEST_P(TypingOn, TheMaintenanceOverTheOrderListHoldsWhatWasTyped) {
    typeOverList({nullptr,
                  "cmdDetOFT",
                  "frmManutDetOFT",
                  {{"txtObs", "0123456789 abcdefghij 9876543210"},
                   {"txtQtde", "1234,5"},
                   {"txtPesoBruto", "9876,54"},
                   {"txtPesoLiquido", "1029,38"}}});
}

TEST_P(TypingOn, BillsOverTheOrderListHoldWhatWasTyped) {
    typeOverList({"mnuDuplicata",
                  nullptr,
                  "FrmPesqDupli",
                  {{"txtDtEmsDe", "15032012"},
                   {"txtDtEmsAte", "16042013"},
                   {"txtDtVncDe", "17052014"},
                   {"txtDtVncAte", "18062015"}}});
}

TEST_P(TypingOn, CustomersOverTheOrderListHoldWhatWasTyped) {
    typeOverList(
        {"mnuDuplicata", "cmdPesqCli", "FrmPesqCliente", {{"txtNmCli", "padaria tres irmaos"}}});
}

TEST_P(TypingOn, SlipsOverTheOrderListHoldWhatWasTyped) {
    typeOverList({"mnuBoleto",
                  nullptr,
                  "frmPesqBoleto",
                  {{"txtDtEmsDe", "15032012"},
                   {"txtDtEmsAte", "16042013"},
                   {"txtDtVncDe", "17052014"},
                   {"txtDtVncAte", "18062015"},
                   {"txtNr_Bol_Banc", "1234567890123"}}});
}

TEST_P(TypingOn, TheChequeOverTheOrderListHoldsWhatWasTyped) {
    typeOverList({"mnuChequeImpressao",
                  nullptr,
                  "frmCheque",
                  {{"txtNumeroCheque", "000123"},
                   {"txtSerie", "ab1"},
                   {"txtValor", "4321,09"},
                   {"txtFavorecido", "jose maria e filhos"},
                   {"txtDtDeposito", "15032013"},
                   {"txtObservacao", "material de escritorio"}}});
}

TEST_P(TypingOn, LabelRangesOverTheOrderListHoldWhatWasTyped) {
    typeOverList({nullptr,
                  nullptr,
                  "frmImprimirEtiqueta",
                  {{"txtDe", "1234567"}, {"txtAte", "7654321"}},
                  ways::labelPrinting});
}

TEST_P(TypingOn, LabelDeletionsOverTheOrderListHoldWhatWasTyped) {
    typeOverList({nullptr,
                  nullptr,
                  "frmExcluirEtiqueta",
                  {{"txtDe", "1234567"}, {"txtAte", "7654321"}},
                  ways::labelDeletion});
}

INSTANTIATE_TEST_SUITE_P(Each, TypingOn, testing::ValuesIn(paces()), paceName);

}  // namespace
}  // namespace tarn::test
