// What the user must see of an order, by itself: both searches read and ask alike.
#include "billing/observations.h"

#include <gtest/gtest.h>

#include "billing/alert.h"
#include "tests/support/boxes.h"
#include "tests/support/sessions.h"
#include "tests/support/test_environment.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

class ReadAlert : public AlertDialog {
public:
    explicit ReadAlert(Sessao& session) : session_(session) {}

    void show(AlertMode mode) override {
        modes.push_back(mode);
        texts.push_back(session_.TextoMensagem + "|" + session_.ConfirmaMensagem);
        if (!answer.empty()) {
            session_.ConfirmaMensagem = answer;
        }
    }

    std::string answer;  // empty: closed without one
    std::vector<AlertMode> modes;
    Texts texts;  // and what was confirmed before

private:
    Sessao& session_;
};

// The two of them, by the command of their search.
using Search = Next (*)(Environment&, Sessao&, AlertDialog&, const std::string&);
struct SearchCase {
    const char* command;
    Search search;
    AlertMode mode;
};
const SearchCase sale{"Seleciona_Obs_Vnd_X_Ord", Seleciona_Obs_Vnd_X_Ord, AlertMode::Confirm};
const SearchCase stock{"Seleciona_Obs_Ord_X_Est", Seleciona_Obs_Ord_X_Est, AlertMode::OutOfStock};

class Observations : public testing::TestWithParam<SearchCase> {
protected:
    Next search(const SearchCase& which = GetParam()) {
        return which.search(seams_.environment, session_, alert_, "12");
    }
    void answer(const std::string& status, const std::string& text) {
        seams_.loader.on("", "<?xml version='1.0'?><R a='' s='" + status + "'><L OBSERVACAO='" +
                                 text + "'/></R>");
    }

    TestEnvironment seams_;
    Sessao session_ = sessionOf(1361, 9, "u1", "SRV");
    ReadAlert alert_{session_};
};

TEST_P(Observations, WithoutATextNobodyIsAsked) {
    session_.TextoMensagem = "da ordem anterior";
    session_.ConfirmaMensagem = "S";
    answer("OK", "");
    EXPECT_EQ(search(), Next::GoOn);
    EXPECT_EQ(seams_.loader.queries(), Texts{std::string("comando=") + GetParam().command +
                                             "&Id_Etb_Tarn=9&Id_Ord_Fat=12&ServerName=SRV"});
    EXPECT_EQ(session_.TextoMensagem, "");
    EXPECT_EQ(session_.ConfirmaMensagem, "N");
    EXPECT_EQ(alert_.texts, Texts{});
    EXPECT_EQ(seams_.boxes.shown, Boxes{});
}

TEST_P(Observations, ATextIsShownInItsOwnWayAndNothingIsConfirmedBefore) {
    session_.ConfirmaMensagem = "S";
    answer("OK", "ENTREGAR CEDO");
    EXPECT_EQ(search(), Next::Stop) << "closed without an answer";
    EXPECT_EQ(alert_.modes, std::vector{GetParam().mode});
    EXPECT_EQ(alert_.texts, Texts{"ENTREGAR CEDO|N"});
    EXPECT_EQ(seams_.boxes.shown, Boxes{});
}

TEST_P(Observations, ARefusalOfTheServerStopsAndLeavesTheText) {
    session_.TextoMensagem = "da ordem anterior";
    session_.ConfirmaMensagem = "S";
    answer("Ordem em uso.", "nunca");
    EXPECT_EQ(search(), Next::Stop);
    EXPECT_EQ(seams_.boxes.shown, Boxes{exclamation("Ordem em uso.")});
    EXPECT_EQ(session_.TextoMensagem, "da ordem anterior");
    EXPECT_EQ(session_.ConfirmaMensagem, "S");
    EXPECT_EQ(alert_.texts, Texts{});
}

// A failed search tells of itself and goes on with the text of the order before.
TEST_P(Observations, AFailedSearchShowsWhatTheOrderBeforeHad) {
    session_.TextoMensagem = "da ordem anterior";
    seams_.loader.failOn("");
    EXPECT_EQ(search(), Next::Stop);
    ASSERT_EQ(seams_.boxes.shown.size(), 2U);
    EXPECT_EQ(seams_.boxes.shown[0], transportFailure("0004"));
    EXPECT_EQ(seams_.boxes.shown[1],
              notice("Aconteceu um erro na busca da observação da(s) venda(s). Cancele esta tela "
                     "e tente novamente."));
    EXPECT_EQ(alert_.texts, Texts{"da ordem anterior|N"});
}

TEST_P(Observations, AFailedSearchWithoutAnEarlierTextGoesOn) {
    seams_.loader.failOn("");
    EXPECT_EQ(search(), Next::GoOn);
    EXPECT_EQ(seams_.boxes.shown.size(), 2U);
    EXPECT_EQ(alert_.texts, Texts{});
}

INSTANTIATE_TEST_SUITE_P(Searches, Observations, testing::Values(sale, stock),
                         [](const auto& each) { return std::string(each.param.command); });

using ConfirmedObservations = Observations;

TEST_F(ConfirmedObservations, OfASaleGoOnOnlyConfirmed) {
    answer("OK", "ENTREGAR CEDO");
    alert_.answer = "S";
    EXPECT_EQ(search(sale), Next::GoOn);
    alert_.answer = "N";
    EXPECT_EQ(search(sale), Next::Stop);
}

TEST_F(ConfirmedObservations, OfTheStockStopWhateverIsAnswered) {
    answer("OK", "FALTA P1");
    alert_.answer = "S";
    EXPECT_EQ(search(stock), Next::Stop);
}

}  // namespace
}  // namespace tarn::test
