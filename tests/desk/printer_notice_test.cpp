#include "desk/printer_notice.h"

#include <gtest/gtest.h>

namespace tarn::test {
namespace {

struct Case {
    std::int32_t company;
    std::int32_t establishment;
    std::string_view notice;
};

class PrinterNotice : public testing::TestWithParam<Case> {};

TEST_P(PrinterNotice, FirstRowThatFits) {
    const Case& testCase = GetParam();
    EXPECT_EQ(printerNotice(testCase.company, testCase.establishment), testCase.notice)
        << testCase.company << " " << testCase.establishment;
}

constexpr std::string_view action =
    "Configurado para Impressora: Epson ActionPrinter- 2000, LX-810, LX-300";
constexpr std::string_view fx = "Configurado para Impressora: Epson FX-880+, FX-890, FX-2190";
constexpr std::string_view oki = "Configurado para Impressora: OKI MICROLINE 1120";
constexpr std::string_view epsonLx = "Configurado para Impressora: Epson LX-300";

INSTANTIATE_TEST_SUITE_P(
    Table, PrinterNotice,
    testing::Values(Case{2161, 3381, action}, Case{2161, 3382, action}, Case{2161, 3384, action},
                    Case{2161, 3385, action}, Case{2161, 3383, fx}, Case{2161, 3341, fx},
                    Case{2161, 5282, fx}, Case{2161, 3386, ""}, Case{2161, 6001, ""},
                    Case{2161, 5281, ""}, Case{3681, 1, action}, Case{3681, 6001, action},
                    Case{3681, 5281, action},
                    Case{2801, 4081, "Configurado para Impressora: Epson FX-2190"},
                    Case{2801, 4082, ""}, Case{2801, 6001, ""}, Case{3881, 6001, epsonLx},
                    Case{3881, 6002, "Configurado para Impressora: FX-2190"},
                    Case{3881, 5281, "Configurado para Impressora: FX-2190"},
                    Case{1361, 6001, epsonLx}, Case{2421, 6001, epsonLx}, Case{4621, 6001, epsonLx},
                    Case{821, 6001, epsonLx}, Case{3081, 1, epsonLx}, Case{3141, 5281, epsonLx},
                    Case{2421, 3621, "Configurado para Impressora: Epson FX-300"},
                    Case{2421, 5281, "Configurado para Impressora: Epson FX-300"},
                    Case{821, 1, oki}, Case{541, 1, oki}, Case{3301, 1, oki}, Case{3601, 1, oki},
                    Case{1361, 5281, oki}, Case{4621, 5281, oki},
                    Case{4621, 7321, "Configurado para Impressora: LX-810"},
                    Case{4621, 7322, "Configurado para Impressora: LX-300"}, Case{1361, 1, ""},
                    Case{2041, 3381, ""}, Case{0, 0, ""}));

}  // namespace
}  // namespace tarn::test
