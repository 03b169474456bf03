#include "labels/print_labels.h"

#include <gmock/gmock.h>
#include "runtime/runtime_error.h"

#include "tests/labels/label_flows.h"
#include "tests/support/texts.h"

namespace tarn::test {

using namespace labels;
namespace {

constexpr char senderQuery[] =
    "comando=sel_dados_remetente&nId_Emp_Tarn=2161&nId_Etb_Tarn=7&ServerName=SRV1";

TEST_F(LabelFlows, ARangeIsFetchedWithItsSenderAndPrinted) {
    env.loader.on("sel_etiquetas", labelRows(1)).on("sel_dados_remetente", sender);
    EXPECT_TRUE(printRange("007", " 1.000"));
    EXPECT_EQ(env.loader.queries(),
              (Texts{"comando=sel_etiquetas&ID_EMP_TARN=2161&sDc_Mot_Imp=NATAL & ANO"
                     "&nSeq_De=7&nSeq_Ate=1000&ServerName=SRV1",
                     senderQuery}));
    EXPECT_EQ(env.printer.operations.size(), 2U + 13U + 12U + 2U);
    EXPECT_EQ(env.boxes.shown, (Boxes{information(" Etiquetas impressas com sucesso!   ")}));
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
    EXPECT_EQ(env.boxes.shown, (Boxes{noInternet9}));
    EXPECT_EQ(second.boxes.shown, (Boxes{noInternet9}));
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
    EXPECT_EQ(env.boxes.shown, Boxes{});
    expectsNothingPrinted();
}

}  // namespace
}  // namespace tarn::test
