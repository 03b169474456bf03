// Form of company 2161 at establishment 3383: products only. Its order references
// begin twice, the second time with a line end inside the call, which the stated
// length doesn't count (decision N40). Of the legal text, characters 249 to 310 never
// print (N41).
#include "notes/form_check.h"
#include "notes/form_rows.h"
#include "notes/layouts/layouts.h"

namespace tarn::notes {
namespace {

using enum Source;

constexpr Step steps[] = {
    row(1, bare(NoteNumber, 122)),
    row(5, mark(105, 118)),
    row(2, left(NatOper, 6, 38), left(CFOP, 44, 8)),
    row(2, left(RAZAO, 6, 82), left(CGC_CPF, 93, 28), left(DT_EMS_NF, 126, 10)),
    row(1, left(ENDERECO, 6, 70), left(BAIRRO, 76, 21), left(CEP, 107, 12)),
    row(3, left(MUNICIPIO, 6, 49), left(FONEFAX, 59, 18), left(UF, 82, 3), left(INSC_EST, 90, 28)),

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

    Items{.line = row(1, left(CD_PRO, 6, 7), left(DESCRICAO, 16, 57), left(OriginTax, 76, 3),
                      left(UNIDADE, 82, 5), right(QTDE, 88, 7), right(VALOR_UN, 102, 9),
                      right(LineTotal, 116, 17), left(ICMS, 136, 2)),
          .lineEnds = 3},

    row(2, right(VALOR_BASE_ICMS, 2, 24), right(VALOR_ICMS, 31, 23),
        right(VALOR_BAS_ICMS_RTD, 59, 22), right(VALOR_ICMS_RTD, 86, 22),
        right(ProductTotal, 113, 22)),
    row(2, right(VALOR_FRETE, 2, 24), right(VALOR_SEGURO, 31, 23), right(VALOR_DES_ASC, 59, 22),
        right(VALOR_TOT_IPI, 86, 22), right(VALOR_TOT_NF, 113, 22)),
    row(1, left(DC_TRP, 6, 59), left(IC_RESP_FRT, 84, 2), left(CD_PLC_VEI_TRP, 91, 13),
        left(UF_PLACA_TRP, 106, 2), left(NR_CGC_CPL_TRP, 110, 27)),
    row(2, left(DC_LG_TRP, 6, 65), left(NM_MUN_TRP, 75, 28), left(SG_UF_TRP, 104, 2),
        left(CD_ICR_EST_TRP, 108, 20)),
    row(1, right(QT_ESP, 2, 17), text("VOLUME", 25, 17), blank(47, 15), blank(67, 21),
        right(PESO_BRU, 93, 22), right(PESO_LIQ, 118, 20)),

    row(1, labelled("FAT: ", NoteNumber, 6, 15), text(", ", 21),
        labelled("N/PED: ", ID_VND_DIR, 23, 20)),
    row(1, labelled("FAT: ", NoteNumber, 6, 15), text(", ", 21),
        labelled("N/PED: ", ID_VND_DIR, 23, 20), text("\r\n", 43),
        labelled("S/PED: ", NR_PED_CLI, 49, 20), text(", ", 69),
        labelled("VEND: ", VENDEDOR, 71, 30)),
    row(1, piece(LegalText, 6, 1, 62)),
    row(1, piece(LegalText, 6, 63, 62)),
    row(1, piece(LegalText, 6, 125, 62)),
    row(1, piece(LegalText, 6, 187, 62)),
    row(3, piece(LegalText, 6, 311, 62)),
    row(5, bare(NoteNumber, 124)),
};

constexpr Form form{.setUp = "\x0F", .length = 42, .steps = steps};
static_assert(flawOf(form) == Flaw::None);

}  // namespace

constinit const Layout imprimeNF_2161_3383{.name = "ImprimeNF_2161_3383", .form = &form};

}  // namespace tarn::notes
