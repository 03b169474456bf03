#include "labels/print_selection.h"

#include <algorithm>

#include "common/boxes.h"
#include "common/drawn_run.h"
#include "labels/customer_selection.h"
#include "labels/label.h"
#include "runtime/text.h"

namespace tarn::labels {
namespace {

constexpr std::size_t nameCut = 40;  // characters, as those of the others
constexpr std::size_t addressCut = 50;
constexpr std::size_t townCut = 40;

constexpr double nameSize = 10;
constexpr double addressSize = 8;

// Where the next label goes; centimetres. Nothing asks for a second page: what lies below
// the sheet is lost (decision D92).
struct SelectionPlace {
    static constexpr double left = 1.3;
    static constexpr double right = 12;
    static constexpr double height = 2.55;

    double line = -0.3;
    bool onRight = true;

    void advance() {
        line += onRight ? 1 : 0;
        onRight = !onRight;
    }
    double x() const { return onRight ? right : left; }
    double y() const { return line * height; }
};

void printCustomer(DrawnRun& run, const GridRow& customer, double x, double y) {
    std::string town(leftOf(customer.text(SelectionColumn::Town), townCut));
    town.append(" - ").append(customer.text(SelectionColumn::State));
    run.ImprimeLinha(leftOf(customer.text(SelectionColumn::Name), nameCut), x, y + 0.26, nameSize);
    run.ImprimeLinha(leftOf(customer.text(SelectionColumn::Address), addressCut), x, y + 0.76,
                     addressSize);
    run.ImprimeLinha(customer.text(SelectionColumn::PostalCode), x, y + 1.26, addressSize);
    run.ImprimeLinha(town, x, y + 1.76, addressSize);
}

}  // namespace

void printSelection(Environment& environment, std::span<const GridRow> customers,
                    const Progress& progress) {
    DrawnRun run(environment);
    SelectionPlace place;
    for (std::size_t i = 0; i < customers.size(); ++i) {
        if (customers[i].ticked) {
            place.advance();
            printCustomer(run, customers[i], place.x(), place.y());
        }
        if (progress) {
            progress(i + 1, customers.size());
        }
    }
    run.endDocument();
    tellLabels(environment,
               static_cast<std::size_t>(std::ranges::count(customers, true, &GridRow::ticked)));
    if (!run.failed()) {
        tell(environment, "Impressão Gerada com Sucesso !", "Alerta");
    }
}

}  // namespace tarn::labels
