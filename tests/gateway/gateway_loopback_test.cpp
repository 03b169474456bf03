// The flows over a real connection: what the user sees and what the server got when
// the answer is not what it should be.
#include <gtest/gtest.h>

#include "billing/alert.h"
#include "billing/generate_note.h"
#include "billing/orders.h"
#include "desk/start.h"
#include "gateway/answer.h"
#include "gateway/carrega_xml.h"
#include "gateway/commands.h"
#include "platform/curl/curl_loader.h"
#include "runtime/runtime_error.h"
#include "runtime/version.h"
#include "tests/support/loopback_server.h"
#include "tests/support/sessions.h"
#include "tests/support/test_environment.h"

namespace tarn::test {
namespace {

const std::string header = "<?xml version='1.0' encoding='UTF-8'?>";

struct NoAlert : AlertDialog {
    void show(AlertMode) override { FAIL() << "no alert was due"; }
};

class GatewayLoopbackTest : public testing::Test {
protected:
    bool load(const std::string& query) {
        return CarregaXML(environment_, environment_.baseUrl + query, document_, false, "", 0, "",
                          "falhou");
    }
    GenerationEnd generate() {
        return generateNote(
            environment_, session_, alert_, "12",
            [this](auto&, auto&, auto&, const std::string& note) { printed_.push_back(note); });
    }
    std::vector<std::string> texts() const { return seams_.boxes.texts(); }

    LoopbackServer server_;
    CurlLoader curl_;
    TestEnvironment seams_;
    Environment environment_{.http = curl_,
                             .spooler = seams_.spooler,
                             .printer = seams_.printer,
                             .boxes = seams_.boxes,
                             .clock = seams_.clock,
                             .machine = seams_.machine,
                             .baseUrl = server_.baseUrl()};
    Sessao session_ = sessionOf(1361, 9, "u1", "SRV");
    NoAlert alert_;
    XmlDocument document_;
    std::vector<std::string> printed_;
};

TEST_F(GatewayLoopbackTest, EveryKindOfBadAnswerIsOneFailedLoad) {
    const std::size_t large = std::size_t{200} * 1024 * 1024;
    server_.on("html", LoopbackReply::xml("<html><body>Erro<br></body></html>"))
        .on("vazio", LoopbackReply::xml(""))
        .on("cortado", LoopbackReply::cut("<?xml version='1.0'?><R a='' s='OK'>"))
        .on("inteiro-cortado", LoopbackReply::cut("<?xml version='1.0'?><R a='' s='OK'/>"))
        .on("codigo", LoopbackReply::xml("<?xml version='1.0' encoding='x-nada'?><R/>"))
        .on("tipo", LoopbackReply::xml("<!DOCTYPE R><R/>"))
        .on("desliga", LoopbackReply::hangUp())
        .on("quinhentos", LoopbackReply::error(500, "<R/>"))
        .on("enorme", LoopbackReply::huge("<R>", large));
    const std::vector<std::string> queries{"html",   "vazio", "cortado", "inteiro-cortado",
                                           "codigo", "tipo",  "desliga", "quinhentos",
                                           "enorme"};
    for (const std::string& query : queries) {
        EXPECT_FALSE(load(query)) << query;
        EXPECT_TRUE(document_.empty()) << query;
    }
    EXPECT_EQ(server_.queries(), queries);
    EXPECT_EQ(seams_.boxes.shown,
              std::vector<Box>(queries.size(), Box{.text = "falhou",
                                                   .icon = BoxIcon::Critical,
                                                   .title = "TarnEMISSAO - ERRO INESPERADO"}));
}

TEST_F(GatewayLoopbackTest, NoDeclarationIsALoadWithoutAStatus) {
    server_.on("x", LoopbackReply::xml("<R a='' s='OK'/>"));
    EXPECT_TRUE(load("x"));
    EXPECT_THROW(statusOf(document_), RuntimeError);
    EXPECT_TRUE(seams_.boxes.shown.empty());
}

TEST_F(GatewayLoopbackTest, LogonCarriesWhatWasTyped) {
    server_
        .on("LOGIN", LoopbackReply::xml("<?xml version='1.0' encoding='windows-1252'?>"
                                        "<P a='' s='Usu\xE1rio <'/>"))
        .on("LOGIN", LoopbackReply::xml(
                         header + "<P a='' s='Usu&#225;rio &lt;i&gt;inv&#225;lido&lt;/i&gt;'/>"))
        .on("LOGIN", LoopbackReply::xml("<?xml version='1.0' encoding='windows-1252'?>"
                                        "<P a='' s='ok \x93\xE7\x94'/>"));
    EXPECT_FALSE(logOn(environment_, session_, "Loja nº 1", "joão", "a#b c"));
    EXPECT_FALSE(logOn(environment_, session_, "Loja nº 1", "joão", "a#b c"));
    EXPECT_FALSE(logOn(environment_, session_, "Loja nº 1", "joão", "a#b c"));
    EXPECT_EQ(server_.queries(),
              std::vector<std::string>(
                  3, "comando=LOGIN&EMPRESA=Loja%20n%BA%201&USUARIO=jo%E3o&SENHA=a%23b%20c"));
    EXPECT_EQ(texts(),
              (std::vector<std::string>{
                  "ERRO Tarn0001 - Não foi possível obter os dados da Internet. "
                  "Verifique a conexão com a Internet.",
                  "Houve um problema para efetuar o Login.", "Usuário <i>inválido</i>", "ok “ç”"}));
}

TEST_F(GatewayLoopbackTest, LogonThenRightsThenName) {
    server_
        .on("LOGIN", LoopbackReply::gzip(header + "<PRINCIPAL a='' s='OK'><L NCOMPANYCODE='1361' "
                                                  "ID_ETB_TARN='7' SERVERNAME='S 1' "
                                                  "USERCODE='9' DATA='9/5/2012'/></PRINCIPAL>"))
        .on("verifica_direito_acesso", LoopbackReply::xml(header + "<R a='' s='OK'/>"))
        .on("sel_dados_empresa",
            LoopbackReply::xml("<xml xmlns:rs='r' xmlns:z='z'><rs:data><z:row NM_FIL='MATRIZ'/>"
                               "</rs:data></xml>"));
    EXPECT_TRUE(logOn(environment_, session_, "e", "u", "s"));
    EXPECT_TRUE(VerificaDireitoAcesso(environment_, session_, "EMI001"));
    EXPECT_EQ(branchName(environment_, session_), "MATRIZ");
    EXPECT_EQ(
        server_.queries(),
        (std::vector<std::string>{"comando=LOGIN&EMPRESA=e&USUARIO=u&SENHA=s",
                                  "Comando=verifica_direito_acesso&nId_Pes_Usu=9&ServerName=S%201"
                                  "&sTransacao=EMI001",
                                  "comando=sel_dados_empresa&Id_Etb_Tarn=7&ServerName=S%201"}));
    EXPECT_TRUE(seams_.boxes.shown.empty());
}

TEST_F(GatewayLoopbackTest, TheGateStaysOpenWithoutAServer) {
    server_.closePort();
    EXPECT_TRUE(VerVersao(environment_, session_, versionDate));
    EXPECT_EQ(seams_.boxes.shown.size(), 1U);
}

TEST_F(GatewayLoopbackTest, AWriteWhoseAnswerIsCutIsNotSentAgain) {
    server_
        .on("Seleciona_Obs", LoopbackReply::xml(header + "<R a='' s='OK'><L OBSERVACAO=''/></R>"))
        .on("SP_GERA_NF", LoopbackReply::cut(header + "<R a='' s='OK'><x v='555'/>"));
    EXPECT_EQ(generate(), GenerationEnd::Finished);
    EXPECT_EQ(texts(),
              (std::vector<std::string>{
                  "ERRO Tarn0004 - Não foi possível obter os dados da Internet. Verifique a "
                  "conexão com a Internet.",
                  "Favor verificar se a Nota Fiscal foi gerada. Caso tenha sido gerada, utilize a "
                  "tela de Reimpressão de Nota Fiscal. "}));
    EXPECT_EQ(server_.requestLines().size(), 3U);
    EXPECT_TRUE(printed_.empty());
}

TEST_F(GatewayLoopbackTest, ANoteFromOrderToPrint) {
    server_
        .on("Seleciona_Obs", LoopbackReply::xml(header + "<R a='' s='OK'><L OBSERVACAO=''/></R>"))
        .on("SP_GERA_NF",
            LoopbackReply::xml(header + "<R a='' s='OK'><x v='555'/><y v='&#199; 1'/></R>"))
        .on("sel_gera_nf", LoopbackReply::xml(header + "<PRINCIPAL a='' s='OK'/>"));
    EXPECT_EQ(generate(), GenerationEnd::Finished);
    EXPECT_EQ(server_.queries(),
              (std::vector<std::string>{
                  "comando=Seleciona_Obs_Vnd_X_Ord&Id_Etb_Tarn=9&Id_Ord_Fat=12&ServerName=SRV",
                  "comando=Seleciona_Obs_Ord_X_Est&Id_Etb_Tarn=9&Id_Ord_Fat=12&ServerName=SRV",
                  "COMANDO=SP_GERA_NF&ID_ETB_TARN=9&ID_ORD_FAT=12&ID_PES=u1&ServerName=SRV",
                  "comando=sel_gera_nf&ID_ETB_TARN=9&ID_NF_KESTO=555&CD_SER_NF=%C7%201"
                  "&ServerName=SRV"}));
    EXPECT_EQ(printed_, std::vector<std::string>{"555"});
    EXPECT_TRUE(seams_.boxes.shown.empty());
}

TEST_F(GatewayLoopbackTest, CancelWithoutAServer) {
    server_.closePort();
    GridRow order{.cells = std::vector<std::string>(orderGrid().size())};
    order.text(OrderColumn::Order) = "12";
    EXPECT_FALSE(cancelOrder(environment_, session_, order));
    EXPECT_EQ(texts(), (std::vector<std::string>{
                           "Confirma o cancelamento da Ordem de Faturamento nº 12 ?     ",
                           "ERRO Tarn0003 - Não foi possível obter os dados da Internet. "
                           "Verifique a conexão com a Internet.",
                           "Favor verificar se a Ordem de Faturamento nº 12 foi cancelada. "}));
}

TEST_F(GatewayLoopbackTest, AnObservationTravelsWithItsSignsReplaced) {
    server_.on("", LoopbackReply::xml("<R/>"));
    EXPECT_TRUE(load(commands::MANUTENCAO_OFT(session_, {.order = "1",
                                                         .observation = "10% & \"ção\"\r\n#2",
                                                         .quantity = "1,000",
                                                         .grossWeight = "2,000",
                                                         .netWeight = "3,000"})));
    EXPECT_EQ(server_.queries(),
              std::vector<std::string>{
                  "COMANDO=MANUTENCAO_OFT&ID_ETB_TARN=9&ID_ORD_FAT=1&ServerName=SRV"
                  "&DC_OBS=10%7C%7C%20%7C%20%22%E7%E3o%22%0D%0A%232&QT_ESP=1,000&PESO_BRU=2,000"
                  "&PESO_LIQ=3,000"});
}

}  // namespace
}  // namespace tarn::test
