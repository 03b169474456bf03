// What the server tells of a label and of the branch that sends it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "gateway/row_reader.h"
#include "gateway/xml_document.h"
#include "platform/progress.h"

namespace tarn {
struct Environment;
}

namespace tarn::labels {

// An address of the queue, by the names of its fields; absent is empty.
struct Label {
    std::string_view NOME;
    std::string_view ENDERECO;          // the address line as a whole
    std::string_view SOMENTE_ENDERECO;  // the street alone, for use with the number
    std::string_view NUMERO;
    std::string_view COMPLEMENTO;
    std::string_view BAIRRO;
    std::string_view MUNICIPIO;
    std::string_view UF;
    std::string_view CEP;
    std::string_view CODIGO;
};

// The labels of an answer, which must outlive this, in its order.
class Labels {
public:
    explicit Labels(const XmlDocument& answer);

    std::size_t count() const { return rows_.length(); }
    // Its texts live until the next label is read. ObjectVariable for a field that the
    // answer spells in another case.
    Label read(std::size_t index);

private:
    XmlNodeList rows_;
    RowReader reader_;
};

// Tells who follows the run, if anyone, that so many of the labels are printed.
void report(const Progress& progress, std::size_t done, const Labels& labels);

// Says what came of the paper of so many.
void tellLabels(const Environment& environment, std::size_t count);

struct Sender {
    std::string NOME;
    std::string ENDERECO;
    std::string BAIRRO;
    std::string MUNICIPIO;
    std::string UF;
    std::string CEP;
    std::string DESCRICAO;  // empty when blank
    std::string NUMERO;     // empty when its value is 0
};

// The first row. ObjectVariable when there is none.
Sender readSender(const XmlDocument& answer);

// A house number as it prints: nothing for what counts as 0.
std::string_view blankIfZero(std::string_view number);

}  // namespace tarn::labels
