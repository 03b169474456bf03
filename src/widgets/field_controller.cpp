#include "widgets/field_controller.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <algorithm>
#include <utility>

#include "platform/environment.h"
#include "platform/machine.h"
#include "platform/message_boxes.h"
#include "platform/qt/acting_keys.h"

namespace tarn {
namespace {

constexpr Qt::KeyboardModifiers commandModifiers =
    Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

// Keys that stand for no character of a text, whatever Qt writes into their text.
bool isCharacter(const QKeyEvent& key) {
    return !key.text().isEmpty() && key.key() != Qt::Key_Escape && key.key() != Qt::Key_Delete &&
           key.key() != Qt::Key_Tab && key.key() != Qt::Key_Backtab &&
           (key.modifiers() & commandModifiers) == Qt::NoModifier;
}

// Reasons by which the focus comes and goes without the user choosing a field.
bool isPassing(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

}  // namespace

void sendTab(QWidget& widget) {
    QKeyEvent stroke(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier, QStringLiteral("\t"));
    QCoreApplication::sendEvent(&widget, &stroke);
}

void onlyTakes(QLineEdit& edit, const QString& pattern, Machine& machine) {
    edit.setValidator(new QRegularExpressionValidator(QRegularExpression(pattern), &edit));
    QObject::connect(&edit, &QLineEdit::inputRejected, &edit, [&machine] { machine.beep(); });
}

FieldController::FieldController(QLineEdit* edit, KeyFilter filter, Environment& environment,
                                 EnterKey enterKey)
    : QObject(edit), edit_(edit), filter_(filter), environment_(environment), enterKey_(enterKey) {
    edit->installEventFilter(this);
    if (enterKey != EnterKey::BeepOnly) {
        letEnterMoveOn(*edit);
    }
}

bool FieldController::eventFilter(QObject* watched, QEvent* event) {
    if (qobject_cast<QLineEdit*>(watched) == nullptr) {
        return false;  // the field is being destroyed, and loses the focus on the way
    }
    switch (event->type()) {
        case QEvent::KeyPress:
            return keyPressed(static_cast<const QKeyEvent&>(*event));
        case QEvent::InputMethod: {
            const QString committed = static_cast<QInputMethodEvent*>(event)->commitString();
            return !std::all_of(committed.begin(), committed.end(),
                                [this](QChar character) { return passes(character); });
        }
        case QEvent::FocusIn:
            focusIn(static_cast<QFocusEvent*>(event)->reason());
            return false;
        case QEvent::FocusOut:
            focusOut(static_cast<QFocusEvent*>(event)->reason());
            return false;
        case QEvent::MouseButtonRelease:
            if (std::exchange(selectAfterClick_, false) && !edit_->hasSelectedText()) {
                edit_->selectAll();
            }
            return false;
        default:
            return false;
    }
}

bool FieldController::keyPressed(const QKeyEvent& key) {
    if (isEnter(key)) {
        if (enterKey_ != EnterKey::BeepOnly) {
            sendTab(*edit_);
        }
        if (enterKey_ != EnterKey::TabOnly) {
            passes(u'\r');
        }
        return true;
    }
    return isCharacter(key) && !passes(key.text().front());
}

bool FieldController::passes(QChar character) {
    if (filter_ == KeyFilter::None) {
        return true;
    }
    auto key = static_cast<std::int16_t>(character.unicode());
    return (filter_ == KeyFilter::Decimal ? SoNumeroVirgula(key, environment_.machine)
                                          : SoNumeroInteiro(key, environment_.machine)) != 0;
}

void FieldController::focusIn(Qt::FocusReason reason) {
    if (!std::exchange(editing_, true)) {
        entered();
        selectAfterClick_ = reason == Qt::MouseFocusReason && edit_->hasSelectedText();
    }
}

void FieldController::focusOut(Qt::FocusReason reason) {
    if (!editing_ || isPassing(reason) || !edit_->isVisible()) {
        return;
    }
    editing_ = false;
    left();
    emit wasLeft();
}

void FieldController::apply(const FieldResult& result) {
    if (!result.box) {
        edit_->setText(QString::fromStdString(result.text));
        return;
    }
    refusing_.emplace(InputGate::ofApplication());
    QMetaObject::invokeMethod(
        this, [this, result] { refuse(result); }, Qt::QueuedConnection);
}

void FieldController::refuse(const FieldResult& result) {
    refusing_.reset();
    environment_.boxes.show(*result.box);
    edit_->setText(QString::fromStdString(result.text));
    if (result.refocus) {
        edit_->setFocus(Qt::OtherFocusReason);
    }
}

}  // namespace tarn
