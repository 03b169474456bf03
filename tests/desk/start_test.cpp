#include "desk/start.h"

#include <gtest/gtest.h>

#include "runtime/runtime_error.h"
#include "tests/support/test_environment.h"

namespace tarn {
namespace {

const std::string cabecalho = "<?xml version='1.0' encoding='UTF-8'?>";
const std::string falha1 =
    "ERRO Tarn0001 - Não foi possível obter os dados da Internet. Verifique a conexão com a "
    "Internet.";

Box critica(const std::string& texto) {
    return {.text = texto, .icon = BoxIcon::Critical, .title = "TarnEMISSAO - ERRO INESPERADO"};
}
Box exclamacao(const std::string& texto, const std::string& titulo = "TarnEmissao") {
    return {.text = texto, .icon = BoxIcon::Exclamation, .title = titulo};
}

void esperaErro(ErroNumero numero, const auto& acao) {
    try {
        acao();
        ADD_FAILURE() << "no error";
    } catch (const ErroExecucao& erro) {
        EXPECT_EQ(erro.numero(), numero);
    }
}

class EntradaTest : public testing::Test {
protected:
    TestEnvironment seams_;
    Environment& ambiente_ = seams_.environment;
    Sessao sessao_;
};

// Version gate

class VerVersaoTest : public EntradaTest {
protected:
    bool verifica(const std::string& corpo) {
        seams_.loader.on("VERSAO", corpo);
        sessao_.VersaoServidor = "old";
        return VerVersao(ambiente_, sessao_, versaoPrograma);
    }
};

const std::string desatualizado = std::string("          TARNEMISSAO DESATUALIZADO ! \r") +
                                  "       Data da Versão TarnEmissao = 07/01/2009\r\r" +
                                  "       Por favor, faça a atualização no site: \r\r" +
                                  "                    " TARN_VENDOR_SITE " \r\r" +
                                  "      OPÇÃO -> CENTRAL DE ATUALIZAÇÃO                   \r\r";

TEST_F(VerVersaoTest, Admitted) {
    EXPECT_TRUE(verifica(cabecalho + "<V x=''><L a='OK' b='15/03/2012'/></V>"));
    EXPECT_EQ(sessao_.VersaoServidor, "2012/03/15");
    EXPECT_TRUE(seams_.boxes.shown.empty());
    EXPECT_EQ(seams_.loader.queries(),
              std::vector<std::string>{"comando=VERSAO_TARN_EMISSAO&Versao=07/01/2009"});
}

TEST_F(VerVersaoTest, AdmittedWithADateThatIsNoneOrIsMissing) {
    EXPECT_TRUE(verifica(cabecalho + "<V><L a='OK' b='hoje'/></V>"));
    EXPECT_EQ(sessao_.VersaoServidor, "hoje");
    TestEnvironment outro;
    outro.loader.on("VERSAO", cabecalho + "<V><L a='OK'/></V>");
    EXPECT_TRUE(VerVersao(outro.environment, sessao_, versaoPrograma));
    EXPECT_EQ(sessao_.VersaoServidor, "");
    EXPECT_TRUE(outro.boxes.shown.empty());
}

TEST_F(VerVersaoTest, OutOfReachLeavesTheGateOpen) {
    seams_.loader.failOn("VERSAO");
    sessao_.VersaoServidor = "old";
    EXPECT_TRUE(VerVersao(ambiente_, sessao_, versaoPrograma));
    EXPECT_EQ(sessao_.VersaoServidor, "");
    EXPECT_EQ(seams_.boxes.shown,
              std::vector<Box>{critica("Não consegui verificar a versão do TarnEMISSAO porque não "
                                       "tive acesso à internet!!!")});
}

TEST_F(VerVersaoTest, OutOfDate) {
    EXPECT_FALSE(verifica(cabecalho + "<V><L a='NOK' b='15/03/2012'/></V>"));
    EXPECT_EQ(seams_.boxes.shown,
              (std::vector<Box>{{.text = desatualizado, .icon = BoxIcon::Information}}));
    EXPECT_EQ(sessao_.VersaoServidor, "");
}

TEST_F(VerVersaoTest, AnAnswerThatCannotBeReadIsNotOk) {
    for (const std::string& corpo :
         {std::string("<V><L a='OK' b='15/03/2012'/></V>"), cabecalho + "<V a='OK'/>",
          cabecalho + "<V><L/></V>", cabecalho + "<V><L a='ok'/></V>"}) {
        TestEnvironment outro;
        outro.loader.on("VERSAO", corpo);
        EXPECT_FALSE(VerVersao(outro.environment, sessao_, versaoPrograma)) << corpo;
        ASSERT_EQ(outro.boxes.shown.size(), 1U);
        EXPECT_EQ(outro.boxes.shown[0].text, desatualizado);
    }
}

// Date format

TEST_F(EntradaTest, DateFormatImposed) {
    EXPECT_TRUE(impoeFormatoData(ambiente_));
    EXPECT_EQ(seams_.machine.dateFormats, std::vector<std::string>{"dd/MM/yyyy"});
    EXPECT_TRUE(seams_.boxes.shown.empty());
}

TEST_F(EntradaTest, DateFormatRefused) {
    seams_.machine.refusesDateFormat = true;
    EXPECT_FALSE(impoeFormatoData(ambiente_));
    EXPECT_EQ(
        seams_.boxes.shown,
        (std::vector<Box>{
            {.text = "Erro na Configuração do Formato de Data do Windows\r\r"
                     "Para corrigir selecione no Windows:\r\r"
                     "-> Iniciar -> Configurações -> Painel de Controle -> Opcoes Regionais "
                     "->\r-> Data   -> Em formato reduzido de data selecione:  dd/mm/aaaa     ",
             .icon = BoxIcon::Information,
             .title = "TArn"}}));
    EXPECT_TRUE(seams_.loader.addresses.empty());
}

// Logon

TEST_F(EntradaTest, EmptyFieldsAreRefusedInOrderWithoutARequest) {
    EXPECT_FALSE(entra(ambiente_, sessao_, "", "", ""));
    EXPECT_FALSE(entra(ambiente_, sessao_, "e", "", ""));
    EXPECT_FALSE(entra(ambiente_, sessao_, "e", "u", ""));
    EXPECT_EQ(seams_.boxes.shown,
              (std::vector<Box>{exclamacao("Empresa é um campo obrigatório     ", "Aviso"),
                                exclamacao("Usuário é um campo obrigatório     ", "Aviso"),
                                exclamacao("Senha é um campo obrigatório     ", "Aviso")}));
    EXPECT_TRUE(seams_.loader.addresses.empty());
}

TEST_F(EntradaTest, BlanksGoToTheServer) {
    seams_.loader.on("LOGIN", cabecalho + "<R a='' s='ok'/>");
    EXPECT_FALSE(entra(ambiente_, sessao_, " ", "  ", "   "));
    EXPECT_EQ(seams_.loader.queries(),
              std::vector<std::string>{"comando=LOGIN&EMPRESA= &USUARIO=  &SENHA=   "});
}

TEST_F(EntradaTest, ARefusalShowsTheServersTextUnchanged) {
    seams_.loader.on("LOGIN", cabecalho + "<R a='' s='Senha &lt;b&gt;inválida&lt;/b&gt; &amp; '/>")
        .on("LOGIN", cabecalho + "<PRINCIPAL a='' s='ok'><L/></PRINCIPAL>");
    EXPECT_FALSE(entra(ambiente_, sessao_, "e", "u", "s"));
    EXPECT_FALSE(entra(ambiente_, sessao_, "e", "u", "s"));
    EXPECT_EQ(seams_.boxes.shown,
              (std::vector<Box>{exclamacao("Senha <b>inválida</b> & "), exclamacao("ok")}));
}

TEST_F(EntradaTest, AFailedTransportShowsTwoBoxes) {
    EXPECT_FALSE(entra(ambiente_, sessao_, "e", "u", "s"));
    EXPECT_EQ(
        seams_.boxes.shown,
        (std::vector<Box>{critica(falha1), exclamacao("Houve um problema para efetuar o Login.")}));
    EXPECT_EQ(seams_.loader.addresses.size(), 1U);
}

std::string respostaLogin(const std::string& atributos) {
    return cabecalho + "<PRINCIPAL c='' s='OK'><L " + atributos + "/></PRINCIPAL>";
}

TEST_F(EntradaTest, TheAnswerFillsTheSession) {
    seams_.loader.on("LOGIN",
                     respostaLogin("NCOMPANYCODE='2161' COMPANYNAME='A.B LTDA' SERVERNAME='SRV.1' "
                                   "ID_ETB_TARN='3381' USERCODE='77.1' DATA='9/5/2012'"));
    EXPECT_TRUE(entra(ambiente_, sessao_, "e", "u", "s"));
    EXPECT_EQ(sessao_.NCOMPANYCODE, 2161);
    EXPECT_EQ(sessao_.COMPANYNAME, "A,B LTDA");
    EXPECT_EQ(sessao_.SERVERNAME, "SRV,1");
    EXPECT_EQ(sessao_.ID_ETB_TARN, 3381);
    EXPECT_EQ(sessao_.UserCode, "77,1");
    EXPECT_EQ(sessao_.DATA, "05/09/2012");
    EXPECT_TRUE(seams_.boxes.shown.empty());
}

TEST_F(EntradaTest, AbsentFieldsAreTheNumber0) {
    seams_.loader.on("LOGIN", respostaLogin("DATA='12/25/2012'"));
    EXPECT_TRUE(entra(ambiente_, sessao_, "e", "u", "s"));
    EXPECT_EQ(sessao_.NCOMPANYCODE, 0);
    EXPECT_EQ(sessao_.ID_ETB_TARN, 0);
    EXPECT_EQ(sessao_.SERVERNAME, "0");
    EXPECT_EQ(sessao_.UserCode, "0");
    EXPECT_EQ(sessao_.DATA, "25/12/2012");
}

TEST_F(EntradaTest, UnexpectedAnswersGoToTheHandler) {
    const auto tenta = [&](const std::string& corpo) {
        return [this, corpo] {
            TestEnvironment outro;
            outro.loader.on("LOGIN", corpo);
            entra(outro.environment, sessao_, "e", "u", "s");
        };
    };
    esperaErro(ErroNumero::ForaDoIntervalo, tenta(respostaLogin("NCOMPANYCODE='1'")));
    esperaErro(ErroNumero::ForaDoIntervalo, tenta(respostaLogin("DATA='9/2012'")));
    esperaErro(ErroNumero::VariavelObjeto, tenta(respostaLogin("UserCode='77' DATA='9/5/2012'")));
    esperaErro(ErroNumero::TipoIncompativel, tenta(respostaLogin("NCOMPANYCODE='x'")));
    esperaErro(ErroNumero::Estouro, tenta(respostaLogin("NCOMPANYCODE='2147483648'")));
    esperaErro(ErroNumero::VariavelObjeto, tenta(cabecalho + "<R a='' s='OK'><L/></R>"));
    esperaErro(ErroNumero::VariavelObjeto, tenta("<PRINCIPAL a='' s='OK'><L/></PRINCIPAL>"));
    esperaErro(ErroNumero::VariavelObjeto, tenta(cabecalho + "<PRINCIPAL a='' s='OK'/>"));
}

TEST(InverteData, MonthDayYear) {
    EXPECT_EQ(inverteData("9/5/2012"), "05/09/2012");
    EXPECT_EQ(inverteData("12/25/2012"), "25/12/2012");
    EXPECT_EQ(inverteData("1/2/3 x/y"), "02/01/3 x");
    EXPECT_EQ(inverteData("//"), "//");
    esperaErro(ErroNumero::ForaDoIntervalo, [] { inverteData("2012"); });
    esperaErro(ErroNumero::ForaDoIntervalo, [] { inverteData(""); });
}

// Rights

class DireitoTest : public EntradaTest {
protected:
    DireitoTest() {
        sessao_.UserCode = "u1";
        sessao_.SERVERNAME = "S";
    }
    bool verifica() { return VerificaDireitoAcesso(ambiente_, sessao_, "EMI003"); }
};

TEST_F(DireitoTest, AskedAtEachOpening) {
    seams_.loader.on("verifica", cabecalho + "<R a='' s='OK'/>");
    EXPECT_TRUE(verifica());
    EXPECT_TRUE(verifica());
    EXPECT_EQ(seams_.loader.queries(),
              std::vector<std::string>(2,
                                       "Comando=verifica_direito_acesso&nId_Pes_Usu=u1"
                                       "&ServerName=S&sTransacao=EMI003"));
    EXPECT_TRUE(seams_.boxes.shown.empty());
}

TEST_F(DireitoTest, DeniedInTheServersWords) {
    seams_.loader.on("verifica", cabecalho + "<R a='' s='Sem direito.'/>");
    EXPECT_FALSE(verifica());
    EXPECT_EQ(seams_.boxes.shown, std::vector<Box>{exclamacao("Sem direito.")});
}

TEST_F(DireitoTest, FailedLoad) {
    EXPECT_FALSE(verifica());
    EXPECT_EQ(seams_.boxes.shown,
              (std::vector<Box>{
                  critica("ERRO Tarn0002 - Não foi possível obter os dados da Internet. Verifique "
                          "a conexão com a Internet."),
                  exclamacao("Houve um problema na verificação do Direito de Acesso do usuário na "
                             "Transação EMI003. ")}));
}

TEST_F(DireitoTest, UnreadableStatus) {
    seams_.loader.on("verifica", "<R a='' s='OK'/>");
    esperaErro(ErroNumero::VariavelObjeto, [&] { verifica(); });
}

// The establishment's name

TEST_F(EntradaTest, NameOfTheEstablishment) {
    sessao_.ID_ETB_TARN = 9;
    seams_.loader.on("sel_dados_empresa",
                     "<xml xmlns:rs='r' xmlns:z='z'><rs:data><z:row NM_FIL='MATRIZ &amp; CIA'/>"
                     "<z:row NM_FIL='OUTRA'/></rs:data></xml>");
    EXPECT_EQ(nomeFilial(ambiente_, sessao_), "MATRIZ & CIA");
    EXPECT_EQ(seams_.loader.queries(),
              std::vector<std::string>{"comando=sel_dados_empresa&Id_Etb_Tarn=9&ServerName="});
}

TEST_F(EntradaTest, NameAbsentOrNoRow) {
    seams_.loader.on("sel_dados_empresa", "<xml xmlns:rs='r'><rs:data><l/></rs:data></xml>")
        .on("sel_dados_empresa", "<xml xmlns:rs='r'><rs:data/></xml>")
        .on("sel_dados_empresa", "<xml/>")
        .failOn("sel_dados_empresa");
    EXPECT_EQ(nomeFilial(ambiente_, sessao_), "");
    for (int i = 0; i < 3; ++i) {
        esperaErro(ErroNumero::VariavelObjeto, [&] { nomeFilial(ambiente_, sessao_); });
    }
    EXPECT_EQ(seams_.boxes.shown,
              std::vector<Box>{critica("ERRO Tarn0009 - Não foi possível obter os dados da "
                                       "Internet. Verifique a conexão com a Internet.")});
}

}  // namespace
}  // namespace tarn
