// Form of establishment 6001. The recipient, the totals and the carrier print in plain
// pitch, date, items and parcels condensed; columns count from the left of each call.
// The parcels are below the items.
#include "notes/form_check.h"
#include "notes/form_rows.h"
#include "notes/layouts/layouts.h"

namespace tarn::notes {
namespace {

using enum Source;

constexpr std::string_view condensed = "\x0F\x1BM";
constexpr std::string_view plain = "\x12";

constexpr Step steps[] = {
    row(1),
    row(2, bare(NoteNumber, 152)),
    row(6, mark(99, 116)),
    row(3, left(NatOper, 4, 40), left(CFOP, 48, 7)),
    Control{plain},
    row(0, left(RAZAO, 2, 46), left(CGC_CPF, 59, 18)),
    Control{condensed},
    row(2, left(DT_EMS_NF, 2, 14)),
    Control{plain},
    row(1, left(ENDERECO, 2, 34), left(BAIRRO, 46, 17), left(CEP, 69, 12), blank(83, 14)),
    row(2, left(MUNICIPIO, 2, 19), left(FONEFAX, 29, 16), left(UF, 51, 3), left(INSC_EST, 62, 18),
        blank(86, 14)),
    Control{condensed, 1},

    Items{.line = row(1, left(DESCRICAO, 4, 70), left(OriginTax, 92, 4), left(UNIDADE, 98, 4),
                      under("##,##0.000", right(QTDE, 107, 7)), right(VALOR_UN, 115, 12),
                      right(LineTotal, 134, 13), left(ICMS, 149, 2)),
          .code = row(0, left(CD_PRO, 3, 6)),
          .overflow = Overflow::Cutting,
          .quantity = Quantity::AmountOrFive,
          .controlAfter = condensed},

    Parcels{.limit = 3,
            .message = "Número de Parcelas maior do que 3",
            .perRow = 3,
            .places = {place(bare(ParcelNumber, 3), left(NR_DOC, 5, 10), left(DT_VNC_DOC, 20, 10),
                             right(VL_PRN_DOC, 35, 10)),
                       place(bare(ParcelNumber, 51), left(NR_DOC, 53, 10), left(DT_VNC_DOC, 68, 10),
                             right(VL_PRN_DOC, 83, 10)),
                       place(bare(ParcelNumber, 99), left(NR_DOC, 101, 10),
                             left(DT_VNC_DOC, 116, 10), right(VL_PRN_DOC, 131, 10))},
            .lineEnds = {3, 3, 3, 2},
            .lineEndsAbove = 3},

    Control{plain},
    row(2, right(VALOR_BASE_ICMS, 3, 16), right(VALOR_ICMS, 20, 10),
        right(VALOR_BAS_ICMS_RTD, 35, 20), right(VALOR_ICMS_RTD, 59, 16),
        right(ProductTotal, 79, 15)),
    row(3, right(VALOR_FRETE, 3, 16), right(VALOR_SEGURO, 20, 10), right(VALOR_DES_ASC, 36, 20),
        right(VALOR_TOT_IPI, 60, 16), right(VALOR_TOT_NF, 80, 15)),
    row(1, left(DC_TRP, 2, 34), left(IC_RESP_FRT, 57, 2), left(CD_PLC_VEI_TRP, 63, 11),
        left(UF_PLACA_TRP, 76, 2), left(NR_CGC_CPL_TRP, 79, 18)),
    row(1, left(DC_LG_TRP, 2, 34), left(NM_MUN_TRP, 46, 24), left(SG_UF_TRP, 76, 2),
        left(CD_ICR_EST_TRP, 79, 18)),
    row(2, right(QT_ESP, 6, 11), text("VOLUME", 19, 11), blank(35, 8), blank(45, 16),
        right(PESO_BRU, 68, 16), right(PESO_LIQ, 87, 9)),

    Band{.piece = 44, .most = 3, .lines = 3},
    Band{.source = DC_OBS, .piece = 44, .most = 3, .lines = 7},
    row(4, bare(NoteNumber, 12)),
};

constexpr Form form{
    .setUp = condensed, .length = 44, .observation = Joined::Nothing, .steps = steps};
static_assert(flawOf(form) == Flaw::None);

}  // namespace

constinit const Layout imprimeNF_E6001{.name = "ImprimeNF_E6001", .form = &form};

}  // namespace tarn::notes
