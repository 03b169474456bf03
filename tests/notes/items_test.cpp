// The items block, on small forms of its own.
#include "notes/items.h"

#include <gtest/gtest.h>

#include "tests/notes/small_form.h"

namespace tarn::test {
namespace {

using namespace notes;
using enum notes::Source;

TEST(Items, OnlyProductsAreTaken) {
    constexpr Step steps[] = {plainItems, row(1, piece(LegalText, 2, 1, 60))};
    NoteDraft note = withKinds({"P", "S", "p", "P"});
    note.head.erase("DC_OBS");
    EXPECT_EQ(streamOf(steps, note), " C1   \r\n C4   \r\n \r\n\r\n\r\n\r\n \r\n L1 \\\\ L4\r\n");
    note.items[0].erase("IC_TP_CAD");
    EXPECT_EQ(linesOf(streamOf(steps, note))[0], " C4   ");
}

TEST(Items, CuttingFormsDropWhatGoesBeyondTheirLines) {
    constexpr Step steps[] = {Items{.line = row(1, left(CD_PRO, 2, 5)),
                                    .overflow = Overflow::Cutting,
                                    .constant = 1,
                                    .lineEnds = 1},
                              row(1, piece(LegalText, 2, 1, 60))};
    NoteDraft note = withKinds({"P", "S", "P", "P", "P"});
    note.head.erase("DC_OBS");
    note.form["QT_MAX_IT"] = "3";
    note.items[3]["QTDE"] = "is never read";
    // The service takes the place of a product; the blank lines count what printed.
    EXPECT_EQ(streamOf(steps, note), " C1   \r\n C3   \r\n \r\n\r\n \r\n L1 \\\\ L3\r\n");
}

TEST(Items, AFormWithoutBlankLinesHasOnlyItsFixedLineEnds) {
    constexpr Step steps[] = {Items{.line = row(1, left(CD_PRO, 2, 5)),
                                    .productsOnly = false,
                                    .fillsForm = false,
                                    .lineEnds = 1},
                              row(1, text("ABAIXO", 2))};
    EXPECT_EQ(streamOf(steps, withKinds({"P"})), " C1   \r\n \r\n ABAIXO\r\n");
}

std::optional<int> itemLinesTold(std::span<const Step> steps, NoteDraft note) {
    XmlDocument document;
    EXPECT_TRUE(document.loadXML(note.xml()));
    return itemLinesOf(Form{.steps = steps}, document);
}

TEST(Items, TheNoteTellsHowManyLinesItsFormHas) {
    constexpr Step filled[] = {Items{.line = row(1, left(CD_PRO, 2, 5))}};
    constexpr Step asLong[] = {Items{.line = row(1, left(CD_PRO, 2, 5)), .fillsForm = false}};
    NoteDraft note = withKinds({"P", "S", "P"});
    note.form["QT_MAX_IT"] = "13";
    EXPECT_EQ(itemLinesTold(filled, note), 13);
    EXPECT_EQ(itemLinesTold(asLong, note), 2) << "services print elsewhere";
    note.form["QT_MAX_IT"] = "muitas";
    EXPECT_EQ(itemLinesTold(filled, note), std::nullopt);
    EXPECT_EQ(itemLinesOf(Form{.steps = filled}, XmlDocument()), std::nullopt);
    EXPECT_EQ(itemLinesTold({}, note), std::nullopt);
}

TEST(Items, AFormWithoutFixedLineEndsHasNoSecondCall) {
    constexpr Step steps[] = {
        Items{.line = row(1, left(CD_PRO, 2, 5)), .productsOnly = false, .constant = -1},
        row(1, text("ABAIXO", 2))};
    NoteDraft note = withKinds({"P"});
    note.form["QT_MAX_IT"] = "3";
    EXPECT_EQ(streamOf(steps, note), " C1   \r\n \r\n ABAIXO\r\n");
    note.form["QT_MAX_IT"] = "2";
    EXPECT_EQ(streamOf(steps, note), " C1   \r\n  ABAIXO\r\n");
}

constexpr Step codeAhead[] = {Items{.line = row(1, left(UNIDADE, 4, 3), right(LineTotal, 8, 6)),
                                    .code = row(0, left(CD_PRO, 3, 4)),
                                    .quantity = Quantity::AmountOrFive,
                                    .productsOnly = false,
                                    .controlAfter = "\x0F\x1BM"}};

TEST(Items, TheCodeMayGoAheadInItsOwnCallAndControlBytesBehindTheItems) {
    NoteDraft note = withKinds({"P"});
    note.form["QT_MAX_IT"] = "3";
    EXPECT_EQ(streamOf(codeAhead, note), "  C1           7,00\r\n \x0F\x1BM \r\n\r\n");
}

TEST(Items, ABadAmountKeepsTheCodeOffThePaperToo) {
    NoteDraft note = withKinds({"P", "P"});
    note.items[1]["VALOR_UN"] = "x";
    const Form form{.steps = codeAhead};
    std::optional<RuntimeErrorCode> error;
    const std::vector<Job> jobs = print(form, note.xml(), &error);
    EXPECT_EQ(error, RuntimeErrorCode::TypeMismatch);
    EXPECT_EQ(jobs.back().bytes(), "  C1           7,00\r\n");
    EXPECT_FALSE(jobs.back().ended);
}

template <Quantity kind, Rule rule = Rule::Quantity>
std::string quantityOf(const std::optional<std::string>& quantity, std::string_view mask) {
    const Step steps[] = {
        Items{.line = row(1, as(rule, under(mask, left(QTDE, 2, 10))), right(LineTotal, 13, 12)),
              .quantity = kind}};
    NoteDraft note = withKinds({"P"});
    note.items[0]["VALOR_UN"] = "2";
    if (quantity) {
        note.items[0]["QTDE"] = *quantity;
    } else {
        note.items[0].erase("QTDE");
    }
    return linesOf(streamOf(steps, note))[0];
}

TEST(Items, QuantitiesAreReadAsTheFormDoes) {
    EXPECT_EQ((quantityOf<Quantity::Amount>("12.500", "##0.000")), " 12,500            25,00");
    EXPECT_EQ((quantityOf<Quantity::Amount>(std::nullopt, "##0.000")), " 0,000              0,00");
    EXPECT_EQ((quantityOf<Quantity::PointsGroup>("12.500", "##0.000")), " 12500,000     25.000,00");
    EXPECT_EQ((quantityOf<Quantity::PointsGroup>("12", "##0.000")), " 12,000            24,00");
    EXPECT_EQ((quantityOf<Quantity::PointsGroup>(std::nullopt, "##0.000")),
              " 5,000             10,00");
    EXPECT_EQ((quantityOf<Quantity::AmountOrFive>("1212.5", "##,##0.000")),
              " 1.212,500      2.425,00");
    EXPECT_EQ((quantityOf<Quantity::AmountOrFive>(std::nullopt, "##,##0.000")),
              " 5,000             10,00");
    EXPECT_EQ((quantityOf<Quantity::Amount, Rule::General>("12.500", "")),
              " 12,5              25,00");
    EXPECT_EQ((quantityOf<Quantity::Amount, Rule::AsAmount>("12.500", "")),
              " 12,500            25,00");
    EXPECT_EQ((quantityOf<Quantity::Amount, Rule::AsAmount>(std::nullopt, "")),
              " 0                  0,00");
}

TEST(Items, QuantitiesAndWeightsAddUp) {
    constexpr Step steps[] = {Items{.line = row(1, left(CD_PRO, 2, 3)),
                                    .productsOnly = false,
                                    .legalTexts = false,
                                    .sums = true,
                                    .lineEnds = 1},
                              row(1, right(QuantitySum, 3, 8), text("VOLUME", 15, 10),
                                  right(WeightSum, 28, 10), right(WeightSum, 39, 10))};
    NoteDraft note = withKinds({"P", "S"});
    note.items[0]["PESO"] = "0.25";
    note.items[1]["QTDE"] = "1000.5";
    note.items[1]["PESO"] = "2";
    EXPECT_EQ(linesOf(streamOf(steps, note))[7],
              "    1002,5    VOLUME        2.001,500  2.001,500");
}

TEST(Items, TheClassLineHasAnEntryForEachItemWithAGroup) {
    constexpr Step steps[] = {Items{.line = row(1, left(CD_PRO, 2, 3)), .classes = true},
                              row(3, labelled("CL. FISCAL - ", ClassLine, 2, 0))};
    NoteDraft note = withKinds({"P", "P", "P", "P", "S"});
    note.items[0]["GF_AGRUP"] = "1";
    note.items[0]["ID_CLA_FIS"] = "84811";
    note.items[1]["GF_AGRUP"] = "2";
    note.items[1]["ID_CLA_FIS"] = "84812";
    note.items[2]["GF_AGRUP"] = "1";
    note.items[3]["ID_CLA_FIS"] = "99999";
    note.items[4]["GF_AGRUP"] = "9";
    const std::vector<std::string> lines = linesOf(streamOf(steps, note));
    EXPECT_EQ(lines[6], " CL. FISCAL -  1) 84811  2) 84812  1)  ");
    EXPECT_EQ(linesOf(streamOf(steps, withKinds({"P"})))[6], " CL. FISCAL - ");
}

}  // namespace
}  // namespace tarn::test
