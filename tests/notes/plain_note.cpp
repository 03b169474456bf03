#include "tests/notes/plain_note.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <stdexcept>

#include "tests/support/xml_text.h"

namespace tarn::test {

namespace {

using namespace std::string_view_literals;

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

// Of an overflowing note's first item, where it isn't a text: as the server sends it.
constexpr std::array longNumbers{
    Shown{"QTDE", "10000000", ""},
    Shown{"VALOR_UN", "123456789", ""},
    Shown{"VL_DSC", "12345678900000000", ""},
    Shown{"ICMS", "1800.5", ""},
    Shown{"AQ_IPI", "1250", ""},
    Shown{"IPI", "9250.25", ""},
    Shown{"VL_IPI", "77777777.25", ""},
};

// And as forms print it, by the ways of printedItem.
struct LongShown {
    std::string_view field;
    std::string_view way;
    std::string_view printed;
};
constexpr std::array longNumbersShown{
    LongShown{"QTDE", "", "10000000,000"},
    LongShown{"QTDE", "general", "10000000"},
    LongShown{"QTDE", "raw", "10000000"},
    LongShown{"QTDE", "pointless", "10000000,000"},
    LongShown{"QTDE", "grouped", "10.000.000,000"},
    LongShown{"VALOR_UN", "", "123456789,00"},
    LongShown{"VALOR_UN", "grouped", "123.456.789,00"},
    LongShown{"line total", "", "1.234.567.890.000.000,00"},
    LongShown{"line total", "pointless", "1.234.567.890.000.000,00"},
    LongShown{"discount percentage", "", "1000,00"},
    LongShown{"ICMS", "", "1800,50"},
    LongShown{"ICMS", "whole", "1801"},
    LongShown{"ICMS", "raw", "1800,5"},
    LongShown{"AQ_IPI", "", "1250,00"},
    LongShown{"IPI", "raw", "9250,25"},
    LongShown{"VL_IPI", "", "77777777,25"},
};

// Fields whose text decides or is put together with others, and the total in words.
bool staysPlain(std::string_view field) {
    constexpr std::array fields{"IC_TIP_PES"sv, "CGC_CPF"sv,     "CEP"sv,          "CEP_COB"sv,
                                "CEP_ETG"sv,    "ID_EMP_TARN"sv, "VALOR_TOT_NF"sv, "IC_ORI_PRO"sv,
                                "IC_TP_CAD"sv,  "ID_CLA_FIS"sv,  "PESO"sv,         "AQ_ISS"sv};
    return std::find(fields.begin(), fields.end(), field) != fields.end();
}

// An amount of 15 digits, its first one by its place in the table.
struct LongAmount {
    std::string wire;
    std::string printed;
};
LongAmount longAmount(std::size_t place, std::size_t decimals) {
    const std::string first = std::to_string(place % 9 + 1);
    return {first + "23456789012345", first + "23.456.789.012.345," + std::string(decimals, '0')};
}

// The wire and printed text of a head or totals field, overflowing.
LongAmount overflowed(const Shown& shown, std::size_t place) {
    if (staysPlain(shown.field)) {
        return {std::string(shown.wire), std::string(shown.printed)};
    }
    if (shown.field == "VALOR_TOTAL_DESC") {
        return {"0", ""};
    }
    if (shown.field == "NR_CGC_CPL_TRP") {
        return {"transportadoraABCDEFGHIJKLMN", "transportadoraAB.CDE.FGH/IJKL-MN"};
    }
    const std::size_t comma = shown.printed.find(',');
    const bool amount = shown.wire != shown.printed && comma != std::string_view::npos;
    if (amount) {
        return longAmount(place, shown.printed.size() - comma - 1);
    }
    return {overflowOf(shown.field), overflowOf(shown.field)};
}

template <typename Table>
void addFields(Attributes& row, const Table& table, bool overflowing) {
    for (std::size_t i = 0; i < table.size(); ++i) {
        row.emplace(table[i].field,
                    overflowing ? overflowed(table[i], i).wire : std::string(table[i].wire));
    }
}

std::string rowXml(std::string_view name, const Attributes& attributes) {
    return "  " + elementText(name, attributes) + "\n";
}

template <typename Table>
const Shown* find(const Table& table, std::string_view field) {
    const auto found =
        std::find_if(table.begin(), table.end(), [&](const Shown& s) { return s.field == field; });
    return found == table.end() ? nullptr : &*found;
}

bool isLongText(std::string_view field) {
    return !staysPlain(field) && find(longNumbers, field) == nullptr;
}

std::string itemWire(const Shown& shown, std::size_t turn, bool overflowing) {
    if (overflowing && isLongText(shown.field)) {
        return overflowOf(shown.field);
    }
    const Shown* number = find(longNumbers, shown.field);
    return std::string(overflowing && turn == 0 && number != nullptr ? number->wire : shown.wire);
}

}  // namespace

std::string overflowOf(std::string_view field) {
    std::string text;
    while (text.size() < 200) {
        text.append(field).append(".");
    }
    text.resize(200);
    return text;
}

std::string NoteDraft::xml() const {
    std::string out =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<PRINCIPAL CODIGO=\"0\" STATUS=\"OK\">\n";
    out += rowXml("NOTA", head) + rowXml("TOTAIS", totals) + rowXml("FORMULARIO", form);
    for (const Attributes& item : items) {
        out += rowXml("ITEM", item);
    }
    return out + "</PRINCIPAL>\n";
}

NoteDraft draftOf(const NoteCase& note) {
    NoteDraft draft;
    addFields(draft.head, headFields, note.overflowing);
    draft.head.emplace("Ent_Sai", note.entry ? "E" : "S");
    draft.head.emplace("ID_VND_DIR", note.directOrder);
    draft.head.emplace("DC_OBS", note.observation);
    draft.head.emplace("QTDE_PARC", std::to_string(note.parcels));
    for (std::size_t i = 0; i < parcels.size(); ++i) {
        const std::string n = std::to_string(i + 1);
        const bool all = note.overflowing;
        draft.head.emplace("NR_DOC" + n,
                           all ? overflowOf("NR_DOC" + n) : std::string(parcels[i].number));
        draft.head.emplace("VL_PRN_DOC" + n,
                           all ? longAmount(i, 2).wire : std::string(parcels[i].amount));
        draft.head.emplace("DT_VNC_DOC" + n,
                           all ? overflowOf("DT_VNC_DOC" + n) : std::string(parcels[i].due));
    }
    addFields(draft.totals, totalsFields, note.overflowing);
    draft.totals.emplace("VL_IMPOSTO_CREDITAR", note.taxCredit);
    draft.form.emplace("QT_MAX_IT", std::to_string(plainItemLines));
    for (int i = 0; i < note.items; ++i) {
        const auto turn = static_cast<std::size_t>(i) % 2;
        Attributes& item = draft.items.emplace_back();
        for (const Shown& shown : itemFields[turn]) {
            item.emplace(shown.field, itemWire(shown, turn, note.overflowing));
        }
        item.emplace("DC_TXT_LEG_NF",
                     note.legalTexts[static_cast<std::size_t>(i) % note.legalTexts.size()]);
    }
    return draft;
}

std::string printedField(std::string_view field, bool overflowing) {
    // The overflowing total has no discount.
    const bool total = overflowing && field == "product total";
    const std::string_view wanted = total ? "VALOR_TOTAL" : field;
    for (std::size_t i = 0; overflowing && i < headFields.size(); ++i) {
        if (headFields[i].field == wanted) {
            return printerBytes(overflowed(headFields[i], i).printed);
        }
    }
    for (std::size_t i = 0; overflowing && i < totalsFields.size(); ++i) {
        if (totalsFields[i].field == wanted) {
            return printerBytes(overflowed(totalsFields[i], i).printed);
        }
    }
    for (const Shown* shown :
         {find(headFields, wanted), find(totalsFields, wanted), find(computedFields, wanted)}) {
        if (shown != nullptr) {
            return printerBytes(shown->printed);
        }
    }
    throw std::out_of_range("no printed text for " + std::string(field));
}

std::string printedParcel(std::string_view field, int parcel, bool overflowing) {
    const auto place = static_cast<std::size_t>(parcel) - 1;
    const Parcel& p = parcels.at(place);
    const std::string n = std::to_string(parcel);
    if (field == "NR_DOC") {
        return overflowing ? overflowOf("NR_DOC" + n) : printerBytes(p.number);
    }
    if (field == "DT_VNC_DOC") {
        return overflowing ? overflowOf("DT_VNC_DOC" + n) : printerBytes(p.due);
    }
    if (field == "VL_PRN_DOC") {
        std::string amount =
            overflowing ? longAmount(place, 2).printed : std::string(p.printedAmount);
        amount.erase(std::remove(amount.begin(), amount.end(), '.'), amount.end());
        return amount;
    }
    return n + ")";
}

std::string printedItem(std::string_view field, std::string_view way, int item, bool overflowing) {
    const auto turn = static_cast<std::size_t>(item) % 2;
    if (overflowing && field == "IC_ORI_PRO and SIT_TRI") {
        return (turn == 0 ? "0" : "1") + overflowOf("SIT_TRI");
    }
    if (overflowing && field == "class") {
        return " " + overflowOf("GF_AGRUP") + (turn == 0 ? ") 84811 " : ") 84812 ");
    }
    if (overflowing && find(itemFields[0], field) != nullptr && isLongText(field)) {
        return overflowOf(field);
    }
    for (const LongShown& shown : longNumbersShown) {
        if (overflowing && turn == 0 && shown.field == field && shown.way == way) {
            return std::string(shown.printed);
        }
    }
    for (const ItemShown& shown : itemsShown) {
        if (shown.field == field && shown.way == way) {
            return printerBytes(shown.printed[turn]);
        }
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
