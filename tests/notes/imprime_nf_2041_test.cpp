// The form of company 2041.
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "tests/notes/paper.h"

namespace tarn::test {
namespace {

const notes::Form& form2041() {
    return notes::imprimeNF_2041.formFor(1);
}

TEST(ImprimeNF2041, TheJobBeginsWithItsBlankLines) {
    const std::vector<Job> jobs = print(form2041(), fullNote().xml());
    ASSERT_EQ(jobs.size(), 2U);
    EXPECT_EQ(jobs[0].writes, std::vector<std::string>{" \x0F"});
    EXPECT_EQ(jobs[1].writes[0], " \r\n\r\n\r\n");
    EXPECT_EQ(jobs[1].writes.back(), line({T(162, "004567")}) + "\r\n\r\n\r\n\r\n");
}

TEST(ImprimeNF2041, ShortTextsKeepTheColumnOfTheLegalText) {
    NoteDraft note = fullNote();
    for (Attributes& item : note.items) {
        item["DC_TXT_LEG_NF"] = "REDUZIDA";
    }
    note.head["DC_OBS"] = "FRÁGIL";
    note.head["ID_VND_DIR"] = "0";
    note.head.erase("NR_PED_CLI");
    note.head.erase("DC_CND_PAG");
    const std::vector<std::string> lines = linesOf(printed(form2041(), note));
    EXPECT_EQ(lines[42], line({L(6, 20, ""), L(28, 70, "COND.PAGTO: ")}));
    // The observation follows the legal text at once.
    EXPECT_EQ(lines[43], line({T(28, "REDUZIDAFR\xC1GIL")}));
    EXPECT_EQ(lines[44], std::string(27, ' '));
    EXPECT_EQ(lines[45], std::string(27, ' '));
    EXPECT_EQ(lines[46], line({L(6, 20, 'z'), T(28, "")}));
}

TEST(ImprimeNF2041, TheObservationRunsOnThroughThePieces) {
    NoteDraft note = fullNote();
    note.head.erase("DC_OBS");
    const std::string legalAlone = printed(form2041(), note);
    for (Attributes& item : note.items) {
        item["DC_TXT_LEG_NF"] = ruler(1, 80);
    }
    note.head["DC_OBS"] = ruler(81, 300);
    EXPECT_EQ(printed(form2041(), note), legalAlone);
}

TEST(ImprimeNF2041, EveryKindOfItemPrintsAndTheDiscountIsNotLookedAt) {
    NoteDraft note = fullNote();
    const std::string plain = printed(form2041(), note);
    note.items[0]["IC_TP_CAD"] = "S";
    note.items[1].erase("IC_TP_CAD");
    note.items[0]["VL_DSC"] = "nada";
    EXPECT_EQ(printed(form2041(), note), plain);
}

}  // namespace
}  // namespace tarn::test
