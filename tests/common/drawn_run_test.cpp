#include "common/drawn_run.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "tests/support/boxes.h"
#include "tests/support/test_environment.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

TEST(DrawnRun, BeginsInCentimetresAndPortrait) {
    TestEnvironment env;
    DrawnRun run(env.environment);
    run.newPage();
    run.endDocument();
    EXPECT_EQ(env.printer.lines(), (Texts{"scale\t7", "orientation\t1", "newpage", "enddoc"}));
    EXPECT_FALSE(run.failed());
    EXPECT_EQ(env.boxes.shown, Boxes{});
}

TEST(DrawnRun, TellsTheFirstFailureOfEachDocument) {
    TestEnvironment env;
    env.printer.refuses = [](const PrintOperation&) { return true; };
    DrawnRun run(env.environment);
    run.check(run.printer().Line(1, 1, 2, 1));
    EXPECT_TRUE(run.failed());
    EXPECT_EQ(env.boxes.shown, (Boxes{printerRefused})) << "at once";
    run.newPage();
    run.endDocument();
    EXPECT_EQ(env.boxes.shown.size(), 1U);
    env.printer.refuses = nullptr;
    run.newPage();
    run.endDocument();
    EXPECT_EQ(env.boxes.shown.size(), 1U);
    EXPECT_TRUE(run.failed()) << "some of it isn't printed";
    env.printer.failAt = env.printer.operations.size();
    run.endDocument();
    EXPECT_EQ(env.boxes.shown.size(), 2U);
}

TEST(DrawnRun, ProgressEndsBeforeAFailureIsTold) {
    TestEnvironment env;
    env.printer.refuses = isNoText;
    std::vector<std::pair<std::size_t, std::size_t>> told;
    env.boxes.onShow = [&told](const Box&) { told.emplace_back(0, 0); };
    DrawnRun run(env.environment);
    run.endDocument(
        [&told](std::size_t done, std::size_t total) { told.emplace_back(done, total); }, 7);
    EXPECT_THAT(told, testing::ElementsAre(std::pair(7U, 7U), std::pair(0U, 0U)));
    EXPECT_FALSE(env.printer.progress) << "no longer told";
}

}  // namespace
}  // namespace tarn::test
