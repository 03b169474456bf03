// The two forms of companies 4621 and 541.
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "tests/notes/wide_note.h"

namespace tarn::test {
namespace {

using Lines = std::vector<std::string>;

const notes::Form& form7321() {
    return notes::imprimeNF_4621.formFor(7321);
}
const notes::Form& others() {
    return notes::imprimeNF_4621.formFor(1);
}

const std::string setUp = " \x0F\x1BG";

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

const std::vector<Line> paper7321 = {
    {1, setUp + line({T(102, "004567")})},
    {2, line({T(78, "X")})},
    {5, line({L(2, 32, 'n'), L(35, 7, 'c')})},
    {7, line({L(2, 60, 'r'), L(67, 18, "12.345.678/0001-95"), L(93, 14, 'd')})},
    {9, line({L(2, 53, 'e'), L(57, 18, 'b'), L(76, 12, "01310-100"), L(92, 12, "")})},
    {10, line({L(2, 38, 'm'), L(42, 16, 'f'), L(63, 3, 'u'), L(71, 30, 'i'), L(107, 14, "")})},
    {12, first7321("07/02/2009", "100,50") + next7321("VVVVVVVVVV", "123456789012345,00") +
             next7321("07/04/2009", "1300,25")},
    {13, " "},
    {16,
     line({L(2, 8, 'P'), L(13, 45, 'D'), L(60, 4, "oSSS"), L(66, 3, 'U'), L(69, 7, "10000000,000"),
           R(76, 11, unitPrice), R(89, 11, lineTotal), L(102, 2, "18,00")})},
    {17,
     line({L(2, 8, "P-002"), L(13, 45, "ARRUELA LISA"), L(60, 4, "120"), L(66, 3, "UN"),
           L(69, 7, "400,000"), R(76, 11, "1234,50"), R(89, 11, "493.800,00"), L(102, 2, "7,00")})},
    {18, " "},
    {22, line({R(2, 17, wide('1')), R(19, 17, wide('2')), R(41, 17, wide('3')),
               R(59, 17, wide('4')), R(77, 27, wide('5'))})},
    {23, line({R(2, 17, "10,00"), R(19, 17, "5,50"), R(41, 17, "0,25"), R(59, 17, "80,04"),
               R(77, 27, "1.696,54")})},
    {26, line({L(2, 45, 't'), L(62, 2, 'q'), L(66, 10, 'p'), L(78, 2, 'v'),
               L(85, 27, " 2.345.678/0001-10")})},
    {27, line({L(2, 45, 'l'), L(49, 27, 'w'), L(79, 4, 's'), L(85, 20, 'k')})},
    {29, line({R(2, 13, "12,000"), L(18, 14, "VOLUME"), L(35, 15, ""), L(53, 11, ""),
               R(67, 15, "123.456.789.012.345,000"), R(88, 15, "1.200,000")})},
    {31, line({T(2, "END. DE ETG: "), L(15, 40, 'F'), L(56, 13, 'G'), L(70, 9, "70040-010"),
               L(80, 14, 'J'), L(97, 2, 'K')})},
    {32, line({T(2, ruler(1, 90))})},
    {33, line({T(2, ruler(90, 90))})},
    {34, line({T(2, ruler(180, 100))})},
    {40, line({T(97, "004567")})},
};

const std::vector<Line> paperOthers = {
    {1, setUp + line({T(116, "004567")})},
    {2, line({T(78, "X")})},
    {5, line({L(2, 36, 'n'), L(39, 7, 'c')})},
    {7, line({L(2, 70, 'r'), L(79, 18, "12.345.678/0001-95"), L(107, 14, 'd')})},
    {9, line({L(2, 60, 'e'), L(67, 20, 'b'), L(89, 12, "01310-100"), L(105, 12, "")})},
    {10, line({L(2, 40, 'm'), L(50, 16, 'f'), L(71, 3, 'u'), L(81, 30, 'i'), L(117, 14, "")})},
    {12, firstOthers("07/02/2009", "100,50") + nextOthers("VVVVVVVVVV", "123456789012345,00") +
             nextOthers("07/04/2009", "1300,25")},
    {13, " "},
    {16,
     line({L(2, 8, 'P'), L(13, 52, 'D'), L(69, 4, "oSSS"), L(75, 3, 'U'), L(79, 8, "10000000,000"),
           R(87, 13, unitPrice), R(102, 13, lineTotal), L(117, 2, "18,00")})},
    {17, line({L(2, 8, "P-002"), L(13, 52, "ARRUELA LISA"), L(69, 4, "120"), L(75, 3, "UN"),
               L(79, 8, "400,000"), R(87, 13, "1234,50"), R(102, 13, "493.800,00"),
               L(117, 2, "7,00")})},
    {18, " "},
    {22, line({R(2, 20, wide('1')), R(22, 20, wide('2')), R(47, 20, wide('3')),
               R(68, 20, wide('4')), R(89, 27, wide('5'))})},
    {23, line({R(2, 20, "10,00"), R(22, 20, "5,50"), R(47, 20, "0,25"), R(68, 20, "80,04"),
               R(89, 27, "1.696,54")})},
    {26, line({L(2, 52, 't'), L(72, 2, 'q'), L(78, 10, 'p'), L(91, 2, 'v'),
               L(100, 27, " 2.345.678/0001-10")})},
    {27, line({L(2, 52, 'l'), L(56, 32, 'w'), L(91, 4, 's'), L(98, 27, 'k')})},
    {29, line({R(2, 15, "12,000"), L(22, 14, "VOLUME"), L(39, 15, ""), L(57, 19, ""),
               R(79, 18, "123.456.789.012.345,000"), R(100, 18, "1.200,000")})},
    {31, line({T(2, "END. DE ENTREGA: "), L(19, 40, 'F'), L(61, 18, 'G'), L(81, 9, "70040-010"),
               L(92, 18, 'J'), L(111, 2, 'K')})},
    {32, line({T(2, ruler(1, 90))})},
    {33, line({T(2, ruler(90, 90))})},
    {34, line({T(2, ruler(180, 100))})},
    {40, line({T(112, "004567")})},
};

TEST(ImprimeNF4621, EveryLineAtEstablishment7321) {
    expectPaper(printed(form7321(), wideNote()), 44, paper7321);
}

TEST(ImprimeNF4621, EveryLineElsewhere) {
    expectPaper(printed(others(), wideNote()), 44, paperOthers);
}

TEST(ImprimeNF4621, TheSetUpOpensTheJobOfTheNote) {
    for (const notes::Form* form : {&form7321(), &others()}) {
        const std::vector<Job> jobs = print(*form, wideNote().xml());
        ASSERT_EQ(jobs.size(), 1U);
        EXPECT_TRUE(jobs[0].ended);
        EXPECT_EQ(jobs[0].writes[0], setUp);
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
            const Lines found = rows(printed(form, wideParcels(count)), 12, to);
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

// No fixed line ends stand below the items: the blank of the empty call goes ahead of
// the totals.
TEST(ImprimeNF4621, AFullFormMovesItsFirstTotalsOneColumn) {
    EXPECT_EQ(rows(printed(form7321(), wideItems(6)), 22, 23),
              (Lines{" " + paper7321[11].text, paper7321[12].text}));
    EXPECT_EQ(rows(printed(form7321(), wideItems(5)), 21, 22), (Lines{" ", paper7321[11].text}));
}

TEST(ImprimeNF4621, MoreItemsPushTheFormDown) {
    for (const std::size_t count : {7U, 9U}) {
        const Lines lines = linesOf(printed(others(), wideItems(count)));
        EXPECT_EQ(lines.size(), 39 + count);
        EXPECT_EQ(lines[14 + count].substr(0, 3), numbered(" C", count));
        EXPECT_EQ(lines[15 + count], " " + paperOthers[11].text);
    }
}

TEST(ImprimeNF4621, QuantitiesHaveADecimalPoint) {
    NoteText note = wideItems(2);
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
        return rows(printed(others(), wideTexts(legal, observation)), 32, 39);
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
    NoteText note = wideNote();
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
