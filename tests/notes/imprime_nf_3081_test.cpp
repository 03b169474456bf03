// The form of companies 3081 and 3141.
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "tests/notes/paper.h"

namespace tarn::test {
namespace {

using Lines = std::vector<std::string>;

const notes::Form& form3081() {
    return notes::imprimeNF_3081.formFor(1);
}

TEST(ImprimeNF3081, TheNoteBeginsWithItsNumber) {
    const std::vector<Job> jobs = print(form3081(), fullNote().xml());
    ASSERT_EQ(jobs.size(), 2U);
    EXPECT_EQ(jobs[0].writes, Lines{" \x0F\x1BM"});
    EXPECT_EQ(jobs[1].writes[0], line({T(142, "004567")}) + "\r\n\r\n");
}

std::string leftOf(std::size_t n) {
    return line({L(18, 10, numbered("D", n)), R(30, 10, numbered("", n) + ",50"),
                 L(52, 10, numbered("VENC", n))});
}
std::string row3081(std::size_t n) {
    return leftOf(n) +
           line({L(24, 10, numbered("D", n + 1)), R(36, 10, numbered("", n + 1) + ",50"),
                 L(58, 10, numbered("VENC", n + 1))})
               .substr(1);
}

TEST(ImprimeNF3081, TwoParcelsStandOneLineLower) {
    const std::string margin(17, ' ');
    const auto block = [](int count, std::size_t to) {
        const Lines found = rows(printed(form3081(), withParcels(count)), 17, to);
        EXPECT_EQ(found.back().substr(0, 5), " EEEE") << count;
        return Lines(found.begin(), found.end() - 1);
    };
    EXPECT_EQ(block(0, 20), (Lines{" ", "", ""}));
    EXPECT_EQ(block(1, 20), (Lines{leftOf(1), "", ""}));
    EXPECT_EQ(block(2, 21), (Lines{row3081(1), margin, "", ""}));
    EXPECT_EQ(block(3, 20), (Lines{row3081(1), leftOf(3), ""}));
    EXPECT_EQ(block(4, 20), (Lines{row3081(1), row3081(3), margin}));
    EXPECT_EQ(block(5, 20), (Lines{" Numero de Parcelas maior do que 4", "", ""}));
    EXPECT_EQ(linesOf(printed(form3081(), withParcels(2))).size(), 59U);
}

TEST(ImprimeNF3081, AQuantityPrintsAsTheServerSendsIt) {
    const std::pair<std::string, std::string> quantities[] = {
        {"12.500", "12,50"}, {"2", "2    "}, {"0.25", "0,25 "}, {"1,5", "1,5  "}};
    const std::string totals[] = {"25,00", "4,00", "0,50", "3,00"};
    for (std::size_t i = 0; i < std::size(quantities); ++i) {
        NoteDraft note = withItems(1);
        note.items[0]["QTDE"] = quantities[i].first;
        note.items[0]["VALOR_UN"] = "2";
        const std::string item = linesOf(printed(form3081(), note))[22];
        EXPECT_EQ(item.substr(91, 5), quantities[i].second);
        EXPECT_EQ(item.substr(125, 13), R(1, 13, totals[i]).text);
    }
    NoteDraft note = withItems(1);
    note.items[0].erase("QTDE");
    const std::string item = linesOf(printed(form3081(), note))[22];
    EXPECT_EQ(item.substr(91, 5), "0    ");
    EXPECT_EQ(item.substr(125, 13), "         0,00");
    note.items[0]["QTDE"] = "";
    EXPECT_EQ(linesOf(untilTypeError(form3081(), note)).size(), 23U);
}

TEST(ImprimeNF3081, TheHyphensStandAlsoBetweenEmptyParts) {
    NoteDraft note = fullNote();
    for (const std::string part : {"ENDERECO", "COMPLEMENTO", "BAIRRO", "CEP", "MUNICIPIO", "UF"}) {
        note.head.erase(part + "_COB");
        note.head.erase(part + "_ETG");
    }
    const Lines lines = linesOf(printed(form3081(), note));
    EXPECT_EQ(lines[19], line({T(64, "-"), T(87, "-"), T(112, "-"), T(137, "-"), T(144, "- "),
                               L(146, 12, "00000-000")}));
    EXPECT_EQ(lines[29], line({T(2, "ENDERE\xC7O DE ENTREGA - "), T(85, "- "), T(106, "- "),
                               T(127, "- "), T(140, "- "), T(145, "- "), L(147, 12, "00000-000")}));
}

TEST(ImprimeNF3081, TextsInPiecesOf44) {
    const auto bands = [](const std::string& legal, const std::string& observation) {
        const Lines lines = rows(printed(form3081(), withTexts(legal, observation)), 42, 52);
        EXPECT_EQ(lines.back(), line({T(10, "004567")}));
        return Lines(lines.begin(), lines.end() - 1);
    };
    EXPECT_EQ(bands("", ""), (Lines{" ", "", "", " ", "", "", "", "", "", ""}));
    EXPECT_EQ(bands(ruler(1, 88), ruler(1, 45)),
              (Lines{" " + ruler(1, 44), " " + ruler(45, 44), "", " " + ruler(1, 44),
                     " " + ruler(45, 1), "", "", "", "", ""}));
}

TEST(ImprimeNF3081, ClassesStandBelowTheDeliveryAddress) {
    NoteDraft note = withItems(3);
    note.items[1].erase("GF_AGRUP");
    EXPECT_EQ(linesOf(printed(form3081(), note))[30], " CL. FISCAL -  2) 84811  2) 84811 ");
}

}  // namespace
}  // namespace tarn::test
