// The reprinting job by clicks.
#include <fstream>
#include <sstream>

#include "tests/notes/note_fixture.h"
#include "tests/reprint/note_screen_test.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string conteudo(const char* nome) {
    std::ifstream arquivo(std::string(TARN_NOTE_DATA) + "/" + nome, std::ios::binary);
    std::ostringstream bytes;
    bytes << arquivo.rdbuf();
    return bytes.str();
}

class ReimpressaoNaTela : public TelaDeNota {
protected:
    void SetUp() override {
        TelaDeNota::SetUp();
        abre("mRINF");
    }
    void imprime() { click(tela(), "cmdSelecionar"); }
};

TEST_F(ReimpressaoNaTela, TheNoteComesOutByteForByteAsOftenAsAsked) {
    server.on("sel_gera_nf", conteudo("nota_1361.xml"));
    encontra();
    imprime();
    EXPECT_THAT(server.queries(), ElementsAre(pedeDocumento));
    ASSERT_EQ(spooler.jobs.size(), 2U);
    EXPECT_EQ(spooler.bytes(0), " \x0F");
    EXPECT_EQ(spooler.bytes(1), conteudo("nota_1361.prn"));
    EXPECT_EQ(dados(), achada());
    imprime();
    EXPECT_THAT(server.queries(), ElementsAre(pedeDocumento, pedeDocumento));
    ASSERT_EQ(spooler.jobs.size(), 4U);
    EXPECT_EQ(spooler.bytes(3), spooler.bytes(1));
    EXPECT_THAT(boxes.shown, IsEmpty());
    EXPECT_FALSE(menusLivres());
}

TEST_F(ReimpressaoNaTela, ANoteOfTypeDIsPrinted) {
    server.on("sel_gera_nf", conteudo("nota_1361.xml"));
    encontra("D");
    EXPECT_FALSE(opcao(0).isEnabled() || opcao(1).isEnabled());
    imprime();
    ASSERT_EQ(spooler.jobs.size(), 2U);
    EXPECT_EQ(spooler.bytes(1), conteudo("nota_1361.prn"));
}

TEST_F(ReimpressaoNaTela, NumberAndSeriesAreThoseOfTheNoteFound) {
    server.on("sel_gera_nf", conteudo("nota_1361.xml"));
    encontra();
    named<QComboBox>(tela(), "cboSerie").setCurrentIndex(serie1);  // by no choice of the user
    imprime();
    EXPECT_THAT(server.queries(), ElementsAre(pedeDocumento));
}

TEST_F(ReimpressaoNaTela, ADocumentOutOfReachIsToldTwiceAndTheFieldsStay) {
    server.failOn("sel_gera_nf");
    encontra();
    imprime();
    EXPECT_THAT(
        boxes.shown,
        ElementsAre(critica("0008"),
                    aviso("Houve um problema na transferência dos dados da Nota Fiscal !!!")));
    EXPECT_THAT(server.queries(), ElementsAre(pedeDocumento));
    EXPECT_EQ(dados(), achada());
    EXPECT_THAT(spooler.calls, IsEmpty());
}

TEST_F(ReimpressaoNaTela, ARefusalIsTheServersWords) {
    server.on("sel_gera_nf", answers::status("Nota &lt;bloqueada&gt;"));
    encontra();
    imprime();
    EXPECT_THAT(boxes.shown, ElementsAre(semTitulo("Nota <bloqueada>")));
    EXPECT_EQ(dados(), achada());
    EXPECT_THAT(spooler.calls, IsEmpty());
}

TEST_F(ReimpressaoNaTela, AStatusThatCannotBeReadIsAFailedTransferAndTheProgramLivesOn) {
    server.on("sel_gera_nf", "<PRINCIPAL a='' s='OK'/>");
    encontra();
    imprime();
    EXPECT_THAT(boxes.shown,
                ElementsAre(aviso(
                    "Houve um problema na transferência dos dados da Nota Fiscal nº 4567. ")));
    EXPECT_EQ(dados(), achada());
    EXPECT_FALSE(fim.encerrado());
}

TEST_F(ReimpressaoNaTela, AnErrorInTheNoteEndsTheProgramWithTheReport) {
    server.on("sel_gera_nf", conteudo("nota_quantidade_errada.xml"));
    encontra();
    imprime();
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Critical);
    EXPECT_EQ(boxes.shown[0].title, "TarnEmissao");
    EXPECT_EQ(boxes.shown[0].text.rfind("Erro em tempo de execução '13':\r\r", 0), 0U)
        << boxes.shown[0].text;
    EXPECT_NE(boxes.shown[0].text.find("tela de Reimpressão de Nota Fiscal"), std::string::npos);
    EXPECT_EQ(fim.status(), 3);
    ASSERT_EQ(spooler.jobs.size(), 2U);
    EXPECT_TRUE(spooler.jobs[0].closed);
    EXPECT_FALSE(spooler.jobs[1].ended) << "the note's job stays open";
}

TEST_F(ReimpressaoNaTela, AnEstablishmentWithoutAFormPrintsNothingAndSaysNothing) {
    encontra();
    server.on("sel_gera_nf", conteudo("nota_1361.xml"));
    sessao.NCOMPANYCODE = 2161;
    imprime();
    EXPECT_THAT(spooler.calls, IsEmpty());
    EXPECT_THAT(boxes.shown, IsEmpty());
    EXPECT_EQ(dados(), achada());
}

TEST_F(ReimpressaoNaTela, APrinterThatFailsGoesUnnoticed) {
    server.on("sel_gera_nf", conteudo("nota_1361.xml"));
    spooler.failOpen = 1;
    encontra();
    imprime();
    EXPECT_THAT(boxes.shown, IsEmpty());
    imprime();
    EXPECT_EQ(spooler.jobs.back().bytes(), conteudo("nota_1361.prn"));
}

}  // namespace
}  // namespace tarn
