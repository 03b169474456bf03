// Form of company 2161 at establishment 3341: 160 columns in condensed print, with the
// services and their tax boxes below the products.
#include "notes/form_check.h"
#include "notes/form_rows.h"
#include "notes/layouts/layouts.h"

namespace tarn::notes {
namespace {

using enum Source;

constexpr Step steps[] = {
    row(2, bare(NoteNumber, 142)),
    row(4, mark(106, 119)),
    row(2, left(NatOper, 6, 40), left(CFOP, 50, 8)),
    row(2, left(RAZAO, 6, 82), left(CGC_CPF, 100, 28), left(DT_EMS_NF, 143, 14)),
    row(1, left(ENDERECO, 6, 81), left(BAIRRO, 87, 21), left(CEP, 118, 12), blank(137, 14)),
    row(3, left(MUNICIPIO, 6, 49), left(FONEFAX, 62, 18), left(UF, 94, 3), left(INSC_EST, 102, 28),
        blank(136, 14)),

    Parcels{
        .limit = 9,
        .message = "Número de Parcelas maior do que 9",
        .perRow = 3,
        .places = {place(left(NR_DOC, 6, 10), left(DT_VNC_DOC, 19, 10), right(VL_PRN_DOC, 32, 15)),
                   place(left(NR_DOC, 60, 10), left(DT_VNC_DOC, 73, 10), right(VL_PRN_DOC, 86, 15)),
                   place(left(NR_DOC, 114, 10), left(DT_VNC_DOC, 127, 10),
                         right(VL_PRN_DOC, 140, 15))},
        .lineEnds = {3, 3, 3, 2, 2, 2, 1, 1, 1, 1},
        .lineEndsAbove = 5},

    Items{.line = row(1, left(CD_PRO, 6, 7), left(DESCRICAO, 16, 64), left(OriginTax, 88, 3),
                      left(UNIDADE, 94, 5), right(QTDE, 102, 7), right(VALOR_UN, 122, 9),
                      right(LineTotal, 136, 17), left(ICMS, 159, 2)),
          .services = true},

    row(2, right(VALOR_BASE_ICMS, 2, 24), right(VALOR_ICMS, 31, 23),
        right(VALOR_BAS_ICMS_RTD, 59, 22), right(VALOR_ICMS_RTD, 86, 22),
        right(ProductTotal, 123, 24)),
    row(2, right(VALOR_FRETE, 2, 24), right(VALOR_SEGURO, 31, 23), right(VALOR_DES_ASC, 59, 22),
        right(VALOR_TOT_IPI, 86, 22), right(VALOR_TOT_NF, 123, 24)),
    row(1, left(DC_TRP, 6, 59), left(IC_RESP_FRT, 98, 2), left(CD_PLC_VEI_TRP, 105, 13),
        left(UF_PLACA_TRP, 122, 2), left(NR_CGC_CPL_TRP, 129, 27)),
    row(2, left(DC_LG_TRP, 6, 65), left(NM_MUN_TRP, 83, 35), left(SG_UF_TRP, 122, 2),
        left(CD_ICR_EST_TRP, 129, 27)),
    row(2, right(QT_ESP, 2, 17), text("VOLUME", 25, 17), blank(47, 15), blank(67, 21),
        right(PESO_BRU, 109, 22), right(PESO_LIQ, 139, 20)),

    row(1, labelled("FAT: ", NoteNumber, 6, 15), text(", ", 21),
        labelled("N/PED: ", ID_VND_DIR, 23, 20), text(", ", 43),
        labelled("S/PED: ", NR_PED_CLI, 45, 20), text(", ", 65),
        labelled("VEND: ", VENDEDOR, 67, 30)),
    row(1, piece(LegalText, 6, 1, 62)),
    row(1, piece(LegalText, 6, 63, 62)),
    row(1, piece(LegalText, 6, 125, 62)),
    row(1, piece(LegalText, 6, 187, 62)),
    row(1, piece(LegalText, 6, 249, 62)),
    row(4, piece(LegalText, 6, 311, 62)),
    row(5, bare(NoteNumber, 137)),
};

constexpr Form form{
    .setUp = "\x0F", .length = 47, .observation = Joined::SeparatedLabelled, .steps = steps};
static_assert(flawOf(form) == Flaw::None);

}  // namespace

constinit const Layout imprimeNF_2161_3341{.name = "ImprimeNF_2161_3341", .form = &form};

}  // namespace tarn::notes
