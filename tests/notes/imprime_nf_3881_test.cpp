// The forms of company 3881 and of establishment 6001: two pitches, parcels below the
// items.
#include <gtest/gtest.h>

#include <algorithm>

#include "notes/layouts/layouts.h"
#include "tests/notes/paper.h"

namespace tarn::test {
namespace {

using Lines = std::vector<std::string>;

const notes::Form& form3881() {
    return notes::imprimeNF_3881.formFor(1);
}
const notes::Form& form6001() {
    return notes::imprimeNF_E6001.formFor(6001);
}

// Each is a call of its own, with its blank.
const std::string plain = " \x12";
const std::string condensed = " \x0F\x1BM";

std::string parcels(const Lines& documents, const Lines& dates, const Lines& values) {
    std::vector<Cell> cells;
    for (std::size_t i = 0; i < documents.size(); ++i) {
        const std::size_t start = 3 + 48 * i;
        cells.push_back(T(start, numbered("", i + 1) + ")"));
        cells.push_back(L(start + 2, 10, documents[i]));
        cells.push_back(L(start + 17, 10, dates[i]));
        cells.push_back(R(start + 32, 10, values[i]));
    }
    return line(cells);
}

TEST(ImprimeNF3881, ControlBytesAreCallsOfTheirOwn) {
    for (const notes::Form* form : {&form3881(), &form6001()}) {
        const std::vector<Job> jobs = print(*form, fullNote().xml());
        ASSERT_EQ(jobs.size(), 2U);
        EXPECT_EQ(jobs[0].writes, Lines{condensed});
        const Lines& writes = jobs[1].writes;
        EXPECT_EQ(writes[0], " \r\n");
        EXPECT_EQ(writes[4], plain);
        EXPECT_EQ(writes[6], condensed);
        EXPECT_EQ(writes[8], plain);
        EXPECT_EQ(writes[11], condensed);
        EXPECT_EQ(writes[12], " \r\n");
        EXPECT_EQ(writes[13], line({L(3, 6, 'P')}));
        EXPECT_EQ(writes[17], condensed);
        EXPECT_EQ(writes[18], " \r\n\r\n\r\n\r\n");
        EXPECT_EQ(writes[21], plain);
        // Not before the carrier.
        EXPECT_EQ(std::count(writes.begin(), writes.end(), plain), 3);
        EXPECT_EQ(std::count(writes.begin(), writes.end(), condensed), 3);
    }
}

TEST(ImprimeNF3881, ParcelsHaveTheirNumbersBelowTheItems) {
    const Lines documents = {"D1", "D2", "D3"};
    const Lines dates = {"VENC1", "VENC2", "VENC3"};
    const Lines values = {"1,50", "2,50", "3,50"};
    const std::pair<const notes::Form*, std::size_t> forms[] = {{&form3881(), 27},
                                                                {&form6001(), 25}};
    for (const auto& [form, at] : forms) {
        const auto block = [form = form, at = at](int count) {
            return rows(printed(*form, withParcels(count)), at - 1, at + 2);
        };
        EXPECT_EQ(block(0), (Lines{"", " ", "", ""}));
        EXPECT_EQ(block(1), (Lines{"", parcels({"D1"}, {"VENC1"}, {"1,50"}), "", ""}));
        EXPECT_EQ(block(2),
                  (Lines{"", parcels({"D1", "D2"}, {"VENC1", "VENC2"}, {"1,50", "2,50"}), "", ""}));
        EXPECT_EQ(block(3), (Lines{"", parcels(documents, dates, values), "  ", ""}));
        EXPECT_EQ(block(4), (Lines{"", " N\xFAmero de Parcelas maior do que 3", "", ""}));
        for (const int count : {0, 1, 2, 3, 4, 12}) {
            const std::string totals = linesOf(printed(*form, withParcels(count)))[at + 2];
            EXPECT_EQ(totals.substr(0, 7), plain + "  123") << count;
        }
    }
}

// A full form has no blank lines, but their call still sends its blank ahead of the
// parcels.
TEST(ImprimeNF3881, AFullFormHasItsParcelsBehindTwoBlanks) {
    const NoteDraft six = [] {
        NoteDraft note = withItems(6);
        note.head["QTDE_PARC"] = "1";
        return note;
    }();
    const std::string expected = condensed + " " + parcels({"DOC-1"}, {"07/02/2009"}, {"100,50"});
    EXPECT_EQ(linesOf(printed(form3881(), six))[26], expected);
    EXPECT_EQ(linesOf(printed(form6001(), six))[24], expected);
}

TEST(ImprimeNF3881, OnlyHereDoesAPointInAQuantityStayDecimal) {
    NoteDraft note = withItems(3);
    note.items[0]["QTDE"] = "12.500";
    note.items[0]["VALOR_UN"] = "2";
    note.items[1]["QTDE"] = "1000";
    note.items[2].erase("QTDE");
    note.items[2]["VALOR_UN"] = "2";
    const auto item = [](const std::string& code, const std::string& quantity,
                         const std::string& price, const std::string& total) {
        return line({L(3, 6, code)}) +
               line({L(4, 70, "ARRUELA LISA"), L(92, 4, "120"), L(98, 4, "UN"), R(107, 7, quantity),
                     R(115, 12, price), R(134, 13, total), L(149, 2, "7,00")});
    };
    EXPECT_EQ(rows(printed(form3881(), note), 21, 23),
              (Lines{item("C1", "12,500", "2,00", "25,00"),
                     item("C2", "1.000,000", "1234,50", "1.234.500,00"),
                     item("C3", "5,000", "2,00", "10,00")}));
}

TEST(ImprimeNF3881, ABadAmountKeepsTheCodeOffThePaper) {
    for (const char* field : {"QTDE", "VALOR_UN", "ICMS"}) {
        NoteDraft note = withItems(2);
        note.items[1][field] = "nada";
        const Lines lines = linesOf(untilTypeError(form3881(), note));
        ASSERT_EQ(lines.size(), 22U) << field;
        EXPECT_EQ(lines[21], "");
    }
}

TEST(ImprimeNF3881, TextsShareTheirBandsByLength) {
    const auto bands = [](const std::string& legal, const std::string& observation) {
        const NoteDraft note = withTexts(legal, observation);
        const Lines lines = rows(printed(form3881(), note), 42, 52);
        // Establishment 6001 has the same bands five lines higher.
        Lines others = rows(printed(form6001(), note), 37, 47);
        others.back() = lines.back();
        EXPECT_EQ(lines, others);
        return Lines(lines.begin(), lines.end() - 1);
    };
    const auto text = [](std::size_t start, std::size_t length) {
        return " " + ruler(start, length);
    };
    EXPECT_EQ(bands("", ""), (Lines{" ", "", "", " ", "", "", "", "", "", ""}));
    EXPECT_EQ(bands(ruler(1, 44), ""), (Lines{text(1, 44), "", "", " ", "", "", "", "", "", ""}));
    EXPECT_EQ(bands(ruler(1, 45), "A"),
              (Lines{text(1, 44), text(45, 1), "", " A", "", "", "", "", "", ""}));
    EXPECT_EQ(bands("", ruler(1, 88)),
              (Lines{" ", "", "", text(1, 44), text(45, 44), "", "", "", "", ""}));
    EXPECT_EQ(bands(ruler(1, 133), ruler(1, 133)),
              (Lines{text(1, 44), text(45, 44), text(89, 44), text(1, 44), text(45, 44),
                     text(89, 44), "", "", "", ""}));
}

}  // namespace
}  // namespace tarn::test
