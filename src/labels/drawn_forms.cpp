#include "labels/drawn_forms.h"

#include <array>

#include "common/drawn_run.h"
#include "labels/label.h"
#include "runtime/text.h"

namespace tarn::labels {
namespace {

constexpr std::size_t cutAt = 24;  // characters of an address's shorter fields

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

void writeLine(DrawnRun& run, const Line& line, const Label& label, const Origin& origin,
               double size) {
    const std::string_view text = label.*line.field;
    run.ImprimeLinha(line.cut ? leftOf(text, cutAt) : text, origin.x + line.x, origin.y + line.y,
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

// A4 with the sender

constexpr double titleSize = 13;
constexpr double strokeSize = 10;
constexpr double textSize = 20;
constexpr double left = 1;
constexpr double lineStep = 0.8;
constexpr std::size_t fullLine = 45;  // characters

// What of a block is where on the page; centimetres.
struct Block {
    std::string_view title;
    double titleY = 0;
    double strokeY = 0;
    double textY = 0;
    double right = 0;  // of the second text of a line
};
constexpr Block recipientBlock{"DESTINATÁRIO", 1, 1.5, 2, 12};
constexpr Block senderBlock{"REMETENTE", 16, 16.5, 17, 13};

struct Address {
    std::string_view name;
    std::string_view street;
    std::string_view number;
    std::string_view complement;
    std::string_view district;
    std::string_view town;
    std::string_view uf;
    std::string_view cep;
};

Address addressOf(const Label& label) {
    return {.name = label.NOME,
            .street = label.SOMENTE_ENDERECO,
            .number = blankIfZero(label.NUMERO),
            .complement = leftOf(label.COMPLEMENTO, cutAt),
            .district = leftOf(label.BAIRRO, cutAt),
            .town = leftOf(label.MUNICIPIO, cutAt),
            .uf = label.UF,
            .cep = label.CEP};
}

Address addressOf(const Sender& sender) {
    return {.name = sender.NOME,
            .street = sender.ENDERECO,
            .number = sender.NUMERO,
            .complement = sender.DESCRICAO,
            .district = sender.BAIRRO,
            .town = sender.MUNICIPIO,
            .uf = sender.UF,
            .cep = sender.CEP};
}

// Texts of one block, downwards.
class Column {
public:
    Column(DrawnRun& run, double y) : run_(run), y_(y) {}

    void text(std::string_view text, double x) { run_.ImprimeLinha(text, x, y_, textSize); }
    void goDown() { y_ += lineStep; }
    // A text too long for the line goes on in the next one, whatever is left of it.
    void longText(std::string_view whole) {
        const std::string_view first = leftOf(whole, fullLine);
        text(first, left);
        if (first.size() < whole.size()) {
            goDown();
            text(whole.substr(first.size()), left);
        }
        goDown();
    }

private:
    DrawnRun& run_;
    double y_;
};

// Down to the postal code, in whose line the column then is.
Column printBlock(DrawnRun& run, const Block& block, const Address& address) {
    run.ImprimeLinha(block.title, left, block.titleY, titleSize);
    run.ImprimeLinha("=====================", left, block.strokeY, strokeSize);
    Column column(run, block.textY);
    column.longText(address.name);
    column.longText(address.street);
    column.text("Nº ", left);
    column.text(address.number, 2);
    column.text(address.complement, block.right);
    column.goDown();
    column.text(address.district, left);
    column.goDown();
    column.text(address.town, left);
    column.text(address.uf, block.right);
    column.goDown();
    column.text("CEP: ", left);
    column.text(address.cep, 3);
    return column;
}

}  // namespace

void printPimaco6280(DrawnRun& run, Labels& labels, const Progress& progress) {
    Place place;
    for (std::size_t i = 0; i < labels.count(); ++i) {
        const Label label = labels.read(i);
        for (const Line& line : pimacoLines) {
            writeLine(run, line, label, place.origin, pimacoSize);
        }
        if (!place.advance()) {
            run.newPage();
            run.endDocument();
            place = {};
        }
        report(progress, i + 1, labels);
    }
}

void printA5(DrawnRun& run, Labels& labels, const Progress& progress) {
    for (std::size_t i = 0; i < labels.count(); ++i) {
        const Label label = labels.read(i);
        writeLine(run, a5Name, label, {}, a5Size);
        if (lengthOf(label.NOME) > longName) {
            writeLine(run, a5Name, label, {}, a5Size);
        }
        for (const Line& line : a5Lines) {
            writeLine(run, line, label, {}, a5Size);
        }
        report(progress, i + 1, labels);
    }
}

void printA4WithSender(DrawnRun& run, Labels& labels, const Sender& sender,
                       const Progress& progress) {
    for (std::size_t i = 0; i < labels.count(); ++i) {
        const Label label = labels.read(i);
        Column column = printBlock(run, recipientBlock, addressOf(label));
        column.goDown();
        column.text(label.CODIGO, left);
        printBlock(run, senderBlock, addressOf(sender));
        run.newPage();
        report(progress, i + 1, labels);
    }
}

}  // namespace tarn::labels
