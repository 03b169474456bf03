#include "tests/practice/every_command.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "practice/commands/command.h"

namespace tarn::practice::test {
namespace {

TEST(EveryCommand, AnswersTheDesksOwnTextAndLeavesWhatItSays) {
    const QTemporaryDir directory;
    expectEveryCommandAnswered(directory.filePath("pratica.db").toStdString());
}

TEST(EveryCommand, StandsInTheTable) {
    std::set<std::string_view> served;
    for (const Command& command : allCommands()) {
        served.insert(command.name);
    }
    EXPECT_EQ(commandsAsked(), served);
    EXPECT_EQ(served.size(), 39U);
    EXPECT_EQ(allCommands().size(), 39U);
}

}  // namespace
}  // namespace tarn::practice::test
