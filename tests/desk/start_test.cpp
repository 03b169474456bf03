#include "desk/start.h"

#include <gtest/gtest.h>

#include "runtime/runtime_error.h"
#include "runtime/version.h"
#include "tests/support/boxes.h"
#include "tests/support/test_environment.h"

namespace tarn::test {
namespace {

const std::string header = "<?xml version='1.0' encoding='UTF-8'?>";
void expectError(RuntimeErrorCode number, const auto& action) {
    try {
        action();
        ADD_FAILURE() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), number);
    }
}

class StartTest : public testing::Test {
protected:
    TestEnvironment seams_;
    Environment& environment_ = seams_.environment;
    Sessao session_;
};

// Version gate

class VerVersaoTest : public StartTest {
protected:
    bool verify(const std::string& body) {
        seams_.loader.on("VERSAO", body);
        session_.VersaoServidor = "old";
        return VerVersao(environment_, session_, versionDate);
    }
};

const std::string outdated = std::string("          TARNEMISSAO DESATUALIZADO ! \r") +
                             "       Data da Versão TarnEmissao = 07/01/2009\r\r" +
                             "       Por favor, faça a atualização no site: \r\r" +
                             "                    " TARN_VENDOR_SITE " \r\r" +
                             "      OPÇÃO -> CENTRAL DE ATUALIZAÇÃO                   \r\r";

TEST_F(VerVersaoTest, Admitted) {
    EXPECT_TRUE(verify(header + "<V x=''><L a='OK' b='15/03/2012'/></V>"));
    EXPECT_EQ(session_.VersaoServidor, "2012/03/15");
    EXPECT_TRUE(seams_.boxes.shown.empty());
    EXPECT_EQ(seams_.loader.queries(),
              std::vector<std::string>{"comando=VERSAO_TARN_EMISSAO&Versao=07/01/2009"});
}

TEST_F(VerVersaoTest, AdmittedWithADateThatIsNoneOrIsMissing) {
    EXPECT_TRUE(verify(header + "<V><L a='OK' b='hoje'/></V>"));
    EXPECT_EQ(session_.VersaoServidor, "hoje");
    TestEnvironment other;
    other.loader.on("VERSAO", header + "<V><L a='OK'/></V>");
    EXPECT_TRUE(VerVersao(other.environment, session_, versionDate));
    EXPECT_EQ(session_.VersaoServidor, "");
    EXPECT_TRUE(other.boxes.shown.empty());
}

TEST_F(VerVersaoTest, OutOfReachLeavesTheGateOpen) {
    seams_.loader.failOn("VERSAO");
    session_.VersaoServidor = "old";
    EXPECT_TRUE(VerVersao(environment_, session_, versionDate));
    EXPECT_EQ(session_.VersaoServidor, "");
    EXPECT_EQ(seams_.boxes.shown, std::vector<Box>{requestFailure(
                                      "Não consegui verificar a versão do TarnEMISSAO porque não "
                                      "tive acesso à internet!!!")});
}

TEST_F(VerVersaoTest, OutOfDate) {
    EXPECT_FALSE(verify(header + "<V><L a='NOK' b='15/03/2012'/></V>"));
    EXPECT_EQ(seams_.boxes.shown,
              (std::vector<Box>{{.text = outdated, .icon = BoxIcon::Information}}));
    EXPECT_EQ(session_.VersaoServidor, "");
}

TEST_F(VerVersaoTest, AnAnswerThatCannotBeReadIsNotOk) {
    for (const std::string& body :
         {std::string("<V><L a='OK' b='15/03/2012'/></V>"), header + "<V a='OK'/>",
          header + "<V><L/></V>", header + "<V><L a='ok'/></V>"}) {
        TestEnvironment other;
        other.loader.on("VERSAO", body);
        EXPECT_FALSE(VerVersao(other.environment, session_, versionDate)) << body;
        ASSERT_EQ(other.boxes.shown.size(), 1U);
        EXPECT_EQ(other.boxes.shown[0].text, outdated);
    }
}

// Date format

TEST_F(StartTest, DateFormatImposed) {
    EXPECT_TRUE(imposeDateFormat(environment_));
    EXPECT_EQ(seams_.machine.dateFormats, std::vector<std::string>{"dd/MM/yyyy"});
    EXPECT_TRUE(seams_.boxes.shown.empty());
}

TEST_F(StartTest, DateFormatRefused) {
    seams_.machine.refusesDateFormat = true;
    EXPECT_FALSE(imposeDateFormat(environment_));
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

TEST_F(StartTest, EmptyFieldsAreRefusedInOrderWithoutARequest) {
    EXPECT_FALSE(canLogOn(environment_, "", "", ""));
    EXPECT_FALSE(canLogOn(environment_, "e", "", ""));
    EXPECT_FALSE(canLogOn(environment_, "e", "u", ""));
    EXPECT_EQ(seams_.boxes.shown,
              (std::vector<Box>{exclamation("Empresa é um campo obrigatório     ", "Aviso"),
                                exclamation("Usuário é um campo obrigatório     ", "Aviso"),
                                exclamation("Senha é um campo obrigatório     ", "Aviso")}));
    EXPECT_TRUE(seams_.loader.addresses.empty());
}

TEST_F(StartTest, BlanksGoToTheServer) {
    seams_.loader.on("LOGIN", header + "<R a='' s='ok'/>");
    EXPECT_TRUE(canLogOn(environment_, " ", "  ", "   "));
    EXPECT_FALSE(logOn(environment_, session_, " ", "  ", "   "));
    EXPECT_EQ(seams_.loader.queries(),
              std::vector<std::string>{"comando=LOGIN&EMPRESA= &USUARIO=  &SENHA=   "});
}

TEST_F(StartTest, ARefusalShowsTheServersTextUnchanged) {
    seams_.loader.on("LOGIN", header + "<R a='' s='Senha &lt;b&gt;inválida&lt;/b&gt; &amp; '/>")
        .on("LOGIN", header + "<PRINCIPAL a='' s='ok'><L/></PRINCIPAL>");
    EXPECT_FALSE(logOn(environment_, session_, "e", "u", "s"));
    EXPECT_FALSE(logOn(environment_, session_, "e", "u", "s"));
    EXPECT_EQ(seams_.boxes.shown,
              (std::vector<Box>{exclamation("Senha <b>inválida</b> & "), exclamation("ok")}));
}

TEST_F(StartTest, AFailedTransportShowsTwoBoxes) {
    EXPECT_FALSE(logOn(environment_, session_, "e", "u", "s"));
    EXPECT_EQ(seams_.boxes.shown,
              (std::vector<Box>{transportFailure("0001"),
                                exclamation("Houve um problema para efetuar o Login.")}));
    EXPECT_EQ(seams_.loader.addresses.size(), 1U);
}

std::string logonAnswer(const std::string& attributes) {
    return header + "<PRINCIPAL c='' s='OK'><L " + attributes + "/></PRINCIPAL>";
}

TEST_F(StartTest, TheAnswerFillsTheSession) {
    seams_.loader.on("LOGIN",
                     logonAnswer("NCOMPANYCODE='2161' COMPANYNAME='A.B LTDA' SERVERNAME='SRV.1' "
                                 "ID_ETB_TARN='3381' USERCODE='77.1' DATA='9/5/2012'"));
    EXPECT_TRUE(logOn(environment_, session_, "e", "u", "s"));
    EXPECT_EQ(session_.NCOMPANYCODE, 2161);
    EXPECT_EQ(session_.COMPANYNAME, "A,B LTDA");
    EXPECT_EQ(session_.SERVERNAME, "SRV,1");
    EXPECT_EQ(session_.ID_ETB_TARN, 3381);
    EXPECT_EQ(session_.UserCode, "77,1");
    EXPECT_EQ(session_.DATA, "05/09/2012");
    EXPECT_TRUE(seams_.boxes.shown.empty());
}

TEST_F(StartTest, AbsentFieldsAreTheNumber0) {
    seams_.loader.on("LOGIN", logonAnswer("DATA='12/25/2012'"));
    EXPECT_TRUE(logOn(environment_, session_, "e", "u", "s"));
    EXPECT_EQ(session_.NCOMPANYCODE, 0);
    EXPECT_EQ(session_.ID_ETB_TARN, 0);
    EXPECT_EQ(session_.SERVERNAME, "0");
    EXPECT_EQ(session_.UserCode, "0");
    EXPECT_EQ(session_.DATA, "25/12/2012");
}

TEST_F(StartTest, UnexpectedAnswersGoToTheHandler) {
    const auto attempt = [&](const std::string& body) {
        return [this, body] {
            TestEnvironment other;
            other.loader.on("LOGIN", body);
            logOn(other.environment, session_, "e", "u", "s");
        };
    };
    expectError(RuntimeErrorCode::OutOfRange, attempt(logonAnswer("NCOMPANYCODE='1'")));
    expectError(RuntimeErrorCode::OutOfRange, attempt(logonAnswer("DATA='9/2012'")));
    expectError(RuntimeErrorCode::ObjectVariable,
                attempt(logonAnswer("UserCode='77' DATA='9/5/2012'")));
    expectError(RuntimeErrorCode::TypeMismatch, attempt(logonAnswer("NCOMPANYCODE='x'")));
    expectError(RuntimeErrorCode::Overflow, attempt(logonAnswer("NCOMPANYCODE='2147483648'")));
    expectError(RuntimeErrorCode::ObjectVariable, attempt(header + "<R a='' s='OK'><L/></R>"));
    expectError(RuntimeErrorCode::ObjectVariable,
                attempt("<PRINCIPAL a='' s='OK'><L/></PRINCIPAL>"));
    expectError(RuntimeErrorCode::ObjectVariable, attempt(header + "<PRINCIPAL a='' s='OK'/>"));
}

TEST(DayMonthYear, MonthDayYear) {
    EXPECT_EQ(dayMonthYear("9/5/2012"), "05/09/2012");
    EXPECT_EQ(dayMonthYear("12/25/2012"), "25/12/2012");
    EXPECT_EQ(dayMonthYear("1/2/3 x/y"), "02/01/3 x");
    EXPECT_EQ(dayMonthYear("//"), "//");
    expectError(RuntimeErrorCode::OutOfRange, [] { dayMonthYear("2012"); });
    expectError(RuntimeErrorCode::OutOfRange, [] { dayMonthYear(""); });
}

// Rights

class AccessRightTest : public StartTest {
protected:
    AccessRightTest() {
        session_.UserCode = "u1";
        session_.SERVERNAME = "S";
    }
    bool verify() { return VerificaDireitoAcesso(environment_, session_, "EMI003"); }
};

TEST_F(AccessRightTest, AskedAtEachOpening) {
    seams_.loader.on("verifica", header + "<R a='' s='OK'/>");
    EXPECT_TRUE(verify());
    EXPECT_TRUE(verify());
    EXPECT_EQ(seams_.loader.queries(),
              std::vector<std::string>(2,
                                       "Comando=verifica_direito_acesso&nId_Pes_Usu=u1"
                                       "&ServerName=S&sTransacao=EMI003"));
    EXPECT_TRUE(seams_.boxes.shown.empty());
}

TEST_F(AccessRightTest, DeniedInTheServersWords) {
    seams_.loader.on("verifica", header + "<R a='' s='Sem direito.'/>");
    EXPECT_FALSE(verify());
    EXPECT_EQ(seams_.boxes.shown, std::vector<Box>{exclamation("Sem direito.")});
}

TEST_F(AccessRightTest, FailedLoad) {
    EXPECT_FALSE(verify());
    EXPECT_EQ(seams_.boxes.shown,
              (std::vector<Box>{
                  transportFailure("0002"),
                  exclamation("Houve um problema na verificação do Direito de Acesso do usuário na "
                              "Transação EMI003. ")}));
}

TEST_F(AccessRightTest, UnreadableStatus) {
    seams_.loader.on("verifica", "<R a='' s='OK'/>");
    expectError(RuntimeErrorCode::ObjectVariable, [&] { verify(); });
}

// The establishment's name

TEST_F(StartTest, NameOfTheEstablishment) {
    session_.ID_ETB_TARN = 9;
    seams_.loader.on("sel_dados_empresa",
                     "<xml xmlns:rs='r' xmlns:z='z'><rs:data><z:row NM_FIL='MATRIZ &amp; CIA'/>"
                     "<z:row NM_FIL='OUTRA'/></rs:data></xml>");
    EXPECT_EQ(branchName(environment_, session_), "MATRIZ & CIA");
    EXPECT_EQ(seams_.loader.queries(),
              std::vector<std::string>{"comando=sel_dados_empresa&Id_Etb_Tarn=9&ServerName="});
}

TEST_F(StartTest, NameAbsentOrNoRow) {
    seams_.loader.on("sel_dados_empresa", "<xml xmlns:rs='r'><rs:data><l/></rs:data></xml>")
        .on("sel_dados_empresa", "<xml xmlns:rs='r'><rs:data/></xml>")
        .on("sel_dados_empresa", "<xml/>")
        .failOn("sel_dados_empresa");
    EXPECT_EQ(branchName(environment_, session_), "");
    for (int i = 0; i < 3; ++i) {
        expectError(RuntimeErrorCode::ObjectVariable, [&] { branchName(environment_, session_); });
    }
    EXPECT_EQ(seams_.boxes.shown, std::vector<Box>{noInternet9});
}

}  // namespace
}  // namespace tarn::test
