// Form of company 3601 and of establishment 5281: wide paper, 160 columns, four numbered
// parcels to a row; from parcel 10 on the row grows by its number (decision N22).
#include "notes/form_check.h"
#include "notes/form_rows.h"
#include "notes/layouts/layouts.h"

namespace tarn::notes {
namespace {

using enum Source;

constexpr Step steps[] = {
    row(2),
    row(2, bare(NoteNumber, 150)),
    row(5, mark(110, 123)),
    row(2, left(NatOper, 2, 52), left(CFOP, 59, 8)),
    row(2, left(RAZAO, 2, 90), left(CGC_CPF, 102, 28), left(DT_EMS_NF, 142, 14)),
    row(1, left(ENDERECO, 2, 68), left(BAIRRO, 76, 35), left(CEP, 115, 12), blank(133, 14)),
    row(3, left(MUNICIPIO, 2, 56), left(FONEFAX, 68, 16), left(UF, 101, 3), left(INSC_EST, 109, 28),
        blank(143, 14)),

    Parcels{.limit = 12,
            .message = "Número de Parcelas maior do que 12",
            .perRow = 4,
            .places = {place(bare(ParcelNumber, 3), left(NR_DOC, 5, 10), left(DT_VNC_DOC, 16, 10),
                             right(VL_PRN_DOC, 27, 12)),
                       place(bare(ParcelNumber, 42), left(NR_DOC, 44, 10), left(DT_VNC_DOC, 55, 10),
                             right(VL_PRN_DOC, 66, 12)),
                       place(bare(ParcelNumber, 81), left(NR_DOC, 83, 10), left(DT_VNC_DOC, 94, 10),
                             right(VL_PRN_DOC, 105, 12)),
                       place(bare(ParcelNumber, 120), left(NR_DOC, 122, 10),
                             left(DT_VNC_DOC, 133, 10), right(VL_PRN_DOC, 144, 12))},
            .lineEnds = {8, 8, 8, 8, 7, 7, 7, 7, 6, 6, 6, 6, 5},
            .lineEndsAbove = 7},

    Items{.line = row(1, left(CD_PRO, 2, 10), left(DESCRICAO, 19, 65), left(OriginTax, 90, 4),
                      left(UNIDADE, 97, 6), right(QTDE, 110, 7), right(VALOR_UN, 122, 13),
                      right(LineTotal, 138, 19), under("####0", right(ICMS, 159, 2))),
          .overflow = Overflow::Cutting,
          .quantity = Quantity::PointsGroup,
          .constant = 1},

    row(1, right(VALOR_BASE_ICMS, 3, 25), right(VALOR_ICMS, 33, 23),
        right(VALOR_BAS_ICMS_RTD, 63, 22), right(VALOR_ICMS_RTD, 101, 22),
        right(ProductTotal, 136, 25)),
    row(3, right(VALOR_FRETE, 3, 25), right(VALOR_SEGURO, 33, 23), right(VALOR_DES_ASC, 63, 22),
        right(VALOR_TOT_IPI, 101, 22), right(VALOR_TOT_NF, 136, 25)),
    row(1, left(DC_TRP, 2, 62), left(IC_RESP_FRT, 86, 2), left(CD_PLC_VEI_TRP, 96, 13),
        left(UF_PLACA_TRP, 118, 2), left(NR_CGC_CPL_TRP, 124, 22)),
    row(2, left(DC_LG_TRP, 2, 65), left(NM_MUN_TRP, 79, 38), left(SG_UF_TRP, 119, 2),
        left(CD_ICR_EST_TRP, 124, 20)),
    row(2, right(QT_ESP, 2, 13), text("VOLUME", 20, 17), blank(42, 25), blank(69, 24),
        right(PESO_BRU, 126, 22), right(PESO_LIQ, 149, 12)),

    Band{.piece = 88, .most = 2, .lines = 2},
    Band{.source = DC_OBS, .piece = 88, .most = 2, .lines = 2},
    row(5, left(ID_VND_DIR, 2, 28), left(VENDEDOR, 35, 28)),
    row(3, bare(NoteNumber, 142)),
};

constexpr Form form{
    .setUp = "\x0F\x1BM", .length = 47, .observation = Joined::Nothing, .steps = steps};
static_assert(flawOf(form) == Flaw::None);

}  // namespace

constinit const Layout imprimeNF_3601{.name = "ImprimeNF_3601", .form = &form};

}  // namespace tarn::notes
