// One gesture, one act, for the whole program: keys held down and clicks too many.
//
// Keys. A stroke that acts (acting_keys.h) acts once for each time that its key is
// pressed. What a held key sends after that is dropped wherever it arrives: on the same
// button, in a box that it opened, in a field that got the focus meanwhile. Some window
// systems send a held key as release and press without a mark, so a press within 50 ms of
// the key's own release is the same key still held; a press that no release came before
// counts as a new one only after a second, since a release can go to another program.
// What edits repeats as ever, but Enter in a text of several lines only where it was
// first pressed. An event without a time (0) is judged by its mark alone.
//
// Clicks. The second and each later click of a multiple click do nothing to a button, nor
// to anything in another window than the first. Lists and grids get the second as
// a double click, which ticks nothing, and no third. Texts get all.
//
// Enter on a push button that has the focus presses that button.
#pragma once

#include <QAbstractButton>
#include <QDeadlineTimer>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <QWindow>
#include <map>
#include <utility>

class QApplication;
class QKeyEvent;
class QMouseEvent;

namespace tarn {

class InputGate;

class GestureFilter : public QObject {
    Q_OBJECT

public:
    // One for each application, made before its windows, and owned by it. It stands before
    // every other filter of the application that was there when it was made, the
    // application's InputGate among them.
    explicit GestureFilter(QApplication& application);

    // For 1.5 s the button takes no click where the pointer stands now: the second click
    // of someone who saw nothing happen. Moving the pointer or pressing a key ends that.
    void ignoreClicksHere(QAbstractButton& button);

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    using KeyId = std::pair<quint32, int>;  // of the keyboard, or where it has none, of Qt
    struct Key {
        quint64 pressedAt = 0;
        quint64 releasedAt = 0;
        bool released = false;
        bool held = false;         // what the press at pressedAt was taken for
        QPointer<QWidget> target;  // of the press that wasn't held
    };
    struct Click {
        quint64 at = 0;
        QPoint where;
        Qt::MouseButton button = Qt::NoButton;
        int count = 0;
        QPointer<QWindow> window;  // of the first one
        bool elsewhere = false;    // this one went to another window
    };

    static KeyId idOf(const QKeyEvent& stroke);
    Key judged(const QKeyEvent& stroke, QWidget* target);
    void released(const QKeyEvent& stroke);
    bool dropsStroke(QObject* receiver, const QKeyEvent& stroke);
    bool pressesButton(QObject* receiver, const QKeyEvent& stroke);
    void count(QObject* receiver, const QMouseEvent& press);
    bool dropsPress(QObject* receiver, const QMouseEvent& press);
    bool dropsRelease(QObject* receiver);
    bool isImpatient(const QObject* receiver) const;
    void pointerAt(const QPoint& where);

    const InputGate& gate_;
    std::map<KeyId, Key> keys_;
    Click click_;
    bool pressDropped_ = false;
    QPoint pointer_;
    QPointer<QAbstractButton> resting_;
    QPoint restingAt_;
    QDeadlineTimer restingUntil_;
};

// The same of the program's one filter; nothing where there is none.
void ignoreClicksHere(QAbstractButton& button);

}  // namespace tarn
