#include "tests/support/practice_page.h"

#include <stdexcept>
#include <utility>

namespace tarn::test {
namespace {

practice::PracticeOptions optionsOf(const std::string& database) {
    practice::PracticeOptions options;
    options.database = database;
    options.today = Date{5, 9, 2012};
    return options;
}

}  // namespace

PracticePage::PracticePage(const std::string& database)
    : practice_(optionsOf(database)),
      front_([this](std::string_view query) { return answer(query); },
             "text/xml; charset=windows-1252"),
      port_(front_.bind("127.0.0.1", 0)),
      thread_([this] { front_.serve(); }) {}

PracticePage::~PracticePage() {
    front_.stop();
    thread_.join();
}

std::string PracticePage::baseUrl() const {
    return "http://127.0.0.1:" + std::to_string(port_) + std::string(practice::pagePath) + "?";
}

void PracticePage::fail(std::string_view command, const practice::Fault& fault) {
    const std::scoped_lock lock(mutex_);
    if (!plan_.add(command, fault)) {
        throw std::invalid_argument("no such command: " + std::string(command));
    }
}

void PracticePage::heal() {
    const std::scoped_lock lock(mutex_);
    plan_ = {};
}

std::vector<std::string> PracticePage::takeQueries() {
    const std::scoped_lock lock(mutex_);
    return std::exchange(queries_, {});
}

std::string PracticePage::ask(const std::string& query) {
    return practice_.answer(query);
}

practice::Page PracticePage::answer(std::string_view query) {
    practice::FaultPlan plan;
    {
        const std::scoped_lock lock(mutex_);
        queries_.emplace_back(query);
        plan = plan_;
    }
    return practice::answeredPage(practice_, plan, query);
}

}  // namespace tarn::test
