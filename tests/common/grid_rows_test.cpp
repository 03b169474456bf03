// The rows of a grid by the table of its columns.
#include "common/grid_rows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "gateway/xml_document.h"
#include "tests/support/answers.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

enum class Column {
    Tick,
    Name,
    Amount,
    Quantity,
    TaxNumber,
    Person,
    Control,
    Reference,
    None,
    End
};

constexpr auto table =
    gridOf<Column>({{Column::Tick, {"", "", 4, Treatment::Tick}},
                    {Column::Name, {"NOME", "Nome", 20}},
                    {Column::Amount, {"VL", "Valor", 12, Treatment::Amount}},
                    {Column::Quantity, {"QT", "", 9, Treatment::Quantity}},
                    {Column::TaxNumber, {"CGC", "", 9, Treatment::CpfCnpj}},
                    {Column::Person, {"", "", 9, Treatment::PersonKind}},
                    {Column::Control, {"C", "", 0, Treatment::ReceivableOnly}},
                    {Column::Reference, {"R", "", 0, Treatment::NotReceivableOnly}},
                    {Column::None, {"", "Nada", 5}}});

std::vector<GridRow> rowsFrom(const std::string& lines) {
    XmlDocument answer;
    EXPECT_TRUE(answer.loadXML(answers::rowset(lines)));
    return gridRows(answer, table);
}

TEST(GridOf, KeepsTheRowsOfTheTable) {
    static_assert(table.size() == static_cast<std::size_t>(Column::End));
    static_assert(table[2].attribute == "VL" && table[2].heading == "Valor" &&
                  table[2].width == 12);
    static_assert(isTick(table[0]) && !isTick(table[1]));
}

TEST(GridRows, EachColumnTreatsItsAttribute) {
    const auto rows = rowsFrom(
        "<z:row NOME=' A ' VL='1234.5' QT='1234.5' CGC='191' PES_JUR='0' "
        "TIPO_DOCTO='DOCTO_RECEBER' C='c' R='r'/>"
        "<z:row NOME='B' VL='1,5' QT='x' CGC='191' C='c' R='r'/>");
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].cells,
              (Texts{"", " A ", "1.234,50", "1.234,500", "000.000.001-91", "F", "c", "", ""}));
    EXPECT_EQ(rows[1].cells,
              (Texts{"", "B", "1,00", "0,000", "00.000.000/0001-91", "J", "", "r", ""}));
    EXPECT_FALSE(rows[0].ticked);
}

// Decision D12.
TEST(GridRows, AbsentIsEmptyAndAnEmptyAmountIsZero) {
    const auto rows = rowsFrom("<z:row/><z:row VL='' QT='' CGC=''/><z:row vl='1' z:QT='2'/>");
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0].cells, (Texts{"", "", "", "", "", "J", "", "", ""}));
    EXPECT_EQ(rows[1].cells,
              (Texts{"", "", "0,00", "0,000", "00.000.000/0000-00", "J", "", "", ""}));
    EXPECT_EQ(rows[2].cells, rows[0].cells) << "another spelling is another name";
}

TEST(GridRows, WithoutRowsThereAreNone) {
    EXPECT_THAT(rowsFrom(""), testing::IsEmpty());
    EXPECT_THAT(gridRows(XmlDocument(), table), testing::IsEmpty());
}

TEST(GridRow, ACellIsReadByTheNameOfItsColumn) {
    auto rows = rowsFrom("<z:row NOME='A' VL='2'/>");
    EXPECT_EQ(rows[0].text(Column::Name), "A");
    EXPECT_EQ(rows[0].text(Column::Amount), "2,00");
    rows[0].text(Column::Name) = "B";
    EXPECT_EQ(rows[0].cells[1], "B");
    EXPECT_THROW((void)rows[0].text(Column::End), std::out_of_range);
}

}  // namespace
}  // namespace tarn::test
