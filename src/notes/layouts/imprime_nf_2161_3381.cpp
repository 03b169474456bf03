// Form of company 2161 at establishments 3381, 3382, 3384 and 3385: 136 columns in
// condensed print, with the services and their tax boxes below the products.
#include "notes/form_check.h"
#include "notes/form_rows.h"
#include "notes/layouts/layouts.h"

namespace tarn::notes {
namespace {

using enum Source;

constexpr Step steps[] = {
    row(1, bare(NoteNumber, 120)),
    row(5, mark(90, 103)),
    row(2, left(NatOper, 2, 37), left(CFOP, 41, 8)),
    row(2, left(RAZAO, 2, 80), left(CGC_CPF, 84, 30), left(DT_EMS_NF, 119, 14)),
    row(1, left(ENDERECO, 2, 69), left(BAIRRO, 71, 18), left(CEP, 99, 12), blank(118, 14)),
    row(2, left(MUNICIPIO, 2, 50), left(FONEFAX, 55, 18), left(UF, 81, 3), left(INSC_EST, 89, 28),
        blank(123, 14)),

    Parcels{
        .limit = 9,
        .message = "Número de Parcelas maior do que 9",
        .perRow = 3,
        .places = {place(left(NR_DOC, 6, 10), left(DT_VNC_DOC, 18, 10), right(VL_PRN_DOC, 31, 10)),
                   place(left(NR_DOC, 51, 10), left(DT_VNC_DOC, 63, 10), right(VL_PRN_DOC, 76, 10)),
                   place(left(NR_DOC, 96, 10), left(DT_VNC_DOC, 108, 10),
                         right(VL_PRN_DOC, 121, 10))},
        .lineEnds = {3, 3, 3, 2, 2, 2, 1, 1, 1, 1},
        .lineEndsAbove = 5},

    Items{.line = row(1, left(CD_PRO, 2, 7), left(DESCRICAO, 11, 62), left(OriginTax, 75, 3),
                      left(UNIDADE, 80, 5), right(QTDE, 87, 7), right(VALOR_UN, 98, 9),
                      right(LineTotal, 110, 17), left(ICMS, 135, 2)),
          .services = true},

    row(1, right(VALOR_BASE_ICMS, 2, 24), right(VALOR_ICMS, 28, 23),
        right(VALOR_BAS_ICMS_RTD, 54, 22), right(VALOR_ICMS_RTD, 78, 22),
        right(ProductTotal, 110, 24)),
    row(3, right(VALOR_FRETE, 2, 24), right(VALOR_SEGURO, 28, 23), right(VALOR_DES_ASC, 53, 22),
        right(VALOR_TOT_IPI, 77, 22), right(VALOR_TOT_NF, 109, 24)),
    row(1, left(DC_TRP, 2, 63), left(IC_RESP_FRT, 83, 2), left(CD_PLC_VEI_TRP, 87, 13),
        left(UF_PLACA_TRP, 102, 2), left(NR_CGC_CPL_TRP, 106, 27)),
    row(2, left(DC_LG_TRP, 2, 65), left(NM_MUN_TRP, 72, 28), left(SG_UF_TRP, 102, 3),
        left(CD_ICR_EST_TRP, 107, 25)),
    row(2, right(QT_ESP, 2, 15), text("VOLUME", 20, 17), blank(42, 15), blank(62, 21),
        right(PESO_BRU, 93, 22), right(PESO_LIQ, 120, 15)),

    row(1, labelled("FAT: ", NoteNumber, 2, 12), text(", ", 14),
        labelled("N/PED: ", ID_VND_DIR, 16, 15), text(", ", 31),
        labelled("S/PED: ", NR_PED_CLI, 33, 16), text(", ", 49),
        labelled("VEND: ", VENDEDOR, 51, 15)),
    row(1, piece(LegalText, 2, 1, 62)),
    row(1, piece(LegalText, 2, 63, 62)),
    row(1, piece(LegalText, 2, 125, 62)),
    row(1, piece(LegalText, 2, 187, 62)),
    row(1, piece(LegalText, 2, 249, 62)),
    row(4, piece(LegalText, 2, 311, 62)),
    row(5, bare(NoteNumber, 122)),
};

constexpr Form form{
    .setUp = "\x0F", .length = 46, .observation = Joined::SeparatedLabelled, .steps = steps};
static_assert(flawOf(form) == Flaw::None);

}  // namespace

constinit const Layout imprimeNF_2161_3381{.name = "ImprimeNF_2161_3381", .form = &form};

}  // namespace tarn::notes
