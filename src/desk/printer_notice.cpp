#include "desk/printer_notice.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace tarn {
namespace {

constexpr std::string_view actionPrinter =
    "Configurado para Impressora: Epson ActionPrinter- 2000, LX-810, LX-300";
constexpr std::string_view fx880 = "Configurado para Impressora: Epson FX-880+, FX-890, FX-2190";
constexpr std::string_view epsonFx2190 = "Configurado para Impressora: Epson FX-2190";
constexpr std::string_view epsonLx300 = "Configurado para Impressora: Epson LX-300";
constexpr std::string_view fx2190 = "Configurado para Impressora: FX-2190";
constexpr std::string_view fx300 = "Configurado para Impressora: Epson FX-300";
constexpr std::string_view oki = "Configurado para Impressora: OKI MICROLINE 1120";
constexpr std::string_view lx810 = "Configurado para Impressora: LX-810";
constexpr std::string_view lx300 = "Configurado para Impressora: LX-300";

bool um(std::int32_t codigo, std::initializer_list<std::int32_t> codigos) {
    return std::find(codigos.begin(), codigos.end(), codigo) != codigos.end();
}

struct Linha {
    bool (*cabe)(std::int32_t empresa, std::int32_t estabelecimento);
    std::string_view aviso;
};

// The first row that fits decides, an empty notice included.
constexpr std::array tabela{
    Linha{[](auto c, auto e) {
              return c == 2161 && um(e, {3381, 3382, 3384, 3385});
          },
          actionPrinter},
    Linha{[](auto c, auto e) {
              return c == 2161 && um(e, {3383, 3341, 5282});
          },
          fx880},
    Linha{[](auto c, auto) { return c == 2161; }, ""},
    Linha{[](auto c, auto) { return c == 3681; }, actionPrinter},
    Linha{[](auto c, auto e) { return c == 2801 && e == 4081; }, epsonFx2190},
    Linha{[](auto c, auto) { return c == 2801; }, ""},
    Linha{[](auto c, auto e) { return c == 3881 && e == 6001; }, epsonLx300},
    Linha{[](auto c, auto) { return c == 3881; }, fx2190},
    Linha{[](auto c, auto e) {
              return e == 6001 || um(c, {3081, 3141});
          },
          epsonLx300},
    Linha{[](auto c, auto) { return c == 2421; }, fx300},
    Linha{[](auto c, auto e) {
              return um(c, {821, 541, 3301, 3601}) || e == 5281;
          },
          oki},
    Linha{[](auto c, auto e) { return c == 4621 && e == 7321; }, lx810},
    Linha{[](auto c, auto) { return c == 4621; }, lx300},
};

}  // namespace

std::string_view avisoImpressora(std::int32_t empresa, std::int32_t estabelecimento) {
    const auto* linha = std::find_if(tabela.begin(), tabela.end(), [&](const Linha& candidata) {
        return candidata.cabe(empresa, estabelecimento);
    });
    return linha == tabela.end() ? std::string_view{} : linha->aviso;
}

}  // namespace tarn
