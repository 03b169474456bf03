#include "labels/queue.h"

#include "tests/labels/label_flows.h"
#include "tests/support/texts.h"

namespace tarn::test {

using namespace labels;
namespace {

TEST_F(LabelFlows, TheQueueOfAReasonIsReadWhole) {
    env.loader.on("sel_etiquetas",
                  answers::rowset("<z:row SEQUENCIAL='40001' CEP='1' NOME='N' CODIGO='2' "
                                  "ENDERECO='E' COMPLEMENTO='C' BAIRRO='B' MUNICIPIO='M' UF='SP' "
                                  "PAIS='BR'/><z:row SEQUENCIAL='40002' nome='other case'/>"));
    const auto queue = readQueue(env.environment, session, "PÁSCOA", values);
    EXPECT_EQ(env.loader.queries(),
              (Texts{"comando=sel_etiquetas&ID_EMP_TARN=2161&sDc_Mot_Imp=PÁSCOA&nSeq_De="
                     "&nSeq_Ate=&ServerName=SRV1"}));
    ASSERT_TRUE(queue);
    ASSERT_EQ(queue->size(), 2U);
    EXPECT_EQ(queue->at(0).cells, (Texts{"40001", "1", "N", "2", "E", "C", "B", "M", "SP", "BR"}));
    EXPECT_EQ(queue->at(1).cells, (Texts{"40002", "", "", "", "", "", "", "", "", ""}));
    EXPECT_EQ(values.MotivoImpressao, "PÁSCOA");
    EXPECT_EQ(values.quantity, 2U);
}

TEST_F(LabelFlows, AFailedReadingKeepsTheSizeButNotTheReason) {
    values.quantity = 3;
    EXPECT_FALSE(readQueue(env.environment, session, "PÁSCOA", values));
    EXPECT_EQ(values.MotivoImpressao, "PÁSCOA");
    EXPECT_EQ(values.quantity, 3U);
    EXPECT_EQ(env.boxes.shown, (Boxes{noInternet9}));
}

TEST_F(LabelFlows, ReasonsAndSendingBranches) {
    env.loader.on("sel_motivos", answers::rowset("<z:row DC_MOT_IMP='NATAL'/><z:row/>"))
        .on("sel_filiais_remetente",
            answers::rowset("<z:row FILIAL='SUL' ID_ETB='12'/><z:row FILIAL='X' ID_ETB='A'/>"));
    EXPECT_EQ(
        loadReasons(env.environment, session),
        (std::vector<ListItem>{ListItem{"--------", 0}, ListItem{"NATAL", 0}, ListItem{"", 0}}));
    EXPECT_EQ(
        loadSenderBranches(env.environment, session).value(),
        (std::vector<ListItem>{ListItem{"--------", 0}, ListItem{"SUL", 12}, ListItem{"X", 0}}));
    EXPECT_EQ(env.loader.queries(),
              (Texts{"comando=sel_motivos&ID_EMP_TARN=2161&ServerName=SRV1&sIc_Ver_Eti=F",
                     "comando=sel_filiais_remetente&ID_EMP_TARN=2161&nId_Pes_Usu=77"
                     "&ServerName=SRV1"}));
}

TEST_F(LabelFlows, FailedListsHaveTheirOwnTexts) {
    EXPECT_EQ(loadReasons(env.environment, session),
              (std::vector<ListItem>{ListItem{"--------", 0}}));
    EXPECT_FALSE(loadSenderBranches(env.environment, session));
    EXPECT_EQ(env.boxes.shown, (Boxes{noInternet9Wide, noInternet9}));
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
    EXPECT_EQ(env.loader.queries(),
              (Texts{"comando=exclui_etiquetas&ID_EMP_TARN=2161&nSeq_De=9&nSeq_Ate=7"
                     "&nId_Motivo=--------&ServerName=SRV1"}));
    EXPECT_EQ(env.boxes.shown, (Boxes{information("Etiquetas excluídas com sucesso!     ")}));
}

TEST_F(LabelFlows, AFailedDeletionIsCalledASuccessToo) {
    EXPECT_TRUE(deleteLabels(env.environment, session, "X", {"1", "2"}));
    EXPECT_EQ(env.boxes.shown,
              (Boxes{noInternet9, information("Etiquetas excluídas com sucesso!     ")}));
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

}  // namespace
}  // namespace tarn::test
