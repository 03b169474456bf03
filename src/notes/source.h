// What a printed field can show: an attribute of the note document, or a value
// that the layouts make from several.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tarn::notes {

// The attributes come first, in the order of `attributeNames`; what is computed
// or belongs to the form follows.
enum class Source : std::uint8_t {
    // head row
    Ent_Sai,
    NatOper,
    CFOP,
    RAZAO,
    IC_TIP_PES,
    CGC_CPF,
    DT_EMS_NF,
    ENDERECO,
    COMPLEMENTO,
    BAIRRO,
    CEP,
    MUNICIPIO,
    FONEFAX,
    UF,
    INSC_EST,
    ENDERECO_COB,
    COMPLEMENTO_COB,
    BAIRRO_COB,
    CEP_COB,
    MUNICIPIO_COB,
    UF_COB,
    ENDERECO_ETG,
    COMPLEMENTO_ETG,
    BAIRRO_ETG,
    CEP_ETG,
    MUNICIPIO_ETG,
    UF_ETG,
    QTDE_PARC,
    DC_CND_PAG,
    DC_TRP,
    IC_RESP_FRT,
    CD_PLC_VEI_TRP,
    UF_PLACA_TRP,
    NR_CGC_CPL_TRP,
    DC_LG_TRP,
    NM_MUN_TRP,
    SG_UF_TRP,
    CD_ICR_EST_TRP,
    QT_ESP,
    PESO_BRU,
    PESO_LIQ,
    ID_VND_DIR,
    NR_PED_CLI,
    VENDEDOR,
    DC_OBS,
    ID_EMP_TARN,
    // head row, one of each for a parcel: NR_DOC1 to NR_DOC12 and so on
    NR_DOC1,
    NR_DOC12 = NR_DOC1 + 11,
    VL_PRN_DOC1,
    VL_PRN_DOC12 = VL_PRN_DOC1 + 11,
    DT_VNC_DOC1,
    DT_VNC_DOC12 = DT_VNC_DOC1 + 11,
    // totals row
    VALOR_BASE_ICMS,
    VALOR_ICMS,
    VALOR_BAS_ICMS_RTD,
    VALOR_ICMS_RTD,
    VALOR_TOTAL,
    VALOR_TOTAL_DESC,
    VALOR_FRETE,
    VALOR_SEGURO,
    VALOR_DES_ASC,
    VALOR_TOT_IPI,
    VALOR_TOT_NF,
    VL_IMPOSTO_CREDITAR,
    // form row
    QT_MAX_IT,
    QT_MAX_IT_NF_SRV,
    // item rows
    CD_PRO,
    DESCRICAO,
    POS_NF,
    CL_FISCAL,
    GF_AGRUP,
    ID_CLA_FIS,
    CFOP_ITEM,
    IC_ORI_PRO,
    SIT_TRI,
    IC_TP_CAD,
    UNIDADE,
    QTDE,
    VALOR_UN,
    VL_DSC,
    ICMS,
    AQ_IPI,
    IPI,
    VL_IPI,
    PESO,
    DC_TXT_LEG_NF,
    AQ_ISS,
    VL_ISS,
    VL_LIQ_IT,

    // no attribute of their own
    Literal,     // the field's own text, or blanks
    Mark,        // the "X" in the box of entry or exit
    NoteNumber,  // six digits at least
    NR_DOC,
    VL_PRN_DOC,
    DT_VNC_DOC,    // of the parcel in hand
    ParcelNumber,  // "1)"
    OriginTax,     // IC_ORI_PRO and SIT_TRI, joined
    LineTotal,     // VALOR_UN times QTDE
    Discount,      // VL_DSC in per cent of the line total
    ProductTotal,  // VALOR_TOTAL less VALOR_TOTAL_DESC
    QuantitySum,
    WeightSum,
    AmountInWords,  // VALOR_TOT_NF
    LegalText,      // a piece of the legal texts (and the observation, as the form says)
    Observation,    // a piece of the labelled observation
    ClassLine,      // the fiscal classes of the items
    TaxCredit,
    TaxCreditRate,
    LastServiceRate,
    ServiceTaxSum,
    ServiceSum,
    EntryOrExit,  // the word for it
};

inline constexpr std::size_t attributeCount = static_cast<std::size_t>(Source::VL_LIQ_IT) + 1;
inline constexpr int mostParcels = 12;

// Spelled as the server spells them; amounts and texts are looked up so.
inline constexpr std::array<std::string_view, attributeCount> attributeNames{"Ent_Sai",
                                                                             "NatOper",
                                                                             "CFOP",
                                                                             "RAZAO",
                                                                             "IC_TIP_PES",
                                                                             "CGC_CPF",
                                                                             "DT_EMS_NF",
                                                                             "ENDERECO",
                                                                             "COMPLEMENTO",
                                                                             "BAIRRO",
                                                                             "CEP",
                                                                             "MUNICIPIO",
                                                                             "FONEFAX",
                                                                             "UF",
                                                                             "INSC_EST",
                                                                             "ENDERECO_COB",
                                                                             "COMPLEMENTO_COB",
                                                                             "BAIRRO_COB",
                                                                             "CEP_COB",
                                                                             "MUNICIPIO_COB",
                                                                             "UF_COB",
                                                                             "ENDERECO_ETG",
                                                                             "COMPLEMENTO_ETG",
                                                                             "BAIRRO_ETG",
                                                                             "CEP_ETG",
                                                                             "MUNICIPIO_ETG",
                                                                             "UF_ETG",
                                                                             "QTDE_PARC",
                                                                             "DC_CND_PAG",
                                                                             "DC_TRP",
                                                                             "IC_RESP_FRT",
                                                                             "CD_PLC_VEI_TRP",
                                                                             "UF_PLACA_TRP",
                                                                             "NR_CGC_CPL_TRP",
                                                                             "DC_LG_TRP",
                                                                             "NM_MUN_TRP",
                                                                             "SG_UF_TRP",
                                                                             "CD_ICR_EST_TRP",
                                                                             "QT_ESP",
                                                                             "PESO_BRU",
                                                                             "PESO_LIQ",
                                                                             "ID_VND_DIR",
                                                                             "NR_PED_CLI",
                                                                             "VENDEDOR",
                                                                             "DC_OBS",
                                                                             "ID_EMP_TARN",
                                                                             "NR_DOC1",
                                                                             "NR_DOC2",
                                                                             "NR_DOC3",
                                                                             "NR_DOC4",
                                                                             "NR_DOC5",
                                                                             "NR_DOC6",
                                                                             "NR_DOC7",
                                                                             "NR_DOC8",
                                                                             "NR_DOC9",
                                                                             "NR_DOC10",
                                                                             "NR_DOC11",
                                                                             "NR_DOC12",
                                                                             "VL_PRN_DOC1",
                                                                             "VL_PRN_DOC2",
                                                                             "VL_PRN_DOC3",
                                                                             "VL_PRN_DOC4",
                                                                             "VL_PRN_DOC5",
                                                                             "VL_PRN_DOC6",
                                                                             "VL_PRN_DOC7",
                                                                             "VL_PRN_DOC8",
                                                                             "VL_PRN_DOC9",
                                                                             "VL_PRN_DOC10",
                                                                             "VL_PRN_DOC11",
                                                                             "VL_PRN_DOC12",
                                                                             "DT_VNC_DOC1",
                                                                             "DT_VNC_DOC2",
                                                                             "DT_VNC_DOC3",
                                                                             "DT_VNC_DOC4",
                                                                             "DT_VNC_DOC5",
                                                                             "DT_VNC_DOC6",
                                                                             "DT_VNC_DOC7",
                                                                             "DT_VNC_DOC8",
                                                                             "DT_VNC_DOC9",
                                                                             "DT_VNC_DOC10",
                                                                             "DT_VNC_DOC11",
                                                                             "DT_VNC_DOC12",
                                                                             "VALOR_BASE_ICMS",
                                                                             "VALOR_ICMS",
                                                                             "VALOR_BAS_ICMS_RTD",
                                                                             "VALOR_ICMS_RTD",
                                                                             "VALOR_TOTAL",
                                                                             "VALOR_TOTAL_DESC",
                                                                             "VALOR_FRETE",
                                                                             "VALOR_SEGURO",
                                                                             "VALOR_DES_ASC",
                                                                             "VALOR_TOT_IPI",
                                                                             "VALOR_TOT_NF",
                                                                             "VL_IMPOSTO_CREDITAR",
                                                                             "QT_MAX_IT",
                                                                             "QT_MAX_IT_NF_SRV",
                                                                             "CD_PRO",
                                                                             "DESCRICAO",
                                                                             "POS_NF",
                                                                             "CL_FISCAL",
                                                                             "GF_AGRUP",
                                                                             "ID_CLA_FIS",
                                                                             "CFOP_ITEM",
                                                                             "IC_ORI_PRO",
                                                                             "SIT_TRI",
                                                                             "IC_TP_CAD",
                                                                             "UNIDADE",
                                                                             "QTDE",
                                                                             "VALOR_UN",
                                                                             "VL_DSC",
                                                                             "ICMS",
                                                                             "AQ_IPI",
                                                                             "IPI",
                                                                             "VL_IPI",
                                                                             "PESO",
                                                                             "DC_TXT_LEG_NF",
                                                                             "AQ_ISS",
                                                                             "VL_ISS",
                                                                             "VL_LIQ_IT"};

constexpr bool isAttribute(Source source) {
    return static_cast<std::size_t>(source) < attributeCount;
}
constexpr std::string_view attributeName(Source source) {
    return attributeNames[static_cast<std::size_t>(source)];
}
// Source of parcel `n`'s attribute, `first` being that of parcel 1.
constexpr Source ofParcel(Source first, int n) {
    return static_cast<Source>(static_cast<int>(first) + n - 1);
}

static_assert(attributeName(Source::NR_DOC12) == "NR_DOC12");
static_assert(attributeName(Source::VL_PRN_DOC12) == "VL_PRN_DOC12");
static_assert(attributeName(Source::DT_VNC_DOC12) == "DT_VNC_DOC12");
static_assert(attributeName(Source::QT_MAX_IT) == "QT_MAX_IT");
static_assert(attributeName(Source::VL_LIQ_IT) == "VL_LIQ_IT");

}  // namespace tarn::notes
