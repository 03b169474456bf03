// Form of company 2321: the note number is among the order references only. The
// second and third piece of the legal text share a character.
#include "notes/form_check.h"
#include "notes/form_rows.h"
#include "notes/layouts/layouts.h"

namespace tarn::notes {
namespace {

using enum Source;

constexpr Step steps[] = {
    row(2),
    row(4, mark(89, 101)),
    row(3, left(NatOper, 2, 40), left(CFOP, 48, 8)),
    row(2, left(RAZAO, 2, 82), left(CGC_CPF, 92, 28), left(DT_EMS_NF, 122, 14)),
    row(2, left(ENDERECO, 2, 71), left(BAIRRO, 73, 21), left(CEP, 104, 12), blank(118, 14)),
    row(2, left(MUNICIPIO, 2, 49), left(FONEFAX, 61, 18), left(UF, 82, 3), left(INSC_EST, 90, 28),
        blank(124, 14)),

    Parcels{
        .limit = 9,
        .message = "Número de Parcelas maior do que 9",
        .perRow = 3,
        .places = {place(left(NR_DOC, 4, 7), left(DT_VNC_DOC, 12, 10), right(VL_PRN_DOC, 23, 15)),
                   place(left(NR_DOC, 44, 7), left(DT_VNC_DOC, 52, 10), right(VL_PRN_DOC, 63, 15)),
                   place(left(NR_DOC, 84, 7), left(DT_VNC_DOC, 92, 10),
                         right(VL_PRN_DOC, 103, 15))},
        .lineEnds = {4, 4, 4, 3, 3, 3, 2, 2, 2, 2},
        .lineEndsAbove = 6},

    Items{.line = row(1, left(DESCRICAO, 2, 69), left(OriginTax, 74, 3), left(UNIDADE, 81, 5),
                      right(QTDE, 89, 7), right(VALOR_UN, 99, 9), right(LineTotal, 109, 17),
                      left(ICMS, 128, 2)),
          .lineEnds = 3},

    row(2, right(VALOR_BASE_ICMS, 2, 22), right(VALOR_ICMS, 27, 20),
        right(VALOR_BAS_ICMS_RTD, 52, 22), right(VALOR_ICMS_RTD, 79, 22),
        right(ProductTotal, 107, 24)),
    row(3, right(VALOR_FRETE, 2, 22), right(VALOR_SEGURO, 27, 20), right(VALOR_DES_ASC, 52, 22),
        right(VALOR_TOT_IPI, 79, 22), right(VALOR_TOT_NF, 107, 24)),
    row(2, left(DC_TRP, 2, 59), left(IC_RESP_FRT, 75, 2), left(CD_PLC_VEI_TRP, 82, 13),
        left(UF_PLACA_TRP, 99, 2), left(NR_CGC_CPL_TRP, 106, 27)),
    row(2, left(DC_LG_TRP, 2, 65), left(NM_MUN_TRP, 75, 24), left(SG_UF_TRP, 100, 2),
        left(CD_ICR_EST_TRP, 107, 27)),
    row(3, right(QT_ESP, 2, 17), text("VOLUME", 25, 17), blank(47, 15), blank(65, 21),
        right(PESO_BRU, 90, 22), right(PESO_LIQ, 114, 18)),

    row(1, labelled("FAT: ", NoteNumber, 2, 15), text(", ", 17),
        labelled("N/PED: ", ID_VND_DIR, 19, 20)),
    row(1, labelled("S/PED: ", NR_PED_CLI, 2, 20), text(", ", 22),
        labelled("VEND: ", VENDEDOR, 24, 30)),
    row(1, piece(LegalText, 2, 1, 64)),
    row(1, piece(LegalText, 2, 65, 64)),
    row(1, piece(LegalText, 2, 128, 64)),
    row(6, piece(LegalText, 2, 192, 64)),
};

constexpr Form form{.setUp = "\x0F\x1B\x1BG", .length = 45, .steps = steps};
static_assert(flawOf(form) == Flaw::None);

}  // namespace

constinit const Layout imprimeNF_2321{.name = "ImprimeNF_2321", .form = &form};

}  // namespace tarn::notes
