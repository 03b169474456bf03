// A desk without screens: asks a practice server in its own process and reads
// the answers as the desk's reader does.
#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "gateway/xml_document.h"
#include "practice/server/practice_server.h"
#include "tests/support/practice_database.h"

namespace tarn::practice::test {

inline PracticeOptions optionsOf(std::string database = ":memory:", std::uint64_t seed = 1) {
    PracticeOptions options;
    options.database = std::move(database);
    options.seed = seed;
    options.today = Date{5, 9, 2012};
    return options;
}

struct Generated {
    std::string number;
    std::string series;
};

class Desk {
public:
    // Over data that is made once a run, in a file of its own.
    Desk() : server_(optionsOf(tarn::test::newDatabase(folder_))) {}
    explicit Desk(const PracticeOptions& options) : server_(options) {}

    PracticeServer& server() { return server_; }
    XmlDocument ask(const std::string& query);

    // The status by position: document child 1, attribute 1.
    std::string status(const std::string& query);
    std::vector<std::string> orders();  // numbers on the list of establishment 1361
    std::string generateQuery(const std::string& order) const;
    Generated generate(const std::string& order);  // fails the test when refused
    XmlDocument note(const Generated& note);

private:
    QTemporaryDir folder_;
    PracticeServer server_;
};

std::string statusOf(const XmlDocument& document);
std::vector<XmlNode> rowsOf(const XmlDocument& document);      // of rs:data
std::string field(const XmlNode& row, std::string_view name);  // "-" when absent
// "1234.50" in cents, "12.5" in thousandths.
std::int64_t cents(const XmlNode& row, std::string_view name);
std::int64_t thousandths(const XmlNode& row, std::string_view name);

}  // namespace tarn::practice::test
