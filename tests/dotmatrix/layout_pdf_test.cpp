// A note on each form as PDF: where poppler finds its words is where the stream's columns
// and lines put them.
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <cmath>

#include "dotmatrix/paper_export.h"
#include "tests/dotmatrix/note_streams.h"
#include "tests/dotmatrix/paper_page.h"
#include "tests/dotmatrix/poppler.h"
#include "tests/dotmatrix/printer_rig.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

constexpr double pointsPerUnit = pointsPerInch / static_cast<double>(unitsPerInch);

struct Expected {
    QString text;
    double left;
    double top;  // of the row
};

// Characters side by side in one line.
std::vector<Expected> wordsOn(const ContinuousPaper& paper) {
    std::vector<Expected> words;
    for (const PaperLine& line : paper.lines()) {
        if (line.form > 0) {
            break;
        }
        const Cell* before = nullptr;
        for (const Cell& cell : line.cells) {
            const bool goesOn = before != nullptr && cell.x == before->x + before->width;
            if (!goesOn) {
                words.push_back({QString(), strip + cell.x * pointsPerUnit,
                                 static_cast<double>(line.y) * pointsPerUnit});
            }
            words.back().text += QChar(cell.character);
            before = &cell;
        }
    }
    return words;
}

// The nearest word of that text; how far its left edge is away in `off`.
const test::Word* nearest(const std::vector<test::Word>& words, const Expected& wanted,
                          double rise) {
    const test::Word* found = nullptr;
    double least = 1e9;
    for (const test::Word& word : words) {
        const double off = std::hypot(word.left - wanted.left, word.top - rise - wanted.top);
        if (word.text == wanted.text && off < least) {
            least = off;
            found = &word;
        }
    }
    return found;
}

class LayoutPdf : public testing::TestWithParam<test::FormFacts> {};

TEST_P(LayoutPdf, WordsStandOnTheGrid) {
    PrinterRig rig(test::panelOf(GetParam()));
    for (const std::string& job : test::streamsOf(GetParam(), {})) {
        rig.job(job);
    }
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("note.pdf"));
    ASSERT_FALSE(writePdf(pagesOf(rig.paper), {}, file));
    const auto found = test::wordsIn(file);
    const auto expected = wordsOn(rig.paper);
    ASSERT_GT(expected.size(), 40U);
    // From the top of a row to the top of its letters as the PDF has them, the same all
    // over the page.
    const test::Word* first = nullptr;
    for (const test::Word& word : found) {
        first = first == nullptr && word.text == QStringLiteral("004321") ? &word : first;
    }
    const auto number = std::find_if(expected.begin(), expected.end(), [](const Expected& word) {
        return word.text.contains(QStringLiteral("004321"));
    });
    ASSERT_NE(number, expected.end());
    const double rise = first != nullptr ? first->top - number->top : 0.0;
    for (const Expected& word : expected) {
        const test::Word* there = nearest(found, word, rise);
        ASSERT_NE(there, nullptr) << word.text.toStdString();
        EXPECT_NEAR(there->left, word.left, tolerance) << word.text.toStdString();
        EXPECT_NEAR(there->top - rise, word.top, tolerance) << word.text.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Forms, LayoutPdf, testing::ValuesIn(test::allForms()),
                         [](const testing::TestParamInfo<test::FormFacts>& tested) {
                             return tested.param.name;
                         });

}  // namespace
}  // namespace tarn::test
