// Answers of the label commands, and drawn texts as a printer is asked for them.
#pragma once

#include <string>

#include "gateway/xml_document.h"
#include "labels/print_labels.h"
#include "tests/support/answers.h"

namespace tarn::test {

inline XmlDocument document(const std::string& answer) {
    XmlDocument parsed;
    if (!parsed.loadXML(answer)) {
        throw std::runtime_error("not an answer: " + answer);
    }
    return parsed;
}

// A label whose texts all tell its number.
inline std::string labelRow(int number) {
    const std::string n = std::to_string(number);
    return "<z:row NOME='NOME " + n + "' ENDERECO='RUA " + n + ", 5' SOMENTE_ENDERECO='RUA " + n +
           "' NUMERO='" + n + "' COMPLEMENTO='CJ " + n + "' BAIRRO='BAIRRO " + n +
           "' MUNICIPIO='CIDADE " + n + "' UF='U" + n + "' CEP='CEP " + n + "' CODIGO='COD " + n +
           "'/>";
}

inline labels::PrintRun run(const std::string& rows, const std::string& from) {
    return {document(rows), labels::readSender(document(from))};
}

inline std::string labelRows(int count) {
    std::string rows;
    for (int number = 1; number <= count; ++number) {
        rows += labelRow(number);
    }
    return answers::rowset(rows);
}

inline const std::string sender = answers::rowset(
    "<z:row NOME='FILIAL SUL' ENDERECO='AV. BRASIL' BAIRRO='CENTRO' MUNICIPIO='CURITIBA' UF='PR' "
    "CEP='80000-000' DESCRICAO='LOJA 1' NUMERO='2000'/>");

// Places in thousandths of a centimetre, so that a table of them reads as it prints.
inline std::string place(int thousandths) {
    const std::string sign = thousandths < 0 ? "-" : "";
    const int size = thousandths < 0 ? -thousandths : thousandths;
    std::string fraction = std::to_string(1000 + size % 1000);
    fraction[0] = '.';
    return sign + std::to_string(size / 1000) + fraction;
}

inline std::string drawn(int x, int y, int points, const std::string& text) {
    return "text\t" + place(x) + "\t" + place(y) + "\tArial\t" + std::to_string(points) + "\t1\t" +
           text;
}

}  // namespace tarn::test
