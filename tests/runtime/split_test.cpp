#include "runtime/split.h"

#include <gtest/gtest.h>

namespace tarn::test {
namespace {

using Pieces = std::vector<std::string_view>;

TEST(Split, GivesWhatStandsBetweenTheSeparators) {
    EXPECT_EQ(split("15/03/2012", '/'), (Pieces{"15", "03", "2012"}));
    EXPECT_EQ(split("a b", '/'), Pieces{"a b"});
}

TEST(Split, KeepsEmptyPieces) {
    EXPECT_EQ(split("", ' '), Pieces{""});
    EXPECT_EQ(split(" a  b ", ' '), (Pieces{"", "a", "", "b", ""}));
}

}  // namespace
}  // namespace tarn::test
