#include "tests/practice/at_once.h"

#include <gtest/gtest.h>

#include <thread>

#include "tests/practice/practice_desk.h"

namespace tarn::practice::test {
namespace {

constexpr std::size_t desks = 8;
constexpr std::size_t billable = 21;  // of 23 orders one lacks stock, one is blocked

// One desk of many: goes through the whole list from a place of its own.
void generateAll(PracticeServer& server, const std::vector<std::string>& orders, std::size_t first,
                 Outcome& outcome) {
    for (std::size_t i = 0; i < orders.size(); ++i) {
        const std::string body =
            server.answer("COMANDO=SP_GERA_NF&ID_ETB_TARN=1361&ID_ORD_FAT=" +
                          orders[(first + i) % orders.size()] + "&ID_PES=101&ServerName=DADOS1361");
        XmlDocument document;
        const bool loaded = document.loadXML(body);
        const std::lock_guard lock(outcome.mutex);
        ASSERT_TRUE(loaded);
        if (statusOf(document) != "OK") {
            ++outcome.refused;
            continue;
        }
        const XmlNode root = document.documentElement();
        outcome.notes.insert(std::string(root.child(1).attributes().item(0).text()) + '/' +
                             std::string(root.child(0).attributes().item(0).text()));
    }
}

}  // namespace

void generateAtOnce(const std::vector<PracticeServer*>& servers,
                    const std::vector<std::string>& orders, Outcome& outcome) {
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < desks; ++i) {
        PracticeServer& server = *servers[i % servers.size()];
        threads.emplace_back([&, i] { generateAll(server, orders, i * 3, outcome); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

void expectEachOnce(const Outcome& outcome) {
    EXPECT_EQ(outcome.notes.size(), billable);
    EXPECT_EQ(std::set<std::string>(outcome.notes.begin(), outcome.notes.end()).size(), billable);
    EXPECT_EQ(outcome.refused, static_cast<int>(desks * 23 - billable));
}

}  // namespace tarn::practice::test
