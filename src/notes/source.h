// What a printed field can show: an attribute of the note document, or a value
// that the layouts make from several.
#pragma once

#include <cstddef>
#include <cstdint>

namespace tarn::notes {

// The attributes come first, row by row of the document; what is computed or belongs
// to the form follows. source_table.h says of each what it is.
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

    Count,  // no source: how many there are
};

inline constexpr std::size_t attributeCount = static_cast<std::size_t>(Source::Literal);
inline constexpr std::size_t sourceCount = static_cast<std::size_t>(Source::Count);
inline constexpr int mostParcels = 12;

constexpr bool isAttribute(Source source) {
    return static_cast<std::size_t>(source) < attributeCount;
}
// Source of parcel `n`'s attribute, `first` being that of parcel 1.
constexpr Source ofParcel(Source first, int n) {
    return static_cast<Source>(static_cast<int>(first) + n - 1);
}

}  // namespace tarn::notes
