#include "labels/label.h"

#include <array>

#include "common/acts.h"
#include "gateway/answer.h"
#include "gateway/pega_valor.h"
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

}  // namespace

Labels::Labels(const XmlDocument& answer) : rows_(rowsOf(answer)), reader_(fields) {}

Label Labels::read(std::size_t index) {
    reader_.read(rows_.item(index));
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

void tellLabels(const Environment& environment, std::size_t count) {
    if (count == 0) {
        return tellDone(environment, "Nenhuma etiqueta impressa");
    }
    tellPrinted(environment, piecesSent(counted(count, {"etiqueta", "etiquetas", true}), count,
                                        true, "imprima de novo"));
}

Sender readSender(const XmlDocument& answer) {
    const XmlNode rowset = rowsetOf(answer);
    Sender sender{.NOME = PegaValor(rowset, 0, "NOME"),
                  .ENDERECO = PegaValor(rowset, 0, "ENDERECO"),
                  .BAIRRO = PegaValor(rowset, 0, "BAIRRO"),
                  .MUNICIPIO = PegaValor(rowset, 0, "MUNICIPIO"),
                  .UF = PegaValor(rowset, 0, "UF"),
                  .CEP = PegaValor(rowset, 0, "CEP"),
                  .DESCRICAO = PegaValor(rowset, 0, "DESCRICAO"),
                  .NUMERO = {}};
    if (trimBlanks(sender.DESCRICAO).empty()) {
        sender.DESCRICAO.clear();
    }
    sender.NUMERO = blankIfZero(PegaValor(rowset, 0, "NUMERO"));
    return sender;
}

std::string_view blankIfZero(std::string_view number) {
    return readPoint(number) == 0 ? std::string_view() : number;
}

}  // namespace tarn::labels
