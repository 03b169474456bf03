// The ruler sheets of slips, cheques, the order sheet and labels, as a printer prints them: a
// box's corners stand where its form has them.
#include "forms/document_ruler.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "common/raw_channel.h"
#include "forms/document_forms.h"
#include "tests/dotmatrix/printer_rig.h"
#include "tests/support/recording_spooler.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

class DocumentRuler : public testing::TestWithParam<const char*> {
protected:
    bool print(const std::string& form) {
        RawChannel channel(spooler_, CodePage::Page1252);
        return printDocumentRuler(form, channel);
    }
    RecordingSpooler spooler_;
};

TEST_P(DocumentRuler, CornersStandAtTheBoxesAndTheSheetEndsWithTheForm) {
    const auto form = documentForm(GetParam());
    ASSERT_TRUE(form);
    ASSERT_TRUE(print(GetParam()));
    PrinterRig rig(panelFor(*form, {}));
    for (const RecordingSpooler::Job& job : spooler_.jobs) {
        EXPECT_TRUE(job.closed);
        EXPECT_EQ(job.description.kind.form, GetParam());
        rig.job(job.bytes());
    }
    std::size_t left = 0;
    std::size_t right = 0;
    for (const PaperLine& line : rig.paper.lines()) {
        for (const Cell& cell : line.cells) {
            const auto edge = [&](bool atLeft) {
                return std::ranges::any_of(form->boxes, [&](const FormBox& box) {
                    return box.y <= line.y && line.y < box.y + box.height &&
                           (atLeft ? box.x == cell.x : box.x + box.width == cell.x + cell.width);
                });
            };
            left += cell.character == u'[' ? 1U : 0U;
            right += cell.character == u']' ? 1U : 0U;
            if (cell.character == u'[' || cell.character == u']') {
                EXPECT_TRUE(edge(cell.character == u'['))
                    << line.y / lineHeight + 1 << "/" << cell.column;
            }
        }
    }
    EXPECT_GE(left, form->boxes.size());
    EXPECT_EQ(left, right);
    if (!form->everyDocumentAtTop) {
        EXPECT_EQ(rig.paper.y(), form->height);
    }
}

INSTANTIATE_TEST_SUITE_P(Forms, DocumentRuler,
                         testing::Values("Boleto_1016_57", "Boleto_1084", "Cheque", "Cheque_33",
                                         "OrdemFaturamento_1361"));

TEST_F(DocumentRuler, TheSetUpIsTheFormsOwnAndEachCornerTellsItsPlace) {
    ASSERT_TRUE(print("Boleto_1016_57"));
    ASSERT_EQ(spooler_.jobs.size(), 2U);
    EXPECT_EQ(spooler_.jobs[0].bytes(), " \x0F\x1BM");
    const std::string sheet = spooler_.jobs[1].bytes();
    EXPECT_NE(sheet.find("[2/102"), std::string::npos) << sheet;
    EXPECT_NE(sheet.find("\r\n 4  .    1    .    2"), std::string::npos) << "a line without boxes";
}

TEST_F(DocumentRuler, TwoRowsOfLabels) {
    ASSERT_TRUE(print("Etiquetas"));
    ASSERT_EQ(spooler_.jobs.size(), 2U);
    const std::string rows = spooler_.jobs[1].bytes();
    EXPECT_EQ(std::ranges::count(rows, '['), 2 * 4 * 5);
    EXPECT_NE(rows.find("[7/2 "), std::string::npos) << rows;
}

TEST_F(DocumentRuler, APlainSheetHasTheRulerAlone) {
    ASSERT_TRUE(print("OrdemFaturamento"));
    ASSERT_EQ(spooler_.jobs.size(), 1U);
    const std::string sheet = spooler_.jobs[0].bytes();
    EXPECT_EQ(std::ranges::count(sheet, '\n'), 65);
    EXPECT_EQ(sheet.substr(0, 24), " 1  .    1    .    2    ");
}

TEST_F(DocumentRuler, OfNoOtherForm) {
    for (const char* name : {"", "ImprimeNF_1361", "Boleto"}) {
        EXPECT_FALSE(print(name));
    }
    EXPECT_TRUE(spooler_.jobs.empty());
}

}  // namespace
}  // namespace tarn::test
