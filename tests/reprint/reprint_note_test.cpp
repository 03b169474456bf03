#include "reprint/reprint_note.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "runtime/runtime_error.h"
#include "tests/notes/note_fixture.h"
#include "tests/support/answers.h"
#include "tests/support/test_environment.h"

namespace tarn {
namespace {

const std::string semInternet =
    " - Não foi possível obter os dados da Internet. Verifique a conexão com a Internet.";
const std::string vao(50, ' ');

Box critica(const std::string& numero) {
    return {"ERRO Tarn" + numero + semInternet, BoxIcon::Critical, "TarnEMISSAO - ERRO INESPERADO"};
}
Box aviso(const std::string& texto) {
    return {texto, BoxIcon::Exclamation, "Aviso"};
}

// Loaded answers of which no status can be read.
const std::vector<std::string> semStatus{
    "<RESPOSTA cod='0' status='OK'/>",  // no declaration: the root is the first child
    answers::declaration + "<RESPOSTA status='OK'/>",  // one attribute
    answers::declaration + "<RESPOSTA/>"};

class ReimpressaoTest : public testing::Test {
protected:
    ReimpressaoTest() {
        sessao.NCOMPANYCODE = 1361;
        sessao.ID_ETB_TARN = 9;
        sessao.UserCode = "u1";
        sessao.SERVERNAME = "SRV";
    }
    std::vector<std::string> series() {
        std::vector<std::string> itens;
        EXPECT_TRUE(carregaSeries(ambiente, sessao, itens));
        return itens;
    }
    std::optional<NotaEncontrada> pesquisa(const std::string& linhas) {
        seams.loader.on("SEL_NF", answers::rowset(linhas));
        return pesquisaNota(ambiente, sessao, {"Série 1" + vao + "|A1", "0555"});
    }
    void reimprime(const std::string& resposta) {
        seams.loader.on("sel_gera_nf", resposta);
        reimprimeNota(ambiente, sessao, "0555", "A1");
    }
    // Prints the sample note at this company and establishment and compares its jobs
    // with those of the named form.
    void saiNoFormulario(std::int32_t empresa, std::int32_t estabelecimento,
                         const notes::Layout& layout) {
        sessao.NCOMPANYCODE = empresa;
        sessao.ID_ETB_TARN = estabelecimento;
        const std::string nota = test::sampleNote().xml();
        reimprime(nota);
        std::vector<std::string> esperado;
        for (const test::Job& job :
             test::print(layout.formFor(estabelecimento), nota, nullptr, "0555")) {
            esperado.push_back(job.bytes());
        }
        std::vector<std::string> saiu;
        for (const auto& job : seams.spooler.jobs) {
            saiu.push_back(job.bytes());
            EXPECT_TRUE(job.closed);
        }
        EXPECT_EQ(saiu, esperado);
        EXPECT_THAT(seams.boxes.shown, testing::IsEmpty());
    }

    TestEnvironment seams;
    Environment& ambiente = seams.environment;
    Sessao sessao;
};

TEST_F(ReimpressaoTest, AnItemIsDescriptionFiftyBlanksBarAndTrimmedCode) {
    seams.loader.on("SEL_SERIE_NF",
                    answers::rowset("<z:row DC_SER_NF='Série única ' CD_SER_NF='  U 1 '/>"
                                    "<z:row CD_SER_NF='2'/><z:row DC_SER_NF='Sem código'/>"
                                    "<z:row dc_ser_nf='x' cd_ser_nf='y'/>"));
    EXPECT_THAT(series(), testing::ElementsAre("Série única " + vao + "|U 1", vao + "|2",
                                               "Sem código" + vao + "|", vao + "|"));
    EXPECT_THAT(seams.loader.queries(),
                testing::ElementsAre("comando=SEL_SERIE_NF&ServerName=SRV"));
    EXPECT_THAT(seams.boxes.shown, testing::IsEmpty());
}

TEST_F(ReimpressaoTest, TheCodeIsTheSecondPiece) {
    EXPECT_EQ(codigoDaSerie("Série única " + vao + "|U 1"), "U 1");
    EXPECT_EQ(codigoDaSerie(vao + "|"), "");
    EXPECT_EQ(codigoDaSerie("A|B" + vao + "|7"), "B" + vao) << "a bar in the description";
}

TEST_F(ReimpressaoTest, NoRowsetNoItems) {
    seams.loader.on("SEL_SERIE_NF", answers::status("OK")).on("SEL_MOT_CAN", answers::rowset(""));
    EXPECT_THAT(series(), testing::IsEmpty());
    EXPECT_TRUE(carregaMotivos(ambiente, sessao).empty());
    EXPECT_THAT(seams.boxes.shown, testing::IsEmpty());
}

TEST_F(ReimpressaoTest, SeriesOutOfReachStopNothing) {
    EXPECT_THAT(series(), testing::IsEmpty());
    EXPECT_THAT(seams.boxes.shown, testing::ElementsAre(critica("0010")));
}

TEST_F(ReimpressaoTest, ReasonsKeepTheirNumber) {
    seams.loader.on("SEL_MOT_CAN", answers::rowset("<z:row DC_MOT_CAN='Erro' ID_MOT_CAN=' 12 '/>"
                                                   "<z:row DC_MOT_CAN='Outro' ID_MOT_CAN='-3'/>"
                                                   "<z:row DC_MOT_CAN='Sem'/>"
                                                   "<z:row ID_MOT_CAN='2147483648'/>"));
    std::vector<std::pair<std::string, std::int32_t>> lidos;
    for (const MotivoCancelamento& motivo : carregaMotivos(ambiente, sessao)) {
        lidos.emplace_back(motivo.descricao, motivo.id);
    }
    EXPECT_THAT(lidos, testing::ElementsAre(testing::Pair("Erro", 12), testing::Pair("Outro", -3),
                                            testing::Pair("Sem", 0), testing::Pair("", 0)));
    EXPECT_THAT(seams.loader.queries(),
                testing::ElementsAre("comando=SEL_MOT_CAN&ID_ETB_TARN=9&ServerName=SRV"));
}

TEST_F(ReimpressaoTest, ReasonsOutOfReachAreToldOnce) {
    EXPECT_TRUE(carregaMotivos(ambiente, sessao).empty());
    EXPECT_THAT(seams.boxes.shown, testing::ElementsAre(critica("0011")));
}

TEST_F(ReimpressaoTest, TheFirstRowIsTheNote) {
    const auto nota = pesquisa(
        "<z:row DC_TIP_NF='Saída' IC_TIP_NF='S' DT_EMS_NF='2012-03-05T00:00:00' "
        "NM_PES_CPL='PÃO &amp; CIA'/><z:row DC_TIP_NF='outra'/>");
    ASSERT_TRUE(nota);
    EXPECT_EQ(nota->numero, "0555");
    EXPECT_EQ(nota->serie, "A1");
    EXPECT_EQ(nota->tipo, "S");
    EXPECT_EQ(nota->descricaoTipo, "Saída");
    EXPECT_EQ(nota->emissao, "05/03/2012");
    EXPECT_EQ(nota->cliente, "PÃO & CIA");
    EXPECT_THAT(seams.loader.queries(),
                testing::ElementsAre(
                    "comando=SEL_NF&ID_ETB_TARN=9&ID_NF_KESTO=0555&CD_SER_NF=A1&ServerName=SRV"));
}

TEST_F(ReimpressaoTest, AbsentFieldsOfTheNoteAreEmptyAndNoDateStaysAsItIs) {
    const auto vazia = pesquisa("<z:row/>");
    ASSERT_TRUE(vazia);
    EXPECT_EQ(vazia->tipo + vazia->descricaoTipo + vazia->emissao + vazia->cliente, "");
    seams.loader.on("ID_NF_KESTO=0555", answers::rowset("<z:row DT_EMS_NF='31/02/2012'/>"));
    EXPECT_EQ(pesquisa("")->emissao, "31/02/2012");
}

TEST_F(ReimpressaoTest, AFieldSpelledInAnotherCaseFails) {
    EXPECT_THROW(pesquisa("<z:row Ic_Tip_Nf='S'/>"), ErroExecucao);
}

TEST_F(ReimpressaoTest, NoRowIsNoNoteWhateverTheStatus) {
    EXPECT_FALSE(pesquisa(""));
    seams.loader.on("ID_NF_KESTO=0555&CD", answers::status("Sessão inválida"));
    EXPECT_FALSE(pesquisa(""));
    const Box nada = aviso("Nota Fiscal não encontrada ou Cancelada !!!    ");
    EXPECT_THAT(seams.boxes.shown, testing::ElementsAre(nada, nada));
}

TEST_F(ReimpressaoTest, AnUnreadableStatusIsAFailedTransferOfTheJobInHand) {
    for (const std::string& resposta : semStatus) {
        TestEnvironment outro;
        outro.loader.on("sel_gera_nf", resposta).on("sp_can_nf", resposta);
        reimprimeNota(outro.environment, sessao, "0555", "A1");
        EXPECT_FALSE(
            cancelaNota(outro.environment, sessao, {"0555", "A1", "S", NovoFaturamento::Com, 1}));
        EXPECT_THAT(outro.boxes.shown,
                    testing::ElementsAre(aviso("Houve um problema na transferência dos dados da "
                                               "Nota Fiscal nº 0555. "),
                                         aviso("Houve um problema no Cancelamento da Nota Fiscal "
                                               "nº 0555. ")))
            << resposta;
        EXPECT_TRUE(outro.spooler.calls.empty());
    }
}

TEST_F(ReimpressaoTest, TheStatusIsExact) {
    reimprime(answers::status("ok"));
    EXPECT_THAT(seams.boxes.shown, testing::ElementsAre(Box{"ok", BoxIcon::Exclamation}));
    EXPECT_TRUE(seams.spooler.calls.empty());
}

TEST_F(ReimpressaoTest, Company761PrintsOnTheDefaultForm) {
    saiNoFormulario(761, 762, notes::imprimeNF_Padrao);
}

TEST_F(ReimpressaoTest, TheEstablishmentThatTheIssuingScreenCannotPrintPrintsHere) {
    saiNoFormulario(2161, 3383, notes::imprimeNF_2161_3383);
}

TEST_F(ReimpressaoTest, EstablishmentsWithoutAFormPrintNothingAndSayNothing) {
    sessao.NCOMPANYCODE = 2161;
    sessao.ID_ETB_TARN = 6001;
    reimprime(test::sampleNote().xml());
    EXPECT_TRUE(seams.spooler.calls.empty());
    EXPECT_THAT(seams.boxes.shown, testing::IsEmpty());
}

TEST_F(ReimpressaoTest, AnErrorOfTheLayoutIsThatOfANote) {
    test::NoteText nota = test::sampleNote();
    nota.items.clear();
    EXPECT_THROW(reimprime(nota.xml()), ErroComNota);
}

TEST_F(ReimpressaoTest, TheOptionDecidesTheKindOfCancellation) {
    seams.loader.on("sp_can_nf", answers::status("OK"));
    EXPECT_TRUE(cancelaNota(ambiente, sessao, {"0555", "A1", "S", NovoFaturamento::Sem, 12}));
    EXPECT_TRUE(cancelaNota(ambiente, sessao, {"7", "", "", NovoFaturamento::Com, -1}));
    EXPECT_THAT(seams.loader.queries(),
                testing::ElementsAre(
                    "comando=sp_can_nf&ID_ETB_TARN=9&IC_TIP_NF=S&ID_NF_KESTO=0555&CD_SER_NF=A1&"
                    "id_mot_can=12&id_pes_usu=u1&Tipo_Can=S&ServerName=SRV",
                    "comando=sp_can_nf&ID_ETB_TARN=9&IC_TIP_NF=&ID_NF_KESTO=7&CD_SER_NF=&"
                    "id_mot_can=-1&id_pes_usu=u1&Tipo_Can=C&ServerName=SRV"));
}

}  // namespace
}  // namespace tarn
