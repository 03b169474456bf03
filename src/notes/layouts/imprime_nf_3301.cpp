// Form of company 3301: 147 columns, without parcels. Below the items it lists their
// fiscal classes.
#include "notes/form_check.h"
#include "notes/form_rows.h"
#include "notes/layouts/layouts.h"

namespace tarn::notes {
namespace {

using enum Source;

constexpr Step steps[] = {
    row(2),
    row(6, mark(91, 107), bare(NoteNumber, 129)),
    row(3, left(NatOper, 2, 48), left(CFOP, 51, 8)),
    row(2, left(RAZAO, 2, 87), left(CGC_CPF, 92, 28), left(DT_EMS_NF, 124, 14)),
    row(1, left(ENDERECO, 2, 64), left(BAIRRO, 67, 35), left(CEP, 103, 12), blank(121, 14)),
    row(4, left(MUNICIPIO, 2, 50), left(FONEFAX, 64, 16), left(UF, 86, 3), left(INSC_EST, 99, 28),
        blank(133, 14)),

    Items{.line = row(1, left(CD_PRO, 2, 10), left(DESCRICAO, 13, 56), left(GF_AGRUP, 73, 4),
                      left(OriginTax, 78, 4), left(UNIDADE, 84, 4), left(QTDE, 89, 5),
                      right(VALOR_UN, 96, 12), right(LineTotal, 108, 13),
                      under("####0", right(ICMS, 123, 2)), right(AQ_IPI, 128, 2),
                      right(VL_IPI, 131, 7)),
          .overflow = Overflow::Cutting,
          .quantity = Quantity::PointsGroup,
          .classes = true,
          .lineEnds = 1},

    row(3, labelled("CL. FISCAL - ", ClassLine, 2, 0)),
    row(2, right(VALOR_BASE_ICMS, 5, 21), right(VALOR_ICMS, 29, 21),
        right(VALOR_BAS_ICMS_RTD, 59, 21), right(VALOR_ICMS_RTD, 87, 21),
        right(ProductTotal, 115, 21)),
    row(3, right(VALOR_FRETE, 5, 21), right(VALOR_SEGURO, 29, 21), right(VALOR_DES_ASC, 59, 21),
        right(VALOR_TOT_IPI, 87, 21), right(VALOR_TOT_NF, 115, 21)),
    row(2, left(DC_TRP, 2, 72), left(IC_RESP_FRT, 79, 2), left(CD_PLC_VEI_TRP, 87, 13),
        left(UF_PLACA_TRP, 105, 2), left(NR_CGC_CPL_TRP, 112, 22)),
    row(2, left(DC_LG_TRP, 2, 70), left(NM_MUN_TRP, 74, 30), left(SG_UF_TRP, 105, 2),
        left(CD_ICR_EST_TRP, 112, 20)),
    row(3, right(QT_ESP, 2, 13), text("VOLUME", 20, 17), blank(39, 25), blank(66, 24),
        right(PESO_BRU, 91, 22), right(PESO_LIQ, 123, 12)),

    row(1, piece(LegalText, 4, 1, 58)),
    row(7, left(DC_OBS, 2, 58)),
    row(4, bare(NoteNumber, 142)),
};

constexpr Form form{
    .setUp = "\x0F\x1B\x1BG", .length = 46, .observation = Joined::Nothing, .steps = steps};
static_assert(flawOf(form) == Flaw::None);

}  // namespace

constinit const Layout imprimeNF_3301{.name = "ImprimeNF_3301", .form = &form};

}  // namespace tarn::notes
