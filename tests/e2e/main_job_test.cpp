// The clerk's main job with the programs themselves: the practice server, the real
// screens walked off-screen, the directory printer, the paper.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "gateway/commands.h"
#include "gateway/xml_document.h"
#include "platform/curl/curl_loader.h"
#include "tests/e2e/clerk_day.h"
#include "tests/e2e/programs.h"

namespace tarn::test {
namespace {

class MainJob : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(folder_.isValid());
        session_.NCOMPANYCODE = 1361;
        session_.ID_ETB_TARN = 1361;
        session_.UserCode = "101";
        session_.SERVERNAME = "DADOS1361";
    }
    XmlDocument asked(const Server& server, const std::string& query) {
        CurlLoader loader;
        answer_ = loader.get(server.address().toStdString() + query);
        XmlDocument document;
        EXPECT_TRUE(answer_.loaded && document.loadXML(answer_.body)) << query;
        return document;
    }
    // Serves a copy of one of the day's databases.
    void serve(Server& server, const QString& database) {
        const QString copy = folder_.filePath(QFileInfo(database).fileName());
        ASSERT_TRUE(QFile::copy(database, copy));
        ASSERT_NO_FATAL_FAILURE(server.start(copy));
    }
    std::vector<std::string> ordersLeft(const Server& server) {
        const XmlDocument list = asked(server, commands::sel_ordem_fatu(session_));
        const XmlNode rows = list.selectSingleNode("xml/rs:data");
        std::vector<std::string> orders;
        for (std::size_t i = 0; i < rows.childCount(); ++i) {
            orders.emplace_back(rows.child(i).attributes().getNamedItem("ID_ORD_FAT").text());
        }
        return orders;
    }
    static QString ofTheDay(const char* name) { return QDir(clerk_day::dayFolder).filePath(name); }
    QString inFolder(const char* name) const { return folder_.filePath(name); }

    QTemporaryDir folder_;
    Sessao session_;
    HttpAnswer answer_;
};

// What the pictures of a day show at least.
const std::vector<std::string> pictures{"logon",
                                        "logon-preenchido",
                                        "mesa",
                                        "menu-nota-fiscal",
                                        "ordens",
                                        "manutencao",
                                        "manutencao-preenchida",
                                        "recusa-do-servidor",
                                        "sem-estoque",
                                        "observacao",
                                        "nota-emitida",
                                        "ajuda",
                                        "reimpressao",
                                        "reimpressao-preenchida",
                                        "cancelamento",
                                        "cancelamento-preenchido",
                                        "nota-cancelada",
                                        "nota-nao-encontrada",
                                        "clientes",
                                        "duplicatas",
                                        "duplicatas-impressas",
                                        "recibos",
                                        "carteira-obrigatoria",
                                        "boletos",
                                        "boleto-impresso",
                                        "cheque-preenchido",
                                        "cheque-emitido",
                                        "cheque-repetido",
                                        "etiquetas",
                                        "etiquetas-imprimir",
                                        "etiquetas-impressas",
                                        "etiquetas-excluir",
                                        "etiquetas-excluidas",
                                        "fim"};
// What those of a folder show, without "passo-NN-" and ".png".
std::vector<std::string> picturesOf(const QString& folder) {
    std::vector<std::string> names;
    for (const QString& file : QDir(folder).entryList({"passo-*.png"}, QDir::Files, QDir::Name)) {
        names.push_back(QFileInfo(file).baseName().section('-', 2).toStdString());
    }
    return names;
}

TEST_F(MainJob, AnOrderBecomesANoteOnPaper) {
    Server morning;
    ASSERT_NO_FATAL_FAILURE(serve(morning, clerk_day::before));
    const std::vector<std::string> before = ordersLeft(morning);
    morning.stop();
    ASSERT_THAT(before, testing::Contains("45006"));

    Server evening;
    ASSERT_NO_FATAL_FAILURE(serve(evening, clerk_day::after));
    // The order is gone, the refused one and the one without stock are not.
    const std::vector<std::string> after = ordersLeft(evening);
    EXPECT_EQ(after.size() + 1, before.size());
    EXPECT_THAT(after, testing::Not(testing::Contains("45006")));
    EXPECT_THAT(after, testing::IsSupersetOf({"45007", "45008"}));

    // The order's sheet; then one note, twice: its set-up job and its own.
    EXPECT_THAT(contentOf(ofTheDay("job-001.prn")), testing::HasSubstr("CTRL 000871-A"));
    EXPECT_EQ(contentOf(ofTheDay("job-002.prn")), " \x0F");
    const std::string note = contentOf(ofTheDay("job-003.prn"));
    ASSERT_GT(note.size(), 130U);
    EXPECT_EQ(note[89], 'X');  // column 90: an exit note
    const std::string number = note.substr(124, 6);
    EXPECT_THAT(number, testing::MatchesRegex("[0-9]+"));
    EXPECT_THAT(note, testing::HasSubstr("FATURA..: " + number));
    const std::string foot = std::string(122, ' ') + number;
    std::string end = foot;
    for (int i = 0; i < 8; ++i) {
        end += "\r\n";
    }
    EXPECT_THAT(note, testing::EndsWith(end));
    EXPECT_EQ(contentOf(ofTheDay("job-004.prn")), " \x0F");
    EXPECT_EQ(contentOf(ofTheDay("job-005.prn")), note);

    // It was cancelled in the end: the server has it no more.
    EXPECT_EQ(asked(evening, commands::SEL_NF(session_, number, "1"))
                  .selectSingleNode("xml/rs:data")
                  .childCount(),
              0U);
    evening.stop();

    // A picture of each step, and the paper.
    EXPECT_THAT(picturesOf(clerk_day::dayFolder), testing::IsSupersetOf(pictures));
    ASSERT_EQ(run(TARNIMPRESSORA, {"--pdf", inFolder("nota.pdf"), ofTheDay("job-002.prn"),
                                   ofTheDay("job-003.prn")}),
              0);
    EXPECT_THAT(contentOf(inFolder("nota.pdf")), testing::StartsWith("%PDF-"));
}

TEST_F(MainJob, TheProgramWithoutWindowsPrintsTheSameBytes) {
    // The order of the day's note, generated on a server of its own, is the same note.
    Server twin;
    ASSERT_NO_FATAL_FAILURE(twin.start());
    const XmlDocument generated = asked(twin, commands::SP_GERA_NF(session_, "45006"));
    const std::string number(generated.documentElement().child(0).attributes().item(0).text());
    const XmlDocument document = asked(twin, commands::sel_gera_nf(session_, number, "1"));
    EXPECT_EQ(document.documentElement().attributes().item(1).text(), "OK");
    twin.stop();
    QFile saved(inFolder("nota.xml"));
    ASSERT_TRUE(saved.open(QIODevice::WriteOnly));
    saved.write(QByteArray::fromStdString(answer_.body));
    saved.close();
    ASSERT_EQ(run(TARNIMPRIME, {"nota", "--empresa", "1361", "--estabelecimento", "1361",
                                "--numero", QString::fromStdString(number), "--destino",
                                inFolder("de-novo"), saved.fileName()}),
              0);
    EXPECT_EQ(contentOf(inFolder("de-novo/job-002.prn")), contentOf(ofTheDay("job-003.prn")));
    EXPECT_GT(contentOf(ofTheDay("job-003.prn")).size(), 130U);
}

TEST_F(MainJob, AWrongPasswordEndsTheWalkWithAWord) {
    Server server;
    ASSERT_NO_FATAL_FAILURE(server.start());
    QProcess walk;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    walk.setProcessEnvironment(environment);
    walk.start(TARNROTEIRO,
               {"--servidor", server.address(), "--saida", folder_.path(), "--senha", "errada"});
    ASSERT_TRUE(walk.waitForFinished(patienceMs));
    server.stop();
    EXPECT_EQ(walk.exitCode(), 1);
    EXPECT_THAT(walk.readAllStandardError().toStdString(),
                testing::HasSubstr("Usuário ou senha inválidos"));
    EXPECT_FALSE(QFile::exists(inFolder("job-001.prn")));
}

}  // namespace
}  // namespace tarn::test
