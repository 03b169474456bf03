// What is known of each source, in one row: how the server spells it, how it prints,
// and what it is called. Whoever needs to know something of a source looks here.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "notes/source.h"

namespace tarn::notes {

// How a source becomes text. Every source has its usual rule; a layout names another
// one where its form differs.
enum class Rule : std::uint8_t {
    // An attribute of the document, whichever it is.
    AsText,      // as it is
    AsAmount,    // with a decimal comma, "0" when absent, no mask
    Masked,      // an amount under the field's mask; empty stays empty
    MaskedText,  // under the field's mask where it is a number, else as it is
    PostalCode,  // 00000-000
    BlankZero,   // nothing for "0"
    FourZeros,   // "0000" for "0"
    TaxNumber,   // of a company or of a person, as IC_TIP_PES says
    CarrierTaxNumber,

    // Of the item in hand.
    Quantity,  // under the field's mask
    General,   // the quantity as a number is written: 12,5
    OriginTax,
    LineTotal,
    Discount,

    // Of the parcel in hand.
    ParcelDocument,
    ParcelAmount,
    ParcelDue,
    ParcelNumber,

    // Of the note.
    FormText,  // nothing but the field's label
    Mark,
    EntryOrExit,
    NoteNumber,
    ProductTotal,
    QuantitySum,
    WeightSum,
    AmountInWords,
    LegalText,
    Observation,
    ClassLine,
    TaxCredit,
    TaxCreditRate,
    LastServiceRate,
    ServiceTaxSum,
    ServiceSum,
};

struct SourceRow {
    Source source{};
    std::string_view name{};  // of an attribute, spelled as the server spells it
    Rule rule = Rule::AsText;
    std::string_view mask{};   // unless the field names another
    std::string_view label{};  // words beside its box on a drawn form
    int room = 0;              // that a form leaves for it, where it has no width
    std::string_view words{};  // what a loss calls it, where it has no name
};

namespace masks {

inline constexpr std::string_view quantity = "##0.000";
inline constexpr std::string_view weight = "#,###,##0.000";
inline constexpr std::string_view weightSum = "###,###0.000";
inline constexpr std::string_view ungrouped = "####0.00";
inline constexpr std::string_view lineTotal = "##,###0.00";
inline constexpr std::string_view total = "###,###0.00";
inline constexpr std::string_view services = "#,###,##0.00";
inline constexpr std::string_view cfop = "#,#00";

}  // namespace masks

// In the order of Source.
// clang-format off
inline constexpr std::array sourceTable = [] {
  using enum Source;
  return std::array{
    // head row
    SourceRow{Ent_Sai, "Ent_Sai"},
    SourceRow{NatOper, "NatOper", Rule::AsText, {}, "Natureza da operação"},
    SourceRow{CFOP, "CFOP", Rule::MaskedText, masks::cfop, "CFOP"},
    SourceRow{RAZAO, "RAZAO", Rule::AsText, {}, "Nome / razão social"},
    SourceRow{IC_TIP_PES, "IC_TIP_PES"},
    SourceRow{CGC_CPF, "CGC_CPF", Rule::TaxNumber, {}, "CNPJ / CPF", 18},
    SourceRow{DT_EMS_NF, "DT_EMS_NF", Rule::AsText, {}, "Data da emissão"},
    SourceRow{ENDERECO, "ENDERECO", Rule::AsText, {}, "Endereço"},
    SourceRow{COMPLEMENTO, "COMPLEMENTO", Rule::AsText, {}, "Complemento"},
    SourceRow{BAIRRO, "BAIRRO", Rule::AsText, {}, "Bairro"},
    SourceRow{CEP, "CEP", Rule::PostalCode, {}, "CEP", 9},
    SourceRow{MUNICIPIO, "MUNICIPIO", Rule::AsText, {}, "Município"},
    SourceRow{FONEFAX, "FONEFAX", Rule::AsText, {}, "Fone / fax"},
    SourceRow{UF, "UF", Rule::AsText, {}, "UF"},
    SourceRow{INSC_EST, "INSC_EST", Rule::AsText, {}, "Inscrição estadual"},
    SourceRow{ENDERECO_COB, "ENDERECO_COB", Rule::AsText, {}, "Endereço de cobrança"},
    SourceRow{COMPLEMENTO_COB, "COMPLEMENTO_COB", Rule::AsText, {}, "Complemento"},
    SourceRow{BAIRRO_COB, "BAIRRO_COB", Rule::AsText, {}, "Bairro"},
    SourceRow{CEP_COB, "CEP_COB", Rule::PostalCode, {}, "CEP", 9},
    SourceRow{MUNICIPIO_COB, "MUNICIPIO_COB", Rule::AsText, {}, "Município"},
    SourceRow{UF_COB, "UF_COB", Rule::AsText, {}, "UF"},
    SourceRow{ENDERECO_ETG, "ENDERECO_ETG", Rule::AsText, {}, "Endereço de entrega"},
    SourceRow{COMPLEMENTO_ETG, "COMPLEMENTO_ETG", Rule::AsText, {}, "Complemento"},
    SourceRow{BAIRRO_ETG, "BAIRRO_ETG", Rule::AsText, {}, "Bairro"},
    SourceRow{CEP_ETG, "CEP_ETG", Rule::PostalCode, {}, "CEP", 9},
    SourceRow{MUNICIPIO_ETG, "MUNICIPIO_ETG", Rule::AsText, {}, "Município"},
    SourceRow{UF_ETG, "UF_ETG", Rule::AsText, {}, "UF"},
    SourceRow{QTDE_PARC, "QTDE_PARC"},
    SourceRow{DC_CND_PAG, "DC_CND_PAG", Rule::AsText, {}, "Condição de pagamento"},
    SourceRow{DC_TRP, "DC_TRP", Rule::AsText, {}, "Transportador"},
    SourceRow{IC_RESP_FRT, "IC_RESP_FRT", Rule::AsText, {}, "Frete"},
    SourceRow{CD_PLC_VEI_TRP, "CD_PLC_VEI_TRP", Rule::AsText, {}, "Placa"},
    SourceRow{UF_PLACA_TRP, "UF_PLACA_TRP", Rule::AsText, {}, "UF"},
    SourceRow{NR_CGC_CPL_TRP, "NR_CGC_CPL_TRP", Rule::CarrierTaxNumber, {}, "CNPJ", 18},
    SourceRow{DC_LG_TRP, "DC_LG_TRP", Rule::AsText, {}, "Endereço"},
    SourceRow{NM_MUN_TRP, "NM_MUN_TRP", Rule::AsText, {}, "Município"},
    SourceRow{SG_UF_TRP, "SG_UF_TRP", Rule::AsText, {}, "UF"},
    SourceRow{CD_ICR_EST_TRP, "CD_ICR_EST_TRP", Rule::AsText, {}, "Inscrição estadual"},
    SourceRow{QT_ESP, "QT_ESP", Rule::Masked, masks::weight, "Quantidade"},
    SourceRow{PESO_BRU, "PESO_BRU", Rule::Masked, masks::weight, "Peso bruto"},
    SourceRow{PESO_LIQ, "PESO_LIQ", Rule::Masked, masks::weight, "Peso líquido"},
    SourceRow{ID_VND_DIR, "ID_VND_DIR", Rule::BlankZero, {}, "Nosso pedido"},
    SourceRow{NR_PED_CLI, "NR_PED_CLI", Rule::AsText, {}, "Seu pedido"},
    SourceRow{VENDEDOR, "VENDEDOR", Rule::AsText, {}, "Vendedor"},
    SourceRow{DC_OBS, "DC_OBS", Rule::AsText, {}, "Observação"},
    SourceRow{ID_EMP_TARN, "ID_EMP_TARN"},

    // head row, of each parcel; forms show those of the parcel in hand, far below
    SourceRow{ofParcel(NR_DOC1, 1), "NR_DOC1"},
    SourceRow{ofParcel(NR_DOC1, 2), "NR_DOC2"},
    SourceRow{ofParcel(NR_DOC1, 3), "NR_DOC3"},
    SourceRow{ofParcel(NR_DOC1, 4), "NR_DOC4"},
    SourceRow{ofParcel(NR_DOC1, 5), "NR_DOC5"},
    SourceRow{ofParcel(NR_DOC1, 6), "NR_DOC6"},
    SourceRow{ofParcel(NR_DOC1, 7), "NR_DOC7"},
    SourceRow{ofParcel(NR_DOC1, 8), "NR_DOC8"},
    SourceRow{ofParcel(NR_DOC1, 9), "NR_DOC9"},
    SourceRow{ofParcel(NR_DOC1, 10), "NR_DOC10"},
    SourceRow{ofParcel(NR_DOC1, 11), "NR_DOC11"},
    SourceRow{ofParcel(NR_DOC1, 12), "NR_DOC12"},
    SourceRow{ofParcel(VL_PRN_DOC1, 1), "VL_PRN_DOC1"},
    SourceRow{ofParcel(VL_PRN_DOC1, 2), "VL_PRN_DOC2"},
    SourceRow{ofParcel(VL_PRN_DOC1, 3), "VL_PRN_DOC3"},
    SourceRow{ofParcel(VL_PRN_DOC1, 4), "VL_PRN_DOC4"},
    SourceRow{ofParcel(VL_PRN_DOC1, 5), "VL_PRN_DOC5"},
    SourceRow{ofParcel(VL_PRN_DOC1, 6), "VL_PRN_DOC6"},
    SourceRow{ofParcel(VL_PRN_DOC1, 7), "VL_PRN_DOC7"},
    SourceRow{ofParcel(VL_PRN_DOC1, 8), "VL_PRN_DOC8"},
    SourceRow{ofParcel(VL_PRN_DOC1, 9), "VL_PRN_DOC9"},
    SourceRow{ofParcel(VL_PRN_DOC1, 10), "VL_PRN_DOC10"},
    SourceRow{ofParcel(VL_PRN_DOC1, 11), "VL_PRN_DOC11"},
    SourceRow{ofParcel(VL_PRN_DOC1, 12), "VL_PRN_DOC12"},
    SourceRow{ofParcel(DT_VNC_DOC1, 1), "DT_VNC_DOC1"},
    SourceRow{ofParcel(DT_VNC_DOC1, 2), "DT_VNC_DOC2"},
    SourceRow{ofParcel(DT_VNC_DOC1, 3), "DT_VNC_DOC3"},
    SourceRow{ofParcel(DT_VNC_DOC1, 4), "DT_VNC_DOC4"},
    SourceRow{ofParcel(DT_VNC_DOC1, 5), "DT_VNC_DOC5"},
    SourceRow{ofParcel(DT_VNC_DOC1, 6), "DT_VNC_DOC6"},
    SourceRow{ofParcel(DT_VNC_DOC1, 7), "DT_VNC_DOC7"},
    SourceRow{ofParcel(DT_VNC_DOC1, 8), "DT_VNC_DOC8"},
    SourceRow{ofParcel(DT_VNC_DOC1, 9), "DT_VNC_DOC9"},
    SourceRow{ofParcel(DT_VNC_DOC1, 10), "DT_VNC_DOC10"},
    SourceRow{ofParcel(DT_VNC_DOC1, 11), "DT_VNC_DOC11"},
    SourceRow{ofParcel(DT_VNC_DOC1, 12), "DT_VNC_DOC12"},

    // totals row
    SourceRow{VALOR_BASE_ICMS, "VALOR_BASE_ICMS", Rule::Masked, masks::total, "Base de cálculo do ICMS"},
    SourceRow{VALOR_ICMS, "VALOR_ICMS", Rule::Masked, masks::total, "Valor do ICMS"},
    SourceRow{VALOR_BAS_ICMS_RTD, "VALOR_BAS_ICMS_RTD", Rule::Masked, masks::total, "Base do ICMS substituição"},
    SourceRow{VALOR_ICMS_RTD, "VALOR_ICMS_RTD", Rule::Masked, masks::total, "Valor do ICMS substituição"},
    SourceRow{VALOR_TOTAL, "VALOR_TOTAL", Rule::Masked, masks::total, "Total dos produtos"},
    SourceRow{VALOR_TOTAL_DESC, "VALOR_TOTAL_DESC"},
    SourceRow{VALOR_FRETE, "VALOR_FRETE", Rule::Masked, masks::total, "Frete"},
    SourceRow{VALOR_SEGURO, "VALOR_SEGURO", Rule::Masked, masks::total, "Seguro"},
    SourceRow{VALOR_DES_ASC, "VALOR_DES_ASC", Rule::Masked, masks::total, "Outras despesas"},
    SourceRow{VALOR_TOT_IPI, "VALOR_TOT_IPI", Rule::Masked, masks::total, "Total do IPI"},
    SourceRow{VALOR_TOT_NF, "VALOR_TOT_NF", Rule::Masked, masks::total, "Total da nota"},
    SourceRow{VL_IMPOSTO_CREDITAR, "VL_IMPOSTO_CREDITAR"},

    // form row
    SourceRow{QT_MAX_IT, "QT_MAX_IT"},
    SourceRow{QT_MAX_IT_NF_SRV, "QT_MAX_IT_NF_SRV"},

    // item rows
    SourceRow{CD_PRO, "CD_PRO", Rule::AsText, {}, "Código"},
    SourceRow{DESCRICAO, "DESCRICAO", Rule::AsText, {}, "Descrição dos produtos"},
    SourceRow{POS_NF, "POS_NF", Rule::AsText, {}, "Pos."},
    SourceRow{CL_FISCAL, "CL_FISCAL", Rule::AsText, {}, "Class. fiscal"},
    SourceRow{GF_AGRUP, "GF_AGRUP", Rule::AsText, {}, "Grupo"},
    SourceRow{ID_CLA_FIS, "ID_CLA_FIS"},
    SourceRow{CFOP_ITEM, "CFOP_ITEM", Rule::FourZeros, {}, "CFOP"},
    SourceRow{IC_ORI_PRO, "IC_ORI_PRO"},
    SourceRow{SIT_TRI, "SIT_TRI", Rule::AsText, {}, "ST"},
    SourceRow{IC_TP_CAD, "IC_TP_CAD"},
    SourceRow{UNIDADE, "UNIDADE", Rule::AsText, {}, "Unid."},
    SourceRow{QTDE, "QTDE", Rule::Quantity, masks::quantity, "Quant."},
    SourceRow{VALOR_UN, "VALOR_UN", Rule::Masked, masks::ungrouped, "Valor unitário"},
    SourceRow{VL_DSC, "VL_DSC"},
    SourceRow{ICMS, "ICMS", Rule::Masked, masks::ungrouped, "ICMS"},
    SourceRow{AQ_IPI, "AQ_IPI", Rule::Masked, masks::ungrouped, "IPI"},
    SourceRow{IPI, "IPI", Rule::Masked, masks::ungrouped, "IPI"},
    SourceRow{VL_IPI, "VL_IPI", Rule::Masked, masks::ungrouped, "Valor do IPI"},
    SourceRow{PESO, "PESO"},
    SourceRow{DC_TXT_LEG_NF, "DC_TXT_LEG_NF"},
    SourceRow{AQ_ISS, "AQ_ISS"},
    SourceRow{VL_ISS, "VL_ISS"},
    SourceRow{VL_LIQ_IT, "VL_LIQ_IT", Rule::Masked, masks::ungrouped, "Valor do serviço"},

    // no attribute of their own
    SourceRow{Literal, {}, Rule::FormText, {}, {}, 0, "texto do formulário"},
    SourceRow{Mark, {}, Rule::Mark, {}, {}, 1, "texto do formulário"},
    SourceRow{NoteNumber, {}, Rule::NoteNumber, {}, "Número", 6, "número da nota"},
    SourceRow{NR_DOC, {}, Rule::ParcelDocument, {}, "Duplicata", 0, "NR_DOC"},
    SourceRow{VL_PRN_DOC, {}, Rule::ParcelAmount, masks::ungrouped, "Valor", 0, "VL_PRN_DOC"},
    SourceRow{DT_VNC_DOC, {}, Rule::ParcelDue, {}, "Vencimento", 0, "DT_VNC_DOC"},
    SourceRow{ParcelNumber, {}, Rule::ParcelNumber, {}, {}, 2, "texto do formulário"},
    SourceRow{OriginTax, {}, Rule::OriginTax, {}, "ST", 0, "IC_ORI_PRO e SIT_TRI"},
    SourceRow{LineTotal, {}, Rule::LineTotal, masks::lineTotal, "Valor total", 0, "total do item"},
    SourceRow{Discount, {}, Rule::Discount, masks::ungrouped, "Desc.", 0, "desconto"},
    SourceRow{ProductTotal, {}, Rule::ProductTotal, masks::total, "Total dos produtos", 0, "total dos produtos"},
    SourceRow{QuantitySum, {}, Rule::QuantitySum, {}, "Quantidade", 0, "soma das quantidades"},
    SourceRow{WeightSum, {}, Rule::WeightSum, masks::weightSum, "Peso", 0, "soma dos pesos"},
    SourceRow{AmountInWords, {}, Rule::AmountInWords, {}, "Valor por extenso", 0, "texto do formulário"},
    SourceRow{LegalText, {}, Rule::LegalText, {}, "Dados adicionais", 0, "textos legais e observação"},
    SourceRow{Observation, {}, Rule::Observation, {}, "Observação", 0, "DC_OBS"},
    SourceRow{ClassLine, {}, Rule::ClassLine, {}, "Classificações fiscais", 0, "texto do formulário"},
    SourceRow{TaxCredit, {}, Rule::TaxCredit, masks::total, "Crédito do ICMS", 0, "crédito de imposto"},
    SourceRow{TaxCreditRate, {}, Rule::TaxCreditRate, {}, "Alíquota", 0, "texto do formulário"},
    SourceRow{LastServiceRate, {}, Rule::LastServiceRate, masks::ungrouped, "ISS %", 0, "AQ_ISS"},
    SourceRow{ServiceTaxSum, {}, Rule::ServiceTaxSum, masks::services, "Valor do ISS", 0, "soma de VL_ISS"},
    SourceRow{ServiceSum, {}, Rule::ServiceSum, masks::services, "Total dos serviços", 0, "soma de VL_LIQ_IT"},
    SourceRow{EntryOrExit, {}, Rule::EntryOrExit, {}, {}, 0, "texto do formulário"},
  };
}();
// clang-format on

constexpr const SourceRow& rowOf(Source source) {
    return sourceTable[static_cast<std::size_t>(source)];
}

// Whether the rule looks for the attribute that the field names.
constexpr bool readsAttribute(Rule rule) {
    return rule <= Rule::CarrierTaxNumber;
}
// Whether the value is that of the item in hand.
constexpr bool isOfItem(Source source) {
    const Rule rule = rowOf(source).rule;
    return (source >= Source::CD_PRO && source <= Source::VL_LIQ_IT) ||
           (rule >= Rule::Quantity && rule <= Rule::Discount);
}
constexpr bool isOfParcel(Rule rule) {
    return rule >= Rule::ParcelDocument && rule <= Rule::ParcelNumber;
}
// Whether `source` can print by `rule`: by its own, an attribute also bare or under a
// mask, the quantity also without one.
constexpr bool fits(Source source, Rule rule) {
    const bool plain = rule == Rule::AsText || rule == Rule::AsAmount || rule == Rule::Masked;
    return rule == rowOf(source).rule || (isAttribute(source) && plain) ||
           (source == Source::QTDE && rule == Rule::General);
}

// Each source has exactly one row, at its own place; an attribute has a name, what is
// computed has words and a rule that doesn't look for an attribute of that name.
constexpr bool isWholeTable() {
    for (std::size_t i = 0; i < sourceTable.size(); ++i) {
        const SourceRow& row = sourceTable[i];
        const bool attribute = i < attributeCount;
        if (static_cast<std::size_t>(row.source) != i || row.name.empty() == attribute ||
            row.words.empty() != attribute || (!attribute && readsAttribute(row.rule))) {
            return false;
        }
    }
    return true;
}
static_assert(sourceTable.size() == sourceCount);
static_assert(isWholeTable());

// Of the attributes alone, for looking them up in a row of the document.
inline constexpr std::array<std::string_view, attributeCount> attributeNames = [] {
    std::array<std::string_view, attributeCount> names;
    for (std::size_t i = 0; i < attributeCount; ++i) {
        names[i] = sourceTable[i].name;
    }
    return names;
}();

}  // namespace tarn::notes
