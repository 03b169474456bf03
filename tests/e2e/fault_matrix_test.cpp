// Every command of the server under every kind of fault, over HTTP, in the screen that sends
// it: what the clerk reads, what is kept, that nothing is sent twice or printed, and that
// the screen goes on.
#include <gtest/gtest.h>

#include <memory>

#include "practice/commands/command.h"
#include "runtime/runtime_error.h"
#include "tests/e2e/matrix_desk.h"

namespace tarn::test {
namespace {

std::vector<MatrixRow> allRows() {
    std::vector<MatrixRow> all = startRows();
    for (const auto& rows : {noteRows(), documentRows(), labelRows()}) {
        all.insert(all.end(), rows.begin(), rows.end());
    }
    return all;
}

const Told& toldOf(const MatrixRow& row, Left left) {
    switch (left) {
        case Left::Nothing:
            return row.lost;
        case Left::Refusal:
            return row.refused;
        case Left::NoDeclaration:
            return row.undeclared;
        default:
            return row.whole;
    }
}

class FaultMatrix : public testing::TestWithParam<MatrixRow> {
protected:
    // The command met with a fault; false when that ended the program.
    bool meets(const MatrixFault& fault, MatrixDesk& desk, QWidget& screen) {
        const MatrixRow& row = GetParam();
        const Told& told = toldOf(row, fault.left);
        prepare(desk, screen);
        const auto values = MatrixDesk::valuesOf(screen);
        const std::string version = desk.databaseVersion();
        desk.begin(row.command, &fault);
        (desk.*row.act)(screen);
        EXPECT_EQ(desk.shown(), desk.withNumber(told.boxes));
        EXPECT_EQ(desk.requests(), 1U);
        EXPECT_EQ(desk.hasEnded(), told.ends || told.quits);
        EXPECT_EQ(desk.endStatus(), told.ends ? runtimeErrorStatus : 0);
        EXPECT_EQ(desk.printed(), told.paper || told.goesOn);
        EXPECT_EQ(desk.databaseVersion() != version,
                  told.goesOn || row.others || (row.writes && fault.carriedOut));
        if (desk.hasEnded()) {
            return false;
        }
        const bool shows =
            told.shows || told.goesOn || row.others || (row.rereads && fault.carriedOut);
        expectKept(values, MatrixDesk::valuesOf(screen),
                   shows ? row.changes : std::vector<std::string>{});
        return goesOn(desk, screen);
    }

private:
    void prepare(MatrixDesk& desk, QWidget& screen) {
        desk.heal();
        if (GetParam().prepare != nullptr) {
            (desk.*GetParam().prepare)(screen);
        }
    }
    void expectKept(std::map<std::string, std::string> before,
                    std::map<std::string, std::string> after,
                    const std::vector<std::string>& changes) {
        for (const std::string& name : changes) {
            before.erase(name);
            after.erase(name);
        }
        EXPECT_EQ(after, before);
    }
    // The same once more, the server sound again.
    bool goesOn(MatrixDesk& desk, QWidget& screen) {
        const MatrixRow& row = GetParam();
        prepare(desk, screen);
        desk.begin(row.command, nullptr);
        (desk.*row.act)(screen);
        EXPECT_EQ(desk.shown(), desk.withNumber(row.whole.boxes)) << "the screen can't go on";
        EXPECT_EQ(desk.requests(), 1U);
        return !desk.hasEnded();
    }
};

TEST_P(FaultMatrix, IsToldKeepsTheFieldsSendsOncePrintsNothingAndGoesOn) {
    const MatrixRow& row = GetParam();
    std::size_t met = 0;
    while (met < matrixFaults.size()) {
        MatrixDesk desk(row.place != &MatrixDesk::beforeLogon && row.place != &MatrixDesk::atLogon);
        const std::size_t before = met;
        (desk.*row.place)([&](QWidget& screen) {
            bool on = true;
            while (on && met < matrixFaults.size()) {
                const MatrixFault& fault = matrixFaults.at(met);
                SCOPED_TRACE(fault.name);
                on = meets(fault, desk, screen) && !row.anew;
                ++met;
            }
        });
        ASSERT_GT(met, before) << "the screen didn't open";
    }
}

std::string nameOf(const testing::TestParamInfo<MatrixRow>& tested) {
    return tested.param.command;
}

INSTANTIATE_TEST_SUITE_P(The546CasesOf39CommandsBy14Faults, FaultMatrix,
                         testing::ValuesIn(allRows()), nameOf);

TEST(FaultMatrix546, HasEveryCommandOnce) {
    std::multiset<std::string> known;
    for (const practice::Command& command : practice::allCommands()) {
        known.emplace(command.name);
    }
    std::multiset<std::string> met;
    for (const MatrixRow& row : allRows()) {
        met.emplace(row.command);
    }
    EXPECT_EQ(met, known);
    EXPECT_EQ(met.size() * matrixFaults.size(), 546U);
}

}  // namespace

void PrintTo(const MatrixRow& row, std::ostream* out) {
    *out << row.command;
}

}  // namespace tarn::test
