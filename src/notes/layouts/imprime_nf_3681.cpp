// Form of company 3681: wide paper, 160 columns, without boxes for the ICMS of the note.
// Below the additional data a preprinted sentence takes the tax credit and its rate
// (decision N49).
#include "notes/form_check.h"
#include "notes/form_rows.h"
#include "notes/layouts/layouts.h"

namespace tarn::notes {
namespace {

using enum Source;

constexpr Step steps[] = {
    row(1, bare(NoteNumber, 142)),
    row(5, mark(99, 117)),
    row(3, left(NatOper, 2, 40), left(CFOP, 49, 7)),
    row(2, left(RAZAO, 2, 75), left(CGC_CPF, 97, 18), left(DT_EMS_NF, 139, 14)),
    row(2, left(ENDERECO, 2, 60), left(COMPLEMENTO, 64, 18), left(BAIRRO, 84, 28),
        left(CEP, 120, 12), blank(132, 10)),
    row(2, left(MUNICIPIO, 2, 40), left(FONEFAX, 62, 20), left(UF, 88, 3), left(INSC_EST, 99, 30),
        blank(135, 14)),

    Parcels{
        .limit = 9,
        .message = "Numero de Parcelas maior do que 9",
        .perRow = 3,
        .places = {place(left(NR_DOC, 2, 10), right(VL_PRN_DOC, 14, 10), left(DT_VNC_DOC, 36, 10)),
                   place(left(NR_DOC, 57, 10), right(VL_PRN_DOC, 69, 10), left(DT_VNC_DOC, 91, 10)),
                   place(left(NR_DOC, 112, 10), right(VL_PRN_DOC, 124, 10),
                         left(DT_VNC_DOC, 146, 10))},
        .lineEnds = {5, 5, 5, 4, 4, 4, 3, 3, 3, 2},
        .lineEndsAbove = 5},

    Items{.line = row(1, left(CD_PRO, 2, 10), left(DESCRICAO, 15, 65), left(OriginTax, 86, 4),
                      left(UNIDADE, 93, 6), right(QTDE, 106, 7), right(VALOR_UN, 120, 13),
                      right(LineTotal, 137, 19), right(ICMS, 158, 2)),
          .overflow = Overflow::Cutting,
          .quantity = Quantity::PointsGroup,
          .lineEnds = 1},

    row(2, right(ProductTotal, 134, 21)),
    row(2, right(VALOR_FRETE, 13, 16), right(VALOR_SEGURO, 49, 10), right(VALOR_DES_ASC, 72, 20),
        right(VALOR_TOT_IPI, 107, 16), right(VALOR_TOT_NF, 146, 15)),
    row(2, left(DC_TRP, 2, 60), left(IC_RESP_FRT, 95, 2), left(CD_PLC_VEI_TRP, 103, 11),
        left(UF_PLACA_TRP, 122, 2), left(NR_CGC_CPL_TRP, 128, 18)),
    row(2, left(DC_LG_TRP, 2, 60), left(NM_MUN_TRP, 77, 35), left(SG_UF_TRP, 121, 2),
        left(CD_ICR_EST_TRP, 127, 18)),
    row(3, right(QT_ESP, 12, 11), text("VOLUME", 25, 11), blank(52, 8), blank(74, 24),
        right(PESO_BRU, 121, 16), right(PESO_LIQ, 151, 9)),

    Band{.piece = 74, .most = 2, .lines = 2},
    Band{.source = DC_OBS, .piece = 74, .most = 2, .lines = 3, .oneLineUpTo = 44},
    Credit{.amount = row(1, right(TaxCredit, 52, 16)), .rate = row(4, bare(TaxCreditRate, 33))},
    row(5, bare(NoteNumber, 147)),
};

constexpr Form form{
    .setUp = "\x0F\x1BM", .length = 47, .observation = Joined::Nothing, .steps = steps};
static_assert(flawOf(form) == Flaw::None);

}  // namespace

constinit const Layout imprimeNF_3681{.name = "ImprimeNF_3681", .form = &form};

}  // namespace tarn::notes
