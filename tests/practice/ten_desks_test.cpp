// Ten desks at once against the practice server: no number is given twice and no
// write is lost. TARN_DESKS_SECONDS tells how long they work, 3 seconds each time
// where it is left out.
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <chrono>
#include <iostream>
#include <optional>
#include <set>
#include <thread>

#include "practice/database/database.h"
#include "tests/practice/books.h"
#include "tests/practice/busy_desk.h"
#include "tests/practice/practice_desk.h"
#include "tests/practice/serving.h"
#include "tests/practice/test_postgres.h"

namespace tarn::practice::test {
namespace {

std::chrono::seconds workingTime() {
    const QByteArray seconds = qgetenv("TARN_DESKS_SECONDS");
    return std::chrono::seconds(seconds.isEmpty() ? 3 : seconds.toInt());
}

void workAtOnce(const std::vector<std::string>& baseUrls, DoneAtOnce& done) {
    const auto end = std::chrono::steady_clock::now() + workingTime();
    std::vector<std::thread> desks;
    for (int place = 0; place < busyDesks; ++place) {
        const std::string& url = baseUrls[static_cast<std::size_t>(place) % baseUrls.size()];
        desks.emplace_back([&done, &url, end, place] {
            BusyDesk desk(url, place, done);
            do {
                desk.workOnce();
            } while (std::chrono::steady_clock::now() < end);
        });
    }
    for (std::thread& desk : desks) {
        desk.join();
    }
}

void expectNothingTwice(const DoneAtOnce& done) {
    EXPECT_EQ(std::set<std::string>(done.notes.begin(), done.notes.end()).size(),
              done.notes.size());
    EXPECT_EQ(std::set<std::string>(done.cheques.begin(), done.cheques.end()).size(),
              done.cheques.size());
}

// The notes stand as they were given, and without a gap.
void expectNotes(Database& database, const DoneAtOnce& done, std::int64_t numbersBefore) {
    const std::string place = busyPlaceQuery;
    EXPECT_EQ(oneColumn(database,
                        "SELECT series_code || '/' || number FROM note"
                        " WHERE establishment_id = " +
                            place),
              done.notes);
    EXPECT_EQ(numbersLeft(database) - numbersBefore, static_cast<std::int64_t>(done.notes.size()));
    EXPECT_EQ(number(database, "SELECT COUNT(*) FROM note WHERE cancelled = 1"), done.cancelled);
    EXPECT_EQ(number(database, "SELECT COUNT(*) FROM billing_order WHERE state = 'F'"),
              static_cast<std::int64_t>(done.notes.size()) - done.cancelled);
    EXPECT_EQ(number(database,
                     "SELECT COUNT(*) FROM note WHERE cancelled = 0 GROUP BY order_id"
                     " HAVING COUNT(*) > 1"),
              -1);
}

void expectNothingLost(Database& database, const DoneAtOnce& done) {
    EXPECT_EQ(oneColumn(database, "SELECT number FROM cheque"), done.cheques);
    EXPECT_EQ(twoColumns(database,
                         "SELECT id, observation FROM billing_order"
                         " WHERE observation LIKE 'mesa %'"),
              done.observations);
    EXPECT_EQ(twoColumns(database,
                         "SELECT kind_id || ' ' || number, slip_number FROM document"
                         " WHERE slip_number IS NOT NULL"),
              done.slips);
}

// How many servers stand between the desks and the one database.
class TenDesks : public testing::TestWithParam<int> {
protected:
    void work(const std::string& address) {
        std::vector<std::unique_ptr<PracticeServer>> servers;
        std::vector<std::unique_ptr<Serving>> fronts;
        std::vector<std::string> urls;
        for (int i = 0; i < GetParam(); ++i) {
            servers.push_back(std::make_unique<PracticeServer>(optionsOf(address)));
            fronts.push_back(
                std::make_unique<Serving>([server = servers.back().get()](std::string_view query) {
                    return server->answer(query);
                }));
            urls.push_back(fronts.back()->baseUrl());
        }
        Database database(address);
        const std::int64_t numbersBefore = numbersLeft(database);
        const auto stockBefore = stockAndTaken(database);
        DoneAtOnce done;
        workAtOnce(urls, done);
        EXPECT_TRUE(done.failures.empty())
            << done.failures.size() << " failed, the first: " << done.failures.front();
        for (const std::size_t count : {done.notes.size(), done.cheques.size(),
                                        done.observations.size(), done.slips.size()}) {
            EXPECT_GT(count, 0U);
        }
        expectNothingTwice(done);
        expectNotes(database, done, numbersBefore);
        expectNothingLost(database, done);
        EXPECT_EQ(stockAndTaken(database), stockBefore);
        std::cout << done.requests << " requests, " << done.notes.size() << " notes ("
                  << done.cancelled << " cancelled), " << done.cheques.size() << " cheques, "
                  << done.refusals << " refusals\n";
    }
};

TEST_P(TenDesks, OverAFileGetNothingTwiceAndLoseNothing) {
    const QTemporaryDir directory;
    work(directory.filePath("pratica.db").toStdString());
}

TEST_P(TenDesks, OverPostgresGetNothingTwiceAndLoseNothing) {
    work(newPostgresDatabase());
}

INSTANTIATE_TEST_SUITE_P(Servers, TenDesks, testing::Values(1, 2));

}  // namespace
}  // namespace tarn::practice::test
