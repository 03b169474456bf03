#include "desk/printer_notice.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

struct Caso {
    std::int32_t empresa;
    std::int32_t estabelecimento;
    std::string_view aviso;
};

class AvisoImpressora : public testing::TestWithParam<Caso> {};

TEST_P(AvisoImpressora, FirstRowThatFits) {
    const Caso& caso = GetParam();
    EXPECT_EQ(avisoImpressora(caso.empresa, caso.estabelecimento), caso.aviso)
        << caso.empresa << " " << caso.estabelecimento;
}

constexpr std::string_view acao =
    "Configurado para Impressora: Epson ActionPrinter- 2000, LX-810, LX-300";
constexpr std::string_view fx = "Configurado para Impressora: Epson FX-880+, FX-890, FX-2190";
constexpr std::string_view oki = "Configurado para Impressora: OKI MICROLINE 1120";
constexpr std::string_view epsonLx = "Configurado para Impressora: Epson LX-300";

INSTANTIATE_TEST_SUITE_P(
    Table, AvisoImpressora,
    testing::Values(Caso{2161, 3381, acao}, Caso{2161, 3382, acao}, Caso{2161, 3384, acao},
                    Caso{2161, 3385, acao}, Caso{2161, 3383, fx}, Caso{2161, 3341, fx},
                    Caso{2161, 5282, fx}, Caso{2161, 3386, ""}, Caso{2161, 6001, ""},
                    Caso{2161, 5281, ""}, Caso{3681, 1, acao}, Caso{3681, 6001, acao},
                    Caso{3681, 5281, acao},
                    Caso{2801, 4081, "Configurado para Impressora: Epson FX-2190"},
                    Caso{2801, 4082, ""}, Caso{2801, 6001, ""}, Caso{3881, 6001, epsonLx},
                    Caso{3881, 6002, "Configurado para Impressora: FX-2190"},
                    Caso{3881, 5281, "Configurado para Impressora: FX-2190"},
                    Caso{1361, 6001, epsonLx}, Caso{2421, 6001, epsonLx}, Caso{4621, 6001, epsonLx},
                    Caso{821, 6001, epsonLx}, Caso{3081, 1, epsonLx}, Caso{3141, 5281, epsonLx},
                    Caso{2421, 3621, "Configurado para Impressora: Epson FX-300"},
                    Caso{2421, 5281, "Configurado para Impressora: Epson FX-300"},
                    Caso{821, 1, oki}, Caso{541, 1, oki}, Caso{3301, 1, oki}, Caso{3601, 1, oki},
                    Caso{1361, 5281, oki}, Caso{4621, 5281, oki},
                    Caso{4621, 7321, "Configurado para Impressora: LX-810"},
                    Caso{4621, 7322, "Configurado para Impressora: LX-300"}, Caso{1361, 1, ""},
                    Caso{2041, 3381, ""}, Caso{0, 0, ""}));

}  // namespace
}  // namespace tarn
