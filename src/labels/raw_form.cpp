#include <algorithm>
#include <array>

#include "common/raw_channel.h"
#include "labels/label.h"
#include "labels/label_forms.h"
#include "platform/environment.h"

namespace tarn::labels {
namespace {

constexpr int margem = 1;          // blanks ahead of every text
constexpr std::size_t side = 4;    // labels across
constexpr std::size_t linhas = 5;  // of a label
constexpr int largura = 55;        // characters
constexpr int leftWidth = 27;
constexpr int rightWidth = 26;
constexpr char condensedStep[] =
    "\x0F\x1B"
    "M";  // condensed, 12 characters an inch

// Blanks between a label and the one at its left, the margin not counted.
constexpr std::array<std::size_t, side> gap{0, 7, 12, 12};

using Texts = std::array<std::string, linhas>;

void doubled(std::string& linha, std::string_view left, std::string_view right) {
    appendField(linha, left, leftWidth, false);
    linha += "  ";
    appendField(linha, right, rightWidth, false);
}

void assemble(Texts& texts, const Label& label, std::size_t coluna) {
    for (std::string& texto : texts) {
        texto.assign(gap[coluna], ' ');
    }
    appendField(texts[0], label.NOME, largura, false);
    appendField(texts[1], label.ENDERECO, largura, false);
    doubled(texts[2], label.COMPLEMENTO, label.BAIRRO);
    doubled(texts[3], label.MUNICIPIO, label.UF);
    doubled(texts[4], label.CEP, label.CODIGO);
}

void printGroup(RawChannel& channel, std::array<Texts, side>& group, std::size_t count) {
    std::string end;
    for (std::size_t linha = 0; linha < linhas; ++linha) {
        for (std::size_t coluna = 0; coluna < count; ++coluna) {
            channel.ImprimeRaw(margem, group[coluna][linha], 0);
        }
        end.clear();
        channel.ImprimeRaw(margem, end, linha + 1 < linhas ? 1 : 2);
    }
}

}  // namespace

void printDotMatrix(Environment& environment, Labels& labels, const Progress& progress) {
    RawChannel channel(environment.spooler, environment.codePage);
    channel.open();
    std::string preparation = condensedStep;
    channel.ImprimeRaw(margem, preparation, 0);
    channel.close();
    channel.open();
    std::array<Texts, side> group;
    for (std::size_t i = 0; i < labels.count();) {
        const std::size_t count = std::min(side, labels.count() - i);
        for (std::size_t coluna = 0; coluna < count; ++coluna, ++i) {
            assemble(group[coluna], labels.read(i), coluna);
        }
        printGroup(channel, group, count);
        report(progress, i, labels);
    }
    channel.close();
}

}  // namespace tarn::labels
