#include "tests/notes/compare_notes.h"

#include <gtest/gtest.h>

namespace tarn::test {

namespace {

// Name of the field in which two lines begin to differ.
std::string differsIn(const ExpectedCall& call, const std::string& actual) {
    const std::string expected = call.bytes();
    std::size_t at = 0;
    while (at < expected.size() && at < actual.size() && expected[at] == actual[at]) {
        ++at;
    }
    const int column = static_cast<int>(at) + 1;
    std::string name = "the gaps";
    for (const MapField& field : call.fields) {
        if (column >= field.column && (field.width < 0 || column < field.column + field.width)) {
            name = field.source;
        }
    }
    return "column " + std::to_string(column) + ", " + name;
}

}  // namespace

void compareJob(const std::vector<ExpectedCall>& expected, const std::vector<std::string>& writes) {
    for (std::size_t i = 0; i < expected.size(); ++i) {
        ASSERT_LT(i, writes.size())
            << "missing: " << expected[i].what << " on line " << expected[i].line;
        ASSERT_EQ(readable(expected[i].bytes()), readable(writes[i]))
            << "call " << i + 1 << ", line " << expected[i].line << ", " << expected[i].what
            << ": differs in " << differsIn(expected[i], writes[i]);
    }
    ASSERT_EQ(expected.size(), writes.size())
        << "one too many: " << readable(writes[expected.size()]);
}

}  // namespace tarn::test
