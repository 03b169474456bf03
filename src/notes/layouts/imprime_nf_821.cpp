// Form of company 821: wide paper, 176 columns. Below the items it lists their fiscal
// classes.
#include "notes/form_check.h"
#include "notes/form_rows.h"
#include "notes/layouts/layouts.h"

namespace tarn::notes {
namespace {

using enum Source;

constexpr Step steps[] = {
    row(2),
    row(6, mark(110, 122), bare(NoteNumber, 151)),
    row(3, left(NatOper, 2, 50), left(CFOP, 54, 8)),
    row(2, left(RAZAO, 2, 100), left(CGC_CPF, 103, 28), left(DT_EMS_NF, 143, 14)),
    row(1, left(ENDERECO, 2, 90), left(BAIRRO, 93, 35), left(CEP, 128, 12), blank(146, 14)),
    row(2, left(MUNICIPIO, 2, 74), left(FONEFAX, 78, 16), left(UF, 95, 3), left(INSC_EST, 108, 28),
        blank(142, 14)),

    Parcels{
        .limit = 4,
        .message = "Numero de Parcelas maior do que 4",
        .perRow = 2,
        .places = {place(left(NR_DOC, 26, 10), left(DT_VNC_DOC, 51, 10), right(VL_PRN_DOC, 71, 10)),
                   place(left(NR_DOC, 101, 10), left(DT_VNC_DOC, 126, 10),
                         right(VL_PRN_DOC, 146, 10))},
        .lineEnds = {5, 5, 4, 4, 2},
        .lineEndsAbove = 5},

    Items{.line = row(1, left(CD_PRO, 2, 10), left(DESCRICAO, 15, 55), left(CFOP_ITEM, 78, 4),
                      left(GF_AGRUP, 86, 4), left(OriginTax, 91, 4), left(UNIDADE, 96, 6),
                      left(QTDE, 102, 7), right(VALOR_UN, 110, 13), right(LineTotal, 123, 19),
                      under("####0", right(ICMS, 146, 2)), right(AQ_IPI, 150, 2),
                      right(VL_IPI, 154, 6)),
          .overflow = Overflow::Cutting,
          .quantity = Quantity::PointsGroup,
          .classes = true,
          .lineEnds = 1},

    row(3, labelled("CL. FISCAL - ", ClassLine, 2, 0)),
    row(2, right(VALOR_BASE_ICMS, 7, 25), right(VALOR_ICMS, 42, 23),
        right(VALOR_BAS_ICMS_RTD, 72, 22), right(VALOR_ICMS_RTD, 101, 22),
        right(ProductTotal, 130, 25)),
    row(3, right(VALOR_FRETE, 7, 25), right(VALOR_SEGURO, 42, 23), right(VALOR_DES_ASC, 72, 22),
        right(VALOR_TOT_IPI, 101, 22), right(VALOR_TOT_NF, 130, 25)),
    row(2, left(DC_TRP, 2, 76), left(IC_RESP_FRT, 100, 2), left(CD_PLC_VEI_TRP, 110, 13),
        left(UF_PLACA_TRP, 129, 2), left(NR_CGC_CPL_TRP, 135, 22)),
    row(2, left(DC_LG_TRP, 2, 65), left(NM_MUN_TRP, 85, 38), left(SG_UF_TRP, 129, 2),
        left(CD_ICR_EST_TRP, 134, 20)),
    row(2, right(QT_ESP, 2, 13), text("VOLUME", 20, 17), blank(42, 25), blank(69, 24),
        right(PESO_BRU, 120, 22), right(PESO_LIQ, 143, 12)),

    row(1, piece(LegalText, 4, 1, 85)),
    row(3, left(DC_OBS, 2, 85)),
    row(3, left(ID_VND_DIR, 2, 28), left(VENDEDOR, 35, 28), left(NR_PED_CLI, 68, 28)),
    row(4, bare(NoteNumber, 170)),
};

constexpr Form form{
    .setUp = "\x0F\x1BM", .length = 47, .observation = Joined::Nothing, .steps = steps};
static_assert(flawOf(form) == Flaw::None);

}  // namespace

constinit const Layout imprimeNF_821{.name = "ImprimeNF_821", .form = &form};

}  // namespace tarn::notes
