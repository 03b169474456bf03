#include "forms/field_labels.h"

#include <algorithm>

namespace tarn::dotmatrix {

namespace {

using enum notes::Source;

struct Label {
    notes::Source source;
    std::string_view words;
};

// clang-format off
constexpr Label labels[] = {
    {NatOper, "Natureza da operação"}, {CFOP, "CFOP"}, {NoteNumber, "Número"},
    {RAZAO, "Nome / razão social"}, {CGC_CPF, "CNPJ / CPF"}, {DT_EMS_NF, "Data da emissão"},
    {ENDERECO, "Endereço"}, {COMPLEMENTO, "Complemento"}, {BAIRRO, "Bairro"}, {CEP, "CEP"},
    {MUNICIPIO, "Município"}, {FONEFAX, "Fone / fax"}, {UF, "UF"},
    {INSC_EST, "Inscrição estadual"},
    {ENDERECO_COB, "Endereço de cobrança"}, {COMPLEMENTO_COB, "Complemento"},
    {BAIRRO_COB, "Bairro"}, {CEP_COB, "CEP"}, {MUNICIPIO_COB, "Município"}, {UF_COB, "UF"},
    {ENDERECO_ETG, "Endereço de entrega"}, {COMPLEMENTO_ETG, "Complemento"},
    {BAIRRO_ETG, "Bairro"}, {CEP_ETG, "CEP"}, {MUNICIPIO_ETG, "Município"}, {UF_ETG, "UF"},
    {DC_CND_PAG, "Condição de pagamento"}, {AmountInWords, "Valor por extenso"},
    {NR_DOC, "Duplicata"}, {VL_PRN_DOC, "Valor"}, {DT_VNC_DOC, "Vencimento"},
    {CD_PRO, "Código"}, {DESCRICAO, "Descrição dos produtos"}, {POS_NF, "Pos."},
    {CL_FISCAL, "Class. fiscal"}, {GF_AGRUP, "Grupo"}, {CFOP_ITEM, "CFOP"},
    {OriginTax, "ST"}, {SIT_TRI, "ST"}, {UNIDADE, "Unid."}, {QTDE, "Quant."},
    {VALOR_UN, "Valor unitário"}, {LineTotal, "Valor total"}, {Discount, "Desc."},
    {ICMS, "ICMS"}, {AQ_IPI, "IPI"}, {IPI, "IPI"}, {VL_IPI, "Valor do IPI"},
    {VL_LIQ_IT, "Valor do serviço"}, {LastServiceRate, "ISS %"},
    {ServiceTaxSum, "Valor do ISS"}, {ServiceSum, "Total dos serviços"},
    {ClassLine, "Classificações fiscais"},
    {VALOR_BASE_ICMS, "Base de cálculo do ICMS"}, {VALOR_ICMS, "Valor do ICMS"},
    {VALOR_BAS_ICMS_RTD, "Base do ICMS substituição"},
    {VALOR_ICMS_RTD, "Valor do ICMS substituição"}, {ProductTotal, "Total dos produtos"},
    {VALOR_TOTAL, "Total dos produtos"}, {VALOR_FRETE, "Frete"}, {VALOR_SEGURO, "Seguro"},
    {VALOR_DES_ASC, "Outras despesas"}, {VALOR_TOT_IPI, "Total do IPI"},
    {VALOR_TOT_NF, "Total da nota"}, {TaxCredit, "Crédito do ICMS"}, {TaxCreditRate, "Alíquota"},
    {DC_TRP, "Transportador"}, {IC_RESP_FRT, "Frete"}, {CD_PLC_VEI_TRP, "Placa"},
    {UF_PLACA_TRP, "UF"}, {NR_CGC_CPL_TRP, "CNPJ"}, {DC_LG_TRP, "Endereço"},
    {NM_MUN_TRP, "Município"}, {SG_UF_TRP, "UF"}, {CD_ICR_EST_TRP, "Inscrição estadual"},
    {QT_ESP, "Quantidade"}, {QuantitySum, "Quantidade"}, {PESO_BRU, "Peso bruto"},
    {PESO_LIQ, "Peso líquido"}, {WeightSum, "Peso"},
    {ID_VND_DIR, "Nosso pedido"}, {NR_PED_CLI, "Seu pedido"}, {VENDEDOR, "Vendedor"},
    {LegalText, "Dados adicionais"}, {DC_OBS, "Observação"}, {Observation, "Observação"},
};
// clang-format on

}  // namespace

std::string_view labelOf(notes::Source source) {
    const auto* label = std::find_if(std::begin(labels), std::end(labels),
                                     [source](const Label& l) { return l.source == source; });
    return label == std::end(labels) ? std::string_view() : label->words;
}

}  // namespace tarn::dotmatrix
