#include "labels/imprime_linha.h"
#include "labels/label.h"
#include "labels/label_forms.h"
#include "platform/environment.h"
#include "platform/printer.h"
#include "runtime/text.h"

namespace tarn::labels {
namespace {

constexpr double titleSize = 13;
constexpr double strokeSize = 10;
constexpr double textSize = 20;
constexpr double left = 1;
constexpr double step = 0.8;
constexpr std::size_t cutAt = 24;     // characters of the addressee's shorter fields
constexpr std::size_t fullLine = 45;  // characters

// What stands of a block where on the page; centimetres.
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
    Column(Environment& environment, double y) : environment_(environment), y_(y) {}

    void text(std::string_view text, double x) { write(environment_, text, x, y_, textSize); }
    void goDown() { y_ += step; }
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
    Environment& environment_;
    double y_;
};

// Down to the postal code, in whose line the column then stands.
Column printBlock(Environment& environment, const Block& block, const Address& address) {
    write(environment, block.title, left, block.titleY, titleSize);
    write(environment, "=====================", left, block.strokeY, strokeSize);
    Column column(environment, block.textY);
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

void printA4WithSender(Environment& environment, Labels& labels, const Sender& sender,
                       const Progress& progress) {
    for (std::size_t i = 0; i < labels.count(); ++i) {
        const Label label = labels.read(i);
        Column column = printBlock(environment, recipientBlock, addressOf(label));
        column.goDown();
        column.text(label.CODIGO, left);
        printBlock(environment, senderBlock, addressOf(sender));
        showFailure(environment, environment.printer.NewPage());
        report(progress, i + 1, labels);
    }
}

}  // namespace tarn::labels
