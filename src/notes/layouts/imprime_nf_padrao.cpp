// The form of every company without one of its own. It shows no legal text, two
// addresses below the parcels, and the volumes as the items add up. Rates print as they
// came (decision N32).
#include "notes/form_check.h"
#include "notes/form_rows.h"
#include "notes/layouts/layouts.h"

namespace tarn::notes {
namespace {

using enum Source;

constexpr Step steps[] = {
    Control{"\x1B\x0F\x0F"},
    Control{"\x1B\x17", 1},
    row(1, bare(NoteNumber, 68)),
    row(6, mark(48, 58)),
    row(3, left(NatOper, 3, 25), as(Rule::AsText, left(CFOP, 31, 7))),
    row(2, left(RAZAO, 3, 40), bare(CGC_CPF, 46), left(DT_EMS_NF, 69, 10)),
    row(2, left(ENDERECO, 3, 40), left(BAIRRO, 45, 15), bare(CEP, 66)),
    row(3, left(MUNICIPIO, 3, 30), left(FONEFAX, 36, 15), left(UF, 54, 5), left(INSC_EST, 62, 15)),

    Parcels{
        .limit = 4,
        .message = "Número de Parcelas maior do que 4",
        .perRow = 2,
        .places = {place(left(NR_DOC, 3, 15), left(DT_VNC_DOC, 20, 10), left(VL_PRN_DOC, 32, 12)),
                   place(left(NR_DOC, 46, 15), left(DT_VNC_DOC, 63, 10), left(VL_PRN_DOC, 75, 12))},
        .lineEnds = {2, 2, 2, 1, 1},
        .lineEndsAbove = 2},
    row(2, left(ENDERECO_COB, 4, 20), left(BAIRRO_COB, 26, 20), bare(CEP_COB, 48),
        left(MUNICIPIO_COB, 67, 20), left(UF_COB, 89, 12)),
    row(4, left(ENDERECO_ETG, 4, 20), left(BAIRRO_ETG, 26, 20), bare(CEP_ETG, 48),
        left(MUNICIPIO_ETG, 67, 20), left(UF_ETG, 89, 12)),

    Items{
        .line = row(1, right(CD_PRO, 3, 6), left(DESCRICAO, 11, 22), left(SIT_TRI, 35, 4),
                    left(UNIDADE, 41, 4), as(Rule::General, right(QTDE, 47, 4)),
                    right(VALOR_UN, 53, 9), right(LineTotal, 64, 10),
                    as(Rule::AsAmount, right(ICMS, 76, 4)), as(Rule::AsAmount, right(IPI, 80, 4))),
        .productsOnly = false,
        .legalTexts = false,
        .sums = true,
        .fillsForm = false,
        .lineEnds = 1},

    row(2, right(VALOR_BASE_ICMS, 3, 12), right(VALOR_ICMS, 17, 12), right(VALOR_ICMS_RTD, 31, 12),
        right(VALOR_ICMS_RTD, 45, 12), right(VALOR_TOTAL, 59, 12)),
    row(3, right(VALOR_FRETE, 3, 12), right(VALOR_SEGURO, 17, 12), right(VALOR_DES_ASC, 31, 12),
        right(VALOR_TOT_IPI, 45, 12), right(VALOR_TOT_NF, 59, 12)),
    row(2, left(DC_TRP, 3, 30), left(CD_PLC_VEI_TRP, 60, 10), bare(NR_CGC_CPL_TRP, 78)),
    row(2, left(DC_LG_TRP, 3, 30), left(NM_MUN_TRP, 37, 20), left(SG_UF_TRP, 60, 3),
        left(CD_ICR_EST_TRP, 66, 15)),
    row(3, right(QuantitySum, 3, 8), text("VOLUME", 15, 10), right(WeightSum, 28, 10),
        right(WeightSum, 39, 10)),

    row(1, text("TEXTOS LEGAIS GRAVADOS NA TRIBUTAÇÃO", 2)),
    row(10, text("CONFIGURADOS VIA PROGRAMAÇÃO DE CADA CLIENTE TARN", 2)),
    row(4, bare(NoteNumber, 59)),
};

constexpr Form form{.setUp = "", .length = 54, .steps = steps};
static_assert(flawOf(form) == Flaw::None);

}  // namespace

constinit const Layout imprimeNF_Padrao{.name = "ImprimeNF_Padrao", .form = &form};

}  // namespace tarn::notes
