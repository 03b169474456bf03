// What turns a plain QLineEdit of a screen into a field with behaviour: a small
// object attached to it, child of it, alive as long as it is.
#pragma once

#include <QObject>
#include <optional>

#include "common/field_rules.h"
#include "platform/qt/input_gate.h"

class QKeyEvent;
class QLineEdit;
class QString;

namespace tarn {

class Machine;
struct Environment;

enum class KeyFilter { None, Decimal, Integer };

// Sends the Tab stroke to the widget: the next field in tab order gets the focus.
void sendTab(QWidget& widget);

// Lets in what fits the regular expression as a whole: a pasted text comes in or, with
// a beep, leaves the field as it was.
void onlyTakes(QLineEdit& edit, const QString& pattern, Machine& machine);

// A field whose keys are filtered, unless by None: digits, backspace and perhaps the
// comma pass, any other character is dropped with a beep. Keys without a character (arrows,
// Delete), Esc and those with Ctrl or Alt pass, so that a text can be pasted. Focus lost to a
// message box, a menu or another program is no leaving.
class FieldController : public QObject {
    Q_OBJECT

public:
    // What Enter does. TabAndBeep: the Tab stroke, then the filter, which drops Enter
    // with its beep. TabOnly: the stroke and nothing else. BeepOnly: the filter alone.
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
    // the box, then the text, then the focus back; what is typed or clicked in
    // between is discarded.
    void apply(const FieldResult& result);

private:
    bool keyPressed(const QKeyEvent& key);
    bool passes(QChar character);
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
