// Every note layout on the interpreter: line, column and character of what stands on
// the paper against plain counting of the stream's own bytes.
#include <gtest/gtest.h>

#include <map>
#include <utility>
#include <vector>

#include "cheques/imprime_cheque.h"
#include "tests/dotmatrix/note_streams.h"
#include "tests/dotmatrix/printer_rig.h"
#include "tests/support/test_environment.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

struct Struck {
    char16_t character = u' ';
    PaperUnits x = 0;
    bool operator==(const Struck&) const = default;
};
// By line and column, both from 1.
using Grid = std::map<std::pair<std::size_t, std::size_t>, Struck>;

// The commands that the layouts send, longest first, and the width of a character
// behind each; 0 leaves it as it is.
struct Command {
    std::string bytes;
    int cell;
};
const Command commands[] = {{"\x0F\x1B\x1B\x47", 126},
                            {"\x0F\x1B\x1B\x4D", 108},
                            {"\x0F\x1B\x4D", 108},
                            {"\x0F\x1B\x47", 126},
                            {"\x1B\x0F\x0F", 126},
                            {"\x1B\x17", 0},
                            {"\x1B\x23", 0},
                            {"\x1B\x32", 0},
                            {bytesOf("\x1B\x41\x06"), 0},
                            {"\x12", -1},
                            {"\x0F", 126}};

// Counts along the jobs' bytes. Twelve an inch, once selected by ESC M, stays: condensed
// is then twenty. Byte 12 goes back to ten an inch where nothing selects
// twelve, and to twelve where ESC M did.
class Count {
public:
    explicit Count(int cell) : cell_(cell) {}

    Grid job(const std::string& bytes) {
        Grid grid;
        std::size_t line = 1;
        std::size_t column = 1;
        for (std::size_t at = 0; at < bytes.size();) {
            if (const Command* command = commandAt(bytes, at)) {
                elite_ |= command->bytes.back() == 'M';
                cell_ = command->cell > 0   ? (elite_ ? 108 : command->cell)
                        : command->cell < 0 ? (elite_ ? 180 : 216)
                                            : cell_;
                at += command->bytes.size();
            } else if (bytes.compare(at, 2, "\r\n") == 0) {
                ++line;
                column = 1;
                x_ = 0;
                at += 2;
            } else {
                const auto byte = static_cast<unsigned char>(bytes[at++]);
                if (byte != ' ') {
                    grid[{line, column}] = {static_cast<char16_t>(byte), x_};
                }
                ++column;
                x_ += cell_;
            }
        }
        return grid;
    }

private:
    static const Command* commandAt(const std::string& bytes, std::size_t at) {
        for (const Command& command : commands) {
            if (bytes.compare(at, command.bytes.size(), command.bytes) == 0) {
                return &command;
            }
        }
        return nullptr;
    }
    int cell_;
    bool elite_ = false;
    PaperUnits x_ = 0;  // the head stays where a job without a line end left it
};

Grid printedBy(const ContinuousPaper& paper, std::size_t job) {
    Grid grid;
    for (const PaperLine& line : paper.lines()) {
        if (line.job != job) {
            continue;
        }
        for (const Cell& cell : line.cells) {
            grid[{line.jobLine, static_cast<std::size_t>(cell.column - line.columnsBefore)}] = {
                cell.character, cell.x};
        }
    }
    return grid;
}

class CellGrid : public testing::TestWithParam<test::FormFacts> {
protected:
    static void check(const test::NoteCase& note) {
        const Dialect panel = test::panelOf(GetParam());
        PrinterRig rig(panel);
        Count count(panel.condensed ? 126 : 216);
        std::size_t job = 0;
        for (const std::string& bytes : test::streamsOf(GetParam(), note)) {
            rig.job(bytes);
            const Grid expected = count.job(bytes);
            EXPECT_EQ(printedBy(rig.paper, ++job), expected) << "job " << job;
            for (const auto& [place, struck] : expected) {
                ASSERT_EQ(rig.paper.characterAt(job, place.first, place.second), struck.character)
                    << "line " << place.first << " column " << place.second;
            }
        }
        EXPECT_GT(printedBy(rig.paper, job).size(), 200U);
    }
};

TEST_P(CellGrid, PlainNote) {
    check({});
}

TEST_P(CellGrid, EntryNoteOfOneParcelAndLongTexts) {
    test::NoteCase note;
    note.entry = true;
    note.parcels = 1;
    note.items = 6;
    note.legalTexts = {std::string(120, 'L'), std::string(200, 'M')};
    note.observation = std::string(90, 'O');
    check(note);
}

TEST_P(CellGrid, TooManyParcels) {
    test::NoteCase note;
    note.parcels = 13;
    check(note);
}

// Prints the stream's jobs and holds the paper against the count.
ContinuousPaper gridOf(const std::vector<std::string>& streams) {
    PrinterRig rig;
    Count count(216);
    std::size_t job = 0;
    for (const std::string& bytes : streams) {
        rig.job(bytes);
        EXPECT_EQ(printedBy(rig.paper, ++job), count.job(bytes)) << "job " << job;
    }
    EXPECT_EQ(rig.printer.notices().total(), rig.count(NoticeKind::RepeatedEscape));
    return std::move(rig.paper);
}

ContinuousPaper chequeOf(std::int16_t bank) {
    TestEnvironment desk;
    ImprimeCheque(desk.environment, {.nNr_Ofi_Ban = bank,
                                     .sValor = "1.234,56",
                                     .sFavorecido = "FERRAGENS TRES IRMAOS",
                                     .sDataDeposito = "07/03/2009",
                                     .sNmMun = "CAMPINAS"});
    std::vector<std::string> streams;
    for (const auto& job : desk.spooler.jobs) {
        streams.push_back(job.bytes());
    }
    EXPECT_EQ(streams.size(), 1U);
    return gridOf(streams);
}

TEST(OtherStreams, AChequeIsCondensedAndStruckTwice) {
    const ContinuousPaper paper = chequeOf(1);
    ASSERT_GT(paper.lines().size(), 2U);
    for (const PaperLine& line : paper.lines()) {
        EXPECT_EQ(line.y % 360, 0);  // six lines an inch
        EXPECT_EQ(line.cells.front().width, 126);
        EXPECT_EQ(line.cells.front().style, doubleStrike);
    }
}

// Bank 33 sets its lines 6/72 inch apart.
TEST(OtherStreams, TheChequeOfBank33HasNarrowLines) {
    const ContinuousPaper paper = chequeOf(33);
    ASSERT_GT(paper.lines().size(), 2U);
    for (const PaperLine& line : paper.lines()) {
        EXPECT_EQ(line.y, static_cast<PaperUnits>(line.jobLine - 1) * 180);
    }
}

// The set-up of a slip and of a matrix label: condensed at twelve an inch in a job of its
// own; then six lines an inch, condensed, double strike.
TEST(OtherStreams, ASlipIsTwentyAnInchAndStruckTwice) {
    const ContinuousPaper paper =
        gridOf({" \x0F\x1BM",
                " \x1B"
                "2 \x0F\x1BG    BANCO\r\n\r\n     07/03/2009   1.234,56\r\n"});
    ASSERT_EQ(paper.lines().size(), 2U);
    EXPECT_EQ(paper.lines()[1].y, 2 * 360);
    EXPECT_EQ(paper.lines()[1].cells.front().x, 5 * 108);
    EXPECT_EQ(paper.lines()[1].cells.front().style, doubleStrike);
}

INSTANTIATE_TEST_SUITE_P(Forms, CellGrid, testing::ValuesIn(test::allForms()),
                         [](const testing::TestParamInfo<test::FormFacts>& tested) {
                             return tested.param.name;
                         });

}  // namespace
}  // namespace tarn::test
