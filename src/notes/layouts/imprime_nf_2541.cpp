// The note of company 2541, drawn on blank A4: what the default form prints, text
// under text. In a proportional face the widths are rough positions only, and many
// items run into the totals.
#include "notes/drawn_form.h"
#include "notes/form_rows.h"
#include "notes/layouts/layouts.h"

namespace tarn::notes {
namespace {

using enum Source;

constexpr double margin = 1.6;

template <typename... Fields>
constexpr DrawnRow drawn(double y, Fields... fields) {
    return {.x = margin, .y = y, .row = row(0, fields...)};
}

constexpr DrawnStep steps[] = {
    DrawnRow{.x = margin, .y = 1.5, .bold = true, .row = row(0, bare(EntryOrExit, 2))},
    DrawnRow{.x = 5.0, .y = 1.5, .bold = true, .row = row(0, bare(NoteNumber, 2))},
    drawn(2.0, bare(NatOper, 2), as(Rule::AsText, bare(CFOP, 5))),
    drawn(2.5, bare(RAZAO, 2)),
    drawn(3.0, bare(CGC_CPF, 2)),
    drawn(3.5, bare(DT_EMS_NF, 2)),
    drawn(4.0, left(ENDERECO, 2, 110), left(BAIRRO, 114, 32), bare(CEP, 148)),
    drawn(5.0, left(MUNICIPIO, 2, 50), left(FONEFAX, 53, 20), left(UF, 74, 5)),
    drawn(5.5, left(INSC_EST, 2, 25)),

    DrawnParcels{
        .x = margin,
        .y = 6.0,
        .step = 0.5,
        .limit = 4,
        .message = "Número de Parcelas maior do que 4",
        .row = row(0, left(NR_DOC, 2, 20), left(DT_VNC_DOC, 23, 20), bare(VL_PRN_DOC, 44))},

    drawn(8.5, left(ENDERECO_COB, 2, 20), left(BAIRRO_COB, 24, 20), bare(CEP_COB, 46)),
    drawn(9.0, left(MUNICIPIO_COB, 2, 20), left(UF_COB, 24, 12)),
    drawn(9.5, left(ENDERECO_ETG, 2, 20), left(BAIRRO_ETG, 24, 20), bare(CEP_ETG, 46)),
    drawn(10.0, left(MUNICIPIO_ETG, 2, 20), left(UF_ETG, 24, 12)),

    DrawnItems{
        .x = margin,
        .y = 10.5,
        .step = 0.4,
        .row = row(0, right(CD_PRO, 2, 11), left(DESCRICAO, 15, 40), left(SIT_TRI, 57, 4),
                   left(UNIDADE, 63, 4), as(Rule::General, right(QTDE, 69, 4)),
                   right(VALOR_UN, 75, 9), right(LineTotal, 86, 10),
                   as(Rule::AsAmount, right(ICMS, 98, 4)), as(Rule::AsAmount, right(IPI, 102, 4)))},

    // The withheld tax is there twice, the first time in the place of its base.
    drawn(25.0, right(VALOR_BASE_ICMS, 2, 15), right(VALOR_ICMS, 19, 15),
          right(VALOR_ICMS_RTD, 36, 15), right(VALOR_ICMS_RTD, 53, 15), right(VALOR_TOTAL, 70, 15)),
    drawn(25.5, right(VALOR_FRETE, 2, 15), right(VALOR_SEGURO, 19, 15),
          right(VALOR_DES_ASC, 36, 15), right(VALOR_TOT_IPI, 53, 15), right(VALOR_TOT_NF, 70, 15)),
    drawn(26.0, left(DC_TRP, 2, 30), left(CD_PLC_VEI_TRP, 59, 10), bare(NR_CGC_CPL_TRP, 77)),
    drawn(26.5, left(DC_LG_TRP, 2, 30), left(NM_MUN_TRP, 36, 20), left(SG_UF_TRP, 59, 3),
          left(CD_ICR_EST_TRP, 65, 15)),
    drawn(27.0, right(QuantitySum, 2, 8), text("VOLUME", 14, 10), right(WeightSum, 27, 10),
          right(WeightSum, 38, 10)),
    drawn(27.5, text("TEXTOS LEGAIS GRAVADOS NA TRIBUTAÇÃO", 2)),
    drawn(28.0, text("CONFIGURADOS VIA PROGRAMAÇÃO DE CADA CLIENTE TARN", 2)),
    drawn(28.5, bare(NoteNumber, 2)),
};

constexpr DrawnForm form{.font = "Arial", .size = 8, .steps = steps};
static_assert(flawOf(form) == Flaw::None);

}  // namespace

constinit const Layout imprimeNF_2541{.name = "ImprimeNF_2541", .drawn = &form};

}  // namespace tarn::notes
