// Form of company 1581: the parcels are in the box of the additional data, above the
// legal text. Six of them fill it, and what is left of their last row goes ahead of the
// legal text on its line.
#include "notes/form_check.h"
#include "notes/form_rows.h"
#include "notes/layouts/layouts.h"

namespace tarn::notes {
namespace {

using enum Source;

constexpr Step steps[] = {
    row(2, bare(NoteNumber, 122)),
    row(5, mark(96, 109)),
    row(3, left(NatOper, 2, 38), left(CFOP, 40, 8)),
    row(2, left(RAZAO, 2, 82), left(CGC_CPF, 89, 28), left(DT_EMS_NF, 122, 10)),
    row(2, left(ENDERECO, 2, 70), left(BAIRRO, 72, 21), left(CEP, 103, 12)),
    row(4, left(MUNICIPIO, 2, 49), left(FONEFAX, 55, 18), left(UF, 78, 3), left(INSC_EST, 86, 28)),

    Items{.line = row(1, left(CD_PRO, 6, 7), left(DESCRICAO, 18, 66), left(OriginTax, 86, 3),
                      left(UNIDADE, 92, 3), left(QTDE, 96, 7), right(VALOR_UN, 103, 9),
                      right(LineTotal, 113, 17), left(ICMS, 133, 2)),
          .lineEnds = 3},

    row(2, right(VALOR_BASE_ICMS, 2, 20), right(VALOR_ICMS, 27, 23),
        right(VALOR_BAS_ICMS_RTD, 55, 22), right(VALOR_ICMS_RTD, 82, 22),
        right(ProductTotal, 109, 22)),
    row(3, right(VALOR_FRETE, 2, 20), right(VALOR_SEGURO, 27, 23), right(VALOR_DES_ASC, 55, 22),
        right(VALOR_TOT_IPI, 82, 22), right(VALOR_TOT_NF, 109, 22)),
    row(2, left(DC_TRP, 2, 59), left(IC_RESP_FRT, 77, 2), left(CD_PLC_VEI_TRP, 84, 13),
        left(UF_PLACA_TRP, 99, 2), left(NR_CGC_CPL_TRP, 105, 27)),
    row(2, left(DC_LG_TRP, 2, 60), left(NM_MUN_TRP, 66, 32), left(SG_UF_TRP, 99, 2),
        left(CD_ICR_EST_TRP, 103, 20)),
    row(3, right(QT_ESP, 2, 17), text("VOLUME", 25, 17), blank(47, 15), blank(67, 21),
        right(PESO_BRU, 93, 18), right(PESO_LIQ, 114, 20)),

    row(1, labelled("N/PED: ", ID_VND_DIR, 2, 20), text(", ", 22),
        labelled("S/PED: ", NR_PED_CLI, 24, 20), text(", ", 44),
        labelled("VEND: ", VENDEDOR, 46, 30)),
    row(1, labelled("COND.PAGTO: ", DC_CND_PAG, 2, 70)),
    Parcels{.limit = 6,
            .message = "Número de Parcelas maior do que 6",
            .perRow = 3,
            .places =
                {place(bare(ParcelNumber, 3), left(DT_VNC_DOC, 5, 10), right(VL_PRN_DOC, 15, 9)),
                 place(bare(ParcelNumber, 25), left(DT_VNC_DOC, 27, 10), right(VL_PRN_DOC, 37, 9)),
                 place(bare(ParcelNumber, 47), left(DT_VNC_DOC, 49, 10), right(VL_PRN_DOC, 59, 9))},
            .lineEnds = {2, 2, 2, 1, 1, 1, 0},
            .lineEndsAbove = 2},
    row(1, piece(LegalText, 2, 1, 62)),
    row(1, piece(LegalText, 2, 63, 62)),
    row(1, piece(LegalText, 2, 125, 62)),
    row(4, piece(LegalText, 2, 187, 62)),
    row(5, bare(NoteNumber, 124)),
};

constexpr Form form{.setUp = "\x0F", .length = 49, .steps = steps};
static_assert(flawOf(form) == Flaw::None);

}  // namespace

constinit const Layout imprimeNF_1581{.name = "ImprimeNF_1581", .form = &form};

}  // namespace tarn::notes
