// The practice server on loopback, in this process; keeps the queries as they came and
// fails where a test tells it to.
#pragma once

#include <mutex>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "practice/server/fault.h"
#include "practice/server/http_front.h"
#include "practice/server/practice_server.h"

namespace tarn::test {

class PracticePage {
public:
    explicit PracticePage(const std::string& database = ":memory:")
        : practice_(options(database)),
          front_([this](std::string_view query) { return answer(query); },
                 "text/xml; charset=windows-1252"),
          port_(front_.bind("127.0.0.1", 0)),
          thread_([this] { front_.serve(); }) {}
    ~PracticePage() {
        front_.stop();
        thread_.join();
    }
    PracticePage(const PracticePage&) = delete;
    PracticePage& operator=(const PracticePage&) = delete;

    std::string baseUrl() const {
        return "http://127.0.0.1:" + std::to_string(port_) + std::string(practice::pagePath) + "?";
    }
    // From the next request on; together with the faults set before.
    void fail(std::string_view command, const practice::Fault& fault) {
        const std::scoped_lock lock(mutex_);
        if (!plan_.add(command, fault)) {
            throw std::invalid_argument("no such command: " + std::string(command));
        }
    }
    // No fault any more.
    void heal() {
        const std::scoped_lock lock(mutex_);
        plan_ = {};
    }
    // What came since this was asked last.
    std::vector<std::string> takeQueries() {
        const std::scoped_lock lock(mutex_);
        return std::exchange(queries_, {});
    }
    // Past the network and its faults.
    std::string ask(const std::string& query) { return practice_.answer(query); }

private:
    static practice::PracticeOptions options(const std::string& database) {
        practice::PracticeOptions options;
        options.database = database;
        options.today = Date{5, 9, 2012};
        return options;
    }
    practice::Page answer(std::string_view query) {
        practice::FaultPlan plan;
        {
            const std::scoped_lock lock(mutex_);
            queries_.emplace_back(query);
            plan = plan_;
        }
        return practice::answeredPage(practice_, plan, query);
    }

    practice::PracticeServer practice_;
    std::mutex mutex_;
    std::vector<std::string> queries_;
    practice::FaultPlan plan_;
    practice::HttpFront front_;
    int port_;
    std::thread thread_;
};

}  // namespace tarn::test
