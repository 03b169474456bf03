// What turns a plain QLineEdit of a screen into a field with behaviour: a small
// object attached to it, child of it, alive as long as it is.
#pragma once

#include <QObject>
#include <optional>

#include "common/field_rules.h"
#include "platform/qt/input_gate.h"

class QKeyEvent;
class QLineEdit;

namespace tarn {

struct Environment;

// Sends the Tab stroke to the widget: the next field in tab order gets the focus.
void sendTab(QWidget& widget);

// A field that takes what its filter admits. Focus lost to a message box, a menu or another
// program is no leaving.
class FieldController : public QObject {
    Q_OBJECT

public:
    // What Enter does. TabAndBeep: the Tab stroke, then the filter's beep, if there is a
    // filter. TabOnly: the stroke and nothing else. BeepOnly: the filter alone.
    enum class EnterKey { TabAndBeep, TabOnly, BeepOnly };

    FieldController(QLineEdit* edit, KeyFilter filter, Environment& environment,
                    EnterKey enterKey = EnterKey::TabAndBeep);

signals:
    // The user went to another field; what left() does has been done.
    void wasLeft();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    // A text selected on entering stays so after the click that brought the focus.
    virtual void entered() {}
    virtual void left() {}

    QLineEdit& edit() const { return *edit_; }
    Environment& environment() const { return environment_; }
    // Shows what a rule made of the text. A refusal comes once the focus has settled:
    // the box, over what was typed or made of it, then the text, then the focus back; what
    // is typed or clicked in between is discarded.
    void apply(const FieldResult& result);

private:
    void enterPressed();
    void refuse(const FieldResult& result);
    void focusIn(Qt::FocusReason reason);
    void focusOut(Qt::FocusReason reason);

    QLineEdit* edit_;
    KeyFilter filter_;
    Environment& environment_;
    EnterKey enterKey_;
    std::optional<ShutGate> refusing_;
    bool editing_ = false;
    bool selectAfterClick_ = false;
};

}  // namespace tarn
