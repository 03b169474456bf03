// The practice server on loopback, in this process; keeps the queries as they came and
// fails where a test tells it to.
#pragma once

#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "practice/server/fault.h"
#include "practice/server/http_front.h"
#include "practice/server/practice_server.h"

namespace tarn::test {

class PracticePage {
public:
    explicit PracticePage(const std::string& database = ":memory:");
    ~PracticePage();
    PracticePage(const PracticePage&) = delete;
    PracticePage& operator=(const PracticePage&) = delete;

    std::string baseUrl() const;
    // From the next request on; together with the faults set before.
    void fail(std::string_view command, const practice::Fault& fault);
    // No fault any more.
    void heal();
    // What came since this was asked last.
    std::vector<std::string> takeQueries();
    // Past the network and its faults.
    std::string ask(const std::string& query);

private:
    practice::Page answer(std::string_view query);

    practice::PracticeServer practice_;
    std::mutex mutex_;
    std::vector<std::string> queries_;
    practice::FaultPlan plan_;
    practice::HttpFront front_;
    int port_;
    std::thread thread_;
};

}  // namespace tarn::test
