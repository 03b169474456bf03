// Form of company 1521: 166 columns, with the total in words and both addresses.
// Each parcel is a call of its own; the third of a row brings two line ends (decision N23).
#include "notes/form_check.h"
#include "notes/form_rows.h"
#include "notes/layouts/layouts.h"

namespace tarn::notes {
namespace {

using enum Source;

constexpr Place place1521 =
    place(left(NR_DOC, 5, 10), right(VL_PRN_DOC, 19, 18), left(DT_VNC_DOC, 43, 10));

constexpr Step steps[] = {
    row(1, bare(NoteNumber, 150)),
    row(5, mark(110, 125)),
    row(2, left(NatOper, 5, 50), left(CFOP, 60, 12)),
    row(2, left(RAZAO, 5, 110), left(CGC_CPF, 118, 28), left(DT_EMS_NF, 153, 14)),
    row(1, left(ENDERECO, 5, 80), left(BAIRRO, 87, 25), left(CEP, 122, 12), blank(138, 14)),
    row(5, left(MUNICIPIO, 5, 50), left(FONEFAX, 67, 18), left(UF, 99, 3), left(INSC_EST, 117, 28),
        blank(151, 14)),
    row(2, left(ENDERECO_COB, 5, 40), left(BAIRRO_COB, 47, 20), left(MUNICIPIO_COB, 69, 20),
        left(UF_COB, 91, 2), left(CEP_COB, 95, 12)),
    row(1, bare(AmountInWords, 5)),

    Parcels{.limit = 12,
            .message = "Numero de Parcelas maior do que 12! ",
            .perRow = 3,
            .places = {place1521, place1521, place1521},
            .lineEnds = {11, 11, 11, 9, 9, 9, 7, 7, 7, 5, 5, 5, 3},
            .lineEndsAbove = 11,
            .callPerParcel = true,
            .rowEnds = 2},

    Items{.line = row(1, left(CD_PRO, 5, 16), left(DESCRICAO, 23, 43), left(POS_NF, 68, 4),
                      left(OriginTax, 73, 4), left(UNIDADE, 79, 4), right(QTDE, 85, 7),
                      right(VALOR_UN, 93, 18), right(LineTotal, 113, 28), left(ICMS, 143, 4)),
          .overflow = Overflow::Cutting,
          .lineEnds = 1},

    row(1, piece(Observation, 6, 1, 155)),
    row(1, piece(LegalText, 7, 1, 149)),
    row(1, piece(LegalText, 7, 150, 255)),
    row(4, text("ENDERECO DE ENTREGA:", 5), left(ENDERECO_ETG, 27, 40), left(BAIRRO_ETG, 69, 20),
        left(CEP_ETG, 91, 12), left(MUNICIPIO_ETG, 107, 20), left(UF_ETG, 129, 20)),

    row(1, right(VALOR_BASE_ICMS, 2, 26), right(VALOR_ICMS, 31, 24),
        right(VALOR_BAS_ICMS_RTD, 60, 30), right(VALOR_ICMS_RTD, 93, 30),
        right(ProductTotal, 126, 30)),
    row(3, right(VALOR_FRETE, 2, 26), right(VALOR_SEGURO, 31, 24), right(VALOR_DES_ASC, 60, 30),
        right(VALOR_TOT_IPI, 93, 30), right(VALOR_TOT_NF, 126, 30)),
    row(2, left(DC_TRP, 5, 70), left(IC_RESP_FRT, 96, 2), left(CD_PLC_VEI_TRP, 110, 13),
        left(UF_PLACA_TRP, 126, 2), left(NR_CGC_CPL_TRP, 133, 27)),
    row(1, left(DC_LG_TRP, 5, 68), left(NM_MUN_TRP, 77, 42), left(SG_UF_TRP, 125, 2),
        left(CD_ICR_EST_TRP, 132, 27)),
    row(6, right(QT_ESP, 2, 20), text("VOLUME", 29, 34), blank(66, 14), blank(83, 21),
        right(PESO_BRU, 108, 22), right(PESO_LIQ, 133, 34)),
};

// Line spacing instead of condensed print: this form is written wider than the others.
constexpr Form form{
    .setUp = "\x1B#3", .length = 51, .observation = Joined::Nothing, .steps = steps};
static_assert(flawOf(form) == Flaw::None);

}  // namespace

constinit const Layout imprimeNF_1521{.name = "ImprimeNF_1521", .form = &form};

}  // namespace tarn::notes
