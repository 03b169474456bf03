#include <array>

#include "labels/imprime_linha.h"
#include "labels/label.h"
#include "labels/label_forms.h"
#include "platform/environment.h"
#include "platform/printer.h"
#include "runtime/text.h"

namespace tarn::labels {
namespace {

constexpr std::size_t cutAt = 24;  // characters of the fields that share a line

// A text of a label, centimetres from where its form begins each label.
struct Line {
    std::string_view Label::*field = nullptr;
    double x = 0;
    double y = 0;
    bool cut = false;
};

struct Origin {
    double x = 0;
    double y = 0;
};

void writeLine(Environment& environment, const Line& line, const Label& label, const Origin& origin,
               double size) {
    const std::string_view text = label.*line.field;
    write(environment, line.cut ? leftOf(text, cutAt) : text, origin.x + line.x, origin.y + line.y,
          size);
}

// PIMACO 6280

constexpr double pimacoSize = 6;
constexpr std::array<Line, 8> pimacoLines{{{&Label::NOME, 0, 0},
                                           {&Label::ENDERECO, 0, 0.3},
                                           {&Label::COMPLEMENTO, 0, 0.6, true},
                                           {&Label::BAIRRO, 3.4, 0.6, true},
                                           {&Label::MUNICIPIO, 0, 0.9, true},
                                           {&Label::UF, 3.4, 0.9},
                                           {&Label::CEP, 0, 1.2},
                                           {&Label::CODIGO, 0, 1.5}}};

// Where the next label goes on the sheet.
struct Place {
    static constexpr int columns = 3;
    static constexpr int lines = 10;
    static constexpr double left = 1;
    static constexpr double top = 1.7;
    static constexpr double columnStep = 7;

    Origin origin{left, top};
    int column = 0;  // labels that the row holds
    int line = 1;

    // False: the sheet is full.
    bool advance() {
        if (++column < columns) {
            origin.x += columnStep;
            return true;
        }
        if (line == lines) {
            return false;
        }
        // The stationery's rows are 2.54 cm apart: now and then a shorter step.
        origin.y += line == 1 || line == 5 || line == 8 ? 2.5 : 2.6;
        origin.x = left;
        column = 0;
        ++line;
        return true;
    }
};

// A5

constexpr double a5Size = 15;
constexpr std::size_t longName = 10;  // characters; a longer name is drawn twice, for weight
constexpr Line a5Name{&Label::NOME, 1, 1.7};
constexpr std::array<Line, 7> a5Lines{{{&Label::ENDERECO, 1, 2.3},
                                       {&Label::BAIRRO, 1, 2.9, true},
                                       {&Label::COMPLEMENTO, 10.5, 2.9, true},
                                       {&Label::MUNICIPIO, 1, 3.5, true},
                                       {&Label::UF, 10.5, 3.5},
                                       {&Label::CEP, 1, 4.1},
                                       {&Label::CODIGO, 1, 4.7}}};

}  // namespace

void printPimaco6280(Environment& environment, Labels& labels, const Progress& progress) {
    Place place;
    for (std::size_t i = 0; i < labels.count(); ++i) {
        const Label label = labels.read(i);
        for (const Line& line : pimacoLines) {
            writeLine(environment, line, label, place.origin, pimacoSize);
        }
        if (!place.advance()) {
            showFailure(environment, environment.printer.NewPage());
            showFailure(environment, environment.printer.EndDoc());
            place = {};
        }
        report(progress, i + 1, labels);
    }
}

void printA5(Environment& environment, Labels& labels, const Progress& progress) {
    for (std::size_t i = 0; i < labels.count(); ++i) {
        const Label label = labels.read(i);
        writeLine(environment, a5Name, label, {}, a5Size);
        if (lengthOf(label.NOME) > longName) {
            writeLine(environment, a5Name, label, {}, a5Size);
        }
        for (const Line& line : a5Lines) {
            writeLine(environment, line, label, {}, a5Size);
        }
        report(progress, i + 1, labels);
    }
}

}  // namespace tarn::labels
