#include "labels/label.h"

#include <array>

#include "runtime/numbers.h"
#include "runtime/text.h"

namespace tarn::labels {
namespace {

enum Field : std::size_t {
    NOME,
    ENDERECO,
    SOMENTE_ENDERECO,
    NUMERO,
    COMPLEMENTO,
    BAIRRO,
    MUNICIPIO,
    UF,
    CEP,
    CODIGO
};

constexpr std::array<std::string_view, 10> fields{
    "NOME", "ENDERECO", "SOMENTE_ENDERECO", "NUMERO", "COMPLEMENTO", "BAIRRO", "MUNICIPIO", "UF",
    "CEP",  "CODIGO"};

XmlNode rowsOf(const XmlDocument& answer) {
    return answer.selectSingleNode("xml/rs:data");
}

}  // namespace

Labels::Labels(const XmlDocument& answer)
    : lines_(rowsOf(answer)), count_(lines_ ? lines_.childCount() : 0), reader_(fields) {}

Label Labels::read(std::size_t index) {
    reader_.read(lines_, index);
    return {.NOME = reader_.text(NOME),
            .ENDERECO = reader_.text(ENDERECO),
            .SOMENTE_ENDERECO = reader_.text(SOMENTE_ENDERECO),
            .NUMERO = reader_.text(NUMERO),
            .COMPLEMENTO = reader_.text(COMPLEMENTO),
            .BAIRRO = reader_.text(BAIRRO),
            .MUNICIPIO = reader_.text(MUNICIPIO),
            .UF = reader_.text(UF),
            .CEP = reader_.text(CEP),
            .CODIGO = reader_.text(CODIGO)};
}

void report(const Progress& progress, std::size_t done, const Labels& labels) {
    if (progress) {
        progress(done, labels.count());
    }
}

Sender readSender(const XmlDocument& answer) {
    const XmlNode lines = rowsOf(answer);
    Sender sender{.NOME = textAttribute(lines, 0, "NOME"),
                  .ENDERECO = textAttribute(lines, 0, "ENDERECO"),
                  .BAIRRO = textAttribute(lines, 0, "BAIRRO"),
                  .MUNICIPIO = textAttribute(lines, 0, "MUNICIPIO"),
                  .UF = textAttribute(lines, 0, "UF"),
                  .CEP = textAttribute(lines, 0, "CEP"),
                  .DESCRICAO = textAttribute(lines, 0, "DESCRICAO"),
                  .NUMERO = {}};
    if (trimBlanks(sender.DESCRICAO).empty()) {
        sender.DESCRICAO.clear();
    }
    sender.NUMERO = blankIfZero(textAttribute(lines, 0, "NUMERO"));
    return sender;
}

std::string_view blankIfZero(std::string_view number) {
    return readPoint(number) == 0 ? std::string_view() : number;
}

}  // namespace tarn::labels
