#include "tests/fuzz/made_answers.h"

#include <algorithm>
#include <array>

#include "tests/fuzz/wild_values.h"

namespace tarn::fuzz {

namespace {

const Row orderHead = rowOf({{"RAZAO", "JOSÉ & FILHOS LTDA"},
                             {"DT_EMS_NF", "05/03/2012"},
                             {"VENDEDOR", "ANA"},
                             {"NR_CTRL_INT", "77"}});
const Row orderItem = rowOf({{"CD_PRO", "P-1"},
                             {"DESCRICAO", "PARAFUSO"},
                             {"QTDE", "12.500"},
                             {"UNITARIO", "1.005"},
                             {"VL_DSC", "0.10"},
                             {"VL_IPI", "1"},
                             {"VL_ICMS_RTD", "2"},
                             {"VL_DSC_ICMS", "0"},
                             {"VL_FRT", "3"},
                             {"VL_DSP_ACS", "0.5"},
                             {"VL_SEG", "0.25"}});
const Row orderParcel = rowOf({{"DT_PRL", "05/04/2012"}, {"VL_PRL", "100.00"}});

const Row openDocument = rowOf({{"SG_FIL", "SP"},
                                {"DT_VNC_DOC_FMA", "10/04/2012"},
                                {"DC_TIP_DOC", "DUPLICATA"},
                                {"NR_DOC", "4567/1"},
                                {"NM_CLI_ETB", "JOSÉ & FILHOS"},
                                {"DT_EMS_DOC", "05/03/2012"},
                                {"DC_LG_CPL", "RUA DO COMÉRCIO, 100"},
                                {"VL_PRN_DOC", "1234.50"},
                                {"CD_CEP", "01310-100"},
                                {"NM_MUN", "SÃO PAULO"},
                                {"SG_UF", "SP"},
                                {"PES_JUR", "1"},
                                {"NR_CGC_CPL", "12345678000195"},
                                {"CD_ICR_EST", "110.042.490.114"},
                                {"TIPO_DOCTO", "DOCTO_COBRANCA"},
                                {"DC_REF_REC", "NAO RECEBER APOS 30 DIAS"},
                                {"TX_JUR_DIA", "0.033"},
                                {"PC_MULTA", "2.50"},
                                {"JUROS_AO_DIA", "0.42"},
                                {"VL_OUT_DSP", "7.50"},
                                {"ID_ETB_TARN", "3381"},
                                {"ID_TIP_DOC", "201"},
                                {"CD_AGE_BAN", "1123"},
                                {"ID_PES_BAN", "1016"},
                                {"CD_EXT", "C-77"},
                                {"NR_DOC_NF", "4567"},
                                {"ID_NR_CTL", "7001"},
                                {"EG_COB", "AV. CENTRAL, 5"},
                                {"MUN_COB", "RIO DE JANEIRO"},
                                {"ES_COB", "RJ"},
                                {"CD_CEP_COB", "20040-002"}});

const Row label = rowOf({{"NOME", "MARIA DA LUZ"},
                         {"ENDERECO", "RUA A, 5"},
                         {"SOMENTE_ENDERECO", "RUA A"},
                         {"NUMERO", "5"},
                         {"COMPLEMENTO", "SALA 2"},
                         {"BAIRRO", "CENTRO"},
                         {"MUNICIPIO", "CAMPINAS"},
                         {"UF", "SP"},
                         {"CEP", "13010-001"},
                         {"CODIGO", "99"},
                         {"DESCRICAO", "LOJA"}});

const Row customer = rowOf({{"CD_CEP", "13010-001"},
                            {"NM_PES_CPL", "MARIA DA LUZ"},
                            {"DC_LG_CPL", "RUA A"},
                            {"NM_BRR", "CENTRO"},
                            {"SG_UF", "SP"},
                            {"NM_MUN", "CAMPINAS"}});

const Row company = rowOf({{"DC_LG", "RUA DO SOL, 9"},
                           {"SG_UF", "SP"},
                           {"NM_BRR", "CENTRO"},
                           {"NM_MUN", "CAMPINAS"},
                           {"NM_UF", "SAO PAULO"},
                           {"NR_LG", "9"},
                           {"CD_CEP", "13010-001"},
                           {"CD_ICR_EST", "110"},
                           {"DC_RAZ_SOC_ETB", "COM. S.A."},
                           {"TELEFONE", "5555"},
                           {"FAX", "5556"},
                           {"EMAIL", "a@b.example"},
                           {"PES_JUR", "1"},
                           {"NR_CGC_CPL", "12345678000195"}});

const Row portfolio = rowOf({{"ID_CRT_COB", "5"},
                             {"ID_PES_BAN", "1016"},
                             {"NR_CRT_CNAB", "57"},
                             {"CD_AGE_BAN_CNAB", "112-3"},
                             {"NR_CCOR_CNAB", "45678-9"}});

std::size_t madeRarity(ByteSource& source) {
    return std::array<std::size_t, 4>{251, 60, 20, 6}[source.below(4)];
}

constexpr std::string_view declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";

XmlDocument loaded(const std::string& xml) {
    XmlDocument document;
    document.loadXML(xml);
    return document;
}

XmlDocument rowset(const std::string& rows) {
    return loaded(std::string(declaration) +
                  "<xml xmlns:rs='urn:schemas-microsoft-com:rowset' xmlns:z='#RowsetSchema'>"
                  "<rs:data>" +
                  rows + "</rs:data></xml>");
}

// A run takes as long as its rows: most documents have few.
std::size_t madeCount(ByteSource& source, std::size_t most) {
    constexpr std::size_t few = 2;
    const std::size_t even = source.below(most + 1);
    return std::max(std::min(even, few), even * even * even / (most * most));
}

XmlDocument madeRows(ByteSource& source, const Row& usual, std::size_t most) {
    if (source.oneIn(8)) {
        return loaded(std::string(source.rest()));
    }
    const std::size_t rarity = madeRarity(source);
    std::string rows;
    for (std::size_t count = madeCount(source, most); count > 0; --count) {
        appendChanged(rows, "z:row", usual, source, rarity);
    }
    return rowset(rows);
}

XmlDocument madeRow(ByteSource& source, const Row& usual) {
    std::string row;
    appendChanged(row, "z:row", usual, source, madeRarity(source));
    return rowset(row);
}

}  // namespace

XmlDocument madeOrder(ByteSource& source) {
    if (source.oneIn(8)) {
        return loaded(std::string(source.rest()));
    }
    const std::size_t rarity = madeRarity(source);
    std::string xml = std::string(declaration) + "<PRINCIPAL>";
    appendChanged(xml, "CAB", orderHead, source, rarity);
    for (std::size_t count = source.below(6); count > 0; --count) {
        appendChanged(xml, "ITEM", orderItem, source, rarity);
    }
    for (std::size_t count = source.below(4); count > 0; --count) {
        appendChanged(xml, "PARCELA", orderParcel, source, rarity);
    }
    return loaded(xml + "</PRINCIPAL>");
}

XmlDocument madeDocuments(ByteSource& source) {
    return madeRows(source, openDocument, 6);
}

XmlDocument madeLabels(ByteSource& source) {
    return madeRows(source, label, 35);
}

XmlDocument madeCustomers(ByteSource& source) {
    return madeRows(source, customer, 24);
}

XmlDocument madeCompany(ByteSource& source) {
    return madeRow(source, company);
}

XmlDocument madePortfolio(ByteSource& source) {
    return madeRow(source, portfolio);
}

XmlDocument madeSender(ByteSource& source) {
    return madeRow(source, label);
}

}  // namespace tarn::fuzz
