#include "cli/arguments.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace tarn::test {
namespace {

#ifndef _WIN32

TEST(Arguments, AreTheWordsAsTheyCame) {
    const char* const words[] = {"prog", "--favorecido", "JOSÉ DA CONCEIÇÃO", "", nullptr};
    const cli::Arguments arguments(4, words);
    ASSERT_EQ(arguments.count(), 4);
    for (int i = 0; i < 4; ++i) {
        EXPECT_STREQ(arguments.values()[i], words[i]);
    }
    EXPECT_EQ(arguments.values()[4], nullptr);
}

#else

// Windows tells them again, whatever `main` was given.
TEST(Arguments, AreThoseOfTheProgramThatRuns) {
    const char* const words[] = {"lost", nullptr};
    const cli::Arguments arguments(1, words);
    ASSERT_GE(arguments.count(), 1);
    EXPECT_NE(std::string(arguments.values()[0]).find("command_line_test"), std::string::npos);
    EXPECT_EQ(arguments.values()[arguments.count()], nullptr);
}

// Threads' ends depend on it: runtime/plain_patterns.h.
TEST(Arguments, LeavePatternsUncompiled) {
    _putenv_s("QT_ENABLE_REGEXP_JIT", "");
    const cli::Arguments arguments(0, nullptr);
    const char* asked = std::getenv("QT_ENABLE_REGEXP_JIT");
    ASSERT_NE(asked, nullptr);
    EXPECT_STREQ(asked, "0");
}

#endif

}  // namespace
}  // namespace tarn::test
