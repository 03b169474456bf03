// The two forms of company 2421: one for establishment 3621, a wider one for the
// others. Instead of parcels they show the payment condition and the billing address;
// the pieces of the legal text overlap (decision N41). The form of 3621 ends without a
// line end (N54).
#include "notes/form_check.h"
#include "notes/form_rows.h"
#include "notes/layouts/layouts.h"

namespace tarn::notes {
namespace {

using enum Source;

constexpr Step stepsOf3621[] = {
    row(2),
    row(1, bare(NoteNumber, 122)),
    row(6, mark(87, 110)),
    row(3, left(NatOper, 2, 40), left(CFOP, 45, 12)),
    row(1, left(RAZAO, 2, 85), left(CGC_CPF, 91, 28), left(DT_EMS_NF, 125, 14)),
    row(2, left(ENDERECO, 2, 66), left(BAIRRO, 71, 25), left(CEP, 104, 12), blank(120, 14)),
    row(2, left(MUNICIPIO, 2, 38), left(FONEFAX, 54, 16), left(UF, 78, 3), left(INSC_EST, 96, 28),
        blank(130, 14)),
    row(3, text("COND. PAGTO: ", 60), left(DC_CND_PAG, 73, 38)),
    row(4, left(ENDERECO_COB, 2, 154)),

    Items{.line = row(1, left(DESCRICAO, 6, 60), left(OriginTax, 76, 6), left(UNIDADE, 84, 3),
                      right(QTDE, 88, 8), right(VALOR_UN, 97, 11), right(LineTotal, 109, 18),
                      left(ICMS, 129, 4)),
          .lineEnds = 2},

    row(3, right(VALOR_BASE_ICMS, 2, 18), right(VALOR_ICMS, 23, 18),
        right(VALOR_BAS_ICMS_RTD, 46, 24), right(VALOR_ICMS_RTD, 73, 24),
        right(ProductTotal, 100, 24)),
    row(4, right(VALOR_FRETE, 2, 18), right(VALOR_SEGURO, 23, 18), right(VALOR_DES_ASC, 46, 24),
        right(VALOR_TOT_IPI, 73, 24), right(VALOR_TOT_NF, 100, 24)),
    row(1, left(DC_TRP, 2, 55), left(IC_RESP_FRT, 73, 2), left(CD_PLC_VEI_TRP, 80, 14),
        left(UF_PLACA_TRP, 101, 2), left(NR_CGC_CPL_TRP, 110, 27)),
    row(2, left(DC_LG_TRP, 2, 55), left(NM_MUN_TRP, 61, 35), left(SG_UF_TRP, 100, 4),
        left(CD_ICR_EST_TRP, 109, 27)),
    row(3, right(QT_ESP, 2, 5), text("VOLUME", 12, 20), blank(35, 21), blank(59, 21),
        right(PESO_BRU, 84, 20), right(PESO_LIQ, 107, 20)),

    row(1, labelled("FAT: ", NoteNumber, 2, 15), text(", ", 17),
        labelled("N/PED: ", ID_VND_DIR, 19, 20)),
    row(1, labelled("S/PED: ", NR_PED_CLI, 2, 20), text(", ", 22),
        labelled("VEND: ", VENDEDOR, 24, 30)),
    row(1, piece(LegalText, 2, 1, 90)),
    row(1, piece(LegalText, 2, 65, 90)),
    row(6, piece(LegalText, 2, 128, 90)),
    row(0, bare(NoteNumber, 122)),
};

constexpr Step stepsOfOthers[] = {
    row(2),
    row(1, bare(NoteNumber, 142)),
    row(5, mark(107, 118)),
    row(3, left(NatOper, 2, 46), left(CFOP, 51, 12)),
    row(2, left(RAZAO, 2, 100), left(CGC_CPF, 106, 28), left(DT_EMS_NF, 144, 14)),
    row(2, left(ENDERECO, 2, 74), left(BAIRRO, 80, 33), left(CEP, 118, 12), blank(134, 14)),
    row(3, left(MUNICIPIO, 2, 48), left(FONEFAX, 53, 34), left(UF, 90, 3), left(INSC_EST, 108, 28),
        blank(142, 14)),
    row(4, text("COND. PAGTO: ", 80), left(DC_CND_PAG, 93, 38)),
    row(5, left(ENDERECO_COB, 2, 154)),

    Items{.line = row(1, left(DESCRICAO, 9, 48), left(CL_FISCAL, 58, 10), left(OriginTax, 74, 6),
                      left(UNIDADE, 82, 3), right(QTDE, 86, 8), right(VALOR_UN, 95, 16),
                      right(LineTotal, 118, 18), left(ICMS, 141, 4), left(AQ_IPI, 146, 4),
                      right(VL_IPI, 151, 8)),
          .lineEnds = 1},

    row(3, right(VALOR_BASE_ICMS, 2, 26), right(VALOR_ICMS, 29, 28),
        right(VALOR_BAS_ICMS_RTD, 60, 30), right(VALOR_ICMS_RTD, 93, 30),
        right(ProductTotal, 126, 30)),
    row(4, right(VALOR_FRETE, 2, 26), right(VALOR_SEGURO, 29, 28), right(VALOR_DES_ASC, 60, 30),
        right(VALOR_TOT_IPI, 93, 30), right(VALOR_TOT_NF, 126, 30)),
    row(2, left(DC_TRP, 2, 70), left(IC_RESP_FRT, 88, 2), left(CD_PLC_VEI_TRP, 96, 20),
        left(UF_PLACA_TRP, 120, 2), left(NR_CGC_CPL_TRP, 129, 27)),
    row(2, left(DC_LG_TRP, 2, 70), left(NM_MUN_TRP, 76, 42), left(SG_UF_TRP, 120, 4),
        left(CD_ICR_EST_TRP, 129, 27)),
    row(3, right(QT_ESP, 2, 10), text("VOLUME", 15, 24), blank(42, 30), blank(75, 28),
        right(PESO_BRU, 106, 26), right(PESO_LIQ, 135, 26)),

    row(1, labelled("FAT: ", NoteNumber, 2, 15), text(", ", 17),
        labelled("N/PED: ", ID_VND_DIR, 19, 20)),
    row(1, labelled("S/PED: ", NR_PED_CLI, 2, 20), text(", ", 22),
        labelled("VEND: ", VENDEDOR, 24, 30)),
    row(1, piece(LegalText, 2, 1, 90)),
    row(1, piece(LegalText, 2, 65, 90)),
    row(6, piece(LegalText, 2, 128, 90)),
    row(1, bare(NoteNumber, 142)),
};

constexpr Form formOf3621{.setUp = "\x0F\x1B\x1BG", .length = 49, .steps = stepsOf3621};
static_assert(flawOf(formOf3621) == Flaw::None);

constexpr Form formOfOthers{.setUp = "\x0F\x1B\x1BM", .length = 53, .steps = stepsOfOthers};
static_assert(flawOf(formOfOthers) == Flaw::None);

}  // namespace

constinit const Layout imprimeNF_2421{
    .name = "ImprimeNF_2421", .form = &formOf3621, .establishment = 3621, .other = &formOfOthers};

}  // namespace tarn::notes
