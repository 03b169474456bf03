#include "tests/support/x11_user.h"

#include <QApplication>
#include <QCursor>
#include <QEventLoop>
#include <QKeyEvent>
#include <QTimer>
#include <stdexcept>
#include <thread>

#include "platform/qt/input_gate.h"

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#undef Bool
#undef KeyPress
#undef KeyRelease
#undef None

namespace tarn::test {
namespace {

using namespace std::chrono_literals;

constexpr unsigned repeatDelayMs = 300;
constexpr unsigned repeatIntervalMs = 33;
constexpr auto stroke = 20ms;  // from press to release
constexpr X11User::Time longest = 10s;

}  // namespace

struct X11User::Connection {
    Connection() : display(XOpenDisplay(nullptr)) {
        if (display == nullptr) {
            throw std::runtime_error("no X server");
        }
        XkbSetAutoRepeatRate(display, XkbUseCoreKbd, repeatDelayMs, repeatIntervalMs);
        XSync(display, False);
    }
    ~Connection() { XCloseDisplay(display); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    void key(const char* name, bool down) const {
        const KeySym symbol = XStringToKeysym(name);
        const KeyCode code = symbol == NoSymbol ? KeyCode{0} : XKeysymToKeycode(display, symbol);
        if (code == 0) {
            throw std::runtime_error(std::string("no such key: ") + name);
        }
        XTestFakeKeyEvent(display, code, down ? True : False, CurrentTime);
        XFlush(display);
    }

    Display* display;
};

// Sees the releases of a key that does nothing, before any filter of the program does.
class X11User::Watch : public QObject {
public:
    static constexpr const char* key = "Shift_R";

    Watch() { qApp->installEventFilter(this); }

    int seen() const { return seen_; }

protected:
    bool eventFilter(QObject* /*receiver*/, QEvent* event) override {
        if (event->type() == QEvent::KeyRelease &&
            static_cast<QKeyEvent*>(event)->key() == Qt::Key_Shift) {
            ++seen_;
        }
        return false;
    }

private:
    int seen_ = 0;
};

X11User::X11User()
    : connection_(std::make_unique<Connection>()), watch_(std::make_unique<Watch>()) {}

X11User::~X11User() = default;

void X11User::does(const std::function<void(X11User&)>& script,
                   const std::function<void()>& atEnd) {
    QEventLoop loop;
    bool over = false;
    std::exception_ptr failure;
    QTimer closer;  // a routine may open one window after another
    QObject::connect(&closer, &QTimer::timeout, [&over] {
        if (QWidget* modal = QApplication::activeModalWidget(); modal != nullptr && over) {
            modal->close();
        }
    });
    closer.start(20);
    std::jthread hands([&] {
        try {
            script(*this);
        } catch (...) {
            failure = std::current_exception();
        }
        inProgram([&] {
            if (atEnd) {
                atEnd();
            }
            over = true;
        });
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    while (!over) {
        loop.exec();
    }
    hands.join();
    if (failure) {
        std::rethrow_exception(failure);
    }
}

void X11User::wait(Time time) const {
    std::this_thread::sleep_for(time);
}

void X11User::press(const char* key) {
    connection_->key(key, true);
}

void X11User::release(const char* key) {
    connection_->key(key, false);
}

void X11User::tap(const char* key) {
    hold(key, stroke);
}

void X11User::hold(const char* key, Time time) {
    press(key);
    wait(time);
    release(key);
}

void X11User::chord(const char* modifier, const char* key) {
    holdChord(modifier, key, stroke);
}

void X11User::holdChord(const char* modifier, const char* key, Time time) {
    press(modifier);
    hold(key, time);
    release(modifier);
}

void X11User::type(const char* text, Time pace) {
    for (const char* letter = text; *letter != '\0'; ++letter) {
        const char name[] = {*letter, '\0'};
        const auto begin = std::chrono::steady_clock::now();
        tap(*letter == ' ' ? "space" : *letter == ',' ? "comma" : name);
        std::this_thread::sleep_until(begin + pace);
    }
}

void X11User::moveTo(QPoint where) {
    XTestFakeMotionEvent(connection_->display, -1, where.x(), where.y(), CurrentTime);
    XFlush(connection_->display);
}

void X11User::click(Time pause) {
    XTestFakeButtonEvent(connection_->display, 1, True, CurrentTime);
    XFlush(connection_->display);
    wait(10ms);
    XTestFakeButtonEvent(connection_->display, 1, False, CurrentTime);
    XFlush(connection_->display);
    wait(pause);
}

void X11User::clickOn(const QWidget& widget) {
    QPoint middle;
    inProgram([&] { middle = widget.mapToGlobal(widget.rect().center()); });
    moveTo(middle);
    click();
}

// What is over may put off some work into the event loop: the second turn sees it over too.
void X11User::settle() {
    for (int turn = 0; turn < 2; ++turn) {
        arrive();
        if (!waitUntil(isReady)) {
            throw std::runtime_error("the program doesn't come to rest");
        }
    }
}

// A stroke made while the window manager hands the keyboard over reaches nobody.
void X11User::arrive() {
    int before = 0;
    inProgram([&] { before = watch_->seen(); });
    const auto end = std::chrono::steady_clock::now() + longest;
    const auto hasCome = [&] { return watch_->seen() > before; };
    do {
        tap(Watch::key);
        if (waitUntil(hasCome, 200ms)) {
            return;
        }
    } while (std::chrono::steady_clock::now() < end);
    throw std::runtime_error("strokes don't arrive");
}

bool X11User::typesInto(const QWidget& window) const {
    Window focused = 0;
    int revert = 0;
    XGetInputFocus(connection_->display, &focused, &revert);
    return focused == window.winId();
}

bool X11User::isReady() {
    const QCursor* cursor = QGuiApplication::overrideCursor();
    return InputGate::ofApplication().isQuiet() &&
           (cursor == nullptr || cursor->shape() != Qt::WaitCursor);
}

void X11User::inProgram(const std::function<void()>& look) const {
    std::exception_ptr failure;
    QMetaObject::invokeMethod(
        qApp,
        [&] {
            try {
                look();
            } catch (...) {
                failure = std::current_exception();
            }
        },
        Qt::BlockingQueuedConnection);
    if (failure) {
        std::rethrow_exception(failure);
    }
}

bool X11User::waitUntil(const std::function<bool()>& condition) const {
    return waitUntil(condition, longest);
}

bool X11User::waitUntil(const std::function<bool()>& condition, Time patience) const {
    const auto end = std::chrono::steady_clock::now() + patience;
    bool met = false;
    while (!met && std::chrono::steady_clock::now() < end) {
        inProgram([&] { met = condition(); });
        if (!met) {
            std::this_thread::sleep_for(5ms);
        }
    }
    return met;
}

}  // namespace tarn::test
