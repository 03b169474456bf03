// Form of company 2801: wide paper, 166 columns. The parcels are in the box of the
// additional data, above the legal text. Six of them fill it, and what is left of their
// last row goes ahead of the legal text on its line.
#include "notes/form_check.h"
#include "notes/form_rows.h"
#include "notes/layouts/layouts.h"

namespace tarn::notes {
namespace {

using enum Source;

constexpr Step steps[] = {
    row(1, bare(NoteNumber, 156)),
    row(5, mark(111, 128)),
    row(3, left(NatOper, 2, 36), left(CFOP, 41, 12)),
    row(2, left(RAZAO, 2, 100), left(CGC_CPF, 115, 28), left(DT_EMS_NF, 146, 10)),
    row(2, left(ENDERECO, 2, 88), left(BAIRRO, 93, 24), left(CEP, 121, 12)),
    row(4, left(MUNICIPIO, 2, 68), left(FONEFAX, 73, 22), left(UF, 96, 4), left(INSC_EST, 115, 28)),

    Items{.line = row(1, left(CD_PRO, 2, 7), left(DESCRICAO, 13, 92), left(OriginTax, 108, 4),
                      left(UNIDADE, 114, 8), left(QTDE, 123, 8), right(VALOR_UN, 133, 13),
                      right(LineTotal, 147, 13), left(ICMS, 162, 2)),
          .lineEnds = 2},

    row(2, right(VALOR_BASE_ICMS, 2, 26), right(VALOR_ICMS, 30, 26),
        right(VALOR_BAS_ICMS_RTD, 58, 38), right(VALOR_ICMS_RTD, 98, 30),
        right(ProductTotal, 130, 34)),
    row(3, right(VALOR_FRETE, 2, 26), right(VALOR_SEGURO, 30, 26), right(VALOR_DES_ASC, 58, 38),
        right(VALOR_TOT_IPI, 98, 30), right(VALOR_TOT_NF, 130, 34)),
    row(2, left(DC_TRP, 2, 70), left(IC_RESP_FRT, 96, 2), left(CD_PLC_VEI_TRP, 103, 18),
        left(UF_PLACA_TRP, 123, 2), left(NR_CGC_CPL_TRP, 129, 27)),
    row(2, left(DC_LG_TRP, 2, 70), left(NM_MUN_TRP, 74, 46), left(SG_UF_TRP, 123, 2),
        left(CD_ICR_EST_TRP, 131, 36)),
    row(3, right(QT_ESP, 2, 18), text("VOLUME", 23, 30), blank(55, 20), blank(77, 28),
        right(PESO_BRU, 107, 27), right(PESO_LIQ, 136, 28)),

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
    row(3, piece(LegalText, 2, 187, 62)),
    row(4, bare(NoteNumber, 134)),
};

constexpr Form form{.setUp = "\x0F\x1BM", .length = 45, .steps = steps};
static_assert(flawOf(form) == Flaw::None);

}  // namespace

constinit const Layout imprimeNF_2801{.name = "ImprimeNF_2801", .form = &form};

}  // namespace tarn::notes
