// The two forms of companies 4621 and 541.
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "tests/notes/paper.h"

namespace tarn::test {
namespace {

using Lines = std::vector<std::string>;

const notes::Form& form7321() {
    return notes::imprimeNF_4621.formFor(7321);
}
const notes::Form& others() {
    return notes::imprimeNF_4621.formFor(1);
}

const std::string setUp4621 = " \x0F\x1BG";

// Each parcel is a call of its own, with its blank; the first of a row leaves ten more.
std::string first7321(const std::string& date, const std::string& value) {
    return line({L(2, 10, ""), L(15, 10, date), R(26, 16, value)});
}
std::string next7321(const std::string& date, const std::string& value) {
    return line({L(2, 10, date), R(13, 16, value)});
}
std::string firstOthers(const std::string& date, const std::string& value) {
    return line({L(2, 10, ""), L(19, 10, date), R(32, 18, value)});
}
std::string nextOthers(const std::string& date, const std::string& value) {
    return line({L(2, 10, date), R(14, 18, value)});
}

TEST(ImprimeNF4621, TheSetUpOpensTheJobOfTheNote) {
    for (const notes::Form* form : {&form7321(), &others()}) {
        const std::vector<Job> jobs = print(*form, fullNote().xml());
        ASSERT_EQ(jobs.size(), 1U);
        EXPECT_TRUE(jobs[0].ended);
        EXPECT_EQ(jobs[0].writes[0], setUp4621);
    }
}

TEST(ImprimeNF4621, SixParcelsStandOneLineLower) {
    const auto of7321 = [](std::size_t n) {
        const std::string date = numbered("VENC", n);
        const std::string value = numbered("", n) + ",50";
        return n % 3 == 1 ? first7321(date, value) : next7321(date, value);
    };
    const auto ofOthers = [](std::size_t n) {
        const std::string date = numbered("VENC", n);
        const std::string value = numbered("", n) + ",50";
        return n % 3 == 1 ? firstOthers(date, value) : nextOthers(date, value);
    };
    const auto check = [](const notes::Form& form, const auto& parcel) {
        const auto block = [&form](int count, std::size_t to) {
            const Lines found = rows(printed(form, withParcels(count)), 12, to);
            EXPECT_EQ(found.back().substr(0, 5), " PPPP") << count;
            return Lines(found.begin(), found.end() - 1);
        };
        const std::string row = parcel(1) + parcel(2) + parcel(3);
        EXPECT_EQ(block(0, 16), (Lines{" ", "", "", ""}));
        EXPECT_EQ(block(1, 16), (Lines{parcel(1) + " ", "", "", ""}));
        EXPECT_EQ(block(2, 16), (Lines{parcel(1) + parcel(2) + " ", "", "", ""}));
        EXPECT_EQ(block(3, 16), (Lines{row, " ", "", ""}));
        EXPECT_EQ(block(4, 16), (Lines{row, parcel(4) + " ", "", ""}));
        EXPECT_EQ(block(5, 16), (Lines{row, parcel(4) + parcel(5) + " ", "", ""}));
        EXPECT_EQ(block(6, 17), (Lines{row, parcel(4) + parcel(5) + parcel(6), " ", "", ""}));
        EXPECT_EQ(block(7, 16), (Lines{" Numero de Parcelas maior do que 6. ", "", "", ""}));
    };
    check(form7321(), of7321);
    check(others(), ofOthers);
}

const std::string totals7321 =
    line({R(2, 17, wide('1')), R(19, 17, wide('2')), R(41, 17, wide('3')), R(59, 17, wide('4')),
          R(77, 27, wide('5'))});
const std::string taxes7321 = line({R(2, 17, "10,00"), R(19, 17, "5,50"), R(41, 17, "0,25"),
                                    R(59, 17, "80,04"), R(77, 27, "1.696,54")});
const std::string totalsOthers =
    line({R(2, 20, wide('1')), R(22, 20, wide('2')), R(47, 20, wide('3')), R(68, 20, wide('4')),
          R(89, 27, wide('5'))});

// No fixed line ends stand below the items: the blank of the empty call goes ahead of
// the totals.
TEST(ImprimeNF4621, AFullFormMovesItsFirstTotalsOneColumn) {
    EXPECT_EQ(rows(printed(form7321(), withItems(6)), 22, 23),
              (Lines{" " + totals7321, taxes7321}));
    EXPECT_EQ(rows(printed(form7321(), withItems(5)), 21, 22), (Lines{" ", totals7321}));
}

TEST(ImprimeNF4621, MoreItemsPushTheFormDown) {
    for (const std::size_t count : {7U, 9U}) {
        const Lines lines = linesOf(printed(others(), withItems(count)));
        EXPECT_EQ(lines.size(), 39 + count);
        EXPECT_EQ(lines[14 + count].substr(0, 3), numbered(" C", count));
        EXPECT_EQ(lines[15 + count], " " + totalsOthers);
    }
}

TEST(ImprimeNF4621, QuantitiesHaveADecimalPoint) {
    NoteDraft note = withItems(2);
    note.items[0]["QTDE"] = "12.500";
    note.items[0]["VALOR_UN"] = "2";
    note.items[1].erase("QTDE");
    const Lines lines = rows(printed(form7321(), note), 16, 17);
    EXPECT_EQ(lines[0].substr(68, 31),
              line({L(2, 7, "12,500"), R(9, 11, "2,00"), R(22, 11, "25,00")}).substr(1));
    EXPECT_EQ(lines[1].substr(68, 31),
              line({L(2, 7, "0,000"), R(9, 11, "1234,50"), R(22, 11, "0,00")}).substr(1));
}

TEST(ImprimeNF4621, PiecesOverlapByOneCharacter) {
    const auto pieces = [](const std::string& legal, const std::string& observation) {
        return rows(printed(others(), withTexts(legal, observation)), 32, 39);
    };
    EXPECT_EQ(pieces("", ""), (Lines{" ", " ", " ", "", "", "", "", ""}));
    EXPECT_EQ(pieces("L", "O"), (Lines{" L OBS.: O", " ", " ", "", "", "", "", ""}));
    EXPECT_EQ(pieces("", ruler(1, 200)), (Lines{"  OBS.: " + ruler(1, 83), " " + ruler(83, 90),
                                                " " + ruler(173, 28), "", "", "", "", ""}));
    EXPECT_EQ(pieces(ruler(1, 89), "")[1], " ");
    EXPECT_EQ(pieces(ruler(1, 90), "")[1], " " + ruler(90, 1));
    EXPECT_EQ(pieces(ruler(1, 300), "")[2], " " + ruler(180, 100));
}

TEST(ImprimeNF4621, TheDeliveryAddressKeepsItsLabel) {
    NoteDraft note = fullNote();
    for (const char* name : {"ENDERECO_ETG", "BAIRRO_ETG", "CEP_ETG", "MUNICIPIO_ETG", "UF_ETG"}) {
        note.head.erase(name);
    }
    EXPECT_EQ(linesOf(printed(form7321(), note))[30],
              line({T(2, "END. DE ETG: "), L(70, 9, "00000-000"), L(97, 2, "")}));
    EXPECT_EQ(linesOf(printed(others(), note))[30],
              line({T(2, "END. DE ENTREGA: "), L(81, 9, "00000-000"), L(111, 2, "")}));
}

}  // namespace
}  // namespace tarn::test
