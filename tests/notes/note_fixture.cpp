#include "tests/notes/note_fixture.h"

#include <gtest/gtest.h>

#include "common/raw_channel.h"
#include "gateway/xml_document.h"
#include "notes/pipeline.h"

namespace tarn::test {
NoteDraft sampleNote() {
    NoteDraft note;
    note.head = {{"Ent_Sai", "S"},
                 {"NatOper", "VENDA DE MERCADORIA"},
                 {"CFOP", "5102"},
                 {"RAZAO", "COMÉRCIO DE PEÇAS SÃO JOÃO LTDA"},
                 {"IC_TIP_PES", "J"},
                 {"CGC_CPF", "12345678000195"},
                 {"DT_EMS_NF", "07/01/2009"},
                 {"ENDERECO", "RUA DAS FLORES, 100"},
                 {"BAIRRO", "CENTRO"},
                 {"CEP", "1310100"},
                 {"MUNICIPIO", "SÃO PAULO"},
                 {"FONEFAX", "(11) 5555-0000"},
                 {"UF", "SP"},
                 {"INSC_EST", "110.042.490.114"},
                 {"QTDE_PARC", "3"},
                 {"VL_PRN_DOC1", "100.5"},
                 {"DT_VNC_DOC1", "07/02/2009"},
                 {"VL_PRN_DOC2", "200"},
                 {"DT_VNC_DOC2", "07/03/2009"},
                 {"VL_PRN_DOC3", "1300.25"},
                 {"DT_VNC_DOC3", "07/04/2009"},
                 {"DC_TRP", "TRANSPORTES RÁPIDOS"},
                 {"IC_RESP_FRT", "1"},
                 {"CD_PLC_VEI_TRP", "ABC1234"},
                 {"UF_PLACA_TRP", "SP"},
                 {"NR_CGC_CPL_TRP", "02345678000110"},
                 {"DC_LG_TRP", "AV. BRASIL, 2000"},
                 {"NM_MUN_TRP", "CAMPINAS"},
                 {"SG_UF_TRP", "SP"},
                 {"CD_ICR_EST_TRP", "ISENTO"},
                 {"QT_ESP", "12"},
                 {"PESO_BRU", "1234.5"},
                 {"PESO_LIQ", "1200"},
                 {"ID_VND_DIR", "98765"},
                 {"NR_PED_CLI", "PC-77"},
                 {"VENDEDOR", "MARIA"},
                 {"DC_OBS", "ENTREGAR PELA MANHÃ"}};
    note.totals = {
        {"VALOR_BASE_ICMS", "1600.75"}, {"VALOR_ICMS", "288.14"},   {"VALOR_BAS_ICMS_RTD", "0"},
        {"VALOR_ICMS_RTD", "0"},        {"VALOR_TOTAL", "1650.75"}, {"VALOR_TOTAL_DESC", "50"},
        {"VALOR_FRETE", "10"},          {"VALOR_SEGURO", "5.5"},    {"VALOR_DES_ASC", "0.25"},
        {"VALOR_TOT_IPI", "80.04"},     {"VALOR_TOT_NF", "1696.54"}};
    note.form = {{"QT_MAX_IT", "6"}};
    note.items = {{{"CD_PRO", "P-001"},
                   {"DESCRICAO", "PARAFUSO SEXTAVADO AÇO INOX"},
                   {"POS_NF", "A"},
                   {"IC_ORI_PRO", "0"},
                   {"SIT_TRI", "00"},
                   {"IC_TP_CAD", "P"},
                   {"UNIDADE", "CX"},
                   {"QTDE", "12.5"},
                   {"VALOR_UN", "100.06"},
                   {"VL_DSC", "25"},
                   {"ICMS", "18"},
                   {"AQ_IPI", "5"},
                   {"DC_TXT_LEG_NF", "BASE DE CALCULO REDUZIDA"}},
                  {{"CD_PRO", "P-002"},
                   {"DESCRICAO", "ARRUELA LISA"},
                   {"POS_NF", "B"},
                   {"IC_ORI_PRO", "1"},
                   {"SIT_TRI", "20"},
                   {"IC_TP_CAD", "P"},
                   {"UNIDADE", "UN"},
                   {"QTDE", "400"},
                   {"VALOR_UN", "1"},
                   {"VL_DSC", "25"},
                   {"ICMS", "7"},
                   {"AQ_IPI", "100"},
                   {"DC_TXT_LEG_NF", "BASE DE CALCULO REDUZIDA"}}};
    return note;
}

std::vector<Job> print(const notes::Form& form, const std::string& xml,
                       std::optional<RuntimeErrorCode>* error, std::string_view number) {
    XmlDocument document;
    EXPECT_TRUE(document.loadXML(xml)) << xml;
    RecordingSpooler spooler;
    RawChannel channel(spooler, CodePage::Page1252);
    try {
        notes::printNote(form, document, number, channel);
    } catch (const RuntimeError& raised) {
        EXPECT_NE(error, nullptr) << raised.what();
        if (error != nullptr) {
            *error = raised.number();
        }
    }
    return spooler.jobs;
}

std::string printed(const notes::Form& form, const NoteDraft& note) {
    const std::vector<Job> jobs = print(form, note.xml());
    EXPECT_TRUE(jobs.back().ended);
    return jobs.back().bytes();
}

std::vector<std::string> linesOf(const std::string& stream) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (true) {
        const std::size_t end = stream.find("\r\n", start);
        if (end == std::string::npos) {
            lines.push_back(stream.substr(start));
            return lines;
        }
        lines.push_back(stream.substr(start, end - start));
        start = end + 2;
    }
}

std::string numbered(std::string_view prefix, std::size_t number) {
    return std::string(prefix).append(std::to_string(number));
}

std::string lineOf(std::size_t length,
                   const std::vector<std::pair<std::size_t, std::string>>& values) {
    std::string line(length, ' ');
    for (const auto& [column, value] : values) {
        EXPECT_LE(column - 1 + value.size(), length) << value;
        line.replace(column - 1, value.size(), value);
    }
    return line;
}

}  // namespace tarn::test
