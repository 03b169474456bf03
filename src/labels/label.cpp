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
    : linhas_(rowsOf(answer)), count_(linhas_ ? linhas_.childCount() : 0), reader_(fields) {}

Label Labels::read(std::size_t indice) {
    reader_.read(linhas_, indice);
    return {.NOME = reader_.texto(NOME),
            .ENDERECO = reader_.texto(ENDERECO),
            .SOMENTE_ENDERECO = reader_.texto(SOMENTE_ENDERECO),
            .NUMERO = reader_.texto(NUMERO),
            .COMPLEMENTO = reader_.texto(COMPLEMENTO),
            .BAIRRO = reader_.texto(BAIRRO),
            .MUNICIPIO = reader_.texto(MUNICIPIO),
            .UF = reader_.texto(UF),
            .CEP = reader_.texto(CEP),
            .CODIGO = reader_.texto(CODIGO)};
}

void report(const Progress& progress, std::size_t done, const Labels& labels) {
    if (progress) {
        progress(done, labels.count());
    }
}

Sender readSender(const XmlDocument& answer) {
    const XmlNode linhas = rowsOf(answer);
    Sender sender{.NOME = textAttribute(linhas, 0, "NOME"),
                  .ENDERECO = textAttribute(linhas, 0, "ENDERECO"),
                  .BAIRRO = textAttribute(linhas, 0, "BAIRRO"),
                  .MUNICIPIO = textAttribute(linhas, 0, "MUNICIPIO"),
                  .UF = textAttribute(linhas, 0, "UF"),
                  .CEP = textAttribute(linhas, 0, "CEP"),
                  .DESCRICAO = textAttribute(linhas, 0, "DESCRICAO"),
                  .NUMERO = {}};
    if (trimBlanks(sender.DESCRICAO).empty()) {
        sender.DESCRICAO.clear();
    }
    sender.NUMERO = blankIfZero(textAttribute(linhas, 0, "NUMERO"));
    return sender;
}

std::string_view blankIfZero(std::string_view number) {
    return readPoint(number) == 0 ? std::string_view() : number;
}

}  // namespace tarn::labels
