// What the label screens ask of the server and tell the user, apart from any widget.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "gateway/sessao.h"
#include "labels/customer_selection.h"
#include "labels/print_labels.h"
#include "labels/print_selection.h"
#include "labels/queue.h"
#include "runtime/runtime_error.h"
#include "tests/labels/label_answers.h"
#include "tests/support/boxes.h"
#include "tests/support/test_environment.h"

namespace tarn::test {

using namespace labels;
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LabelFlows : public testing::Test {
protected:
    LabelFlows() {
        session.NCOMPANYCODE = 2161;
        session.UserCode = "77";
        session.SERVERNAME = "SRV1";
        session.TipoEtiqueta = "F";
        values.TipoFormulario = "4";
        values.MotivoImpressao = "NATAL & ANO";
        values.FilialRemetente = 7;
    }
    bool printRange(const std::string& from, const std::string& to) {
        return printRange(env, from, to);
    }
    bool printRange(TestEnvironment& where, const std::string& from, const std::string& to) {
        const auto found = fetchRange(where.environment, session, values, {from, to});
        if (found) {
            printLabels(where.environment, labelFormOf(values.TipoFormulario), *found, {});
        }
        return found.has_value();
    }
    void expectsNothingPrinted() {
        EXPECT_TRUE(env.printer.operations.empty());
        EXPECT_TRUE(env.spooler.calls.empty());
    }

    TestEnvironment env;
    Sessao session;
    LabelValues values;
};

constexpr char senderQuery[] =
    "comando=sel_dados_remetente&nId_Emp_Tarn=2161&nId_Etb_Tarn=7&ServerName=SRV1";

TEST_F(LabelFlows, ARangeIsFetchedWithItsSenderAndPrinted) {
    env.loader.on("sel_etiquetas", labelRows(1)).on("sel_dados_remetente", sender);
    EXPECT_TRUE(printRange("007", " 1.000"));
    EXPECT_THAT(env.loader.queries(),
                ElementsAre("comando=sel_etiquetas&ID_EMP_TARN=2161&sDc_Mot_Imp=NATAL & ANO"
                            "&nSeq_De=7&nSeq_Ate=1000&ServerName=SRV1",
                            senderQuery));
    EXPECT_EQ(env.printer.operations.size(), 2U + 13U + 12U + 2U);
    EXPECT_THAT(env.boxes.shown, ElementsAre(information(" Etiquetas impressas com sucesso!   ")));
}

TEST_F(LabelFlows, EveryFormAsksForTheSender) {
    for (const char* form : {"1", "2", "3", "4"}) {
        TestEnvironment fresh;
        fresh.loader.on("sel_etiquetas", labelRows(0)).on("sel_dados_remetente", sender);
        values.TipoFormulario = form;
        EXPECT_TRUE(printRange(fresh, "1", "2"));
        EXPECT_EQ(fresh.loader.queries().size(), 2U);
        EXPECT_EQ(fresh.loader.queries()[1], senderQuery);
        EXPECT_EQ(fresh.spooler.jobs.size(), form == std::string("2") ? 2U : 0U) << form;
    }
}

TEST_F(LabelFlows, ARangeThatIsNoNumberSendsNothing) {
    for (const auto& [from, to] :
         {std::pair{"", "9"}, std::pair{"1", ""}, std::pair{",", "9"}, std::pair{"1", "1,,2"}}) {
        env.boxes.shown.clear();
        EXPECT_FALSE(printRange(from, to));
        ASSERT_EQ(env.boxes.shown.size(), 1U);
        const Box& box = env.boxes.shown[0];
        EXPECT_EQ(box.icon, BoxIcon::Critical);
        EXPECT_EQ(box.title, "TarnEmissao");
        const std::string wrong = std::string_view(from) == "1" ? to : from;
        EXPECT_EQ(box.text,
                  "Erro em tempo de execução '13':\r\r"
                  "Há um texto onde era esperado um número: \"" +
                      wrong + "\".");
    }
    EXPECT_TRUE(env.loader.addresses.empty());
    expectsNothingPrinted();
}

TEST_F(LabelFlows, ACommaInTheRangeTravels) {
    env.loader.on("sel_etiquetas", labelRows(0)).on("sel_dados_remetente", sender);
    printRange("7,5", ",5");
    EXPECT_THAT(env.loader.queries()[0], testing::HasSubstr("&nSeq_De=7,5&nSeq_Ate=0,5&"));
}

TEST_F(LabelFlows, AFailedRequestPrintsNothing) {
    env.loader.failOn("sel_etiquetas").on("sel_dados_remetente", sender);
    EXPECT_FALSE(printRange("1", "2"));
    EXPECT_EQ(env.loader.addresses.size(), 1U);
    TestEnvironment second;
    second.loader.on("sel_etiquetas", labelRows(2)).failOn("sel_dados_remetente");
    EXPECT_FALSE(printRange(second, "1", "2"));
    EXPECT_EQ(second.loader.addresses.size(), 2U);
    EXPECT_THAT(env.boxes.shown, ElementsAre(noInternet9));
    EXPECT_THAT(second.boxes.shown, ElementsAre(noInternet9));
    expectsNothingPrinted();
    EXPECT_TRUE(second.printer.operations.empty());
}

TEST_F(LabelFlows, ASenderWithoutARowIsReportedForEveryForm) {
    for (const char* form : {"1", "2", "3", "4"}) {
        values.TipoFormulario = form;
        env.boxes.shown.clear();
        env.loader.on("sel_etiquetas", labelRows(2)).on("sel_dados_remetente", answers::rowset(""));
        EXPECT_FALSE(printRange("1", "2"));
        ASSERT_EQ(env.boxes.shown.size(), 1U);
        EXPECT_EQ(env.boxes.shown[0].icon, BoxIcon::Critical);
        EXPECT_EQ(env.boxes.shown[0].text,
                  "Erro em tempo de execução '91':\r\rFalta um dado na resposta do servidor: "
                  "o servidor não tem os dados da Filial Remetente.");
        expectsNothingPrinted();
    }
}

TEST_F(LabelFlows, AFieldOfTheSenderInAnotherCaseIsAnErrorLikeAnyOther) {
    env.loader.on("sel_etiquetas", labelRows(2))
        .on("sel_dados_remetente", answers::rowset("<z:row nome='X'/>"));
    EXPECT_THROW(printRange("1", "2"), RuntimeError);
    EXPECT_THAT(env.boxes.shown, testing::IsEmpty());
    expectsNothingPrinted();
}

TEST_F(LabelFlows, TheQueueOfAReasonIsReadWhole) {
    env.loader.on("sel_etiquetas",
                  answers::rowset("<z:row SEQUENCIAL='40001' CEP='1' NOME='N' CODIGO='2' "
                                  "ENDERECO='E' COMPLEMENTO='C' BAIRRO='B' MUNICIPIO='M' UF='SP' "
                                  "PAIS='BR'/><z:row SEQUENCIAL='40002' nome='other case'/>"));
    const auto queue = readQueue(env.environment, session, "PÁSCOA", values);
    EXPECT_THAT(env.loader.queries(),
                ElementsAre("comando=sel_etiquetas&ID_EMP_TARN=2161&sDc_Mot_Imp=PÁSCOA&nSeq_De="
                            "&nSeq_Ate=&ServerName=SRV1"));
    ASSERT_TRUE(queue);
    ASSERT_EQ(queue->size(), 2U);
    EXPECT_THAT(queue->at(0).cells,
                ElementsAre("40001", "1", "N", "2", "E", "C", "B", "M", "SP", "BR"));
    EXPECT_THAT(queue->at(1).cells, ElementsAre("40002", "", "", "", "", "", "", "", "", ""));
    EXPECT_EQ(values.MotivoImpressao, "PÁSCOA");
    EXPECT_EQ(values.quantity, 2U);
}

TEST_F(LabelFlows, AFailedReadingKeepsTheSizeButNotTheReason) {
    values.quantity = 3;
    EXPECT_FALSE(readQueue(env.environment, session, "PÁSCOA", values));
    EXPECT_EQ(values.MotivoImpressao, "PÁSCOA");
    EXPECT_EQ(values.quantity, 3U);
    EXPECT_THAT(env.boxes.shown, ElementsAre(noInternet9));
}

TEST_F(LabelFlows, ReasonsAndSendingBranches) {
    env.loader.on("sel_motivos", answers::rowset("<z:row DC_MOT_IMP='NATAL'/><z:row/>"))
        .on("sel_filiais_remetente",
            answers::rowset("<z:row FILIAL='SUL' ID_ETB='12'/><z:row FILIAL='X' ID_ETB='A'/>"));
    EXPECT_THAT(loadReasons(env.environment, session),
                ElementsAre(ListItem{"--------", 0}, ListItem{"NATAL", 0}, ListItem{"", 0}));
    EXPECT_THAT(loadSenderBranches(env.environment, session).value(),
                ElementsAre(ListItem{"--------", 0}, ListItem{"SUL", 12}, ListItem{"X", 0}));
    EXPECT_THAT(env.loader.queries(),
                ElementsAre("comando=sel_motivos&ID_EMP_TARN=2161&ServerName=SRV1&sIc_Ver_Eti=F",
                            "comando=sel_filiais_remetente&ID_EMP_TARN=2161&nId_Pes_Usu=77"
                            "&ServerName=SRV1"));
}

TEST_F(LabelFlows, FailedListsHaveTheirOwnTexts) {
    EXPECT_THAT(loadReasons(env.environment, session), ElementsAre(ListItem{"--------", 0}));
    EXPECT_FALSE(loadSenderBranches(env.environment, session));
    EXPECT_THAT(env.boxes.shown, ElementsAre(noInternet9Wide, noInternet9));
}

TEST_F(LabelFlows, PrintingNeedsAQueueThenAForm) {
    values.quantity = 0;
    EXPECT_EQ(choiceRefusal(values, 0),
              (Refusal<QueueField>{QueueField::Reason,
                                   "É necessário escolher o Motivo de Impressão.     "}));
    values.quantity = 1;
    EXPECT_EQ(choiceRefusal(values, 0),
              (Refusal<QueueField>{QueueField::LabelForm,
                                   "Tipo de formulário é um campo obrigatório.     "}));
    EXPECT_EQ(choiceRefusal(values, 1), std::nullopt);
}

TEST_F(LabelFlows, ADeletionIsSentAndCalledASuccess) {
    env.loader.on("exclui_etiquetas", answers::status("Recusado"));
    EXPECT_TRUE(deleteLabels(env.environment, session, "--------", {"009", "7"}));
    EXPECT_THAT(env.loader.queries(),
                ElementsAre("comando=exclui_etiquetas&ID_EMP_TARN=2161&nSeq_De=9&nSeq_Ate=7"
                            "&nId_Motivo=--------&ServerName=SRV1"));
    EXPECT_THAT(env.boxes.shown, ElementsAre(information("Etiquetas excluídas com sucesso!     ")));
}

TEST_F(LabelFlows, AFailedDeletionIsCalledASuccessToo) {
    EXPECT_TRUE(deleteLabels(env.environment, session, "X", {"1", "2"}));
    EXPECT_THAT(env.boxes.shown,
                ElementsAre(noInternet9, information("Etiquetas excluídas com sucesso!     ")));
}

TEST(RangeRefusal, ADeletionNeedsBothEnds) {
    EXPECT_EQ(rangeRefusal({}),
              (Refusal<RangeField>{RangeField::From, "De é um campo obrigatório!  "}));
    EXPECT_EQ(rangeRefusal({"1", ""}),
              (Refusal<RangeField>{RangeField::To, "Até é um campo obrigatório!  "}));
    EXPECT_EQ(rangeRefusal({"1", ","}), std::nullopt);
}

TEST_F(LabelFlows, ADeletionOfWhatIsNoNumberIsReported) {
    for (const auto& [from, to] : {std::pair{",", "1"}, std::pair{"1", ",,"}}) {
        env.boxes.shown.clear();
        EXPECT_FALSE(deleteLabels(env.environment, session, "X", {from, to}));
        ASSERT_EQ(env.boxes.shown.size(), 1U);
        EXPECT_EQ(env.boxes.shown[0].icon, BoxIcon::Critical);
        EXPECT_EQ(env.boxes.shown[0].text.rfind("Erro em tempo de execução '13':\r\r", 0), 0U);
    }
    EXPECT_TRUE(env.loader.addresses.empty());
}

const ListItem all{"<-TODAS->", -1};

TEST_F(LabelFlows, ListsOfTheSelection) {
    env.loader.on("sel_filias", answers::rowset("<z:row FILIAL='SUL' ID_ETB='12'/>"))
        .on("sel_pais", answers::rowset("<z:row NM_PAIS='BRASIL' ID_PAIS='55'/>"))
        .on("sel_estado", answers::rowset("<z:row NM_UF='SÃO PAULO' ID_UF='35'/>"))
        .on("sel_cidade", answers::rowset("<z:row NM_MUN='SANTOS' ID_MUN='-9'/>"));
    EXPECT_THAT(loadBranches(env.environment, session), ElementsAre(all, ListItem{"SUL", 12}));
    EXPECT_THAT(loadCountries(env.environment, session), ElementsAre(all, ListItem{"BRASIL", 55}));
    EXPECT_THAT(loadStates(env.environment, session, 55),
                ElementsAre(all, ListItem{"SÃO PAULO", 35}));
    EXPECT_THAT(loadTowns(env.environment, session, 35), ElementsAre(all, ListItem{"SANTOS", -9}));
    EXPECT_THAT(env.loader.queries(),
                ElementsAre("comando=sel_filias&nId_Emp_Tarn=2161&nId_Pes_Usu=77&ServerName=SRV1",
                            "comando=sel_pais&ServerName=SRV1",
                            "comando=sel_estado&Pais=55&ServerName=SRV1",
                            "comando=sel_cidade&Estado=35&ServerName=SRV1"));
}

TEST_F(LabelFlows, FailedListsOfTheSelection) {
    EXPECT_THAT(loadBranches(env.environment, session), IsEmpty());
    EXPECT_THAT(loadCountries(env.environment, session), IsEmpty());
    EXPECT_THAT(loadStates(env.environment, session, 1), IsEmpty());
    EXPECT_THAT(loadTowns(env.environment, session, 1), IsEmpty());
    EXPECT_THAT(env.boxes.shown,
                ElementsAre(noInternet9Wide, noInternet9Wide, noInternet9Wide, noInternet9Wide));
}

TEST(MontaURLTest, GivesTheChosenItemOrAllOthers) {
    const std::vector<std::int32_t> data{-1, 10, 20, -30};
    EXPECT_EQ(MontaURL(data, 0), "10, 20, -30");
    EXPECT_EQ(MontaURL(data, 2), "20");
    EXPECT_EQ(MontaURL(data, 3), "-30");
    EXPECT_EQ(MontaURL(std::span(data).first(2), 0), "10");
    EXPECT_EQ(MontaURL(std::span(data).first(1), 0), "");
    EXPECT_EQ(MontaURL({}, -1), "");
}

TEST(DateRefusal, WhatWasBoughtAsksForTheDateOfTheSale) {
    const std::string text = "Data de Venda obrigatoria nesta ocasião!";
    EXPECT_EQ(dateRefusal({.postalCodeFrom = "1"}), std::nullopt) << "CEP alone is free";
    for (const auto member :
         {&commands::LabelFilter::product, &commands::LabelFilter::amountFrom,
          &commands::LabelFilter::amountTo, &commands::LabelFilter::quantityFrom,
          &commands::LabelFilter::quantityTo}) {
        commands::LabelFilter filter;
        filter.*member = " ";
        EXPECT_EQ(dateRefusal(filter), (Refusal<SaleDate>{SaleDate::From, text}));
        filter.saleTo = "01/01/2012";
        EXPECT_EQ(dateRefusal(filter), (Refusal<SaleDate>{SaleDate::From, text}));
        filter.saleFrom = "01/01/2012";
        EXPECT_EQ(dateRefusal(filter), std::nullopt);
        filter.saleTo = "";
        EXPECT_EQ(dateRefusal(filter), (Refusal<SaleDate>{SaleDate::To, text}));
    }
}

TEST_F(LabelFlows, TheSearchShowsItsQueryFirst) {
    env.loader.on("sel_dados_etq",
                  answers::rowset("<z:row CD_CEP='1' NM_PES_CPL='N' DC_LG_CPL='L' NM_BRR='B' "
                                  "SG_UF='SP' NM_MUN='M'/><z:row CD_CEP='2'/>"));
    env.boxes.onShow = [this](const Box&) { EXPECT_TRUE(env.loader.addresses.empty()); };
    const auto customers =
        searchCustomers(env.environment, session, {.branches = "1, 2", .product = "P&Q"});
    const std::string query =
        "comando=sel_dados_etq&nIdEtbTarn=1, 2&nIdPais=&nIdMatPro=P&Q&nCepDe=&nCepAte=&dDtDe="
        "&dDtAte=&nVlrDe=&nVlrAte=&nQtDe=&nQtAte=&nIdOrd=NOME&ServerName=SRV1";
    EXPECT_THAT(env.boxes.shown, ElementsAre(Box{query}));
    EXPECT_THAT(env.loader.queries(), ElementsAre(query));
    ASSERT_EQ(customers.size(), 2U);
    EXPECT_THAT(customers[0].cells, ElementsAre("", "1", "N", "L", "B", "SP", "M"));
    EXPECT_THAT(customers[1].cells, ElementsAre("", "2", "", "", "", "", ""));
    EXPECT_FALSE(customers[0].ticked);
}

TEST_F(LabelFlows, AFailedSearchFindsNobody) {
    EXPECT_THAT(searchCustomers(env.environment, session, {}), IsEmpty());
    ASSERT_EQ(env.boxes.shown.size(), 2U);
    EXPECT_EQ(env.boxes.shown[1], noInternet9Wide);
}

const Box madeBox{"Impressão Gerada com Sucesso !", BoxIcon::None, "Alerta"};

std::vector<GridRow> customers(int count) {
    std::vector<GridRow> rows;
    for (int i = 1; i <= count; ++i) {
        const std::string n = std::to_string(i);
        rows.push_back(
            {{"", "CEP " + n, "NOME " + n, "RUA " + n, "BAIRRO " + n, "U" + n, "CIDADE " + n},
             true});
    }
    return rows;
}

TEST_F(LabelFlows, TickedCustomersPrintTwoAcross) {
    std::vector<GridRow> rows = customers(4);
    rows[1].ticked = false;
    printSelection(env.environment, rows, {});
    // 0.7 and 1.7 times 2.55, half a centimetre off.
    EXPECT_THAT(env.printer.lines(),
                ElementsAre("scale\t7", "orientation\t1", drawn(800, 1545, 10, "NOME 1"),
                            drawn(800, 2045, 8, "RUA 1"), drawn(800, 2545, 8, "CEP 1"),
                            drawn(800, 3045, 8, "CIDADE 1 - U1"), drawn(11500, 1545, 10, "NOME 3"),
                            drawn(11500, 2045, 8, "RUA 3"), drawn(11500, 2545, 8, "CEP 3"),
                            drawn(11500, 3045, 8, "CIDADE 3 - U3"), drawn(800, 4095, 10, "NOME 4"),
                            drawn(800, 4595, 8, "RUA 4"), drawn(800, 5095, 8, "CEP 4"),
                            drawn(800, 5595, 8, "CIDADE 4 - U4"), "enddoc"));
    EXPECT_THAT(env.boxes.shown, ElementsAre(madeBox));
}

TEST_F(LabelFlows, NobodyTickedIsCalledASuccessToo) {
    std::vector<GridRow> rows = customers(1);
    rows[0].ticked = false;
    printSelection(env.environment, rows, {});
    EXPECT_THAT(env.printer.lines(), ElementsAre("scale\t7", "orientation\t1", "enddoc"));
    EXPECT_THAT(env.boxes.shown, ElementsAre(madeBox));
}

TEST_F(LabelFlows, TheSelectionsPageIsNeverBroken) {
    printSelection(env.environment, customers(60), {});
    const std::vector<std::string> lines = env.printer.lines();
    ASSERT_EQ(lines.size(), 2U + 60U * 4U + 1U);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "newpage"), 0);
    // The thirtieth line: 29.7 times 2.55 is 75.735.
    EXPECT_EQ(lines[2 + 58 * 4], drawn(800, 75495, 10, "NOME 59"));
}

TEST_F(LabelFlows, TheSelectionsTextsAreCut) {
    GridRow row{{"", std::string(60, '1'), std::string(41, 'n'), std::string(51, 'e'),
                 std::string(51, 'b'), "", std::string(41, 'm')},
                true};
    printSelection(env.environment, std::vector{row}, {});
    const std::vector<std::string> lines = env.printer.lines();
    ASSERT_EQ(lines.size(), 7U);
    EXPECT_EQ(lines[2], drawn(800, 1545, 10, std::string(40, 'n')));
    EXPECT_EQ(lines[3], drawn(800, 2045, 8, std::string(50, 'e')));
    EXPECT_EQ(lines[4], drawn(800, 2545, 8, std::string(60, '1')));
    EXPECT_EQ(lines[5], drawn(800, 3045, 8, std::string(40, 'm') + " - "));
}

TEST_F(LabelFlows, AFailureOfTheSelectionIsShownAndItGoesOn) {
    env.printer.failAt = 2;
    printSelection(env.environment, customers(1), {});
    EXPECT_EQ(env.printer.operations.size(), 7U);
    EXPECT_THAT(env.boxes.shown, ElementsAre(printerRefused, madeBox));
}

TEST_F(LabelFlows, ASelectionThatThePrinterRefusesIsToldInsteadOfTheSuccess) {
    env.printer.refuses = isNoText;
    printSelection(env.environment, customers(2), {});
    EXPECT_EQ(env.printer.operations.size(), 2U + 2U * 4U + 1U);
    EXPECT_THAT(env.boxes.shown, ElementsAre(printerRefused));
}

}  // namespace
}  // namespace tarn::test
