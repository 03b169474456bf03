// The practice server killed while desks work with it: what it told them stands, and what
// it didn't come to tell is there whole or not at all.
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <iostream>
#include <thread>

#include "practice/database/database.h"
#include "tests/e2e/programs.h"
#include "tests/kills/kills.h"
#include "tests/practice/books.h"
#include "tests/practice/busy_desk.h"
#include "tests/practice/practice_desk.h"
#include "tests/practice/test_postgres.h"

namespace tarn::practice::test {
namespace {

using std::chrono::milliseconds;
using tarn::test::KillMoments;
using tarn::test::killsWanted;
using tarn::test::Server;

constexpr std::int64_t mostAnswers = 200;  // before a kill
constexpr milliseconds longestServing(5);  // some requests long

// A server process that is gone may have left a statement that still runs in PostgreSQL.
void awaitOtherConnections(Database& database) {
    while (database.isServer() &&
           number(database,
                  "SELECT COUNT(*) FROM pg_stat_activity WHERE datname = current_database()"
                  " AND pid <> pg_backend_pid()") > 0) {
        std::this_thread::yield();
    }
}

// How many of `all` nobody was told of; all that was told is among them, and none is twice.
std::int64_t untold(const std::multiset<std::string>& all, const std::multiset<std::string>& told) {
    EXPECT_EQ(std::set<std::string>(all.begin(), all.end()).size(), all.size());
    EXPECT_EQ(std::set<std::string>(told.begin(), told.end()).size(), told.size());
    EXPECT_TRUE(std::ranges::includes(all, told)) << "something told is lost";
    return static_cast<std::int64_t>(all.size()) - static_cast<std::int64_t>(told.size());
}

class KilledServer : public testing::Test {
protected:
    void work(const std::string& address) {
        address_ = address;
        {
            Server first;
            ASSERT_NO_FATAL_FAILURE(first.start(QString::fromStdString(address_)));
            first.stop();
            Database database(address_);
            numbersBefore_ = numbersLeft(database);
            stockBefore_ = stockAndTaken(database);
        }
        const int kills = killsWanted();
        for (int kill = 1; kill <= kills && !HasFailure(); ++kill) {
            SCOPED_TRACE("kill " + std::to_string(kill));
            ASSERT_NO_FATAL_FAILURE(workUntilKilled());
            Database database(address_);
            awaitOtherConnections(database);
            expectSoundFile(database);
            expectWhole(database);
        }
        std::cout << kills << " kills, " << done_.requests << " requests, " << done_.notes.size()
                  << " notes told (" << untoldNotes_ << " more made), " << done_.cancelled
                  << " cancelled, " << done_.cheques.size() << " cheques, " << done_.failures.size()
                  << " requests without an answer\n";
        EXPECT_FALSE(done_.notes.empty());
        EXPECT_FALSE(done_.failures.empty());
    }

    void workUntilKilled() {
        Server server;
        ASSERT_NO_FATAL_FAILURE(server.start(QString::fromStdString(address_)));
        const std::string url = server.address().toStdString();
        std::vector<std::thread> desks;
        desks.reserve(busyDesks);
        for (int place = 0; place < busyDesks; ++place) {
            desks.emplace_back([this, &url, place] {
                BusyDesk desk(url, place, done_);
                while (!desk.cutOff()) {
                    desk.workOnce();
                }
            });
        }
        const std::int64_t before = answered();
        moments_.await([this, before] { return answered() - before; }, mostAnswers, longestServing);
        server.kill();
        for (std::thread& desk : desks) {
            desk.join();
        }
    }

    std::int64_t answered() {
        const std::lock_guard lock(done_.mutex);
        return done_.requests - static_cast<std::int64_t>(done_.failures.size());
    }

    static void expectSoundFile(Database& database) {
        if (!database.isServer()) {
            EXPECT_EQ(oneColumn(database, "PRAGMA integrity_check"),
                      std::multiset<std::string>{"ok"});
            EXPECT_EQ(oneColumn(database, "PRAGMA foreign_key_check").size(), 0U);
        }
    }

    void expectWhole(Database& database) {
        const std::string place = busyPlaceQuery;
        const auto unanswered = static_cast<std::int64_t>(done_.failures.size());
        const auto notes = oneColumn(
            database,
            "SELECT series_code || '/' || number FROM note WHERE establishment_id = " + place);
        untoldNotes_ = untold(notes, done_.notes);
        const std::int64_t untoldCheques =
            untold(oneColumn(database, "SELECT number FROM cheque"), done_.cheques);
        const std::int64_t cancelled =
            number(database, "SELECT COUNT(*) FROM note WHERE cancelled = 1");
        EXPECT_GE(cancelled, done_.cancelled);
        EXPECT_LE(untoldNotes_ + untoldCheques + cancelled - done_.cancelled, unanswered);
        EXPECT_EQ(numbersLeft(database) - numbersBefore_, static_cast<std::int64_t>(notes.size()))
            << "a number was left out";
        EXPECT_EQ(number(database, "SELECT COUNT(*) FROM billing_order WHERE state = 'F'"),
                  static_cast<std::int64_t>(notes.size()) - cancelled);
        EXPECT_EQ(number(database,
                         "SELECT COUNT(*) FROM note WHERE cancelled = 0 GROUP BY order_id"
                         " HAVING COUNT(*) > 1"),
                  -1);
        EXPECT_EQ(stockAndTaken(database), stockBefore_);
    }

    KillMoments moments_;

private:
    std::string address_;
    DoneAtOnce done_;
    std::int64_t numbersBefore_ = 0;
    std::int64_t untoldNotes_ = 0;
    std::map<std::string, std::string> stockBefore_;
};

TEST_F(KilledServer, OverAFileGivesNothingTwiceAndLosesNothingTold) {
    const QTemporaryDir directory;
    work(directory.filePath("pratica.db").toStdString());
}

TEST_F(KilledServer, OverPostgresGivesNothingTwiceAndLosesNothingTold) {
    work(newPostgresDatabase());
}

// Nothing is in the file yet, or all of it.
TEST_F(KilledServer, WhileItMakesItsDataStartsOnTheSameFile) {
    const int kills = killsWanted();
    for (int kill = 1; kill <= kills && !HasFailure(); ++kill) {
        SCOPED_TRACE("kill " + std::to_string(kill));
        const QTemporaryDir directory;
        const QString file = directory.filePath("pratica.db");
        QProcess process;
        process.start(TARNSERVIDOR, {"--porta", "0", "--banco", file, "--hoje", "05/09/2012"});
        ASSERT_TRUE(process.waitForStarted());
        moments_.await(milliseconds(800));
        process.kill();
        ASSERT_TRUE(process.waitForFinished(tarn::test::patienceMs));
        Server server;
        ASSERT_NO_FATAL_FAILURE(server.start(file));
        server.stop();
        Desk desk(optionsOf(file.toStdString()));
        EXPECT_EQ(desk.orders().size(), 23U);
    }
}

}  // namespace
}  // namespace tarn::practice::test
