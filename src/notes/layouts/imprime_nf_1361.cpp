// Form of companies 1361, 141 and 761: 138 columns in condensed print.
#include "notes/form_check.h"
#include "notes/form_rows.h"
#include "notes/layouts/layouts.h"

namespace tarn::notes {
namespace {

using enum Source;

constexpr Step steps[] = {
    row(6, mark(90, 104), bare(NoteNumber, 125)),
    row(3, left(NatOper, 2, 38), left(CFOP, 44, 8)),
    row(2, left(RAZAO, 2, 82), left(CGC_CPF, 89, 28), left(DT_EMS_NF, 123, 14)),
    row(2, left(ENDERECO, 2, 74), left(BAIRRO, 79, 21), left(CEP, 105, 12), blank(123, 14)),
    row(3, left(MUNICIPIO, 2, 53), left(FONEFAX, 59, 18), left(UF, 81, 3), left(INSC_EST, 89, 28),
        blank(123, 14)),

    Parcels{.limit = 9,
            .message = "Número de Parcelas maior do que 9",
            .perRow = 3,
            .places = {place(right(VL_PRN_DOC, 23, 17), left(DT_VNC_DOC, 45, 10)),
                       place(right(VL_PRN_DOC, 62, 18), left(DT_VNC_DOC, 86, 10)),
                       place(right(VL_PRN_DOC, 103, 20), left(DT_VNC_DOC, 127, 10))},
            .lineEnds = {6, 5, 5, 4, 4, 4, 3, 3, 3, 2},
            .lineEndsAbove = 6},

    Items{.line = row(1, left(CD_PRO, 2, 7), left(DESCRICAO, 12, 46), left(POS_NF, 60, 2),
                      left(OriginTax, 64, 3), left(UNIDADE, 69, 5), right(QTDE, 78, 7),
                      right(VALOR_UN, 89, 9), right(LineTotal, 101, 17), right(Discount, 120, 5),
                      left(ICMS, 125, 5), left(AQ_IPI, 130, 5), blank(135, 5)),
          .productsOnly = false,
          .lineEnds = 2},

    row(2, right(VALOR_BASE_ICMS, 2, 24), right(VALOR_ICMS, 31, 23),
        right(VALOR_BAS_ICMS_RTD, 59, 22), right(VALOR_ICMS_RTD, 86, 22),
        right(ProductTotal, 113, 24)),
    row(3, right(VALOR_FRETE, 2, 24), right(VALOR_SEGURO, 31, 23), right(VALOR_DES_ASC, 59, 22),
        right(VALOR_TOT_IPI, 86, 22), right(VALOR_TOT_NF, 113, 24)),
    row(2, left(DC_TRP, 2, 59), left(IC_RESP_FRT, 79, 2), left(CD_PLC_VEI_TRP, 86, 13),
        left(UF_PLACA_TRP, 103, 2), left(NR_CGC_CPL_TRP, 110, 27)),
    row(2, left(DC_LG_TRP, 2, 59), left(NM_MUN_TRP, 65, 34), left(SG_UF_TRP, 103, 2),
        left(CD_ICR_EST_TRP, 110, 27)),
    row(3, right(QT_ESP, 2, 17), text("VOLUME", 23, 17), blank(45, 15), blank(65, 21),
        right(PESO_BRU, 91, 22), right(PESO_LIQ, 117, 20)),

    row(1, labelled("FATURA..: ", NoteNumber, 16, 48)),
    row(1, labelled("N/PEDIDO: ", ID_VND_DIR, 16, 48)),
    row(1, labelled("S/PEDIDO: ", NR_PED_CLI, 16, 48)),
    row(1, labelled("VENDEDOR: ", VENDEDOR, 16, 48)),
    row(1, piece(LegalText, 2, 1, 62)),
    row(1, piece(LegalText, 2, 63, 62)),
    row(4, piece(LegalText, 2, 125, 62)),
    row(8, bare(NoteNumber, 123)),
};

constexpr Form form{.setUp = "\x0F", .length = 53, .steps = steps};
static_assert(flawOf(form) == Flaw::None);

}  // namespace

constinit const Layout imprimeNF_1361{.name = "ImprimeNF_1361", .form = &form};

}  // namespace tarn::notes
