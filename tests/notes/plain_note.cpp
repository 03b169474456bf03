#include "tests/notes/plain_note.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <stdexcept>

namespace tarn::test {

namespace {

struct Shown {
    std::string_view field;
    std::string_view wire;
    std::string_view printed;
};

// Some texts are longer than the narrowest of their boxes, some amounts too.
constexpr std::array headFields{
    Shown{"NatOper", "VENDA DE MERCADORIA ADQUIRIDA NO ESTADO",
          "VENDA DE MERCADORIA ADQUIRIDA NO ESTADO"},
    Shown{"CFOP", "5102", "5.102"},
    Shown{"RAZAO", "COMÉRCIO DE MÁQUINAS E FERRAMENTAS SÃO JOÃO DA BARRA LTDA.",
          "COMÉRCIO DE MÁQUINAS E FERRAMENTAS SÃO JOÃO DA BARRA LTDA."},
    Shown{"IC_TIP_PES", "J", ""},
    Shown{"CGC_CPF", "1234567000189", "01.234.567/0001-89"},
    Shown{"DT_EMS_NF", "07/01/2009", "07/01/2009"},
    Shown{"ENDERECO", "AV. BRIGADEIRO LUÍS ANTÔNIO, 1.827", "AV. BRIGADEIRO LUÍS ANTÔNIO, 1.827"},
    Shown{"COMPLEMENTO", "CONJ. 42 / BLOCO Ç-1", "CONJ. 42 / BLOCO Ç-1"},
    Shown{"BAIRRO", "BELA VISTA", "BELA VISTA"},
    Shown{"CEP", "1310100", "01310-100"},
    Shown{"MUNICIPIO", "SÃO PAULO", "SÃO PAULO"},
    Shown{"FONEFAX", "(11) 3284-5566", "(11) 3284-5566"},
    Shown{"UF", "SP", "SP"},
    Shown{"INSC_EST", "110.042.490.114", "110.042.490.114"},
    Shown{"ENDERECO_COB", "RUA DA COBRANÇA, 9 - FUNDOS", "RUA DA COBRANÇA, 9 - FUNDOS"},
    Shown{"COMPLEMENTO_COB", "3º ANDAR", "3º ANDAR"},
    Shown{"BAIRRO_COB", "CENTRO VELHO", "CENTRO VELHO"},
    Shown{"CEP_COB", "20040002", "20040-002"},
    Shown{"MUNICIPIO_COB", "NITERÓI", "NITERÓI"},
    Shown{"UF_COB", "RJ", "RJ"},
    Shown{"ENDERECO_ETG", "ROD. ANHANGÜERA KM 14,5 GALPÃO 3", "ROD. ANHANGÜERA KM 14,5 GALPÃO 3"},
    Shown{"COMPLEMENTO_ETG", "DOCA 7", "DOCA 7"},
    Shown{"BAIRRO_ETG", "JARAGUÁ", "JARAGUÁ"},
    Shown{"CEP_ETG", "5275000", "05275-000"},
    Shown{"MUNICIPIO_ETG", "SÃO JOSÉ DOS PINHAIS", "SÃO JOSÉ DOS PINHAIS"},
    Shown{"UF_ETG", "PR", "PR"},
    Shown{"DC_CND_PAG", "30/60/90 DIAS", "30/60/90 DIAS"},
    Shown{"DC_TRP", "TRANSPORTADORA ÁGUIA VELOZ S/A", "TRANSPORTADORA ÁGUIA VELOZ S/A"},
    Shown{"IC_RESP_FRT", "1", "1"},
    Shown{"CD_PLC_VEI_TRP", "KXY-4821", "KXY-4821"},
    Shown{"UF_PLACA_TRP", "MG", "MG"},
    // A leading zero is lost before the mask, and its place stays blank.
    Shown{"NR_CGC_CPL_TRP", "08765432000110", " 8.765.432/0001-10"},
    Shown{"DC_LG_TRP", "RUA DOS FRETES, 77 - PÁTIO 4", "RUA DOS FRETES, 77 - PÁTIO 4"},
    Shown{"NM_MUN_TRP", "BETIM", "BETIM"},
    Shown{"SG_UF_TRP", "ES", "ES"},
    Shown{"CD_ICR_EST_TRP", "062.307904.0081", "062.307904.0081"},
    Shown{"QT_ESP", "1234.5", "1.234,500"},
    Shown{"PESO_BRU", "9876.125", "9.876,125"},
    Shown{"PESO_LIQ", "18765.25", "18.765,250"},
    Shown{"NR_PED_CLI", "PC-2009/41", "PC-2009/41"},
    Shown{"VENDEDOR", "ANDRÉ GONÇALVES", "ANDRÉ GONÇALVES"},
    Shown{"ID_EMP_TARN", "541", ""},
};

constexpr std::array totalsFields{
    Shown{"VALOR_BASE_ICMS", "1111.1", "1.111,10"},
    Shown{"VALOR_ICMS", "222.22", "222,22"},
    Shown{"VALOR_BAS_ICMS_RTD", "3333333.3", "3.333.333,30"},
    Shown{"VALOR_ICMS_RTD", "444.445", "444,45"},
    Shown{"VALOR_TOTAL", "5555.55", "5.555,55"},
    Shown{"VALOR_TOTAL_DESC", "555.05", ""},
    Shown{"VALOR_FRETE", "66.6", "66,60"},
    Shown{"VALOR_SEGURO", "0.7", "0,70"},
    Shown{"VALOR_DES_ASC", "8", "8,00"},
    Shown{"VALOR_TOT_IPI", "99.999", "100,00"},
    Shown{"VALOR_TOT_NF", "5174.8", "5.174,80"},
};

constexpr std::array computedFields{
    Shown{"product total", "", "5.000,50"},
    Shown{"quantity sum", "", "1262,5"},
    Shown{"weight sum", "", "1.568,750"},
    Shown{"words", "", "CINCO MIL, CENTO E SETENTA E QUATRO REAIS E OITENTA CENTAVOS"},
};

struct Parcel {
    std::string_view number;
    std::string_view amount;
    std::string_view due;
    std::string_view printedAmount;
};

constexpr std::array parcels{
    Parcel{"4321/A", "1234.5", "06/02/2009", "1234,50"},
    Parcel{"4321/B2", "98765432.1", "08/03/2009", "98765432,10"},
    Parcel{"4321-TERCEIRA", "0.05", "07/04/2009", "0,05"},
    Parcel{"4321/D", "4", "07/05/2009", "4,00"},
    Parcel{"É-5", "555.555", "06/06/2009", "555,56"},
    Parcel{"4321/F", "66", "06/07/2009", "66,00"},
    Parcel{"4321/G", "7.7", "05/08/2009", "7,70"},
    Parcel{"4321/H", "888", "À VISTA", "888,00"},
    Parcel{"4321/I", "9999.99", "04/10/2009", "9999,99"},
    Parcel{"4321/J", "10.1", "03/11/2009", "10,10"},
    Parcel{"4321/K", "11", "03/12/2009", "11,00"},
    Parcel{"4321/L", "12.12", "02/01/2010", "12,12"},
    Parcel{"4321/M", "13", "01/02/2010", "13,00"},
};

struct ItemShown {
    std::string_view field;
    std::string_view way;
    std::array<std::string_view, 2> printed;
};

constexpr std::array<std::array<Shown, 20>, 2> itemFields{{
    {{{"CD_PRO", "A7", ""},
      {"DESCRICAO", "CABO FLEXÍVEL 2,5 MM² - ROLO DE 100 METROS - ISOLAÇÃO ANTICHAMA", ""},
      {"POS_NF", "1", ""},
      {"CL_FISCAL", "8544.59.00-1", ""},
      {"GF_AGRUP", "1", ""},
      {"ID_CLA_FIS", "84811", ""},
      {"CFOP_ITEM", "0", ""},
      {"IC_ORI_PRO", "0", ""},
      {"SIT_TRI", "00", ""},
      {"IC_TP_CAD", "P", ""},
      {"UNIDADE", "PÇ", ""},
      {"QTDE", "12.500", ""},
      {"VALOR_UN", "3.24", ""},
      {"VL_DSC", "4.05", ""},
      {"ICMS", "18", ""},
      {"AQ_IPI", "5", ""},
      {"IPI", "9.25", ""},
      {"VL_IPI", "2.03", ""},
      {"PESO", "0.5", ""},
      {"AQ_ISS", "2", ""}}},
    {{{"CD_PRO", "LÂMPADA-100W", ""}, {"DESCRICAO", "LÂMPADA", ""}, {"POS_NF", "02", ""},
      {"CL_FISCAL", "B", ""},         {"GF_AGRUP", "2", ""},        {"ID_CLA_FIS", "84812", ""},
      {"CFOP_ITEM", "51021", ""},     {"IC_ORI_PRO", "1", ""},      {"SIT_TRI", "41", ""},
      {"IC_TP_CAD", "P", ""},         {"UNIDADE", "CAIXA-10", ""},  {"QTDE", "1250", ""},
      {"VALOR_UN", "1234.5", ""},     {"VL_DSC", "15431.25", ""},   {"ICMS", "7.5", ""},
      {"AQ_IPI", "12", ""},           {"IPI", "4.125", ""},         {"VL_IPI", "1234.56", ""},
      {"PESO", "1.25", ""},           {"AQ_ISS", "3", ""}}},
}};

constexpr std::array itemsShown{
    ItemShown{"CD_PRO", "", {"A7", "LÂMPADA-100W"}},
    ItemShown{"DESCRICAO",
              "",
              {"CABO FLEXÍVEL 2,5 MM² - ROLO DE 100 METROS - ISOLAÇÃO ANTICHAMA", "LÂMPADA"}},
    ItemShown{"POS_NF", "", {"1", "02"}},
    ItemShown{"CL_FISCAL", "", {"8544.59.00-1", "B"}},
    ItemShown{"GF_AGRUP", "", {"1", "2"}},
    ItemShown{"class", "", {" 1) 84811 ", " 2) 84812 "}},
    ItemShown{"CFOP_ITEM", "", {"0000", "51021"}},
    ItemShown{"IC_ORI_PRO and SIT_TRI", "", {"000", "141"}},
    ItemShown{"SIT_TRI", "", {"00", "41"}},
    ItemShown{"UNIDADE", "", {"PÇ", "CAIXA-10"}},
    ItemShown{"QTDE", "", {"12,500", "1250,000"}},
    ItemShown{"QTDE", "general", {"12,5", "1250"}},
    ItemShown{"QTDE", "raw", {"12,500", "1250"}},
    ItemShown{"QTDE", "pointless", {"12500,000", "1250,000"}},
    ItemShown{"QTDE", "grouped", {"12,500", "1.250,000"}},
    ItemShown{"VALOR_UN", "", {"3,24", "1234,50"}},
    ItemShown{"VALOR_UN", "grouped", {"3,24", "1.234,50"}},
    ItemShown{"line total", "", {"40,50", "1.543.125,00"}},
    ItemShown{"line total", "pointless", {"40.500,00", "1.543.125,00"}},
    ItemShown{"discount percentage", "", {"10,00", "1,00"}},
    ItemShown{"ICMS", "", {"18,00", "7,50"}},
    ItemShown{"ICMS", "whole", {"18", "8"}},
    ItemShown{"ICMS", "raw", {"18", "7,5"}},
    ItemShown{"AQ_IPI", "", {"5,00", "12,00"}},
    ItemShown{"IPI", "raw", {"9,25", "4,125"}},
    ItemShown{"VL_IPI", "", {"2,03", "1234,56"}},
};

std::string escaped(std::string_view text) {
    std::string out;
    for (const char c : text) {
        switch (c) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '"':
                out += "&quot;";
                break;
            case '\t':
                out += "&#9;";
                break;
            case '\n':
                out += "&#10;";
                break;
            case '\r':
                out += "&#13;";
                break;
            default:
                out += c;
        }
    }
    return out;
}

std::string rowXml(std::string_view name, const Attributes& attributes) {
    std::string out = "  <" + std::string(name);
    for (const auto& [field, value] : attributes)
        out += " " + field + "=\"" + escaped(value) + "\"";
    return out + "/>\n";
}

template <typename Table>
const Shown* find(const Table& table, std::string_view field) {
    const auto found =
        std::find_if(table.begin(), table.end(), [&](const Shown& s) { return s.field == field; });
    return found == table.end() ? nullptr : &*found;
}

}  // namespace

std::string NoteDraft::xml() const {
    std::string out =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<PRINCIPAL CODIGO=\"0\" STATUS=\"OK\">\n";
    out += rowXml("NOTA", head) + rowXml("TOTAIS", totals) + rowXml("FORMULARIO", form);
    for (const Attributes& item : items)
        out += rowXml("ITEM", item);
    return out + "</PRINCIPAL>\n";
}

NoteDraft draftOf(const NoteCase& note) {
    NoteDraft draft;
    for (const Shown& shown : headFields)
        draft.head.emplace(shown.field, shown.wire);
    draft.head.emplace("Ent_Sai", note.entry ? "E" : "S");
    draft.head.emplace("ID_VND_DIR", note.directOrder);
    draft.head.emplace("DC_OBS", note.observation);
    draft.head.emplace("QTDE_PARC", std::to_string(note.parcels));
    for (std::size_t i = 0; i < parcels.size(); ++i) {
        const std::string n = std::to_string(i + 1);
        draft.head.emplace("NR_DOC" + n, parcels[i].number);
        draft.head.emplace("VL_PRN_DOC" + n, parcels[i].amount);
        draft.head.emplace("DT_VNC_DOC" + n, parcels[i].due);
    }
    for (const Shown& shown : totalsFields)
        draft.totals.emplace(shown.field, shown.wire);
    draft.totals.emplace("VL_IMPOSTO_CREDITAR", note.taxCredit);
    draft.form.emplace("QT_MAX_IT", std::to_string(plainItemLines));
    for (int i = 0; i < note.items; ++i) {
        const auto turn = static_cast<std::size_t>(i) % 2;
        Attributes& item = draft.items.emplace_back();
        for (const Shown& shown : itemFields[turn])
            item.emplace(shown.field, shown.wire);
        item.emplace("DC_TXT_LEG_NF",
                     note.legalTexts[static_cast<std::size_t>(i) % note.legalTexts.size()]);
    }
    return draft;
}

std::string printedField(std::string_view field) {
    for (const Shown* shown :
         {find(headFields, field), find(totalsFields, field), find(computedFields, field)}) {
        if (shown != nullptr)
            return printerBytes(shown->printed);
    }
    throw std::out_of_range("no printed text for " + std::string(field));
}

std::string printedParcel(std::string_view field, int parcel) {
    const Parcel& p = parcels.at(static_cast<std::size_t>(parcel) - 1);
    if (field == "NR_DOC")
        return printerBytes(p.number);
    if (field == "DT_VNC_DOC")
        return printerBytes(p.due);
    if (field == "VL_PRN_DOC")
        return std::string(p.printedAmount);
    return std::to_string(parcel) + ")";
}

std::string printedItem(std::string_view field, std::string_view way, int item) {
    for (const ItemShown& shown : itemsShown) {
        if (shown.field == field && shown.way == way)
            return printerBytes(shown.printed[static_cast<std::size_t>(item) % 2]);
    }
    throw std::out_of_range("no printed text for " + std::string(field) + " " + std::string(way));
}

std::string printerBytes(std::string_view utf8) {
    std::string out;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto lead = static_cast<unsigned char>(utf8[i]);
        if (lead < 0x80) {
            out += utf8[i];
        } else if (lead == 0xC2 || lead == 0xC3) {
            const auto tail = static_cast<unsigned char>(utf8.at(++i));
            out += static_cast<char>(((lead & 0x03U) << 6U) | (tail & 0x3FU));
        } else {
            throw std::out_of_range("not a character of the printer's page");
        }
    }
    return out;
}

std::string readable(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string out;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte == 0x7F) {
            out += '<';
            out += digits[byte >> 4U];
            out += digits[byte & 15U];
            out += '>';
        } else if (byte < 0x80) {
            out += c;
        } else {
            out += static_cast<char>(0xC0U | (byte >> 6U));
            out += static_cast<char>(0x80U | (byte & 0x3FU));
        }
    }
    return out;
}

}  // namespace tarn::test
