// The desk killed at any moment of a clerk's day: what it told as done stands at the server
// and on the paper, at most the last paper is cut, and nothing is there twice.
#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <iostream>
#include <map>

#include "practice/database/database.h"
#include "tests/e2e/programs.h"
#include "tests/kills/kills.h"
#include "tests/practice/books.h"

namespace tarn::test {
namespace {

using practice::Database;
using practice::test::number;
using practice::test::oneColumn;

constexpr std::chrono::milliseconds longestAct(400);

// What a line of the desk tells, and what is then to be found.
struct ToldPaper {
    const char* told;
    const char* printed;  // in the job's bytes
    std::size_t papers;   // how many jobs have it by then
};
constexpr std::array toldPapers{ToldPaper{"NF 008529 da ordem 45006 enviada", "008529", 1},
                                ToldPaper{"NF 008529 enviada de novo", "008529", 2},
                                ToldPaper{"2 boletos (", "0000000001234", 1},
                                ToldPaper{"2 boletos (", "0000000001235", 1}};

struct ToldRow {
    const char* told;
    const char* query;  // of the rows that are then there
};
constexpr std::array toldRows{
    ToldRow{"NF 008529 da ordem 45006 enviada", "SELECT COUNT(*) FROM note WHERE number = 8529"},
    ToldRow{"NF 008529 cancelada",
            "SELECT COUNT(*) FROM note WHERE number = 8529 AND cancelled = 1"},
    ToldRow{"Cheque 1001 ", "SELECT COUNT(*) FROM cheque WHERE number = 1001"}};

using Papers = std::map<std::string, std::string>;  // the raw jobs by the names of their files

Papers papersIn(const QString& folder) {
    Papers papers;
    for (const QString& name : QDir(folder).entryList({"job-*.prn"}, QDir::Files, QDir::Name)) {
        papers[name.toStdString()] = contentOf(QDir(folder).filePath(name));
    }
    return papers;
}

// A clerk's day in a process of its own, which tells each thing done in a line.
class ClerkProcess {
public:
    ClerkProcess(const Server& server, const QString& folder) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        process_.setProcessEnvironment(environment);
        process_.setReadChannel(QProcess::StandardError);
        process_.start(TARNROTEIRO, {"--servidor", server.address(), "--saida", folder});
    }

    // Until so many things are done, or the day is.
    void awaitActs(std::size_t count) {
        while (told_.size() < count && readLine()) {
        }
    }
    void kill() {
        process_.kill();
        ASSERT_TRUE(process_.state() == QProcess::NotRunning ||
                    process_.waitForFinished(patienceMs));
        while (readLine()) {
        }
    }
    const std::vector<std::string>& told() const { return told_; }

private:
    bool readLine() {
        while (!process_.canReadLine() && process_.waitForReadyRead(patienceMs)) {
        }
        if (!process_.canReadLine()) {
            return false;
        }
        told_.push_back(process_.readLine().trimmed().toStdString());
        return true;
    }

    QProcess process_;
    std::vector<std::string> told_;
};

class KilledDesk : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(place_.isValid());
        Server server;
        ASSERT_NO_FATAL_FAILURE(server.start(untouched()));
        server.stop();
        ASSERT_NO_FATAL_FAILURE(runDay("inteiro", [](ClerkProcess& clerk) {
            clerk.awaitActs(std::numeric_limits<std::size_t>::max());
        }));
        wholeDay_ = papersIn(place_.filePath("inteiro"));
        actsOfDay_ = told_.size();
        ASSERT_GT(wholeDay_.size(), 8U);
        ASSERT_GT(actsOfDay_, 8U);
    }

    template <typename Until>
    void runDay(const QString& name, const Until& until) {
        const QString database = place_.filePath(name + ".db");
        ASSERT_TRUE(QFile::copy(untouched(), database));
        Server server;
        ASSERT_NO_FATAL_FAILURE(server.start(database));
        ClerkProcess clerk(server, place_.filePath(name));
        until(clerk);
        ASSERT_NO_FATAL_FAILURE(clerk.kill());
        told_ = clerk.told();
        server.stop();
    }

    void killOnce(const QString& name) {
        ASSERT_NO_FATAL_FAILURE(runDay(name, [this](ClerkProcess& clerk) {
            clerk.awaitActs(
                static_cast<std::size_t>(moments_.upTo(static_cast<std::int64_t>(actsOfDay_) - 1)));
            moments_.await(longestAct);
        }));
        const Papers papers = papersIn(place_.filePath(name));
        expectPapers(papers);
        Database database(place_.filePath(name + ".db").toStdString());
        expectRows(database);
        QDir(place_.filePath(name)).removeRecursively();
        QFile::remove(place_.filePath(name + ".db"));
    }

    // Each is that of the whole day; the last one may end where the desk did.
    void expectPapers(const Papers& papers) {
        for (const auto& [file, bytes] : papers) {
            const auto whole = wholeDay_.find(file);
            ASSERT_NE(whole, wholeDay_.end()) << file << " is no paper of the day";
            if (file == papers.rbegin()->first) {
                EXPECT_TRUE(whole->second.starts_with(bytes)) << file;
                cut_ += bytes.size() < whole->second.size() ? 1 : 0;
            } else {
                EXPECT_TRUE(bytes == whole->second) << file << " isn't whole, and isn't the last";
            }
        }
        for (const ToldPaper& paper : toldPapers) {
            if (wasTold(paper.told)) {
                EXPECT_GE(wholeOnes(papers, paper.printed), paper.papers) << paper.told;
            }
        }
    }

    void expectRows(Database& database) {
        for (const ToldRow& row : toldRows) {
            if (wasTold(row.told)) {
                EXPECT_EQ(number(database, row.query), 1) << row.told;
            }
        }
        const auto once = [&database](const char* query) {
            const std::multiset<std::string> all = oneColumn(database, query);
            EXPECT_EQ(std::set<std::string>(all.begin(), all.end()).size(), all.size()) << query;
        };
        once("SELECT establishment_id || '/' || series_code || '/' || number FROM note");
        once("SELECT order_id FROM note WHERE cancelled = 0");
        once("SELECT number FROM cheque");
    }

    bool wasTold(const char* what) const {
        return std::ranges::any_of(told_, [what](const std::string& line) {
            return line.find(what) != std::string::npos;
        });
    }
    std::size_t wholeOnes(const Papers& papers, const char* printed) const {
        return static_cast<std::size_t>(std::ranges::count_if(papers, [&](const auto& paper) {
            return paper.second.find(printed) != std::string::npos &&
                   paper.second == wholeDay_.at(paper.first);
        }));
    }
    QString untouched() const { return place_.filePath("intocado.db"); }

    QTemporaryDir place_;
    KillMoments moments_;
    Papers wholeDay_;
    std::size_t actsOfDay_ = 0;
    std::vector<std::string> told_;  // by the desk that was killed last
    int cut_ = 0;
};

TEST_F(KilledDesk, CutsOnePaperAtMostAndWhatItToldStands) {
    const int kills = killsWanted();
    std::size_t acts = 0;
    for (int kill = 1; kill <= kills && !HasFailure(); ++kill) {
        SCOPED_TRACE("kill " + std::to_string(kill));
        ASSERT_NO_FATAL_FAILURE(killOnce(QString::number(kill)));
        acts += told_.size();
    }
    std::cout << kills << " kills, " << acts << " things told as done, " << cut_
              << " papers cut where their desk was killed\n";
}

}  // namespace
}  // namespace tarn::test
