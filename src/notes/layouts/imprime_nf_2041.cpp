// Form of company 2041: 186 columns in condensed print. The legal text is beside
// the column of the order references (decision N36). With a full form it grows by a line (N25).
#include "notes/form_check.h"
#include "notes/form_rows.h"
#include "notes/layouts/layouts.h"

namespace tarn::notes {
namespace {

using enum Source;

constexpr Step steps[] = {
    row(3),
    row(1, bare(NoteNumber, 162)),
    row(5, mark(121, 131)),
    row(3, left(NatOper, 6, 50), left(CFOP, 58, 8)),
    row(2, left(RAZAO, 6, 115), left(CGC_CPF, 126, 28), left(DT_EMS_NF, 166, 14)),
    row(2, left(ENDERECO, 6, 90), left(BAIRRO, 99, 35), left(CEP, 136, 12), blank(154, 14)),
    row(3, left(MUNICIPIO, 6, 77), left(FONEFAX, 87, 22), left(UF, 111, 3), left(INSC_EST, 124, 28),
        blank(158, 14)),

    Parcels{
        .limit = 9,
        .message = "Número de Parcelas maior do que 9",
        .perRow = 3,
        .places = {place(left(NR_DOC, 12, 10), right(VL_PRN_DOC, 24, 12), left(DT_VNC_DOC, 46, 10)),
                   place(left(NR_DOC, 71, 10), right(VL_PRN_DOC, 83, 12),
                         left(DT_VNC_DOC, 105, 10)),
                   place(left(NR_DOC, 130, 10), right(VL_PRN_DOC, 142, 12),
                         left(DT_VNC_DOC, 164, 10))},
        .lineEnds = {5, 5, 5, 4, 4, 4, 3, 3, 3, 2},
        .lineEndsAbove = 5},

    Items{.line = row(1, left(CD_PRO, 6, 10), left(DESCRICAO, 19, 55), left(CL_FISCAL, 82, 12),
                      left(OriginTax, 94, 3), left(UNIDADE, 100, 2), right(QTDE, 106, 10),
                      under("##,##0.00", right(VALOR_UN, 118, 15)), right(LineTotal, 136, 18),
                      right(ICMS, 158, 5), right(AQ_IPI, 163, 5), left(VL_IPI, 172, 15)),
          .productsOnly = false,
          .constant = -1,
          .lineEnds = 1},

    row(2, right(VALOR_BASE_ICMS, 7, 25), right(VALOR_ICMS, 42, 23),
        right(VALOR_BAS_ICMS_RTD, 75, 22), right(VALOR_ICMS_RTD, 107, 22),
        right(ProductTotal, 141, 25)),
    row(3, right(VALOR_FRETE, 7, 25), right(VALOR_SEGURO, 42, 23), right(VALOR_DES_ASC, 75, 22),
        right(VALOR_TOT_IPI, 107, 22), right(VALOR_TOT_NF, 141, 25)),
    row(2, left(DC_TRP, 6, 76), left(IC_RESP_FRT, 92, 2), left(CD_PLC_VEI_TRP, 105, 13),
        left(UF_PLACA_TRP, 133, 2), left(NR_CGC_CPL_TRP, 145, 27)),
    row(2, left(DC_LG_TRP, 6, 65), left(NM_MUN_TRP, 75, 57), left(SG_UF_TRP, 135, 2),
        left(CD_ICR_EST_TRP, 147, 27)),
    row(3, right(QT_ESP, 6, 13), text("VOLUME", 27, 17), blank(49, 15), blank(69, 21),
        right(PESO_BRU, 110, 22), right(PESO_LIQ, 142, 20)),

    row(1, left(ID_VND_DIR, 6, 20), labelled("COND.PAGTO: ", DC_CND_PAG, 28, 70)),
    row(1, piece(LegalText, 28, 1, 85)),
    row(1, left(NR_PED_CLI, 6, 20), piece(LegalText, 28, 86, 85)),
    row(1, piece(LegalText, 28, 171, 85)),
    row(6, left(VENDEDOR, 6, 20), piece(LegalText, 28, 256, 85)),
    row(4, bare(NoteNumber, 162)),
};

constexpr Form form{.setUp = "\x0F", .length = 50, .observation = Joined::Bare, .steps = steps};
static_assert(flawOf(form) == Flaw::None);

}  // namespace

constinit const Layout imprimeNF_2041{.name = "ImprimeNF_2041", .form = &form};

}  // namespace tarn::notes
