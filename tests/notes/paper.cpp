#include "tests/notes/paper.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tarn::test {
namespace {

std::string letters(char letter) {
    return std::string(200, letter);
}

Attributes fullHead() {
    return {{"Ent_Sai", "S"},
            {"NatOper", letters('n')},
            {"CFOP", letters('c')},
            {"RAZAO", letters('r')},
            {"IC_TIP_PES", "J"},
            {"CGC_CPF", "12345678000195"},
            {"DT_EMS_NF", letters('d')},
            {"ENDERECO", letters('e')},
            {"BAIRRO", letters('b')},
            {"CEP", "1310100"},
            {"MUNICIPIO", letters('m')},
            {"FONEFAX", letters('f')},
            {"UF", letters('u')},
            {"INSC_EST", letters('i')},
            {"ENDERECO_COB", letters('E')},
            {"BAIRRO_COB", letters('B')},
            {"CEP_COB", "4002000"},
            {"MUNICIPIO_COB", letters('M')},
            {"UF_COB", letters('H')},
            {"ENDERECO_ETG", letters('F')},
            {"BAIRRO_ETG", letters('G')},
            {"MUNICIPIO_ETG", letters('J')},
            {"UF_ETG", letters('K')},
            {"QTDE_PARC", "3"},
            {"NR_DOC1", "DOC-1"},
            {"VL_PRN_DOC1", "100.5"},
            {"DT_VNC_DOC1", "07/02/2009"},
            {"NR_DOC2", letters('N')},
            {"VL_PRN_DOC2", "123456789012345"},
            {"DT_VNC_DOC2", letters('V')},
            {"NR_DOC3", "DOC-3"},
            {"VL_PRN_DOC3", "1300.25"},
            {"DT_VNC_DOC3", "07/04/2009"},
            {"DC_CND_PAG", letters('g')},
            {"DC_TRP", letters('t')},
            {"IC_RESP_FRT", letters('q')},
            {"CD_PLC_VEI_TRP", letters('p')},
            {"UF_PLACA_TRP", letters('v')},
            {"NR_CGC_CPL_TRP", "02345678000110"},
            {"DC_LG_TRP", letters('l')},
            {"NM_MUN_TRP", letters('w')},
            {"SG_UF_TRP", letters('s')},
            {"CD_ICR_EST_TRP", letters('k')},
            {"QT_ESP", "12"},
            {"PESO_BRU", "123456789012345"},
            {"PESO_LIQ", "1200"},
            {"ID_VND_DIR", letters('x')},
            {"NR_PED_CLI", letters('y')},
            {"VENDEDOR", letters('z')},
            {"COMPLEMENTO", letters('o')},
            {"COMPLEMENTO_COB", letters('O')},
            {"COMPLEMENTO_ETG", letters('Q')},
            {"CEP_ETG", "70040010"},
            {"DC_OBS", ruler(601, 300)},
            {"ID_EMP_TARN", "3681"}};
}

Attributes fullTotals() {
    return {{"VALOR_BASE_ICMS", "123456789012345"},
            {"VALOR_ICMS", "223456789012345"},
            {"VALOR_BAS_ICMS_RTD", "323456789012345"},
            {"VALOR_ICMS_RTD", "423456789012345"},
            {"VALOR_TOTAL", "523456789012345"},
            {"VALOR_TOTAL_DESC", "0"},
            {"VALOR_FRETE", "10"},
            {"VALOR_SEGURO", "5.5"},
            {"VALOR_DES_ASC", "0.25"},
            {"VALOR_TOT_IPI", "80.04"},
            {"VALOR_TOT_NF", "1696.54"},
            {"VL_IMPOSTO_CREDITAR", "1500"}};
}

Attributes overflowingItem() {
    return {{"CD_PRO", letters('P')},
            {"DESCRICAO", letters('D')},
            {"CL_FISCAL", letters('C')},
            {"IC_ORI_PRO", "o"},
            {"SIT_TRI", letters('S')},
            {"IC_TP_CAD", "P"},
            {"UNIDADE", letters('U')},
            {"QTDE", "10000000"},
            {"VALOR_UN", "123456789"},
            {"ICMS", "18.00"},
            {"AQ_IPI", "12.50"},
            {"IPI", "13.50"},
            {"VL_IPI", "77777777.25"},
            {"PESO", "0.5"},
            {"POS_NF", letters('T')},
            {"GF_AGRUP", "12345"},
            {"ID_CLA_FIS", "84818099"},
            {"CFOP_ITEM", letters('I')},
            {"DC_TXT_LEG_NF", ruler(1, 500)}};
}

Attributes plainItem() {
    return {{"CD_PRO", "P-002"},
            {"DESCRICAO", "ARRUELA LISA"},
            {"CL_FISCAL", "8481"},
            {"IC_ORI_PRO", "1"},
            {"SIT_TRI", "20"},
            {"IC_TP_CAD", "P"},
            {"UNIDADE", "UN"},
            {"QTDE", "400"},
            {"VALOR_UN", "1234.5"},
            {"ICMS", "7"},
            {"AQ_IPI", "5"},
            {"IPI", "6"},
            {"VL_IPI", "3.5"},
            {"PESO", "2"},
            {"POS_NF", "B"},
            {"GF_AGRUP", "2"},
            {"ID_CLA_FIS", "84811"},
            {"CFOP_ITEM", "0"},
            {"DC_TXT_LEG_NF", ruler(1, 500)}};
}

}  // namespace

Cell L(std::size_t column, std::size_t width, std::string text) {
    text.resize(width, ' ');
    return {column, text};
}

Cell L(std::size_t column, std::size_t width, char filled) {
    return {column, std::string(width, filled)};
}

Cell R(std::size_t column, std::size_t width, std::string text) {
    if (text.size() < width) {
        text.insert(0, width - text.size(), ' ');
    }
    return {column, text.substr(0, width)};
}

Cell T(std::size_t column, std::string text) {
    return {column, std::move(text)};
}

std::string line(const std::vector<Cell>& cells) {
    std::string out = " ";
    for (const Cell& cell : cells) {
        EXPECT_LE(out.size(), cell.column - 1) << cell.text;
        out.resize(cell.column - 1, ' ');
        out += cell.text;
    }
    return out;
}

std::string ruler(std::size_t start, std::size_t length) {
    constexpr std::string_view marks = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    std::string out;
    for (std::size_t i = start; i < start + length; ++i) {
        out += marks[(i * 7 + i / 36) % 36];
    }
    return out;
}

NoteDraft fullNote() {
    return {.head = fullHead(),
            .totals = fullTotals(),
            .form = {{"QT_MAX_IT", "6"}},
            .items = {overflowingItem(), plainItem()}};
}

std::string wide(char digit) {
    return std::string(1, digit) + "23.456.789.012.345,00";
}

NoteDraft withParcels(int count) {
    NoteDraft note = fullNote();
    note.head["QTDE_PARC"] = std::to_string(count);
    for (std::size_t n = 1; n <= 12; ++n) {
        note.head[numbered("NR_DOC", n)] = numbered("D", n);
        note.head[numbered("VL_PRN_DOC", n)] = numbered("", n) + ".5";
        note.head[numbered("DT_VNC_DOC", n)] = numbered("VENC", n);
    }
    return note;
}

NoteDraft withItems(std::size_t count) {
    NoteDraft note = fullNote();
    note.head.erase("DC_OBS");
    note.items.assign(count, note.items[1]);
    for (std::size_t i = 0; i < count; ++i) {
        note.items[i]["CD_PRO"] = numbered("C", i + 1);
        note.items[i]["DC_TXT_LEG_NF"] = numbered("L", i + 1);
    }
    return note;
}

NoteDraft withTexts(const std::string& legal, const std::string& observation) {
    NoteDraft note = fullNote();
    for (Attributes& item : note.items) {
        item["DC_TXT_LEG_NF"] = legal;
    }
    note.head["DC_OBS"] = observation;
    return note;
}

std::vector<std::string> rows(const std::string& stream, std::size_t from, std::size_t to) {
    const std::vector<std::string> lines = linesOf(stream);
    EXPECT_LE(to, lines.size());
    std::vector<std::string> out;
    for (std::size_t i = from; i <= to && i <= lines.size(); ++i) {
        out.push_back(lines[i - 1]);
    }
    return out;
}

std::string untilTypeError(const notes::Form& form, const NoteDraft& note) {
    std::optional<RuntimeErrorCode> error;
    const std::vector<Job> jobs = print(form, note.xml(), &error);
    EXPECT_EQ(error, RuntimeErrorCode::TypeMismatch);
    EXPECT_FALSE(jobs.back().ended);
    return jobs.back().bytes();
}

std::string below(const std::string& stream, std::size_t number) {
    const std::vector<std::string> lines = linesOf(stream);
    std::string out;
    for (std::size_t i = number - 1; i < lines.size(); ++i) {
        out += lines[i] + (i + 1 < lines.size() ? "\r\n" : "");
    }
    return out;
}

}  // namespace tarn::test
