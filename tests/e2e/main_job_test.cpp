// The clerk's main job with the programs themselves: the practice server, the real
// screens walked off-screen, the directory printer, the paper.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "gateway/commands.h"
#include "gateway/xml_document.h"
#include "platform/curl/curl_loader.h"
#include "tests/e2e/programs.h"

namespace tarn::test {
namespace {

class MainJob : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(folder_.isValid());
        ASSERT_NO_FATAL_FAILURE(server_.start());
        session_.NCOMPANYCODE = 1361;
        session_.ID_ETB_TARN = 1361;
        session_.UserCode = "101";
        session_.SERVERNAME = "DADOS1361";
    }
    void TearDown() override { server_.stop(); }

    XmlDocument asked(const std::string& query) { return asked(server_, query); }
    XmlDocument asked(const Server& server, const std::string& query) {
        CurlLoader loader;
        answer_ = loader.get(server.address().toStdString() + query);
        XmlDocument document;
        EXPECT_TRUE(answer_.loaded && document.loadXML(answer_.body)) << query;
        return document;
    }
    std::vector<std::string> ordersLeft() {
        const XmlDocument list = asked(commands::sel_ordem_fatu(session_));
        const XmlNode rows = list.selectSingleNode("xml/rs:data");
        std::vector<std::string> orders;
        for (std::size_t i = 0; i < rows.childCount(); ++i) {
            orders.emplace_back(rows.child(i).attributes().getNamedItem("ID_ORD_FAT").text());
        }
        return orders;
    }
    QString inFolder(const char* name) const { return folder_.filePath(name); }

    QTemporaryDir folder_;
    Server server_;
    Sessao session_;
    HttpAnswer answer_;
};

TEST_F(MainJob, AnOrderBecomesANoteOnPaper) {
    const std::vector<std::string> before = ordersLeft();
    ASSERT_THAT(before, testing::Contains("45006"));

    ASSERT_EQ(run(TARNROTEIRO, {"--servidor", server_.address(), "--saida", folder_.path()}), 0);

    // The order is gone, the refused one and the one without stock are not.
    const std::vector<std::string> after = ordersLeft();
    EXPECT_EQ(after.size() + 1, before.size());
    EXPECT_THAT(after, testing::Not(testing::Contains("45006")));
    EXPECT_THAT(after, testing::IsSupersetOf({"45007", "45008"}));

    // The order's sheet; then one note, twice: its set-up job and its own.
    EXPECT_THAT(contentOf(inFolder("job-001.prn")), testing::HasSubstr("CTRL 000871-A"));
    EXPECT_EQ(contentOf(inFolder("job-002.prn")), " \x0F");
    const std::string note = contentOf(inFolder("job-003.prn"));
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
    EXPECT_EQ(contentOf(inFolder("job-004.prn")), " \x0F");
    EXPECT_EQ(contentOf(inFolder("job-005.prn")), note);

    // It was cancelled in the end: the server has it no more.
    EXPECT_EQ(
        asked(commands::SEL_NF(session_, number, "1")).selectSingleNode("xml/rs:data").childCount(),
        0U);

    // A picture of each step, and the paper.
    const QStringList pictures =
        QDir(folder_.path()).entryList({"passo-*.png"}, QDir::Files, QDir::Name);
    EXPECT_EQ(pictures.size(), 34);
    ASSERT_EQ(run(TARNIMPRESSORA, {"--pdf", inFolder("nota.pdf"), inFolder("job-002.prn"),
                                   inFolder("job-003.prn")}),
              0);
    EXPECT_THAT(contentOf(inFolder("nota.pdf")), testing::StartsWith("%PDF-"));
}

TEST_F(MainJob, TheProgramWithoutWindowsPrintsTheSameBytes) {
    ASSERT_EQ(run(TARNROTEIRO, {"--servidor", server_.address(), "--saida", folder_.path()}), 0);

    // The same order, generated on a server of its own, is the same note.
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
    EXPECT_EQ(contentOf(inFolder("de-novo/job-002.prn")), contentOf(inFolder("job-003.prn")));
    EXPECT_GT(contentOf(inFolder("job-003.prn")).size(), 130U);
}

TEST_F(MainJob, AWrongPasswordEndsTheWalkWithAWord) {
    QProcess walk;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    walk.setProcessEnvironment(environment);
    walk.start(TARNROTEIRO,
               {"--servidor", server_.address(), "--saida", folder_.path(), "--senha", "errada"});
    ASSERT_TRUE(walk.waitForFinished(patienceMs));
    EXPECT_EQ(walk.exitCode(), 1);
    EXPECT_THAT(walk.readAllStandardError().toStdString(),
                testing::HasSubstr("Usuário ou senha inválidos"));
    EXPECT_FALSE(QFile::exists(inFolder("job-001.prn")));
}

}  // namespace
}  // namespace tarn::test
