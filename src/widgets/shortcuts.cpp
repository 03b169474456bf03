#include "widgets/shortcuts.h"

#include <QApplication>
#include <QPushButton>
#include <QShortcut>
#include <QStringList>
#include <utility>

#include "platform/qt/input_gate.h"
#include "widgets/field_controller.h"

namespace tarn {
namespace {

struct NamedKeys {
    QString name;
    QList<QKeySequence> keys;
};

NamedKeys namedKeys(ScreenKey key) {
    switch (key) {
        case ScreenKey::Refresh:
            return {QStringLiteral("F5"), {QKeySequence(Qt::Key_F5)}};
        case ScreenKey::Print:
            return {QStringLiteral("Ctrl+P"), {QKeySequence(Qt::CTRL | Qt::Key_P)}};
        case ScreenKey::MainAct:
            return {
                QStringLiteral("Ctrl+Enter"),
                {QKeySequence(Qt::CTRL | Qt::Key_Return), QKeySequence(Qt::CTRL | Qt::Key_Enter)}};
        case ScreenKey::Close:
            return {QStringLiteral("Ctrl+W"), {QKeySequence(Qt::CTRL | Qt::Key_W)}};
        case ScreenKey::Escape:
            return {QStringLiteral("Esc"), {}};
    }
    return {};
}

// A window that is just opening has no keys yet, but is the modal one.
bool standsInFront(const QWidget& screen) {
    const QWidget* modal = QApplication::activeModalWidget();
    return (modal == nullptr || modal == screen.window()) &&
           QApplication::activePopupWidget() == nullptr;
}

bool hasRules(const QWidget* field) {
    return field != nullptr && field->findChild<FieldController*>() != nullptr;
}

// What the field sets off comes first, its request and box too; it keeps the focus, or
// gets it back, where it refuses its text.
void leaveFieldAndPress(QPushButton& button) {
    button.setFocus(Qt::ShortcutFocusReason);
    InputGate& gate = InputGate::ofApplication();
    const auto press = [&button] {
        if (button.window()->focusWidget() == &button) {
            button.click();
        }
    };
    if (gate.ticksWait()) {
        QObject::connect(&gate, &InputGate::ticksMayFire, &button, press, Qt::SingleShotConnection);
    } else {
        press();
    }
}

void press(QPushButton& button, bool closes) {
    if (!button.isVisible() || !button.isEnabled()) {
        return;
    }
    if (!closes && hasRules(button.window()->focusWidget())) {
        leaveFieldAndPress(button);
    } else {
        button.click();
    }
}

}  // namespace

void onKeys(QWidget& screen, const QList<QKeySequence>& keys, std::function<void()> act) {
    auto* shortcut = new QShortcut(&screen);
    shortcut->setKeys(keys);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, &screen, [&screen, act = std::move(act)] {
        if (standsInFront(screen)) {
            act();
        }
    });
}

void giveKeys(QPushButton& button, std::initializer_list<ScreenKey> keys) {
    QStringList names;
    QList<QKeySequence> pressing;
    bool closes = false;
    for (const ScreenKey key : keys) {
        NamedKeys named = namedKeys(key);
        names += named.name;
        pressing += named.keys;
        closes = closes || key == ScreenKey::Close;
    }
    if (names.isEmpty()) {
        return;
    }
    button.setToolTip(
        QStringLiteral("%1 (%2)").arg(button.toolTip(), names.join(QStringLiteral(" ou "))));
    if (!pressing.isEmpty()) {
        onKeys(button, pressing, [&button, closes] { press(button, closes); });
    }
}

}  // namespace tarn
