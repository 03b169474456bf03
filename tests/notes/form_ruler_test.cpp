// The ruler of a form: its corners against the form's map, byte by byte.
#include "notes/form_ruler.h"

#include <gtest/gtest.h>

#include <optional>

#include "common/raw_channel.h"
#include "notes/form_rows.h"
#include "notes/layouts/layouts.h"
#include "tests/notes/form_facts.h"
#include "tests/support/recording_spooler.h"

namespace tarn::test {
namespace {

using notes::Source;

constexpr int rulerItems = 6;  // as the maps count their lines

std::vector<std::string> rulerJobs(const notes::Form& form, int itemLines) {
    RecordingSpooler spooler;
    RawChannel channel(spooler, CodePage::Page1252);
    notes::printFormRuler(form, itemLines, channel);
    std::vector<std::string> jobs;
    for (const RecordingSpooler::Job& job : spooler.jobs) {
        EXPECT_TRUE(job.closed);
        jobs.push_back(job.bytes());
    }
    return jobs;
}

std::vector<std::string> linesOf(const std::string& bytes) {
    std::vector<std::string> lines;
    std::size_t from = 0;
    for (std::size_t end = bytes.find("\r\n"); end != std::string::npos;
         end = bytes.find("\r\n", from)) {
        lines.push_back(bytes.substr(from, end - from));
        from = end + 2;
    }
    return lines;
}

TEST(FormRuler, ASmallFormByteByByte) {
    constexpr notes::Step steps[] = {
        notes::row(2, notes::left(Source::RAZAO, 4, 8), notes::left(Source::UF, 14, 2),
                   notes::left(Source::CEP, 17, 1)),
        notes::Control{"\x12"},
        notes::Items{.line = notes::row(1, notes::left(Source::CD_PRO, 2, 5)), .lineEnds = 2},
        notes::row(1, notes::right(Source::VALOR_TOT_NF, 6, 7))};
    const notes::Form form{.setUp = "\x0F", .length = 5, .steps = steps};
    EXPECT_EQ(rulerJobs(form, 2), (std::vector<std::string>{" \x0F",
                                                            "   [1/4   ]  [] |\r\n"
                                                            " 2  .    1    .  \r\n"
                                                            " \x12 [3/2]\r\n"
                                                            " [4/2]\r\n"
                                                            " \r\n"
                                                            " 6  .    1    .  \r\n"
                                                            "     [7/6  ]\r\n"}));
}

TEST(FormRuler, AFormWithoutASetUpJobIsOneJob) {
    EXPECT_EQ(rulerJobs(*notes::formCalled("ImprimeNF_7"), 20).size(), 1U);
    EXPECT_EQ(rulerJobs(*notes::formCalled("ImprimeNF_1361"), 13).size(), 2U);
    EXPECT_EQ(notes::itemLinesOfSheet(*notes::formCalled("ImprimeNF_1361")), 13);
    EXPECT_EQ(notes::formCalled("ImprimeNF_2541"), nullptr) << "it is drawn";
    EXPECT_EQ(notes::formCalled("ImprimeNF_9"), nullptr);
    EXPECT_EQ(notes::formCalled("ImprimeNF_2421_3621"), notes::imprimeNF_2421.form);
    EXPECT_EQ(notes::formCalled("ImprimeNF_2421"), notes::imprimeNF_2421.other);
}

// What the map says of a line, as the ruler prints it; nothing where the map has a field that
// takes the room of its text.
std::optional<std::string> mappedLine(const MapRow& row, int line) {
    std::string text = " ";
    for (const MapField& field : row.fields) {
        if (field.width < 1 || field.column - 1 < static_cast<int>(text.size())) {
            return std::nullopt;
        }
        text.resize(static_cast<std::size_t>(field.column - 1), ' ');
        const auto room = static_cast<std::size_t>(std::max(0, field.width - 2));
        std::string place = std::to_string(line) + "/" + std::to_string(field.column);
        place = place.size() > room ? std::to_string(line) : place;
        place = place.size() > room ? "" : place;
        place.resize(room, ' ');
        text += field.width == 1 ? "|" : "[" + place + "]";
    }
    return text;
}

class MappedRuler : public testing::TestWithParam<const char*> {};

TEST_P(MappedRuler, CornersStandWhereTheMapHasTheFields) {
    const FormFacts facts = formNamed(GetParam());
    const notes::Form& form = *notes::formCalled(std::string("ImprimeNF_") + GetParam());
    const std::vector<std::string> jobs = rulerJobs(form, rulerItems);
    ASSERT_EQ(jobs.size(), 2U);
    EXPECT_EQ(jobs[0], " " + facts.rows.at(0).control);
    const std::vector<std::string> lines = linesOf(jobs[1]);
    ASSERT_EQ(static_cast<int>(lines.size()), facts.length + rulerItems);
    std::size_t compared = 0;
    for (const MapRow& row : facts.rows) {
        const auto at = static_cast<std::size_t>(row.line - 1);
        const bool items = row.shows("CD_PRO");
        for (std::size_t i = 0; i < (items ? rulerItems : 1U); ++i) {
            const auto expected = row.control.empty()
                                      ? mappedLine(row, row.line + static_cast<int>(i))
                                      : std::nullopt;
            if (expected) {
                EXPECT_EQ(lines.at(at + i), *expected) << "line " << row.line;
                ++compared;
            }
        }
    }
    EXPECT_GE(compared, 11U);
    // Below a row of the form that takes two line ends or more there is a ruler.
    std::size_t rulers = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string number = std::to_string(i + 1);
        if (lines[i].starts_with(" " + number) && lines[i].find('[') == std::string::npos) {
            EXPECT_EQ(lines[i][9], '1') << lines[i];
            EXPECT_EQ(lines[i][99], '0') << lines[i];
            EXPECT_EQ(lines[i][94], '.') << lines[i];
            ++rulers;
        }
    }
    EXPECT_GE(rulers, 15U);
}

INSTANTIATE_TEST_SUITE_P(Forms, MappedRuler,
                         testing::Values("1361", "1581", "2161_3341", "2321", "3301"));

TEST(FormRuler, IsAsLongAsEachForm) {
    for (const notes::Layout* layout : notes::allLayouts()) {
        for (const notes::Form* form : {layout->form, layout->other}) {
            if (form != nullptr) {
                const std::vector<std::string> jobs = rulerJobs(*form, rulerItems);
                // One text of this form brings a line end of its own (decision N40).
                const int own = layout == &notes::imprimeNF_2161_3383 ? 1 : 0;
                EXPECT_EQ(static_cast<int>(linesOf(jobs.back()).size()),
                          form->length + rulerItems + own)
                    << layout->name;
            }
        }
    }
}

}  // namespace
}  // namespace tarn::test
