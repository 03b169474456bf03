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
    NoteDraft note = fullNote();
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

NoteDraft withServices(int services, const std::string& lines) {
    NoteDraft note = fullNote();
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
    NoteDraft note = fullNote();
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
