// The three forms of company 2161.
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "tests/notes/paper.h"

namespace tarn::test {
namespace {

const notes::Form& of3341() {
    return notes::imprimeNF_2161_3341.formFor(3341);
}

const notes::Form& of3381() {
    return notes::imprimeNF_2161_3381.formFor(3385);
}

const notes::Form& of3383() {
    return notes::imprimeNF_2161_3383.formFor(3383);
}

std::string labelled(const std::string& label, char letter) {
    return label + std::string(40, letter);
}

// The parcels of 3341 and 3383 stand at the same columns.
const std::string parcelsRow =
    line({L(6, 10, "DOC-1"), L(19, 10, "07/02/2009"), R(32, 15, "100,50"), L(60, 10, 'N'),
          L(73, 10, 'V'), R(86, 15, "123456789012345,00"), L(114, 10, "DOC-3"),
          L(127, 10, "07/04/2009"), R(140, 15, "1300,25")});

TEST(ImprimeNF2161_3341, EveryLine) {
    expectPaper(
        printed(of3341(), fullNote()), 53,
        {{1, line({T(142, "004567")})},
         {3, line({T(106, "X")})},
         {7, line({L(6, 40, 'n'), L(50, 8, 'c')})},
         {9, line({L(6, 82, 'r'), L(100, 28, "12.345.678/0001-95"), L(143, 14, 'd')})},
         {11, line({L(6, 81, 'e'), L(87, 21, 'b'), L(118, 12, "01310-100"), L(137, 14, "")})},
         {12,
          line({L(6, 49, 'm'), L(62, 18, 'f'), L(94, 3, 'u'), L(102, 28, 'i'), L(136, 14, "")})},
         {15, parcelsRow},
         {16, "     "},
         {18, line({L(6, 7, 'P'), L(16, 64, 'D'), L(88, 3, "oSS"), L(94, 5, 'U'),
                    R(102, 7, "10000000,000"), R(122, 9, unitPrice), R(136, 17, lineTotal),
                    L(159, 2, "18,00")})},
         {19, line({L(6, 7, "P-002"), L(16, 64, "ARRUELA LISA"), L(88, 3, "120"), L(94, 5, "UN"),
                    R(102, 7, "400,000"), R(122, 9, "1234,50"), R(136, 17, "493.800,00"),
                    L(159, 2, "7,")})},
         {20, " "},
         {24, " "},
         {30, line({R(2, 24, wide('1')), R(31, 23, wide('2')), R(59, 22, wide('3')),
                    R(86, 22, wide('4')), R(123, 24, wide('5'))})},
         {32, line({R(2, 24, "10,00"), R(31, 23, "5,50"), R(59, 22, "0,25"), R(86, 22, "80,04"),
                    R(123, 24, "1.696,54")})},
         {34, line({L(6, 59, 't'), L(98, 2, 'q'), L(105, 13, 'p'), L(122, 2, 'v'),
                    L(129, 27, " 2.345.678/0001-10")})},
         {35, line({L(6, 65, 'l'), L(83, 35, 'w'), L(122, 2, 's'), L(129, 27, 'k')})},
         {37, line({R(2, 17, "12,000"), L(25, 17, "VOLUME"), L(47, 15, ""), L(67, 21, ""),
                    R(109, 22, "123.456.789.012.345,000"), R(139, 20, "1.200,000")})},
         {39, line({L(6, 15, "FAT: 004567"), T(21, ", "), L(23, 20, labelled("N/PED: ", 'x')),
                    T(43, ", "), L(45, 20, labelled("S/PED: ", 'y')), T(65, ", "),
                    L(67, 30, labelled("VEND: ", 'z'))})},
         {40, line({T(6, ruler(1, 62))})},
         {41, line({T(6, ruler(63, 62))})},
         {42, line({T(6, ruler(125, 62))})},
         {43, line({T(6, ruler(187, 62))})},
         {44, line({T(6, ruler(249, 62))})},
         {45, line({T(6, ruler(311, 62))})},
         {49, line({T(137, "004567")})}});
}

TEST(ImprimeNF2161_3381, EveryLine) {
    expectPaper(
        printed(of3381(), fullNote()), 52,
        {{1, line({T(120, "004567")})},
         {2, line({T(90, "X")})},
         {7, line({L(2, 37, 'n'), L(41, 8, 'c')})},
         {9, line({L(2, 80, 'r'), L(84, 30, "12.345.678/0001-95"), L(119, 14, 'd')})},
         {11, line({L(2, 69, 'e'), L(71, 18, 'b'), L(99, 12, "01310-100"), L(118, 14, "")})},
         {12, line({L(2, 50, 'm'), L(55, 18, 'f'), L(81, 3, 'u'), L(89, 28, 'i'), L(123, 14, "")})},
         {14, line({L(6, 10, "DOC-1"), L(18, 10, "07/02/2009"), R(31, 10, "100,50"), L(51, 10, 'N'),
                    L(63, 10, 'V'), R(76, 10, "123456789012345,00"), L(96, 10, "DOC-3"),
                    L(108, 10, "07/04/2009"), R(121, 10, "1300,25")})},
         {15, "     "},
         {17, line({L(2, 7, 'P'), L(11, 62, 'D'), L(75, 3, "oSS"), L(80, 5, 'U'),
                    R(87, 7, "10000000,000"), R(98, 9, unitPrice), R(110, 17, lineTotal),
                    L(135, 2, "18,00")})},
         {18, line({L(2, 7, "P-002"), L(11, 62, "ARRUELA LISA"), L(75, 3, "120"), L(80, 5, "UN"),
                    R(87, 7, "400,000"), R(98, 9, "1234,50"), R(110, 17, "493.800,00"),
                    L(135, 2, "7,")})},
         {19, " "},
         {23, " "},
         {29, line({R(2, 24, wide('1')), R(28, 23, wide('2')), R(54, 22, wide('3')),
                    R(78, 22, wide('4')), R(110, 24, wide('5'))})},
         {30, line({R(2, 24, "10,00"), R(28, 23, "5,50"), R(53, 22, "0,25"), R(77, 22, "80,04"),
                    R(109, 24, "1.696,54")})},
         {33, line({L(2, 63, 't'), L(83, 2, 'q'), L(87, 13, 'p'), L(102, 2, 'v'),
                    L(106, 27, " 2.345.678/0001-10")})},
         {34, line({L(2, 65, 'l'), L(72, 28, 'w'), L(102, 3, 's'), L(107, 25, 'k')})},
         {36, line({R(2, 15, "12,000"), L(20, 17, "VOLUME"), L(42, 15, ""), L(62, 21, ""),
                    R(93, 22, "123.456.789.012.345,000"), R(120, 15, "1.200,000")})},
         {38, line({L(2, 12, "FAT: 004567"), T(14, ", "), L(16, 15, labelled("N/PED: ", 'x')),
                    T(31, ", "), L(33, 16, labelled("S/PED: ", 'y')), T(49, ", "),
                    L(51, 15, labelled("VEND: ", 'z'))})},
         {39, line({T(2, ruler(1, 62))})},
         {40, line({T(2, ruler(63, 62))})},
         {41, line({T(2, ruler(125, 62))})},
         {42, line({T(2, ruler(187, 62))})},
         {43, line({T(2, ruler(249, 62))})},
         {44, line({T(2, ruler(311, 62))})},
         {48, line({T(122, "004567")})}});
}

TEST(ImprimeNF2161_3383, EveryLine) {
    const std::string references =
        line({L(6, 15, "FAT: 004567"), T(21, ", "), L(23, 20, labelled("N/PED: ", 'x'))});
    expectPaper(printed(of3383(), fullNote()), 49,
                {{1, line({T(122, "004567")})},
                 {2, line({T(105, "X")})},
                 {7, line({L(6, 38, 'n'), L(44, 8, 'c')})},
                 {9, line({L(6, 82, 'r'), L(93, 28, "12.345.678/0001-95"), L(126, 10, 'd')})},
                 {11, line({L(6, 70, 'e'), L(76, 21, 'b'), L(107, 12, "01310-100")})},
                 {12, line({L(6, 49, 'm'), L(59, 18, 'f'), L(82, 3, 'u'), L(90, 28, 'i')})},
                 {15, parcelsRow},
                 {16, "     "},
                 {18, line({L(6, 7, 'P'), L(16, 57, 'D'), L(76, 3, "oSS"), L(82, 5, 'U'),
                            R(88, 7, "10000000,000"), R(102, 9, unitPrice), R(116, 17, lineTotal),
                            L(136, 2, "18,00")})},
                 {19, line({L(6, 7, "P-002"), L(16, 57, "ARRUELA LISA"), L(76, 3, "120"),
                            L(82, 5, "UN"), R(88, 7, "400,000"), R(102, 9, "1234,50"),
                            R(116, 17, "493.800,00"), L(136, 2, "7,")})},
                 {20, " "},
                 {24, " "},
                 {27, line({R(2, 24, wide('1')), R(31, 23, wide('2')), R(59, 22, wide('3')),
                            R(86, 22, wide('4')), R(113, 22, wide('5'))})},
                 {29, line({R(2, 24, "10,00"), R(31, 23, "5,50"), R(59, 22, "0,25"),
                            R(86, 22, "80,04"), R(113, 22, "1.696,54")})},
                 {31, line({L(6, 59, 't'), L(84, 2, 'q'), L(91, 13, 'p'), L(106, 2, 'v'),
                            L(110, 27, " 2.345.678/0001-10")})},
                 {32, line({L(6, 65, 'l'), L(75, 28, 'w'), L(104, 2, 's'), L(108, 20, 'k')})},
                 {34, line({R(2, 17, "12,000"), L(25, 17, "VOLUME"), L(47, 15, ""), L(67, 21, ""),
                            R(93, 22, "123.456.789.012.345,000"), R(118, 20, "1.200,000")})},
                 // The first references twice; the rest begins in column 5 of a line more
                 // than the form has.
                 {35, references},
                 {36, references},
                 {37, "    " + L(1, 20, labelled("S/PED: ", 'y')).text + ", " +
                          L(1, 30, labelled("VEND: ", 'z')).text},
                 {38, line({T(6, ruler(1, 62))})},
                 {39, line({T(6, ruler(63, 62))})},
                 {40, line({T(6, ruler(125, 62))})},
                 {41, line({T(6, ruler(187, 62))})},
                 {42, line({T(6, ruler(311, 62))})},
                 {45, line({T(124, "004567")})}});
}

TEST(ImprimeNF2161, SetUpGoesInAJobOfItsOwn) {
    for (const notes::Form* form : {&of3341(), &of3381(), &of3383()}) {
        const std::vector<Job> jobs = print(*form, fullNote().xml());
        ASSERT_EQ(jobs.size(), 2U);
        EXPECT_EQ(jobs[0].writes, std::vector<std::string>{" \x0F"});
    }
}

TEST(ImprimeNF2161_3383, TheReferencesAreTwoCalls) {
    const std::vector<Job> jobs = print(of3383(), sampleNote().xml());
    const std::vector<std::string>& writes = jobs[1].writes;
    // six of the head, two of parcels, two items, two below, five, the references
    const std::string first =
        "     " + L(1, 15, "FAT: 004567").text + ", " + L(1, 20, "N/PED: 98765").text + "\r\n";
    EXPECT_EQ(writes[17], first);
    EXPECT_EQ(writes[18], first + "    " + L(1, 20, "S/PED: PC-77").text + ", " +
                              L(1, 30, "VEND: MARIA").text + "\r\n");
}

std::vector<std::string> legalLines(const notes::Form& form, std::size_t first, std::size_t count,
                                    const std::string& legal, const std::string& observation) {
    NoteText note = fullNote();
    for (Attributes& item : note.items) {
        item["DC_TXT_LEG_NF"] = legal;
    }
    note.head["DC_OBS"] = observation;
    std::vector<std::string> lines = linesOf(printed(form, note));
    return {lines.begin() + static_cast<std::ptrdiff_t>(first - 1),
            lines.begin() + static_cast<std::ptrdiff_t>(first - 1 + count)};
}

// Characters 249 to 310 of the text are never printed.
TEST(ImprimeNF2161_3383, ALegalTextOf320CharactersLoses62) {
    EXPECT_EQ(legalLines(of3383(), 38, 6, ruler(1, 320), ""),
              (std::vector<std::string>{"     " + ruler(1, 62), "     " + ruler(63, 62),
                                        "     " + ruler(125, 62), "     " + ruler(187, 62),
                                        "     " + ruler(311, 10), ""}));
    EXPECT_EQ(legalLines(of3383(), 38, 6, "REDUZIDA", "FRAGIL"),
              (std::vector<std::string>{"     REDUZIDA OBS.: FRAGIL", "     ", "     ", "     ",
                                        "     ", ""}));
}

TEST(ImprimeNF2161_3341, ASeparatorStandsAlsoBeforeTheObservation) {
    const std::vector<std::string> empty(5, "     ");
    std::vector<std::string> lines = legalLines(of3341(), 40, 6, "REDUZIDA", "FRAGIL");
    EXPECT_EQ(lines[0], "     REDUZIDA \\\\  OBS.: FRAGIL");
    EXPECT_EQ(std::vector<std::string>(lines.begin() + 1, lines.end()), empty);
    EXPECT_EQ(legalLines(of3341(), 40, 1, "", "FRAGIL")[0], "      \\\\  OBS.: FRAGIL");
    EXPECT_EQ(legalLines(of3341(), 40, 1, "REDUZIDA", "")[0], "     REDUZIDA");
    EXPECT_EQ(legalLines(of3381(), 39, 2, "REDUZIDA", "FRAGIL"),
              (std::vector<std::string>{" REDUZIDA \\\\  OBS.: FRAGIL", " "}));
}

// The service block -------------------------------------------------------------

NoteText withServices(int services, const std::string& lines) {
    NoteText note = fullNote();
    note.form["QT_MAX_IT_NF_SRV"] = lines;
    for (int i = 1; i <= services; ++i) {
        note.items.push_back({{"CD_PRO", "S" + std::to_string(i) + "-AAAAAAAAAAAAAA"},
                              {"IC_TP_CAD", "S"},
                              {"DESCRICAO", std::string(90, static_cast<char>('A' + i))},
                              {"VL_LIQ_IT", "1000.5"},
                              {"AQ_ISS", std::to_string(i)},
                              {"VL_ISS", "600"}});
    }
    return note;
}

std::string serviceLine(int i) {
    return line({L(2, 12, "S" + std::to_string(i) + "-AAAAAAAAAAAAAA"),
                 L(14, 75, static_cast<char>('A' + i)), R(89, 15, "1000,50")});
}

const std::string noService = std::string(103, ' ');

TEST(ImprimeNF2161Services, StandWithinTheirSixLines) {
    const std::pair<const notes::Form*, std::size_t> forms[] = {{&of3341(), 24}, {&of3381(), 23}};
    for (const auto& [form, first] : forms) {
        const std::string without = printed(*form, fullNote());
        for (const std::string count : {"", "0", "1", "3", "5", "6"}) {
            SCOPED_TRACE(count);
            const std::string stream = printed(*form, withServices(2, count));
            EXPECT_EQ(below(stream, first + 6), below(without, first + 6));
        }
        const std::vector<std::string> lines = linesOf(printed(*form, withServices(2, "6")));
        EXPECT_EQ(lines[first - 1], serviceLine(1));
        EXPECT_EQ(lines[first], serviceLine(2));
        EXPECT_EQ(lines[first + 1], noService);
        EXPECT_EQ(lines[first + 2], noService + " 2,00       1.200,00");
        EXPECT_EQ(lines[first + 3], noService);
        EXPECT_EQ(lines[first + 4], noService + "       2.001,00");
    }
}

TEST(ImprimeNF2161Services, MoreLinesPushTheTotalsAndFewerShowNoSums) {
    const std::string without = printed(of3341(), fullNote());
    const std::string eight = printed(of3341(), withServices(9, "8"));
    EXPECT_EQ(below(eight, 32), below(without, 30));
    const std::vector<std::string> lines = linesOf(eight);
    EXPECT_EQ(lines[26], serviceLine(4) + " 9,00       5.400,00");
    EXPECT_EQ(lines[28], serviceLine(6) + "       9.004,50");
    EXPECT_EQ(lines[30], serviceLine(8));

    const std::vector<std::string> three = linesOf(printed(of3341(), withServices(9, "3")));
    EXPECT_EQ(three[25], serviceLine(3));
    EXPECT_EQ(three[26], " ") << "one call for the three lines left";
    EXPECT_EQ(three[27], "");
}

TEST(ImprimeNF2161Services, AreNoProducts) {
    NoteText note = fullNote();
    note.items[1]["IC_TP_CAD"] = "S";
    note.items[1]["DC_TXT_LEG_NF"] = "NOT STORED";
    const std::vector<std::string> full = linesOf(printed(of3341(), fullNote()));
    const std::vector<std::string> lines = linesOf(printed(of3341(), note));
    EXPECT_EQ(lines[17], full[17]);
    EXPECT_EQ(lines[18], " ");
    EXPECT_EQ(lines[39], full[39]);
    EXPECT_EQ(lines.size(), full.size());
}

}  // namespace
}  // namespace tarn::test
