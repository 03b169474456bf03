// What each routine says it has done: decision D123.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "billing/alert.h"
#include "billing/generate_note.h"
#include "billing/order_sheet.h"
#include "billing/orders.h"
#include "common/acts.h"
#include "reprint/reprint_note.h"
#include "tests/support/answers.h"
#include "tests/support/test_environment.h"

namespace tarn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct NoAlert : AlertDialog {
    void show(AlertMode /*mode*/) override { ADD_FAILURE() << "nothing to accept here"; }
};

class ToldActs : public testing::Test {
protected:
    ToldActs() {
        session.NCOMPANYCODE = 2041;
        session.SERVERNAME = "SRV";
    }
    void generate() {
        seams.loader.on("Seleciona_Obs", answers::observation(""));
        NoAlert alert;
        generateNote(seams.environment, session, alert, "45112",
                     [](Environment&, const Sessao&, XmlDocument&, const std::string&) {});
    }
    const std::vector<std::string>& told() const { return seams.acts.told; }

    TestEnvironment seams;
    Sessao session;
    BillingOrder order{.cells = {"45112", "", "", "", "", "7"}};
};

TEST_F(ToldActs, ANoteGeneratedAndPrinted) {
    seams.loader.on("SP_GERA_NF", answers::generatedNote("8529", "U"))
        .on("sel_gera_nf", answers::status("OK"));
    generate();
    EXPECT_THAT(told(), ElementsAre("NF 008529 da ordem 45112 enviada | NF 008529 gerada | use "
                                    "ReImpressão de NF"));
}

TEST_F(ToldActs, ANoteGeneratedOfWhichTheDocumentDoesntCome) {
    seams.loader.on("SP_GERA_NF", answers::generatedNote("8529", "U"))
        .on("sel_gera_nf", answers::status("Recusa"));
    generate();
    seams.loader.failOn("sel_gera_nf&");
    EXPECT_THAT(told(), ElementsAre("NF 008529 da ordem 45112 gerada, mas não impressa: use "
                                    "ReImpressão de NF"));
    ScriptedLoader cut;
    seams.loader = cut.on("SP_GERA_NF", answers::generatedNote("8529", "U"));
    generate();
    EXPECT_EQ(told().size(), 2U);
    EXPECT_EQ(told().front(), told().back());
}

TEST_F(ToldActs, ANoteThatIsntKnownToExistIsntTold) {
    seams.loader.on("SP_GERA_NF", answers::status("Crédito bloqueado"));
    generate();
    EXPECT_THAT(told(), IsEmpty());
}

TEST_F(ToldActs, ANoteReprinted) {
    seams.loader.on("sel_gera_nf", answers::status("OK"));
    session.NCOMPANYCODE = 2161;
    session.ID_ETB_TARN = 6001;  // has no form: nothing to print
    reprintNote(seams.environment, session, "8529", "U");
    EXPECT_THAT(told(), ElementsAre("NF 008529 enviada de novo | NF 008529 lida do servidor | "
                                    "imprima de novo"));
}

TEST_F(ToldActs, ANoteCancelled) {
    const CancelRequest request{
        .number = "8529", .series = "U", .noteKind = "S", .option = Rebilling::With, .reason = 1};
    seams.loader.on("sp_can_nf", answers::status("Recusa")).on("sp_can_nf", answers::status("OK"));
    cancelNote(seams.environment, session, request);
    EXPECT_THAT(told(), IsEmpty());
    cancelNote(seams.environment, session, request);
    EXPECT_THAT(told(), ElementsAre("NF 008529 cancelada"));
}

TEST_F(ToldActs, AnOrderCancelled) {
    seams.loader.on("sp_can_oft", answers::status("Recusa"))
        .on("sp_can_oft", answers::status("OK"));
    cancelOrder(seams.environment, session, order);
    EXPECT_THAT(told(), IsEmpty());
    cancelOrder(seams.environment, session, order);
    EXPECT_THAT(told(), ElementsAre("Ordem 45112 cancelada"));
}

TEST_F(ToldActs, AnOrderMaintained) {
    const commands::OrderData data{
        .order = "45112", .observation = "", .quantity = "1", .grossWeight = "1", .netWeight = "1"};
    saveOrder(seams.environment, session, data);
    EXPECT_THAT(told(), IsEmpty()) << "the answer was lost";
    seams.loader.on("MANUTENCAO_OFT", answers::status("OK"));
    saveOrder(seams.environment, session, data);
    EXPECT_THAT(told(), ElementsAre("Ordem 45112 gravada"));
}

TEST_F(ToldActs, AnOrderSheet) {
    seams.loader.on(
        "sel_impr_ordem_fatu",
        answers::declaration + "<PRINCIPAL cod='0' status='OK'><CAB RAZAO='CLIENTE'/></PRINCIPAL>");
    printSelectedOrder(seams.environment, session, "45112");
    EXPECT_THAT(told(), ElementsAre("Folha da ordem 45112 enviada | Folha da ordem 45112 lida do "
                                    "servidor | imprima de novo"));
}

TEST(Acts, WithoutAListenerNothingHappens) {
    TestEnvironment seams;
    seams.environment.acts = nullptr;
    tellDone(seams.environment, "x");
    tellPrinted(seams.environment, {});
    EXPECT_THAT(seams.acts.told, IsEmpty());
}

TEST(Acts, NameANoteAsItIsPrinted) {
    EXPECT_EQ(noteName("8529"), "NF 008529");
    EXPECT_EQ(noteName("1234567"), "NF 1234567");
    EXPECT_EQ(noteName(""), "NF 000000");
}

TEST(Acts, CountInPortuguese) {
    EXPECT_EQ(counted(1, "boleto", "boletos"), "1 boleto");
    EXPECT_EQ(counted(31, "etiqueta", "etiquetas"), "31 etiquetas");
}

}  // namespace
}  // namespace tarn::test
