// Forms printed again from a roll are those that came out of the printer.
#include "dotmatrix/paper_roll.h"

#include <gtest/gtest.h>

#include <ctime>
#include <functional>
#include <random>

#include "dotmatrix/paper_text.h"
#include "tests/dotmatrix/printer_rig.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

void expectSame(PaperRoll& roll, const ContinuousPaper& paper) {
    ASSERT_EQ(roll.forms().size(), paper.forms().size());
    ASSERT_EQ(roll.printedForms(), paper.printedForms());
    ASSERT_EQ(roll.contentWidth(), paper.contentWidth());
    for (std::size_t form = paper.forms().size(); form-- > 0;) {
        const auto page = roll.page(form);
        const FormPage expected = pageOf(paper, form);
        ASSERT_EQ(page->shape.top, expected.shape.top) << form;
        ASSERT_EQ(page->shape.height, expected.shape.height) << form;
        ASSERT_EQ(page->lines.size(), expected.lines.size()) << form;
        for (std::size_t i = 0; i < expected.lines.size(); ++i) {
            const PaperLine& line = page->lines[i];
            const PaperLine& wanted = expected.lines[i];
            ASSERT_EQ(line.y, wanted.y) << form;
            ASSERT_EQ(line.row, wanted.row) << form;
            ASSERT_EQ(line.job, wanted.job) << form;
            ASSERT_EQ(line.jobLine, wanted.jobLine) << form;
            ASSERT_EQ(line.columnsBefore, wanted.columnsBefore) << form;
            ASSERT_EQ(line.cells.size(), wanted.cells.size()) << form;
            for (std::size_t c = 0; c < wanted.cells.size(); ++c) {
                ASSERT_EQ(line.cells[c].x, wanted.cells[c].x);
                ASSERT_EQ(line.cells[c].character, wanted.cells[c].character);
                ASSERT_EQ(line.cells[c].style, wanted.cells[c].style);
            }
        }
    }
}

std::string notes(int count, int linesEach) {
    std::string job;
    for (int note = 1; note <= count; ++note) {
        for (int line = 1; line <= linesEach; ++line) {
            job += "nota " + std::to_string(note) + " linha " + std::to_string(line) +
                   std::string(60, 'x') + "\r\n";
        }
    }
    return job;
}

TEST(PaperRoll, ManyPagesOverManyMarks) {
    PaperRoll roll({});
    PrinterRig rig;
    for (const std::string& job : {std::string(" \x0F"), notes(40, 66), notes(1, 3),
                                   std::string("\x12\x1BM"), notes(30, 50), std::string()}) {
        roll.startJob("job");
        ASSERT_FALSE(roll.feed(job));
        rig.job(job);
    }
    EXPECT_EQ(roll.jobs().size(), 6U);
    expectSame(roll, rig.paper);
}

TEST(PaperRoll, RandomBytesInPiecesOfAnySize) {
    static const std::string livelyJob = bytesOf(
        "\x1B\x1B\x0F\x12\x0E\x14\b\t\n\n\r\f\f\f\0\x01"
        "ACJ3MPG@!W-x \x9B\x8C");
    for (unsigned seed = 1; seed <= 60; ++seed) {
        std::mt19937 random(seed);
        PaperRoll roll({});
        PrinterRig rig;
        for (int job = 0; job < 3; ++job) {
            std::string bytes(random() % 60000, '\0');
            for (char& byte : bytes) {
                byte = random() % 3 == 0 ? livelyJob[random() % livelyJob.size()]
                                         : static_cast<char>(random() % 256);
            }
            roll.startJob("job");
            rig.job(bytes);
            for (std::size_t at = 0; at < bytes.size();) {
                const std::size_t piece = std::min<std::size_t>(random() % 9000, bytes.size() - at);
                ASSERT_FALSE(roll.feed(std::string_view(bytes).substr(at, piece)));
                at += piece;
                roll.page(random() % roll.forms().size());  // looking changes nothing
            }
        }
        SCOPED_TRACE(seed);
        expectSame(roll, rig.paper);
        if (HasFatalFailure()) {
            return;
        }
    }
}

TEST(PaperRoll, TheFormInThePrinterShowsWhatCameLast) {
    PaperRoll roll({});
    roll.feed("um");
    EXPECT_EQ(roll.page(0)->lines[0].cells.size(), 2U);
    const std::size_t before = roll.version();
    roll.feed(" dois");
    EXPECT_NE(roll.version(), before);
    EXPECT_EQ(roll.page(0)->lines[0].cells.size(), 6U);
    roll.feed("\f");
    EXPECT_EQ(roll.page(0)->lines[0].cells.size(), 6U);
    EXPECT_TRUE(roll.page(1)->lines.empty());
}

TEST(PaperRoll, JobsAreKnownByNameAndPlace) {
    PaperRoll roll({});
    roll.startJob("a.prn");
    roll.feed("x\f\r\n");
    roll.startJob("b.prn");
    roll.feed("y");
    ASSERT_EQ(roll.jobs().size(), 2U);
    EXPECT_EQ(roll.jobs()[1].name, "b.prn");
    EXPECT_EQ(roll.jobs()[1].form, 1U);
    EXPECT_EQ(roll.jobs()[1].y, 11 * unitsPerInch + 360);
}

TEST(PaperRoll, AnotherPanelPrintsAllJobsAgain) {
    PaperRoll roll({});
    PrinterRig rig([] {
        Dialect panel;
        panel.condensed = true;
        panel.formHeight = PaperUnits{33} * 360;
        return panel;
    }());
    roll.startJob("a");
    roll.feed(notes(30, 50));
    roll.startJob("b");
    roll.startJob("c");
    roll.feed(notes(2, 10));
    roll.setDialect(rig.dialect);
    rig.job(notes(30, 50)).job("").job(notes(2, 10));
    expectSame(roll, rig.paper);
    EXPECT_EQ(roll.jobs()[2].y, 1500 * 360);
}

TEST(PaperRoll, TornOffPaperIsGoneAndThePrinterStaysAsItIs) {
    PaperRoll roll({});
    roll.startJob("a");
    roll.feed(
        "\x0F"
        "primeiro");
    roll.tearOff(false);
    EXPECT_EQ(roll.forms().size(), 1U);
    EXPECT_TRUE(roll.jobs().empty());
    EXPECT_TRUE(roll.page(0)->lines.empty());
    roll.startJob("b");
    roll.feed("X");
    const auto page = roll.page(0);
    ASSERT_EQ(page->lines.size(), 1U);
    EXPECT_EQ(page->lines[0].cells[0].width, 126);  // condensed still
    EXPECT_EQ(page->lines[0].cells[0].x, 0);
}

TEST(PaperRoll, TearingOffInTheMiddleOfAJobLetsItGoOn) {
    PaperRoll roll({});
    roll.startJob("longo.prn");
    roll.feed("um\r\n");
    roll.tearOff(true);
    roll.feed("dois");
    ASSERT_EQ(roll.jobs().size(), 1U);
    EXPECT_EQ(roll.jobs()[0].name, "longo.prn");
    EXPECT_EQ(roll.page(0)->lines.size(), 1U);
    EXPECT_EQ(roll.page(0)->lines[0].y, 0);
}

TEST(PaperRoll, AFormThatIsBlackKeepsNoMore) {
    PaperRoll roll({});
    const std::string over(136, '#');
    for (int i = 0; i < 3000; ++i) {
        roll.feed(over + "\r");
    }
    std::size_t cells = 0;
    for (const PaperLine& line : roll.page(0)->lines) {
        cells += line.cells.size();
    }
    EXPECT_EQ(cells, mostCellsOnForm);
    roll.feed("\fagora");
    EXPECT_EQ(roll.page(1)->lines.size(), 1U);
}

double secondsOf(const std::function<void()>& work) {
    const std::clock_t before = std::clock();
    work();
    return static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
}

std::string repeated(std::string_view piece, std::size_t times) {
    std::string all;
    for (std::size_t i = 0; i < times; ++i) {
        all += piece;
    }
    return all;
}

// Printing each one from the mark before it would cost thousands of times the job.
TEST(PaperRoll, ManyLowFormsInTheirOrderCostOnePrintingOfTheJob) {
    PaperRoll roll({});
    const double printing = secondsOf([&roll] { roll.feed(repeated("\f", 30'000) + "fim"); });
    ASSERT_EQ(roll.printedForms(), 30'001U);
    const PaperPages pages = roll.pages();
    const double again = secondsOf([&pages] {
        for (std::size_t form = 0; form < pages.count; ++form) {
            ASSERT_EQ(pages.page(form)->lines.size(), form == 30'000 ? 1U : 0U);
        }
    });
    EXPECT_LT(again, 50 * printing);
}

// The text before ESC C goes along, so no form begins empty.
TEST(PaperRoll, AJobWhoseFormsAllBeginWithTextCanBeReadAnywhere) {
    const std::string job = repeated(
        "\nx\x1B"
        "C\x05",
        200'000);
    PaperRoll roll({});
    const double printing = secondsOf([&] { roll.feed(job); });
    ASSERT_EQ(roll.printedForms(), 200'001U);
    const double one = secondsOf([&] { ASSERT_EQ(roll.page(199'900)->lines.size(), 1U); });
    EXPECT_LT(10 * one, printing);
    const double again = secondsOf([&] { ASSERT_EQ(roll.page(100'000)->lines.size(), 1U); });
    EXPECT_LT(10 * again, printing);
}

TEST(PaperRoll, FormsThatBeginWithTextAreThoseOfThePaper) {
    const std::string job = repeated(
        "\nx y\x1B"
        "C\x05 z\r\num\x1BJ\x20" +
            std::string(300, 'd') + "\r\n",
        300);
    PaperRoll roll({});
    PrinterRig rig;
    roll.startJob("job");
    roll.feed(job);
    rig.job(job);
    expectSame(roll, rig.paper);
}

// Against the plain list of all of them.
TEST(FormTable, FormsOfEverChangingHeightsAreFoundToo) {
    std::mt19937 random(1);
    std::vector<Form> all{{0, 100}};
    FormTable table(all.front());
    for (int i = 0; i < 5000; ++i) {
        const auto height = static_cast<PaperUnits>(100 + random() % 3 * 10);
        if (random() % 3 == 0) {
            all.back().height = height;
            table.setLastHeight(height);
        }
        for (std::size_t alike = random() % 3; alike-- > 0;) {
            all.push_back({all.back().top + all.back().height, height});
            table.append(height);
        }
    }
    ASSERT_EQ(table.size(), all.size());
    for (std::size_t form = 0; form < all.size(); ++form) {
        ASSERT_EQ(table[form].top, all[form].top) << form;
        ASSERT_EQ(table[form].height, all[form].height) << form;
        ASSERT_EQ(table.formAt(all[form].top), form);
        ASSERT_EQ(table.formAt(all[form].top + all[form].height - 1), form);
    }
    EXPECT_EQ(table.back().top, all.back().top);
    EXPECT_EQ(table.at(all.size() + 5).top, all.back().top);
}

TEST(FormTable, RunsOfEqualFormsAreFoundByPlaceAndHeight) {
    FormTable forms({0, 100});
    for (int i = 0; i < 9; ++i) {
        forms.append(100);
    }
    forms.append(40);
    forms.setLastHeight(30);
    forms.append(100);
    EXPECT_EQ(forms.size(), 12U);
    EXPECT_EQ(forms[10].top, 1000);
    EXPECT_EQ(forms[10].height, 30);
    EXPECT_EQ(forms[11].top, 1030);
    EXPECT_EQ(forms.formAt(-5), 0U);
    EXPECT_EQ(forms.formAt(999), 9U);
    EXPECT_EQ(forms.formAt(1000), 10U);
    EXPECT_EQ(forms.formAt(1030), 11U);
    EXPECT_EQ(forms.formAt(99999), 11U);
    forms.setLastHeight(100);
    EXPECT_EQ(forms.back().top, 1030);
    FormTable later({5000, 100}, 50);
    later.append(100);
    later.setLastHeight(10);
    EXPECT_EQ(later.size(), 52U);
    EXPECT_EQ(later[50].height, 100);
    EXPECT_EQ(later[51].height, 10);
}

// Papers of different length and pitch, as jobs tell of them.
class PapersOfJobs : public testing::Test {
protected:
    static std::shared_ptr<const FormDesign> form(const char* name, PaperUnits lines,
                                                  bool condensed = false, bool atTop = false) {
        FormDesign design;
        design.name = name;
        design.height = lines * unitsPerInch / 6;
        design.pitch.condensed = condensed;
        design.everyDocumentAtTop = atTop;
        design.boxes.push_back({0, 0, 2160, 360, name});
        return std::make_shared<const FormDesign>(std::move(design));
    }
    void job(const std::shared_ptr<const FormDesign>& paper, const std::string& bytes,
             bool told = true) {
        roll_.startJob("job", {.form = paper, .told = told});
        EXPECT_FALSE(roll_.feed(bytes));
    }
    // "form:line name" of each printed line, its name's first letter, and its cells' width.
    std::string printed() {
        std::string out;
        for (std::size_t form = 0; form < roll_.printedForms(); ++form) {
            const auto page = roll_.page(form);
            for (const PaperLine& line : page->lines) {
                out += std::to_string(form) + ":" +
                       std::to_string((line.y - page->shape.top) * 6 / unitsPerInch + 1) +
                       (page->design ? " " + page->design->name : "") + "/" +
                       std::to_string(page->shape.height * 6 / unitsPerInch) + " " +
                       static_cast<char>(line.cells.front().character) + " " +
                       std::to_string(line.cells.front().width) + "\n";
            }
        }
        return out;
    }

    PaperRoll roll_{{}};
    std::shared_ptr<const FormDesign> note_ = form("nota", 20);
    std::shared_ptr<const FormDesign> slip_ = form("boleto", 10, true);
    std::shared_ptr<const FormDesign> order_ = form("ordem", 30, false, true);
};

TEST_F(PapersOfJobs, EachPaperIsAsWideAsWhatIsOnIt) {
    constexpr PaperUnits ofForm = 2160;
    job(note_, "a\r\n");
    job(slip_, std::string(200, 'x') + "\r\n");
    job(note_, "b\r\n");
    EXPECT_EQ(roll_.page(0)->contentWidth, ofForm);
    EXPECT_EQ(roll_.page(1)->contentWidth, 200 * 126);
    EXPECT_EQ(roll_.page(2)->contentWidth, ofForm);
    job(note_, "\f" + std::string(100, 'y'));
    EXPECT_EQ(roll_.page(2)->contentWidth, 100 * 216) << "one strip of paper with the next form";
    EXPECT_EQ(roll_.page(3)->contentWidth, 100 * 216);
    EXPECT_EQ(roll_.contentWidth(), 200 * 126);
    roll_.followJobs({});
    EXPECT_EQ(roll_.page(0)->contentWidth, ofForm);
    EXPECT_EQ(roll_.page(2)->contentWidth, 100 * 216);
    roll_.setDialect({});
    EXPECT_EQ(roll_.page(0)->contentWidth, roll_.contentWidth()) << "all on one paper";
}

TEST_F(PapersOfJobs, AnotherPaperBeginsAtItsTopAndWithItsPanel) {
    job(note_, "\x1BM\r\na\r\n");
    job(note_, "b\r\n");
    job(slip_, "c\r\n");
    job(nullptr, "d\r\n");
    job(slip_, "e\r\n");
    job(note_, "f\r\n");
    const std::string expected =
        "0:2 nota/20 a 180\n"
        "0:3 nota/20 b 180\n"
        "1:1 boleto/10 c 126\n"  // elite is forgotten, the panel is condensed
        "1:2 boleto/10 d 126\n"  // unknown: on the paper that is there
        "1:3 boleto/10 e 126\n"
        "2:1 nota/20 f 216\n";
    EXPECT_EQ(printed(), expected);
    EXPECT_EQ(roll_.forms().at(1).top, 20 * unitsPerInch / 6);
    EXPECT_EQ(roll_.designOf(2), note_);
    ASSERT_EQ(roll_.jobs().size(), 6U);
    EXPECT_EQ(roll_.jobs()[2].form, 1U);
    EXPECT_EQ(roll_.jobs()[2].y, 20 * unitsPerInch / 6);
}

TEST_F(PapersOfJobs, AFormThatWasFilledIsNotFedAgain) {
    job(note_, std::string(20, '\n'));
    job(slip_, "x\f");
    job(order_, "y\r\n");
    job(order_, "z\r\n");
    job(note_, "n");
    EXPECT_EQ(printed(),
              "1:1 boleto/10 x 126\n"
              "2:1 ordem/30 y 216\n"
              "3:1 ordem/30 z 216\n"
              "4:1 nota/20 n 216\n");
}

TEST_F(PapersOfJobs, APaperKnownByItsBytesLeavesThePrinterOn) {
    job(nullptr, " \x0F");
    job(slip_, "x\r\n", false);
    EXPECT_EQ(printed(), "0:1 boleto/10 x 126\n");
    EXPECT_EQ(roll_.page(0)->lines.at(0).cells.at(0).x, 216) << "behind the set-up's blank";
}

TEST_F(PapersOfJobs, OnePaperUnderAllWinsUntilTheJobsAreFollowedAgain) {
    job(note_, "a\r\n");
    job(slip_, "b\r\n");
    const std::string followed = printed();
    roll_.setDialect({});
    EXPECT_FALSE(roll_.followsJobs());
    EXPECT_EQ(printed(), "0:1/66 a 216\n0:2/66 b 216\n");
    job(note_, "c\r\n");
    EXPECT_EQ(printed(), "0:1/66 a 216\n0:2/66 b 216\n0:3/66 c 216\n");
    roll_.followJobs({});
    EXPECT_EQ(printed(), followed + "2:1 nota/20 c 216\n");
}

TEST_F(PapersOfJobs, TornOffPaperLeavesThePaperThatIsThere) {
    job(slip_, "a\r\n");
    roll_.tearOff(false);
    job(nullptr, "b\r\n");
    job(slip_, "c\r\n");
    EXPECT_EQ(printed(), "0:1 boleto/10 b 126\n0:2 boleto/10 c 126\n");
    roll_.followJobs({});
    EXPECT_EQ(printed(), "0:1 boleto/10 b 126\n0:2 boleto/10 c 126\n");
    roll_.tearOff(true);
    EXPECT_FALSE(roll_.feed("d\r\n"));
    EXPECT_EQ(printed(), "0:1 boleto/10 d 126\n");
}

// Forms printed again from a mark stand as they came out, each on its paper.
TEST_F(PapersOfJobs, FormsPrintedAgainLieOnTheSamePaper) {
    const std::string line = "linha" + std::string(60, 'x') + "\r\n";
    std::vector<std::string> expected;
    for (int day = 0; day < 60; ++day) {
        for (const auto& paper : {note_, order_, slip_}) {
            std::string bytes;
            for (int i = 0; i < 1 + day % 9; ++i) {
                bytes += line;
            }
            job(paper, bytes);
            expected.push_back(paper->name);
        }
    }
    ASSERT_EQ(roll_.printedForms(), expected.size());
    for (std::size_t form = expected.size(); form-- > 0;) {
        const auto page = roll_.page(form);
        ASSERT_TRUE(page->design) << form;
        ASSERT_EQ(page->design->name, expected[form]) << form;
        ASSERT_EQ(page->shape.height, page->design->height) << form;
        ASSERT_EQ(page->lines.size(), 1 + (form / 3) % 9) << form;
        ASSERT_EQ(page->lines.front().y, page->shape.top) << form;
        ASSERT_EQ(page->lines.front().jobLine, 1U) << form;
        ASSERT_EQ(page->lines.front().job, form + 1) << form;
        ASSERT_EQ(page->lines.front().cells.front().width, form % 3 == 2 ? 126 : 216) << form;
    }
}

}  // namespace
}  // namespace tarn::test
