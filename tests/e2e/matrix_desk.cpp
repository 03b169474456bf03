#include "tests/e2e/matrix_desk.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRadioButton>

#include "runtime/ascii.h"
#include "runtime/text.h"
#include "widgets/free_text_field.h"

namespace tarn::test {
namespace {

std::string valueOf(const QWidget& widget) {
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) {
        return field->text().toStdString();
    }
    if (const auto* field = qobject_cast<const FreeTextField*>(&widget)) {
        return field->text();
    }
    if (const auto* list = qobject_cast<const QComboBox*>(&widget)) {
        return std::to_string(list->currentIndex()) + " of " + std::to_string(list->count()) +
               ": " + list->currentText().toStdString();
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return button->isChecked() ? "on" : "off";
    }
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return label->text().toStdString();
    }
    if (const auto* table = qobject_cast<const QTableView*>(&widget)) {
        const std::vector<bool> ticks = grid::ticks(*table);
        std::string rows;
        for (int row = 1; row <= grid::rows(*table); ++row) {
            rows += ticks.at(static_cast<std::size_t>(row - 1)) ? "[x]" : "[ ]";
            rows += grid::cell(*table, row, 1) + "|" + grid::cell(*table, row, 2) + "\n";
        }
        return rows;
    }
    return "";
}

}  // namespace

void MatrixDesk::SetUp() {
    FaultDesk::SetUp();
    nobody_.closePort();
    if (loggedOn_) {
        logOn();
    }
}

void MatrixDesk::begin(const char* command, const MatrixFault* fault) {
    page.heal();
    forget();
    command_ = command;
    requests_ = 0;
    refuses_ = fault != nullptr && !fault->kind;
    logonOpens_ = fault == nullptr || fault->left == Left::Nothing || fault->left == Left::All;
    if (fault != nullptr && fault->kind) {
        page.fail(command, {*fault->kind, std::chrono::milliseconds(20)});
    }
}

// On the loader's thread, while the desk waits.
std::string MatrixDesk::wayOf(const std::string& address) {
    const std::size_t query = address.find('?') + 1;
    const std::size_t name = address.find('=', query) + 1;
    if (!sameIgnoringCase(address.substr(name, address.find('&', name) - name), command_)) {
        return address;
    }
    ++requests_;
    return refuses_ ? nobody_.baseUrl() + address.substr(query) : address;
}

std::vector<Box> MatrixDesk::withNumber(std::vector<Box> told) const {
    for (Box& box : told) {
        box.text = replaceAll(box.text, "%1", number_);
    }
    return told;
}

std::map<std::string, std::string> MatrixDesk::valuesOf(const QWidget& screen) {
    std::map<std::string, std::string> values;
    for (const QWidget* widget : screen.findChildren<QWidget*>()) {
        const std::string name = widget->objectName().toStdString();
        const std::string value = name.empty() || name.starts_with("qt_") ? "" : valueOf(*widget);
        if (!value.empty()) {
            values[name] = value;
        }
    }
    return values;
}

void MatrixDesk::openAndLeave(const char* window, const char* button,
                              const std::function<void()>& open) {
    modals.then(window, [button](QWidget& screen) { click(screen, button); });
    open();
    activate(menu);
}

}  // namespace tarn::test
