// The flows over a real connection: what the user sees and what the server got when
// the answer is not what it should be.
#include <gtest/gtest.h>

#include "billing/alert.h"
#include "billing/generate_note.h"
#include "billing/orders.h"
#include "desk/start.h"
#include "gateway/carrega_xml.h"
#include "gateway/commands.h"
#include "gateway/pega_valor.h"
#include "platform/curl/curl_loader.h"
#include "runtime/runtime_error.h"
#include "tests/support/loopback_server.h"
#include "tests/support/test_environment.h"

namespace tarn {
namespace {

const std::string cabecalho = "<?xml version='1.0' encoding='UTF-8'?>";

struct SemAlerta : AlertaDialogo {
    void mostra(ModoAlerta) override { FAIL() << "no alert was due"; }
};

class GatewayLoopbackTest : public testing::Test {
protected:
    GatewayLoopbackTest() {
        sessao_.NCOMPANYCODE = 1361;
        sessao_.ID_ETB_TARN = 9;
        sessao_.UserCode = "u1";
        sessao_.SERVERNAME = "SRV";
    }

    bool carrega(const std::string& consulta) {
        return CarregaXML(ambiente_, ambiente_.baseUrl + consulta, documento_, false, "", 0, "",
                          "falhou");
    }
    FimDaGeracao gera() {
        return geraNota(
            ambiente_, sessao_, alerta_, "12",
            [this](auto&, auto&, auto&, const std::string& nota) { impressas_.push_back(nota); });
    }
    std::vector<std::string> textos() const { return seams_.boxes.texts(); }

    LoopbackServer servidor_;
    CurlLoader curl_;
    TestEnvironment seams_;
    Environment ambiente_{.http = curl_,
                          .spooler = seams_.spooler,
                          .printer = seams_.printer,
                          .boxes = seams_.boxes,
                          .clock = seams_.clock,
                          .machine = seams_.machine,
                          .baseUrl = servidor_.baseUrl()};
    Sessao sessao_;
    SemAlerta alerta_;
    XmlDocument documento_;
    std::vector<std::string> impressas_;
};

TEST_F(GatewayLoopbackTest, EveryKindOfBadAnswerIsOneFailedLoad) {
    const std::size_t grande = std::size_t{200} * 1024 * 1024;
    servidor_.on("html", LoopbackReply::xml("<html><body>Erro<br></body></html>"))
        .on("vazio", LoopbackReply::xml(""))
        .on("cortado", LoopbackReply::cut("<?xml version='1.0'?><R a='' s='OK'>"))
        .on("inteiro-cortado", LoopbackReply::cut("<?xml version='1.0'?><R a='' s='OK'/>"))
        .on("codigo", LoopbackReply::xml("<?xml version='1.0' encoding='x-nada'?><R/>"))
        .on("tipo", LoopbackReply::xml("<!DOCTYPE R><R/>"))
        .on("desliga", LoopbackReply::hangUp())
        .on("quinhentos", LoopbackReply::error(500, "<R/>"))
        .on("enorme", LoopbackReply::huge("<R>", grande));
    const std::vector<std::string> consultas{"html",   "vazio", "cortado", "inteiro-cortado",
                                             "codigo", "tipo",  "desliga", "quinhentos",
                                             "enorme"};
    for (const std::string& consulta : consultas) {
        EXPECT_FALSE(carrega(consulta)) << consulta;
        EXPECT_TRUE(documento_.empty()) << consulta;
    }
    EXPECT_EQ(servidor_.queries(), consultas);
    EXPECT_EQ(seams_.boxes.shown,
              std::vector<Box>(consultas.size(), Box{.text = "falhou",
                                                     .icon = BoxIcon::Critical,
                                                     .title = "TarnEMISSAO - ERRO INESPERADO"}));
}

TEST_F(GatewayLoopbackTest, NoDeclarationIsALoadWithoutAStatus) {
    servidor_.on("x", LoopbackReply::xml("<R a='' s='OK'/>"));
    EXPECT_TRUE(carrega("x"));
    EXPECT_THROW(statusOf(documento_), ErroExecucao);
    EXPECT_TRUE(seams_.boxes.shown.empty());
}

TEST_F(GatewayLoopbackTest, LogonCarriesWhatWasTyped) {
    servidor_
        .on("LOGIN", LoopbackReply::xml("<?xml version='1.0' encoding='windows-1252'?>"
                                        "<P a='' s='Usu\xE1rio <'/>"))
        .on("LOGIN", LoopbackReply::xml(
                         cabecalho + "<P a='' s='Usu&#225;rio &lt;i&gt;inv&#225;lido&lt;/i&gt;'/>"))
        .on("LOGIN", LoopbackReply::xml("<?xml version='1.0' encoding='windows-1252'?>"
                                        "<P a='' s='ok \x93\xE7\x94'/>"));
    EXPECT_FALSE(entra(ambiente_, sessao_, "Loja nº 1", "joão", "a#b c"));
    EXPECT_FALSE(entra(ambiente_, sessao_, "Loja nº 1", "joão", "a#b c"));
    EXPECT_FALSE(entra(ambiente_, sessao_, "Loja nº 1", "joão", "a#b c"));
    EXPECT_EQ(servidor_.queries(),
              std::vector<std::string>(
                  3, "comando=LOGIN&EMPRESA=Loja%20n%BA%201&USUARIO=jo%E3o&SENHA=a%23b%20c"));
    EXPECT_EQ(textos(),
              (std::vector<std::string>{
                  "ERRO Tarn0001 - Não foi possível obter os dados da Internet. "
                  "Verifique a conexão com a Internet.",
                  "Houve um problema para efetuar o Login.", "Usuário <i>inválido</i>", "ok “ç”"}));
}

TEST_F(GatewayLoopbackTest, LogonThenRightsThenName) {
    servidor_
        .on("LOGIN",
            LoopbackReply::gzip(cabecalho + "<PRINCIPAL a='' s='OK'><L NCOMPANYCODE='1361' "
                                            "ID_ETB_TARN='7' SERVERNAME='S 1' "
                                            "USERCODE='9' DATA='9/5/2012'/></PRINCIPAL>"))
        .on("verifica_direito_acesso", LoopbackReply::xml(cabecalho + "<R a='' s='OK'/>"))
        .on("sel_dados_empresa",
            LoopbackReply::xml("<xml xmlns:rs='r' xmlns:z='z'><rs:data><z:row NM_FIL='MATRIZ'/>"
                               "</rs:data></xml>"));
    EXPECT_TRUE(entra(ambiente_, sessao_, "e", "u", "s"));
    EXPECT_TRUE(VerificaDireitoAcesso(ambiente_, sessao_, "EMI001"));
    EXPECT_EQ(nomeFilial(ambiente_, sessao_), "MATRIZ");
    EXPECT_EQ(
        servidor_.queries(),
        (std::vector<std::string>{"comando=LOGIN&EMPRESA=e&USUARIO=u&SENHA=s",
                                  "Comando=verifica_direito_acesso&nId_Pes_Usu=9&ServerName=S%201"
                                  "&sTransacao=EMI001",
                                  "comando=sel_dados_empresa&Id_Etb_Tarn=7&ServerName=S%201"}));
    EXPECT_TRUE(seams_.boxes.shown.empty());
}

TEST_F(GatewayLoopbackTest, TheGateStaysOpenWithoutAServer) {
    servidor_.closePort();
    EXPECT_TRUE(VerVersao(ambiente_, sessao_, versaoPrograma));
    EXPECT_EQ(seams_.boxes.shown.size(), 1U);
}

TEST_F(GatewayLoopbackTest, AWriteWhoseAnswerIsCutIsNotSentAgain) {
    servidor_
        .on("Seleciona_Obs",
            LoopbackReply::xml(cabecalho + "<R a='' s='OK'><L OBSERVACAO=''/></R>"))
        .on("SP_GERA_NF", LoopbackReply::cut(cabecalho + "<R a='' s='OK'><x v='555'/>"));
    EXPECT_EQ(gera(), FimDaGeracao::Completa);
    EXPECT_EQ(textos(),
              (std::vector<std::string>{
                  "ERRO Tarn0004 - Não foi possível obter os dados da Internet. Verifique a "
                  "conexão com a Internet.",
                  "Favor verificar se a Nota Fiscal foi gerada. Caso tenha sido gerada, utilize a "
                  "tela de Reimpressão de Nota Fiscal. "}));
    EXPECT_EQ(servidor_.requestLines().size(), 3U);
    EXPECT_TRUE(impressas_.empty());
}

TEST_F(GatewayLoopbackTest, ANoteFromOrderToPrint) {
    servidor_
        .on("Seleciona_Obs",
            LoopbackReply::xml(cabecalho + "<R a='' s='OK'><L OBSERVACAO=''/></R>"))
        .on("SP_GERA_NF",
            LoopbackReply::xml(cabecalho + "<R a='' s='OK'><x v='555'/><y v='&#199; 1'/></R>"))
        .on("sel_gera_nf", LoopbackReply::xml(cabecalho + "<PRINCIPAL a='' s='OK'/>"));
    EXPECT_EQ(gera(), FimDaGeracao::Completa);
    EXPECT_EQ(servidor_.queries(),
              (std::vector<std::string>{
                  "comando=Seleciona_Obs_Vnd_X_Ord&Id_Etb_Tarn=9&Id_Ord_Fat=12&ServerName=SRV",
                  "comando=Seleciona_Obs_Ord_X_Est&Id_Etb_Tarn=9&Id_Ord_Fat=12&ServerName=SRV",
                  "COMANDO=SP_GERA_NF&ID_ETB_TARN=9&ID_ORD_FAT=12&ID_PES=u1&ServerName=SRV",
                  "comando=sel_gera_nf&ID_ETB_TARN=9&ID_NF_KESTO=555&CD_SER_NF=%C7%201"
                  "&ServerName=SRV"}));
    EXPECT_EQ(impressas_, std::vector<std::string>{"555"});
    EXPECT_TRUE(seams_.boxes.shown.empty());
}

TEST_F(GatewayLoopbackTest, CancelWithoutAServer) {
    servidor_.closePort();
    OrdemFaturamento ordem;
    ordem.celulas[0] = "12";
    EXPECT_FALSE(cancelaOrdem(ambiente_, sessao_, ordem));
    EXPECT_EQ(textos(), (std::vector<std::string>{
                            "Confirma o cancelamento da Ordem de Faturamento nº 12 ?     ",
                            "ERRO Tarn0003 - Não foi possível obter os dados da Internet. "
                            "Verifique a conexão com a Internet.",
                            "Favor verificar se a Ordem de Faturamento nº 12 foi cancelada. "}));
}

TEST_F(GatewayLoopbackTest, AnObservationTravelsWithItsSignsReplaced) {
    servidor_.on("", LoopbackReply::xml("<R/>"));
    EXPECT_TRUE(carrega(comando::MANUTENCAO_OFT(sessao_, {.ordem = "1",
                                                          .observacao = "10% & \"ção\"\r\n#2",
                                                          .quantidade = "1,000",
                                                          .pesoBruto = "2,000",
                                                          .pesoLiquido = "3,000"})));
    EXPECT_EQ(servidor_.queries(),
              std::vector<std::string>{
                  "COMANDO=MANUTENCAO_OFT&ID_ETB_TARN=9&ID_ORD_FAT=1&ServerName=SRV"
                  "&DC_OBS=10%7C%7C%20%7C%20%22%E7%E3o%22%0D%0A%232&QT_ESP=1,000&PESO_BRU=2,000"
                  "&PESO_LIQ=3,000"});
}

}  // namespace
}  // namespace tarn
