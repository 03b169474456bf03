// What the compiler refuses in a layout table.
#include <gtest/gtest.h>

#include "notes/form_check.h"
#include "notes/form_rows.h"

namespace tarn::test {

using namespace notes;
namespace {

using enum Source;

constexpr Items items{.line = row(1, left(CD_PRO, 2, 7)), .lineEnds = 2};

// A form of one step and the items block, of the length that its advances make.
template <typename S>
constexpr Flaw flawWith(const S& step, int length) {
    const Step steps[] = {step, items};
    return flawOf(Form{.length = length, .steps = steps});
}

static_assert(flawWith(row(3, left(RAZAO, 2, 10), right(CFOP, 12, 5)), 5) == Flaw::None);
static_assert(flawWith(row(3, left(RAZAO, 1, 10)), 5) == Flaw::ColumnBeforeTwo);
static_assert(flawWith(row(3, mark(90, 1)), 5) == Flaw::ColumnBeforeTwo);
static_assert(flawWith(row(3, left(RAZAO, 2, 10), left(CFOP, 11, 5)), 5) == Flaw::FieldsOverlap);
static_assert(flawWith(row(3, left(RAZAO, 20, 10), left(CFOP, 2, 5)), 5) == Flaw::FieldsOverlap);
static_assert(flawWith(row(3, mark(90, 104), bare(NoteNumber, 104)), 5) == Flaw::FieldsOverlap);
static_assert(flawWith(row(3, mark(90, 104), bare(NoteNumber, 105)), 5) == Flaw::None);
static_assert(flawWith(row(3, bare(CGC_CPF, 46), left(DT_EMS_NF, 63, 10)), 5) ==
              Flaw::FieldsOverlap);
static_assert(flawWith(row(3, text("TEXTO", 2), left(CFOP, 6, 5)), 5) == Flaw::FieldsOverlap);
static_assert(flawWith(row(3, text("ENDEREÇO", 2), left(CFOP, 10, 5)), 5) == Flaw::None);
static_assert(flawWith(row(3, as(Rule::AsText, left(NR_DOC, 2, 9))), 5) ==
              Flaw::RuleOfAnotherSource);
static_assert(flawWith(row(3, as(Rule::ServiceSum, left(VALOR_TOTAL, 2, 9))), 5) ==
              Flaw::RuleOfAnotherSource);
static_assert(flawWith(row(3, as(Rule::General, left(ICMS, 2, 9))), 5) ==
              Flaw::RuleOfAnotherSource);
static_assert(flawWith(row(3, right(CFOP, 2, 0)), 5) == Flaw::RightWithoutWidth);
static_assert(flawWith(row(3, piece(LegalText, 2, 0, 62)), 5) == Flaw::PieceWithoutLength);
static_assert(flawWith(row(-1), 1) == Flaw::NegativeAdvance);
static_assert(flawWith(Control{"\x12", -1}, 1) == Flaw::NegativeAdvance);
static_assert(flawWith(row(3), 6) == Flaw::LengthDiffers);
static_assert(flawWith(row(3, bare(ClassLine, 2)), 5) == Flaw::TextNotCollected);
static_assert(flawWith(row(3, bare(QuantitySum, 2)), 5) == Flaw::TextNotCollected);
static_assert(flawWith(items, 4) == Flaw::ItemsMissing);
static_assert(flawWith(Band{.piece = 44, .most = 3, .lines = 2}, 4) == Flaw::PieceWithoutLength);
static_assert(flawWith(Band{.piece = 44, .most = 3, .lines = 7}, 9) == Flaw::None);

constexpr Parcels parcels{.limit = 4,
                          .perRow = 2,
                          .places = {place(left(NR_DOC, 3, 10)), place(left(NR_DOC, 20, 10))},
                          .lineEnds = {2, 2, 2, 1, 1},
                          .lineEndsAbove = 2};
static_assert(flawWith(parcels, 4) == Flaw::None);

constexpr Flaw flawOfParcels(int perRow, int limit) {
    Parcels changed = parcels;
    changed.perRow = perRow;
    changed.limit = limit;
    return flawWith(changed, 4);
}
static_assert(flawOfParcels(3, 4) == Flaw::ParcelPlaces);
static_assert(flawOfParcels(1, 4) == Flaw::ParcelPlaces);
static_assert(flawOfParcels(2, 13) == Flaw::ParcelPlaces);

constexpr Flaw flawOfSecondPlace(int column) {
    Parcels changed = parcels;
    changed.places[1] = place(left(NR_DOC, column, 10));
    return flawWith(changed, 4);
}
static_assert(flawOfSecondPlace(12) == Flaw::FieldsOverlap);
static_assert(flawOfSecondPlace(13) == Flaw::None);

TEST(FormCheck, MasksAndRoomsComeWithTheSource) {
    EXPECT_EQ(right(QTDE, 2, 7).rule, Rule::Quantity);
    EXPECT_EQ(right(QTDE, 2, 7).mask.leastDecimals, 3);
    EXPECT_EQ(under("####0", right(ICMS, 2, 2)).mask.mostDecimals, 0);
    EXPECT_EQ(as(Rule::AsText, left(CFOP, 2, 7)).rule, Rule::AsText);
    EXPECT_EQ(left(CFOP, 2, 7).rule, Rule::MaskedText);
    EXPECT_EQ(bare(CEP_COB, 2).room, 9);
    EXPECT_EQ(text("PROGRAMAÇÃO", 2).room, 11);
}

}  // namespace
}  // namespace tarn::test
