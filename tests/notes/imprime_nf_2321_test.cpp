// The form of company 2321 and the two forms of company 2421.
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "tests/notes/paper.h"

namespace tarn::test {
namespace {

const notes::Form& of2321() {
    return notes::imprimeNF_2321.formFor(1);
}

const notes::Form& of3621() {
    return notes::imprimeNF_2421.formFor(3621);
}

const notes::Form& ofOthers() {
    return notes::imprimeNF_2421.formFor(3622);
}

TEST(ImprimeNF2321, TheNumberStandsAmongTheReferencesOnly) {
    const std::vector<Job> jobs = print(of2321(), fullNote().xml());
    ASSERT_EQ(jobs.size(), 2U);
    EXPECT_EQ(jobs[0].writes, std::vector<std::string>{" \x0F\x1B\x1BG"});
    EXPECT_EQ(jobs[1].writes[0], " \r\n\r\n");
    const std::string stream = jobs[1].bytes();
    EXPECT_EQ(stream.find("004567"), stream.rfind("004567"));
    EXPECT_EQ(jobs[1].writes.back(), " " + ruler(192, 64) + "\r\n\r\n\r\n\r\n\r\n\r\n");
}

TEST(ImprimeNF2321, TheObservationHasItsLabel) {
    NoteDraft note = fullNote();
    for (Attributes& item : note.items) {
        item["DC_TXT_LEG_NF"] = "REDUZIDA";
    }
    note.head["DC_OBS"] = std::string(60, 'o');
    const std::vector<std::string> lines = linesOf(printed(of2321(), note));
    EXPECT_EQ(lines[42], " REDUZIDA OBS.: " + std::string(49, 'o'));
    EXPECT_EQ(lines[43], " " + std::string(11, 'o'));
    EXPECT_EQ(lines[44], " ");
    EXPECT_EQ(lines[45], " ");
}

TEST(ImprimeNF2421, TheEstablishmentChoosesTheForm) {
    EXPECT_EQ(print(of3621(), fullNote().xml())[0].bytes(), " \x0F\x1B\x1BG");
    for (const std::int32_t establishment : {0, 1, 3620, 3622, -3621}) {
        EXPECT_EQ(&notes::imprimeNF_2421.formFor(establishment), &ofOthers());
    }
    EXPECT_EQ(print(ofOthers(), fullNote().xml())[0].bytes(), " \x0F\x1B\x1BM");
}

TEST(ImprimeNF2421, TheJobOf3621EndsWithoutALineEnd) {
    EXPECT_EQ(print(of3621(), fullNote().xml())[1].writes.back(), line({T(122, "004567")}));
    EXPECT_EQ(print(ofOthers(), fullNote().xml())[1].writes.back(),
              line({T(142, "004567")}) + "\r\n");
}

TEST(ImprimeNF2421, TheLabelOfThePaymentConditionAlwaysPrints) {
    NoteDraft note = fullNote();
    note.head.erase("DC_CND_PAG");
    note.head["QTDE_PARC"] = "is not read";
    EXPECT_EQ(linesOf(printed(of3621(), note))[17], line({T(60, "COND. PAGTO: "), L(73, 38, "")}));
    EXPECT_EQ(linesOf(printed(ofOthers(), note))[18],
              line({T(80, "COND. PAGTO: "), L(93, 38, "")}));
}

TEST(ImprimeNF2421, TheLegalTextsPiecesOverlap) {
    NoteDraft note = fullNote();
    note.head["DC_OBS"] = "";
    for (Attributes& item : note.items) {
        item["DC_TXT_LEG_NF"] = ruler(1, 130);
    }
    std::vector<std::string> lines = linesOf(printed(of3621(), note));
    EXPECT_EQ(lines[47], " " + ruler(1, 90));
    EXPECT_EQ(lines[48], " " + ruler(65, 66));
    EXPECT_EQ(lines[49], " " + ruler(128, 3));
    for (Attributes& item : note.items) {
        item["DC_TXT_LEG_NF"] = "";
    }
    note.head["DC_OBS"] = "FRAGIL";
    lines = linesOf(printed(of3621(), note));
    EXPECT_EQ(lines[47], "  OBS.: FRAGIL");
    EXPECT_EQ(lines[48], " ");
    EXPECT_EQ(lines[49], " ");
}

}  // namespace
}  // namespace tarn::test
