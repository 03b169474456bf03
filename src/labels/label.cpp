#include "labels/label.h"

#include <algorithm>
#include <array>

#include "common/acts.h"
#include "gateway/answer.h"
#include "gateway/pega_valor.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace tarn::labels {
namespace {

struct LabelField {
    std::string_view name;
    std::string_view Label::*text;
};

constexpr std::array<LabelField, 10> fields{{{"NOME", &Label::NOME},
                                             {"ENDERECO", &Label::ENDERECO},
                                             {"SOMENTE_ENDERECO", &Label::SOMENTE_ENDERECO},
                                             {"NUMERO", &Label::NUMERO},
                                             {"COMPLEMENTO", &Label::COMPLEMENTO},
                                             {"BAIRRO", &Label::BAIRRO},
                                             {"MUNICIPIO", &Label::MUNICIPIO},
                                             {"UF", &Label::UF},
                                             {"CEP", &Label::CEP},
                                             {"CODIGO", &Label::CODIGO}}};

constexpr auto names = [] {
    std::array<std::string_view, fields.size()> all;
    std::ranges::transform(fields, all.begin(), &LabelField::name);
    return all;
}();

}  // namespace

Labels::Labels(const XmlDocument& answer) : rows_(rowsOf(answer)), reader_(names) {}

Label Labels::read(std::size_t index) {
    reader_.read(rows_.item(index));
    Label label;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        label.*fields[i].text = reader_.text(i);
    }
    return label;
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
