#include "billing/generate_note.h"

#include <gtest/gtest.h>

#include "billing/alert.h"
#include "billing/observations.h"
#include "runtime/runtime_error.h"
#include "tests/support/test_environment.h"

namespace tarn {
namespace {

const std::string cabecalho = "<?xml version='1.0'?>";
const std::string transporte =
    " - Não foi possível obter os dados da Internet. Verifique a conexão com a Internet.";

Box critica(const std::string& numero) {
    return {.text = "ERRO " + numero + transporte,
            .icon = BoxIcon::Critical,
            .title = "TarnEMISSAO - ERRO INESPERADO"};
}
Box exclamacao(const std::string& texto, const std::string& titulo = "TarnEmissao") {
    return {.text = texto, .icon = BoxIcon::Exclamation, .title = titulo};
}
const Box buscaFalhou = exclamacao(
    "Aconteceu um erro na busca da observação da(s) venda(s). Cancele esta tela e tente "
    "novamente.",
    "Aviso");

std::string observacao(const std::string& texto) {
    return cabecalho + "<R a='' s='OK'><L OBSERVACAO='" + texto + "'/></R>";
}
std::string recusa(const std::string& texto) {
    return cabecalho + "<R a='' s='" + texto + "'><L OBSERVACAO=''/></R>";
}

struct AlertaRoteirizado : AlertaDialogo {
    explicit AlertaRoteirizado(Sessao& s) : sessao(s) {}
    void mostra(ModoAlerta modo) override {
        vistos.emplace_back(modo, sessao.TextoMensagem);
        antes.push_back(sessao.ConfirmaMensagem);
        if (!resposta.empty()) {
            sessao.ConfirmaMensagem = resposta;
        }
    }
    Sessao& sessao;
    std::string resposta;  // empty: closed without an answer
    std::vector<std::pair<ModoAlerta, std::string>> vistos;
    std::vector<std::string> antes;
};

class GeraNotaTest : public testing::Test {
protected:
    GeraNotaTest() {
        sessao_.NCOMPANYCODE = 1361;
        sessao_.ID_ETB_TARN = 9;
        sessao_.UserCode = "u1";
        sessao_.SERVERNAME = "SRV";
        seams_.loader.on("Seleciona_Obs_Vnd_X_Ord", observacao(""))
            .on("Seleciona_Obs_Ord_X_Est", observacao(""));
    }

    // The observations are in order; these answer the rest.
    void respostas(const std::string& geracao, const std::string& documento) {
        seams_.loader.on("SP_GERA_NF", geracao).on("sel_gera_nf", documento);
    }
    FimDaGeracao gera() {
        return geraNota(seams_.environment, sessao_, alerta_, "12",
                        [this](Environment&, const Sessao& sessao, XmlDocument& documento,
                               const std::string& nota) {
                            impressas_.push_back(nota + " " + std::to_string(sessao.ID_ETB_TARN) +
                                                 " " + documento.xml());
                        });
    }
    void esperaFatal() {
        try {
            gera();
            ADD_FAILURE() << "no error";
        } catch (const ErroExecucao& erro) {
            EXPECT_EQ(erro.numero(), ErroNumero::ObjetoObrigatorio);
        }
        EXPECT_TRUE(impressas_.empty());
        EXPECT_TRUE(seams_.spooler.calls.empty());
    }

    const std::string pedidoVenda_ =
        "comando=Seleciona_Obs_Vnd_X_Ord&Id_Etb_Tarn=9&Id_Ord_Fat=12&ServerName=SRV";
    const std::string pedidoEstoque_ =
        "comando=Seleciona_Obs_Ord_X_Est&Id_Etb_Tarn=9&Id_Ord_Fat=12&ServerName=SRV";
    const std::string pedidoGera_ =
        "COMANDO=SP_GERA_NF&ID_ETB_TARN=9&ID_ORD_FAT=12&ID_PES=u1&ServerName=SRV";
    const std::string pedidoNota_ =
        "comando=sel_gera_nf&ID_ETB_TARN=9&ID_NF_KESTO=555&CD_SER_NF=A1&ServerName=SRV";
    const std::string gerada_ =
        cabecalho + "<R a='' s='OK'>\n <x qualquer='555' b='1'/>\n <y z='A1'/></R>";
    const std::string documentoNota_ = cabecalho + "<PRINCIPAL a=\"\" s=\"OK\"><C/></PRINCIPAL>";

    TestEnvironment seams_;
    Sessao sessao_;
    AlertaRoteirizado alerta_{sessao_};
    std::vector<std::string> impressas_;
};

using Textos = std::vector<std::string>;
using Caixas = std::vector<Box>;

TEST_F(GeraNotaTest, GeneratedAndPrinted) {
    respostas(gerada_, documentoNota_);
    EXPECT_EQ(gera(), FimDaGeracao::Completa);
    EXPECT_EQ(seams_.loader.queries(),
              (Textos{pedidoVenda_, pedidoEstoque_, pedidoGera_, pedidoNota_}));
    EXPECT_EQ(seams_.boxes.shown, Caixas{});
    EXPECT_TRUE(alerta_.vistos.empty());
    EXPECT_EQ(impressas_, Textos{"555 9 <?xml version=\"1.0\"?>\r\n<PRINCIPAL a=\"\" s=\"OK\"><C/>"
                                 "</PRINCIPAL>\r\n"});
}

TEST_F(GeraNotaTest, AnErrorOfTheLayoutComesOut) {
    respostas(gerada_, documentoNota_);
    EXPECT_THROW(geraNota(seams_.environment, sessao_, alerta_, "12",
                          [](auto&, auto&, auto&, auto&) {
                              throw ErroExecucao(ErroNumero::TipoIncompativel);
                          }),
                 ErroExecucao);
}

TEST_F(GeraNotaTest, RefusedObservationMakesNoNote) {
    seams_.loader.on("Seleciona_Obs_Vnd_X_Ord&", observacao("ver &lt;b&gt;prazo&lt;/b&gt;"));
    alerta_.resposta = "N";
    EXPECT_EQ(gera(), FimDaGeracao::Parada);
    EXPECT_EQ(seams_.loader.queries(), Textos{pedidoVenda_});
    ASSERT_EQ(alerta_.vistos.size(), 1U);
    EXPECT_EQ(alerta_.vistos[0].first, ModoAlerta::Confirma);
    EXPECT_EQ(alerta_.vistos[0].second, "ver <b>prazo</b>");
    EXPECT_EQ(alerta_.antes, Textos{"N"});
    EXPECT_EQ(seams_.boxes.shown, Caixas{});
}

TEST_F(GeraNotaTest, ADialogClosedWithoutAnAnswerIsARefusal) {
    seams_.loader.on("Seleciona_Obs_Vnd_X_Ord&", observacao("x"));
    sessao_.ConfirmaMensagem = "S";  // left from the order before
    EXPECT_EQ(gera(), FimDaGeracao::Parada);
    EXPECT_EQ(seams_.loader.queries(), Textos{pedidoVenda_});
}

TEST_F(GeraNotaTest, ConfirmedObservationGoesOn) {
    seams_.loader.on("Seleciona_Obs_Vnd_X_Ord&", observacao("x"));
    alerta_.resposta = "S";
    respostas(gerada_, documentoNota_);
    EXPECT_EQ(gera(), FimDaGeracao::Completa);
    EXPECT_EQ(impressas_.size(), 1U);
}

TEST_F(GeraNotaTest, MissingStockMakesNoNote) {
    seams_.loader.on("Seleciona_Obs_Ord_X_Est&", observacao("produto 1"));
    alerta_.resposta = "S";  // the notice leaves nothing to decide
    EXPECT_EQ(gera(), FimDaGeracao::Parada);
    EXPECT_EQ(seams_.loader.queries(), (Textos{pedidoVenda_, pedidoEstoque_}));
    ASSERT_EQ(alerta_.vistos.size(), 1U);
    EXPECT_EQ(alerta_.vistos[0].first, ModoAlerta::SemSaldo);
    EXPECT_EQ(alerta_.vistos[0].second, "produto 1");
    EXPECT_EQ(seams_.boxes.shown, Caixas{});
}

TEST_F(GeraNotaTest, ObservationsOutOfReachDoNotStopTheNote) {
    seams_.loader.failOn("Seleciona_Obs_Vnd_X_Ord&").failOn("Seleciona_Obs_Ord_X_Est&");
    respostas(gerada_, documentoNota_);
    EXPECT_EQ(gera(), FimDaGeracao::Completa);
    EXPECT_EQ(seams_.boxes.shown,
              (Caixas{critica("Tarn0004"), buscaFalhou, critica("Tarn0004"), buscaFalhou}));
    EXPECT_EQ(impressas_.size(), 1U);
}

TEST_F(GeraNotaTest, ATextLeftFromTheOrderBeforeIsShownAgain) {
    seams_.loader.failOn("Seleciona_Obs_Vnd_X_Ord&");
    sessao_.TextoMensagem = "da ordem anterior";
    EXPECT_EQ(gera(), FimDaGeracao::Parada);
    ASSERT_EQ(alerta_.vistos.size(), 1U);
    EXPECT_EQ(alerta_.vistos[0].second, "da ordem anterior");
}

TEST_F(GeraNotaTest, ObservationsRefusedByTheServer) {
    seams_.loader.on("Seleciona_Obs_Vnd_X_Ord&", recusa("Ordem bloqueada"));
    EXPECT_EQ(gera(), FimDaGeracao::Parada);
    EXPECT_EQ(seams_.boxes.shown, Caixas{exclamacao("Ordem bloqueada")});
    EXPECT_EQ(seams_.loader.queries(), Textos{pedidoVenda_});
}

TEST_F(GeraNotaTest, StockCheckRefusedByTheServer) {
    seams_.loader.on("Seleciona_Obs_Ord_X_Est&", recusa("ok"));
    EXPECT_EQ(gera(), FimDaGeracao::Parada);
    EXPECT_EQ(seams_.boxes.shown, Caixas{exclamacao("ok")});
    EXPECT_EQ(seams_.loader.queries(), (Textos{pedidoVenda_, pedidoEstoque_}));
}

TEST_F(GeraNotaTest, GenerationUnknown) {
    seams_.loader.failOn("SP_GERA_NF");
    EXPECT_EQ(gera(), FimDaGeracao::Completa);
    EXPECT_EQ(seams_.boxes.shown,
              (Caixas{critica("Tarn0004"),
                      exclamacao("Favor verificar se a Nota Fiscal foi gerada. Caso tenha sido "
                                 "gerada, utilize a tela de Reimpressão de Nota Fiscal. ",
                                 "Aviso")}));
    EXPECT_EQ(seams_.loader.queries(), (Textos{pedidoVenda_, pedidoEstoque_, pedidoGera_}));
    EXPECT_TRUE(impressas_.empty());
}

TEST_F(GeraNotaTest, GenerationRefused) {
    respostas(recusa("Cliente sem cr&#233;dito. "), documentoNota_);
    EXPECT_EQ(gera(), FimDaGeracao::Parada);
    EXPECT_EQ(seams_.boxes.shown, Caixas{exclamacao("Cliente sem crédito. ")});
    EXPECT_EQ(seams_.loader.queries(), (Textos{pedidoVenda_, pedidoEstoque_, pedidoGera_}));
}

TEST_F(GeraNotaTest, GenerationWithoutStatusOrIdentity) {
    for (const std::string& resposta :
         {std::string("<R a='' s='OK'><x q='1'/><y z='A'/></R>"), cabecalho + "<R a='' s='OK'/>",
          cabecalho + "<R a='' s='OK'><x q='1'/></R>",
          cabecalho + "<R a='' s='OK'><x/><y z='A'/></R>"}) {
        TestEnvironment outro;
        outro.loader.on("Seleciona", observacao("")).on("SP_GERA_NF", resposta);
        EXPECT_THROW(geraNota(outro.environment, sessao_, alerta_, "12",
                              [](auto&, auto&, auto&, auto&) { FAIL() << "printed"; }),
                     ErroExecucao)
            << resposta;
        EXPECT_EQ(outro.loader.addresses.size(), 3U);
    }
}

TEST_F(GeraNotaTest, DocumentOutOfReach) {
    seams_.loader.on("SP_GERA_NF", gerada_).failOn("sel_gera_nf");
    EXPECT_EQ(gera(), FimDaGeracao::Completa);
    EXPECT_EQ(seams_.boxes.shown,
              (Caixas{critica("Tarn0005"),
                      exclamacao("Houve um problema na transferência dos dados da Nota Fiscal nº "
                                 "555. Utilize a tela de Reimpressão de Nota Fiscal.",
                                 "Aviso")}));
    EXPECT_EQ(seams_.loader.queries(),
              (Textos{pedidoVenda_, pedidoEstoque_, pedidoGera_, pedidoNota_}));
    EXPECT_TRUE(impressas_.empty());
}

TEST_F(GeraNotaTest, DocumentRefused) {
    respostas(gerada_, recusa("Nota não encontrada"));
    EXPECT_EQ(gera(), FimDaGeracao::Parada);
    EXPECT_EQ(seams_.boxes.shown, Caixas{exclamacao("Nota não encontrada")});
    EXPECT_TRUE(impressas_.empty());
}

TEST_F(GeraNotaTest, TheCustomerWhoseNumberIsLostEndsTheProgramBeforeAnyByte) {
    sessao_.NCOMPANYCODE = 2161;
    sessao_.ID_ETB_TARN = 3383;
    respostas(gerada_, documentoNota_);
    esperaFatal();
    EXPECT_EQ(seams_.boxes.shown, Caixas{});
    EXPECT_EQ(seams_.loader.addresses.size(), 4U);
}

TEST_F(GeraNotaTest, OtherEstablishmentsOfThatCustomerPrint) {
    sessao_.NCOMPANYCODE = 2161;
    sessao_.ID_ETB_TARN = 3381;
    respostas(gerada_, documentoNota_);
    EXPECT_EQ(gera(), FimDaGeracao::Completa);
    EXPECT_EQ(impressas_.size(), 1U);
}

TEST_F(GeraNotaTest, ThatCustomersRefusedDocumentIsOnlyShown) {
    sessao_.NCOMPANYCODE = 2161;
    sessao_.ID_ETB_TARN = 3383;
    respostas(gerada_, recusa("x"));
    EXPECT_EQ(gera(), FimDaGeracao::Parada);
    EXPECT_EQ(seams_.boxes.shown, Caixas{exclamacao("x")});
}

}  // namespace
}  // namespace tarn
