#include "labels/raw_form.h"

#include <algorithm>
#include <array>

#include "common/printed_line.h"
#include "common/raw_channel.h"
#include "labels/label.h"
#include "platform/environment.h"

namespace tarn::labels {
namespace {

constexpr int margin = 1;         // blanks ahead of every text
constexpr std::size_t side = 4;   // labels across
constexpr std::size_t lines = 5;  // of a label
constexpr int width = 55;         // characters
constexpr int leftWidth = 27;
constexpr int rightWidth = 26;
constexpr char condensedStep[] =
    "\x0F\x1B"
    "M";  // condensed, 12 characters an inch

// Blanks between a label and the one at its left, the margin not counted.
constexpr std::array<std::size_t, side> gap{0, 7, 12, 12};

using Texts = std::array<std::string, lines>;

void doubled(std::string& line, std::string_view left, std::string_view right) {
    appendField(line, left, leftWidth, false);
    line += "  ";
    appendField(line, right, rightWidth, false);
}

void assemble(Texts& texts, const Label& label) {
    for (std::string& text : texts) {
        text.clear();
    }
    appendField(texts[0], label.NOME, width, false);
    appendField(texts[1], label.ENDERECO, width, false);
    doubled(texts[2], label.COMPLEMENTO, label.BAIRRO);
    doubled(texts[3], label.MUNICIPIO, label.UF);
    doubled(texts[4], label.CEP, label.CODIGO);
}

// Each column's text goes out by itself, then the line's end.
void printGroup(RawChannel& channel, const std::array<Texts, side>& group, std::size_t count) {
    PrintedLine paper(channel);
    for (std::size_t line = 0; line < lines; ++line) {
        for (std::size_t column = 0; column < count; ++column) {
            paper.blanks(gap[column]).as("", width).text(group[column][line]).out(0);
        }
        paper.out(line + 1 < lines ? 1 : 2);
    }
}

}  // namespace

void printDotMatrix(Environment& environment, Labels& labels, const Progress& progress) {
    RawChannel channel(environment.spooler, environment.codePage);
    printLabelRows(channel, labels, progress);
}

void printLabelRows(RawChannel& channel, Labels& labels, const Progress& progress) {
    channel.announce(
        {.document = JobDocument::Labels, .form = std::string(labelFormOnPaper), .itemLines = {}});
    channel.open();
    std::string preparation = condensedStep;
    channel.ImprimeRaw(margin, preparation, 0);
    channel.close();
    channel.open();
    std::array<Texts, side> group;
    for (std::size_t i = 0; i < labels.count();) {
        const std::size_t count = std::min(side, labels.count() - i);
        for (std::size_t column = 0; column < count; ++column, ++i) {
            assemble(group[column], labels.read(i));
        }
        printGroup(channel, group, count);
        report(progress, i, labels);
    }
    channel.close();
}

}  // namespace tarn::labels
