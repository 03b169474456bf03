// The two forms of companies 4621 and 541: that of establishment 7321, and a wider one
// for every other. Each parcel is a call of its own, three of them side by side. The
// pieces of the legal text overlap by one character (decisions N24, N41).
#include "notes/form_check.h"
#include "notes/form_rows.h"
#include "notes/layouts/layouts.h"

namespace tarn::notes {
namespace {

using enum Source;

constexpr std::string_view condensed = "\x0F\x1BG";
constexpr std::string_view tooManyParcels = "Numero de Parcelas maior do que 6. ";

constexpr Step stepsOf7321[] = {
    Control{condensed},
    row(1, bare(NoteNumber, 102)),
    row(3, mark(78, 90)),
    row(2, left(NatOper, 2, 32), left(CFOP, 35, 7)),
    row(2, left(RAZAO, 2, 60), left(CGC_CPF, 67, 18), left(DT_EMS_NF, 93, 14)),
    row(1, left(ENDERECO, 2, 53), left(BAIRRO, 57, 18), left(CEP, 76, 12), blank(92, 12)),
    row(2, left(MUNICIPIO, 2, 38), left(FONEFAX, 42, 16), left(UF, 63, 3), left(INSC_EST, 71, 30),
        blank(107, 14)),

    Parcels{.limit = 6,
            .message = tooManyParcels,
            .perRow = 3,
            .places = {place(blank(2, 10), left(DT_VNC_DOC, 15, 10), right(VL_PRN_DOC, 26, 16)),
                       place(left(DT_VNC_DOC, 2, 10), right(VL_PRN_DOC, 13, 16)),
                       place(left(DT_VNC_DOC, 2, 10), right(VL_PRN_DOC, 13, 16))},
            .lineEnds = {4, 4, 4, 3, 3, 3, 3},
            .lineEndsAbove = 4,
            .callPerParcel = true},

    Items{.line = row(1, left(CD_PRO, 2, 8), left(DESCRICAO, 13, 45), left(OriginTax, 60, 4),
                      left(UNIDADE, 66, 3), left(QTDE, 69, 7), right(VALOR_UN, 76, 11),
                      right(LineTotal, 89, 11), left(ICMS, 102, 2))},

    row(1, right(VALOR_BASE_ICMS, 2, 17), right(VALOR_ICMS, 19, 17),
        right(VALOR_BAS_ICMS_RTD, 41, 17), right(VALOR_ICMS_RTD, 59, 17),
        right(ProductTotal, 77, 27)),
    row(3, right(VALOR_FRETE, 2, 17), right(VALOR_SEGURO, 19, 17), right(VALOR_DES_ASC, 41, 17),
        right(VALOR_TOT_IPI, 59, 17), right(VALOR_TOT_NF, 77, 27)),
    row(1, left(DC_TRP, 2, 45), left(IC_RESP_FRT, 62, 2), left(CD_PLC_VEI_TRP, 66, 10),
        left(UF_PLACA_TRP, 78, 2), left(NR_CGC_CPL_TRP, 85, 27)),
    row(2, left(DC_LG_TRP, 2, 45), left(NM_MUN_TRP, 49, 27), left(SG_UF_TRP, 79, 4),
        left(CD_ICR_EST_TRP, 85, 20)),
    row(2, right(QT_ESP, 2, 13), text("VOLUME", 18, 14), blank(35, 15), blank(53, 11),
        right(PESO_BRU, 67, 15), right(PESO_LIQ, 88, 15)),

    row(1, text("END. DE ETG: ", 2), left(ENDERECO_ETG, 15, 40), left(BAIRRO_ETG, 56, 13),
        left(CEP_ETG, 70, 9), left(MUNICIPIO_ETG, 80, 14), left(UF_ETG, 97, 2)),
    row(1, piece(LegalText, 2, 1, 90)),
    row(1, piece(LegalText, 2, 90, 90)),
    row(6, piece(LegalText, 2, 180, 100)),
    row(5, bare(NoteNumber, 97)),
};

constexpr Step stepsOfOthers[] = {
    Control{condensed},
    row(1, bare(NoteNumber, 116)),
    row(3, mark(78, 90)),
    row(2, left(NatOper, 2, 36), left(CFOP, 39, 7)),
    row(2, left(RAZAO, 2, 70), left(CGC_CPF, 79, 18), left(DT_EMS_NF, 107, 14)),
    row(1, left(ENDERECO, 2, 60), left(BAIRRO, 67, 20), left(CEP, 89, 12), blank(105, 12)),
    row(2, left(MUNICIPIO, 2, 40), left(FONEFAX, 50, 16), left(UF, 71, 3), left(INSC_EST, 81, 30),
        blank(117, 14)),

    Parcels{.limit = 6,
            .message = tooManyParcels,
            .perRow = 3,
            .places = {place(blank(2, 10), left(DT_VNC_DOC, 19, 10), right(VL_PRN_DOC, 32, 18)),
                       place(left(DT_VNC_DOC, 2, 10), right(VL_PRN_DOC, 14, 18)),
                       place(left(DT_VNC_DOC, 2, 10), right(VL_PRN_DOC, 14, 18))},
            .lineEnds = {4, 4, 4, 3, 3, 3, 3},
            .lineEndsAbove = 4,
            .callPerParcel = true},

    Items{.line = row(1, left(CD_PRO, 2, 8), left(DESCRICAO, 13, 52), left(OriginTax, 69, 4),
                      left(UNIDADE, 75, 3), left(QTDE, 79, 8), right(VALOR_UN, 87, 13),
                      right(LineTotal, 102, 13), left(ICMS, 117, 2))},

    row(1, right(VALOR_BASE_ICMS, 2, 20), right(VALOR_ICMS, 22, 20),
        right(VALOR_BAS_ICMS_RTD, 47, 20), right(VALOR_ICMS_RTD, 68, 20),
        right(ProductTotal, 89, 27)),
    row(3, right(VALOR_FRETE, 2, 20), right(VALOR_SEGURO, 22, 20), right(VALOR_DES_ASC, 47, 20),
        right(VALOR_TOT_IPI, 68, 20), right(VALOR_TOT_NF, 89, 27)),
    row(1, left(DC_TRP, 2, 52), left(IC_RESP_FRT, 72, 2), left(CD_PLC_VEI_TRP, 78, 10),
        left(UF_PLACA_TRP, 91, 2), left(NR_CGC_CPL_TRP, 100, 27)),
    row(2, left(DC_LG_TRP, 2, 52), left(NM_MUN_TRP, 56, 32), left(SG_UF_TRP, 91, 4),
        left(CD_ICR_EST_TRP, 98, 27)),
    row(2, right(QT_ESP, 2, 15), text("VOLUME", 22, 14), blank(39, 15), blank(57, 19),
        right(PESO_BRU, 79, 18), right(PESO_LIQ, 100, 18)),

    row(1, text("END. DE ENTREGA: ", 2), left(ENDERECO_ETG, 19, 40), left(BAIRRO_ETG, 61, 18),
        left(CEP_ETG, 81, 9), left(MUNICIPIO_ETG, 92, 18), left(UF_ETG, 111, 2)),
    row(1, piece(LegalText, 2, 1, 90)),
    row(1, piece(LegalText, 2, 90, 90)),
    row(6, piece(LegalText, 2, 180, 100)),
    row(5, bare(NoteNumber, 112)),
};

constexpr Form formOf7321{.setUp = "", .length = 38, .steps = stepsOf7321};
static_assert(flawOf(formOf7321) == Flaw::None);

constexpr Form formOfOthers{.setUp = "", .length = 38, .steps = stepsOfOthers};
static_assert(flawOf(formOfOthers) == Flaw::None);

}  // namespace

constinit const Layout imprimeNF_4621{
    .name = "ImprimeNF_4621", .form = &formOf7321, .establishment = 7321, .other = &formOfOthers};

}  // namespace tarn::notes
