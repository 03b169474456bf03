// The drawn forms against what is printed on them: every character of a note falls into
// a box, and a note is as long as its form.
#include "forms/layout_forms.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "notes/ladder.h"
#include "tests/dotmatrix/note_streams.h"
#include "tests/dotmatrix/printer_rig.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

FormDesign designOf(const test::FormFacts& form, std::optional<int> itemLines = std::nullopt) {
    const auto design = layoutForm(test::layoutNameOf(form), itemLines);
    if (!design) {
        throw std::runtime_error("no form " + test::layoutNameOf(form));
    }
    return *design;
}

bool inABox(const FormDesign& design, PaperUnits x, PaperUnits y) {
    return std::any_of(design.boxes.begin(), design.boxes.end(), [x, y](const FormBox& box) {
        return x >= box.x && x < box.x + box.width && y >= box.y && y < box.y + box.height;
    });
}

// What the program prints of its own accord, without a field: labels of addresses and
// the texts fixed in a layout.
bool ownText(const std::string& line) {
    for (const char* own : {"ENTREGA", "END. DE ETG", "TEXTOS LEGAIS", "CONFIGURADOS VIA",
                            "ESTE DOCUMENTO", "ARQUIVO 10", "COND. PAGTO", "CL. FISCAL", ", "}) {
        if (line.find(own) != std::string::npos) {
            return true;
        }
    }
    return false;
}

std::string lineText(const PaperLine& line) {
    std::string text;
    for (std::size_t i = 0; i < line.cells.size(); ++i) {
        const Cell& cell = line.cells[i];
        const bool gap = i > 0 && cell.column > line.cells[i - 1].column + 1;
        text += gap ? " " : "";
        text += static_cast<char>(cell.character);
    }
    return text;
}

class LayoutForms : public testing::TestWithParam<test::FormFacts> {};

TEST_P(LayoutForms, EveryCharacterFallsIntoABox) {
    const FormDesign design = designOf(GetParam(), test::plainItemLines);
    PrinterRig rig(panelFor(design, {}));
    test::NoteCase note;
    note.items = GetParam().name == "padrao" ? test::plainItemLines : 2;  // as long as its items
    for (const std::string& job : test::streamsOf(GetParam(), note)) {
        rig.job(job);
    }
    int boxed = 0;
    for (const PaperLine& line : rig.paper.lines()) {
        for (const Cell& cell : line.cells) {
            const bool within = inABox(design, cell.x + cell.width / 2, line.y + lineHeight / 2);
            boxed += within ? 1 : 0;
            EXPECT_TRUE(within || ownText(lineText(line)) || line.job < rig.paper.currentJob())
                << lineText(line) << " at column " << cell.column;
        }
    }
    EXPECT_GT(boxed, 200);
}

TEST_P(LayoutForms, AreAsLongAsTheirNotes) {
    const FormDesign design = designOf(GetParam(), test::plainItemLines);
    PrinterRig rig(panelFor(design, {}));
    test::NoteCase note;
    note.items = GetParam().name == "padrao" ? test::plainItemLines : 2;
    for (const std::string& job : test::streamsOf(GetParam(), note)) {
        rig.job(job);
    }
    EXPECT_EQ(rig.paper.y(), design.height);
}

// As many item lines as fill 11 inches, which is what the customers' paper has.
TEST_P(LayoutForms, FillASheetOfElevenInches) {
    const FormDesign design = designOf(GetParam());
    EXPECT_EQ(design.height, 11 * unitsPerInch);
    EXPECT_EQ(design.name, test::layoutNameOf(GetParam()));
}

TEST_P(LayoutForms, BoxesStandOnThePaper) {
    const FormDesign design = designOf(GetParam());
    EXPECT_GT(design.boxes.size(), 30U);
    for (const FormBox& box : design.boxes) {
        EXPECT_GE(box.x, 0);
        EXPECT_GE(box.y, 0);
        EXPECT_LE(box.x + box.width, 136 * unitsPerInch / 10) << box.label;
        // Of one form the foot number has no line end, and stands on the next sheet.
        const bool foot = design.name == "ImprimeNF_2421_3621" && box.label == "Número";
        EXPECT_LE(box.y + box.height, design.height + (foot ? lineHeight : 0)) << box.label;
    }
}

INSTANTIATE_TEST_SUITE_P(Forms, LayoutForms, testing::ValuesIn(test::allForms()),
                         [](const testing::TestParamInfo<test::FormFacts>& tested) {
                             return tested.param.name;
                         });

TEST(LayoutFormNames, AreThoseOfTheFormsAndNoOther) {
    std::vector<std::string> expected;
    for (const test::FormFacts& form : test::allForms()) {
        expected.push_back(test::layoutNameOf(form));
    }
    std::vector<std::string> names = layoutFormNames();
    std::sort(names.begin(), names.end());
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(names, expected);
    EXPECT_EQ(names.size(), 23U);
    EXPECT_FALSE(layoutForm("ImprimeNF_2541"));  // it draws on blank paper
    EXPECT_FALSE(layoutForm(""));
}

// What the list says of a form holds: its notes go on it, by the reprint screen's ladder
// and by the form's own establishment.
TEST(LadderForms, TheirCompaniesPrintOnThem) {
    std::vector<std::string> names;
    for (const LadderForm& form : ladderForms()) {
        names.push_back(form.name);
        const notes::Layout* layout = layoutFor(Ladder::Reprint, form.company, form.establishment);
        ASSERT_NE(layout, nullptr) << form.name;
        const bool own = layout->other != nullptr && form.establishment == layout->establishment;
        EXPECT_EQ(form.name, std::string(layout->name) +
                                 (own ? "_" + std::to_string(form.establishment) : ""));
        EXPECT_EQ(form.linesOfNote, form.name == "ImprimeNF_Padrao");
    }
    EXPECT_EQ(names, layoutFormNames());
}

const FormBox& boxNamed(const FormDesign& design, const std::string& label) {
    for (const FormBox& box : design.boxes) {
        if (box.label == label) {
            return box;
        }
    }
    throw std::runtime_error("no box " + label);
}

// Written from the form: condensed print is 126/2160 inch a column, column 2 begins
// behind one blank, and the recipient stands on line 10.
TEST(LayoutForm1361, BoxesStandWhereTheFormHasThem) {
    const FormDesign design = *layoutForm("ImprimeNF_1361");
    const FormBox& name = boxNamed(design, "Nome / razão social");
    EXPECT_EQ(name.x, 126);
    EXPECT_EQ(name.width, 82 * 126);
    EXPECT_EQ(name.y, 9 * lineHeight - lineHeight / 2);  // half a line for its words
    EXPECT_EQ(name.height, lineHeight + lineHeight / 2);
    const FormBox& items = boxNamed(design, "Descrição dos produtos");
    EXPECT_EQ(items.y + lineHeight / 2, 21 * lineHeight);
    EXPECT_EQ(items.height, 13 * lineHeight + lineHeight / 2);
    EXPECT_FALSE(design.pitch.condensed);
}

// The recipient in plain print, the date behind it condensed, 20 to the inch.
TEST(LayoutForm3881, MixedPitches) {
    const FormDesign design = *layoutForm("ImprimeNF_3881");
    const FormBox& name = boxNamed(design, "Nome / razão social");
    EXPECT_EQ(name.width, 46 * 180);
    const FormBox& date = boxNamed(design, "Data da emissão");
    EXPECT_EQ(date.width, 14 * 108);
    EXPECT_EQ(date.y, name.y);
    EXPECT_GT(date.x, name.x + name.width);
}

TEST(LayoutForm1521, WantsAPrinterSetToCondensed) {
    EXPECT_TRUE(layoutForm("ImprimeNF_1521")->pitch.condensed);
    EXPECT_FALSE(layoutForm("ImprimeNF_2041")->pitch.condensed);
}

}  // namespace
}  // namespace tarn::test
