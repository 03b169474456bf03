#include "widgets/field_controller.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <utility>

#include "platform/environment.h"
#include "platform/machine.h"
#include "platform/message_boxes.h"
#include "platform/qt/acting_keys.h"
#include "widgets/character_filter.h"

namespace tarn {
namespace {

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

FieldController::FieldController(QLineEdit* edit, KeyFilter filter, Environment& environment,
                                 EnterKey enterKey)
    : QObject(edit), edit_(edit), filter_(filter), environment_(environment), enterKey_(enterKey) {
    edit->installEventFilter(this);
    if (filter != KeyFilter::None) {
        new CharacterFilter(*edit, filter, environment.machine);
    }
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
            if (!isEnter(static_cast<const QKeyEvent&>(*event))) {
                return false;
            }
            enterPressed();
            return true;
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

void FieldController::enterPressed() {
    if (enterKey_ != EnterKey::BeepOnly) {
        sendTab(*edit_);
    }
    if (enterKey_ != EnterKey::TabOnly && filter_ != KeyFilter::None) {
        environment_.machine.beep();
    }
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
    if (result.textUnderBox) {
        edit_->setText(QString::fromStdString(*result.textUnderBox));
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
