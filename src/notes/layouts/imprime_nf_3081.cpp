// Form of companies 3081 and 3141: wide paper, 160 columns, with both addresses. Below
// the items it lists their fiscal classes.
#include "notes/form_check.h"
#include "notes/form_rows.h"
#include "notes/layouts/layouts.h"

namespace tarn::notes {
namespace {

using enum Source;

constexpr Step steps[] = {
    row(2, bare(NoteNumber, 142)),
    row(4, mark(99, 117)),
    row(3, left(NatOper, 2, 40), left(CFOP, 49, 7)),
    row(2, left(RAZAO, 2, 75), left(CGC_CPF, 97, 18), left(DT_EMS_NF, 139, 14)),
    row(2, left(ENDERECO, 2, 60), left(COMPLEMENTO, 64, 18), left(BAIRRO, 84, 28),
        left(CEP, 120, 12), blank(132, 10)),
    row(3, left(MUNICIPIO, 2, 40), left(FONEFAX, 62, 20), left(UF, 88, 3), left(INSC_EST, 99, 30),
        blank(135, 14)),

    Parcels{
        .limit = 4,
        .message = "Numero de Parcelas maior do que 4",
        .perRow = 2,
        .places = {place(left(NR_DOC, 18, 10), right(VL_PRN_DOC, 30, 10), left(DT_VNC_DOC, 52, 10)),
                   place(left(NR_DOC, 84, 10), right(VL_PRN_DOC, 96, 10),
                         left(DT_VNC_DOC, 118, 10))},
        .lineEnds = {3, 3, 3, 2, 1},
        .lineEndsAbove = 3},
    row(3, left(ENDERECO_COB, 2, 60), text("-", 64), left(COMPLEMENTO_COB, 67, 18), text("-", 87),
        left(BAIRRO_COB, 90, 20), text("-", 112), left(MUNICIPIO_COB, 115, 20), text("-", 137),
        left(UF_COB, 140, 2), text("- ", 144), left(CEP_COB, 146, 12)),

    Items{.line = row(1, left(CD_PRO, 2, 10), left(DESCRICAO, 13, 56), left(GF_AGRUP, 74, 4),
                      left(OriginTax, 80, 4), left(UNIDADE, 86, 4),
                      as(Rule::AsAmount, left(QTDE, 92, 5)), right(VALOR_UN, 106, 12),
                      right(LineTotal, 126, 13), right(ICMS, 141, 2), right(AQ_IPI, 148, 2),
                      right(VL_IPI, 155, 6)),
          .overflow = Overflow::Cutting,
          .classes = true,
          .lineEnds = 1},

    row(1, text("ENDEREÇO DE ENTREGA - ", 2), left(ENDERECO_ETG, 24, 60), text("- ", 85),
        left(COMPLEMENTO_ETG, 87, 18), text("- ", 106), left(BAIRRO_ETG, 108, 18), text("- ", 127),
        left(MUNICIPIO_ETG, 129, 10), text("- ", 140), left(UF_ETG, 142, 2), text("- ", 145),
        left(CEP_ETG, 147, 12)),
    row(3, labelled("CL. FISCAL - ", ClassLine, 2, 0)),

    row(1, right(VALOR_BASE_ICMS, 14, 16), right(VALOR_ICMS, 49, 10),
        right(VALOR_BAS_ICMS_RTD, 72, 20), right(VALOR_ICMS_RTD, 107, 16),
        right(ProductTotal, 146, 15)),
    row(2, right(VALOR_FRETE, 14, 16), right(VALOR_SEGURO, 49, 10), right(VALOR_DES_ASC, 72, 20),
        right(VALOR_TOT_IPI, 107, 16), right(VALOR_TOT_NF, 146, 15)),
    row(2, left(DC_TRP, 2, 60), left(IC_RESP_FRT, 93, 2), left(CD_PLC_VEI_TRP, 101, 11),
        left(UF_PLACA_TRP, 120, 2), left(NR_CGC_CPL_TRP, 126, 18)),
    row(2, left(DC_LG_TRP, 2, 60), left(NM_MUN_TRP, 77, 35), left(SG_UF_TRP, 121, 2),
        left(CD_ICR_EST_TRP, 127, 18)),
    row(1, right(QT_ESP, 13, 11), text("VOLUME", 26, 11), blank(53, 8), blank(75, 24),
        right(PESO_BRU, 122, 16), right(PESO_LIQ, 152, 9)),

    Band{.piece = 44, .most = 3, .lines = 3},
    Band{.source = DC_OBS, .piece = 44, .most = 3, .lines = 7},
    row(6, bare(NoteNumber, 10)),
};

constexpr Form form{
    .setUp = "\x0F\x1BM", .length = 51, .observation = Joined::Nothing, .steps = steps};
static_assert(flawOf(form) == Flaw::None);

}  // namespace

constinit const Layout imprimeNF_3081{.name = "ImprimeNF_3081", .form = &form};

}  // namespace tarn::notes
