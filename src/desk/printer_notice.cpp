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

bool one(std::int32_t code, std::initializer_list<std::int32_t> codes) {
    return std::find(codes.begin(), codes.end(), code) != codes.end();
}

struct Line {
    bool (*fits)(std::int32_t company, std::int32_t establishment);
    std::string_view notice;
};

// The first row that fits decides, an empty notice included.
constexpr std::array table{
    Line{[](auto c, auto e) {
             return c == 2161 && one(e, {3381, 3382, 3384, 3385});
         },
         actionPrinter},
    Line{[](auto c, auto e) {
             return c == 2161 && one(e, {3383, 3341, 5282});
         },
         fx880},
    Line{[](auto c, auto) { return c == 2161; }, ""},
    Line{[](auto c, auto) { return c == 3681; }, actionPrinter},
    Line{[](auto c, auto e) { return c == 2801 && e == 4081; }, epsonFx2190},
    Line{[](auto c, auto) { return c == 2801; }, ""},
    Line{[](auto c, auto e) { return c == 3881 && e == 6001; }, epsonLx300},
    Line{[](auto c, auto) { return c == 3881; }, fx2190},
    Line{[](auto c, auto e) {
             return e == 6001 || one(c, {3081, 3141});
         },
         epsonLx300},
    Line{[](auto c, auto) { return c == 2421; }, fx300},
    Line{[](auto c, auto e) {
             return one(c, {821, 541, 3301, 3601}) || e == 5281;
         },
         oki},
    Line{[](auto c, auto e) { return c == 4621 && e == 7321; }, lx810},
    Line{[](auto c, auto) { return c == 4621; }, lx300},
};

}  // namespace

std::string_view printerNotice(std::int32_t company, std::int32_t establishment) {
    const auto* line = std::find_if(table.begin(), table.end(), [&](const Line& candidate) {
        return candidate.fits(company, establishment);
    });
    return line == table.end() ? std::string_view{} : line->notice;
}

}  // namespace tarn
