// The practice server on loopback, in this process; keeps the queries as they came.
#pragma once

#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "practice/http_front.h"
#include "practice/practice_server.h"

namespace tarn {

class PracticePage {
public:
    PracticePage()
        : practice_(options()),
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
        return "http://127.0.0.1:" + std::to_string(port_) + std::string(practice::kPagePath) + "?";
    }
    // What came since this was asked last.
    std::vector<std::string> takeQueries() {
        const std::scoped_lock lock(mutex_);
        return std::exchange(queries_, {});
    }
    std::string ask(const std::string& query) { return practice_.answer(query); }

private:
    static practice::PracticeOptions options() {
        practice::PracticeOptions options;
        options.today = Date{5, 9, 2012};
        return options;
    }
    std::string answer(std::string_view query) {
        {
            const std::scoped_lock lock(mutex_);
            queries_.emplace_back(query);
        }
        return practice_.answer(query);
    }

    practice::PracticeServer practice_;
    std::mutex mutex_;
    std::vector<std::string> queries_;
    practice::HttpFront front_;
    int port_;
    std::thread thread_;
};

}  // namespace tarn
