// The forms of companies 1581 and 2801, whose parcels stand above the legal text.
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "tests/notes/paper.h"

namespace tarn::test {
namespace {

const notes::Form& of1581() {
    return notes::imprimeNF_1581.formFor(1);
}

const notes::Form& of2801() {
    return notes::imprimeNF_2801.formFor(1);
}

std::string labelled(const std::string& label, char letter) {
    return label + std::string(70, letter);
}

// The same on both forms.
TEST(ImprimeNF1581, SetUpsGoInAJobOfTheirOwn) {
    EXPECT_EQ(print(of1581(), fullNote().xml())[0].writes, std::vector<std::string>{" \x0F"});
    EXPECT_EQ(print(of2801(), fullNote().xml())[0].writes, std::vector<std::string>{" \x0F\x1BM"});
}

// Six parcels fill the block; what is left of their last row has no line end and
// stands ahead of the legal text.
TEST(ImprimeNF1581, SixParcelsMoveTheFirstLegalLineRight) {
    for (const notes::Form* form : {&of1581(), &of2801()}) {
        const std::string three = printed(*form, withParcels(3));
        const std::string six = printed(*form, withParcels(6));
        const std::vector<std::string> lines = linesOf(six);
        const std::size_t first = form == &of1581() ? 42 : 40;
        EXPECT_EQ(lines[first - 1], line({T(3, "1)"), L(5, 10, "VENC1"), R(15, 9, "1,50"),
                                          T(25, "2)"), L(27, 10, "VENC2"), R(37, 9, "2,50"),
                                          T(47, "3)"), L(49, 10, "VENC3"), R(59, 9, "3,50")}));
        EXPECT_EQ(lines[first], line({T(3, "4)"), L(5, 10, "VENC4"), R(15, 9, "4,50"), T(25, "5)"),
                                      L(27, 10, "VENC5"), R(37, 9, "5,50"), T(47, "6)"),
                                      L(49, 10, "VENC6"), R(59, 9, "6,50")}));
        EXPECT_EQ(lines[first + 1], "   " + ruler(1, 62));
        EXPECT_EQ(below(six, first + 3), below(three, first + 3));
    }
}

TEST(ImprimeNF1581, TheObservationHasItsLabelAndEmptyPiecesPrint) {
    NoteDraft note = fullNote();
    for (Attributes& item : note.items) {
        item["DC_TXT_LEG_NF"] = "REDUZIDA";
    }
    note.head["DC_OBS"] = "FRAGIL";
    note.head["ID_VND_DIR"] = "0";
    const std::vector<std::string> lines = linesOf(printed(of1581(), note));
    EXPECT_EQ(lines[39],
              line({L(2, 20, "N/PED: "), T(22, ", "), L(24, 20, labelled("S/PED: ", 'y')),
                    T(44, ", "), L(46, 30, labelled("VEND: ", 'z'))}));
    EXPECT_EQ(lines[43], " REDUZIDA OBS.: FRAGIL");
    EXPECT_EQ(lines[44], " ");
    EXPECT_EQ(lines[45], " ");
    EXPECT_EQ(lines[46], " ");
    EXPECT_EQ(lines[47], "");
}

}  // namespace
}  // namespace tarn::test
