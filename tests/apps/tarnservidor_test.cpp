// The program itself: its line on stdout, its errors, its end.
#include <gtest/gtest.h>
#include <httplib.h>
#include <signal.h>

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "practice/database/database.h"
#include "practice/database/schema.h"
#include "tests/practice/practice_desk.h"

namespace tarn::practice::test {
namespace {

constexpr int patience = 30000;  // milliseconds, for a slow machine

class Program {
public:
    explicit Program(const QStringList& arguments) {
        process_.start(TARN_SERVIDOR_PATH, arguments);
    }
    ~Program() {
        if (process_.state() != QProcess::NotRunning) {
            process_.kill();
            process_.waitForFinished(patience);
        }
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    // The port of the line on stdout; 0 when none comes.
    int port() {
        while (!process_.canReadLine() && process_.waitForReadyRead(patience)) {
        }
        line_ = QString::fromUtf8(process_.readLine());
        static const QRegularExpression form(
            "^Servindo em http://127\\.0\\.0\\.1:(\\d+)/Kestomain/TarnEmissao\\.asp\\?\n$");
        const QRegularExpressionMatch match = form.match(line_);
        return match.hasMatch() ? match.captured(1).toInt() : 0;
    }
    void signalEnd(int number) { ::kill(static_cast<pid_t>(process_.processId()), number); }
    bool finished() { return process_.waitForFinished(patience); }
    bool endedNormally() const { return process_.exitStatus() == QProcess::NormalExit; }
    int status() const { return process_.exitCode(); }
    std::string errors() { return process_.readAllStandardError().toStdString(); }
    std::string output() { return process_.readAllStandardOutput().toStdString(); }

private:
    QProcess process_;
    QString line_;
};

void expectRefusal(const QStringList& arguments, const std::string& words) {
    Program program(arguments);
    ASSERT_TRUE(program.finished());
    EXPECT_TRUE(program.endedNormally());
    EXPECT_EQ(program.status(), 1);
    EXPECT_EQ(program.output(), "");
    const std::string errors = program.errors();
    EXPECT_EQ(errors.rfind("tarnservidor: ", 0), 0U) << errors;
    EXPECT_NE(errors.find(words), std::string::npos) << errors;
}

class ProgramEnds : public testing::TestWithParam<int> {};

TEST_P(ProgramEnds, CleanlyOnASignal) {
    Program program({"--porta", "0"});
    ASSERT_GT(program.port(), 0);
    program.signalEnd(GetParam());
    ASSERT_TRUE(program.finished());
    EXPECT_TRUE(program.endedNormally());
    EXPECT_EQ(program.status(), 0);
    EXPECT_EQ(program.errors(), "");
}

INSTANTIATE_TEST_SUITE_P(Tarnservidor, ProgramEnds, testing::Values(SIGINT, SIGTERM));

TEST(Tarnservidor, ServesWithTheDayAndEncodingTold) {
    Program program({"--porta", "0", "--hoje", "25/12/2012", "--codificacao", "iso-8859-1"});
    const int port = program.port();
    ASSERT_GT(port, 0);
    httplib::Client client("127.0.0.1", port);
    const auto result = client.Get(
        "/Kestomain/TarnEmissao.asp?comando=LOGIN&EMPRESA=1361&USUARIO=clara&SENHA=pratica");
    ASSERT_TRUE(result);
    EXPECT_EQ(result->get_header_value("Content-Type"), "text/xml; charset=iso-8859-1");
    EXPECT_NE(result->body.find("encoding=\"ISO-8859-1\""), std::string::npos);
    XmlDocument document;
    ASSERT_TRUE(document.loadXML(result->body));
    EXPECT_EQ(field(document.selectSingleNode("PRINCIPAL").child(0), "DATA"), "12/25/2012");
}

TEST(Tarnservidor, LogsNothing) {
    Program program({"--porta", "0"});
    const int port = program.port();
    ASSERT_GT(port, 0);
    httplib::Client client("127.0.0.1", port);
    ASSERT_TRUE(client.Get(
        "/Kestomain/TarnEmissao.asp?comando=LOGIN&EMPRESA=1361&USUARIO=clara&SENHA=pratica"));
    program.signalEnd(SIGTERM);
    ASSERT_TRUE(program.finished());
    EXPECT_EQ(program.output(), "");
    EXPECT_EQ(program.errors(), "");
}

TEST(Tarnservidor, RefusesWrongValues) {
    expectRefusal({"--porta", "0", "--endereco", "300.1.1.1"},
                  "O endereço \"300.1.1.1\" não existe");
    expectRefusal({"--porta", "65536"},
                  "--porta pede um número inteiro de 0 a 65535: \"65536\" não serve.");
    expectRefusal({"--porta", "abc"},
                  "--porta pede um número inteiro de 0 a 65535: \"abc\" não serve.");
    expectRefusal({"--porta"}, "falta o valor da opção --porta.");
    expectRefusal({"--semente", "x"},
                  "--semente pede um número inteiro, só de algarismos: \"x\" não serve.");
    expectRefusal({"--hoje", "31/02/2012"},
                  "--hoje pede uma data dd/mm/aaaa do calendário: \"31/02/2012\" não serve.");
    expectRefusal({"--banco", "postgresql://ana:segredo@h"},
                  "O endereço do banco de dados \"postgresql://ana@h\" não é válido");
    expectRefusal({"--banco", "POSTGRESQL:ana:segredo@h/d"},
                  "O endereço do banco de dados \"postgresql://...\" não é válido");
    expectRefusal({"--banco", "postgresql://127.0.0.1:1/pratica"},
                  "Confira se o servidor PostgreSQL está no ar");
    expectRefusal({"--codificacao", "latin1"},
                  "--codificacao pede windows-1252, iso-8859-1 ou utf-8: \"latin1\" não serve.");
    expectRefusal({"--nada"}, "opção ou argumento desconhecido: --nada.");
}

TEST(Tarnservidor, CommitsTheFaultsTold) {
    Program program({"--porta", "0", "--falha", "LOGIN=404", "--falha", "SEL_SERIE_NF=vazio"});
    const int port = program.port();
    ASSERT_GT(port, 0);
    httplib::Client client("127.0.0.1", port);
    const std::string page = "/Kestomain/TarnEmissao.asp?comando=";
    const auto logon = client.Get(page + "LOGIN&EMPRESA=1361&USUARIO=clara&SENHA=pratica");
    ASSERT_TRUE(logon);
    EXPECT_EQ(logon->status, 404);
    const auto series = client.Get(page + "SEL_SERIE_NF&ServerName=DADOS1361");
    ASSERT_TRUE(series);
    EXPECT_EQ(series->status, 200);
    EXPECT_EQ(series->body, "");
    const auto version = client.Get(page + "VERSAO_TARN_EMISSAO&Versao=07/01/2009");
    ASSERT_TRUE(version);
    EXPECT_NE(version->body, "");
}

TEST(Tarnservidor, RefusesFaultsThatItDoesNotKnow) {
    expectRefusal({"--falha", "LOGIN=501"}, "A falha \"501\" não existe. Use recusa");
    expectRefusal({"--falha", "NADA=500"}, "O comando \"NADA\" não existe neste servidor");
    expectRefusal({"--falha", "LOGIN"}, "não diz de que comando");
    expectRefusal({"--falha"}, "falta o valor da opção --falha.");
}

TEST(Tarnservidor, RefusesABusyPort) {
    Program first({"--porta", "0"});
    const int port = first.port();
    ASSERT_GT(port, 0);
    expectRefusal({"--porta", QString::number(port)}, "já está ocupada por outro programa");
}

TEST(Tarnservidor, RefusesADatabaseOfAnotherVersion) {
    const QTemporaryDir directory;
    const QString file = directory.filePath("pratica.db");
    { const PracticeServer server(optionsOf(file.toStdString())); }
    {
        Database database(file.toStdString());
        database.execute("UPDATE schema_version SET version = ?", {schemaVersion + 1});
    }
    expectRefusal({"--porta", "0", "--banco", file}, "este servidor usa a versão");
}

TEST(Tarnservidor, KeepsItsNotesInTheFile) {
    const QTemporaryDir directory;
    const QStringList arguments = {"--porta", "0", "--banco", directory.filePath("pratica.db")};
    const std::string generate =
        "/Kestomain/TarnEmissao.asp?COMANDO=SP_GERA_NF&ID_ETB_TARN=1361&ID_ORD_FAT=45001"
        "&ID_PES=101&ServerName=DADOS1361";
    for (const char* status : {"OK",
                               "A Ordem de Faturamento nº 45001 já virou Nota Fiscal. "
                               "Atualize a lista."}) {
        Program program(arguments);
        const int port = program.port();
        ASSERT_GT(port, 0);
        httplib::Client client("127.0.0.1", port);
        const auto result = client.Get(generate);
        ASSERT_TRUE(result);
        XmlDocument document;
        ASSERT_TRUE(document.loadXML(result->body));
        EXPECT_EQ(statusOf(document), status);
        program.signalEnd(SIGTERM);
        ASSERT_TRUE(program.finished());
    }
}

TEST(Tarnservidor, ShowsItsHelp) {
    Program program({"--ajuda"});
    ASSERT_TRUE(program.finished());
    EXPECT_EQ(program.status(), 0);
    const std::string help = program.output();
    for (const char* option :
         {"--porta", "--endereco", "--banco", "--semente", "--codificacao", "--hoje", "--falha"}) {
        EXPECT_NE(help.find(option), std::string::npos) << option;
    }
}

}  // namespace
}  // namespace tarn::practice::test
