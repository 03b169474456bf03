// A user at a real keyboard and mouse: strokes and clicks enter the X server as those of
// its devices, at their own pace, while the program runs its event loop.
#pragma once

#include <QPoint>
#include <QString>
#include <QWidget>
#include <chrono>
#include <functional>
#include <memory>

namespace tarn::test {

class X11User {
public:
    // Held keys repeat after 300 ms, 30 times a second.
    X11User();
    ~X11User();
    X11User(const X11User&) = delete;
    X11User& operator=(const X11User&) = delete;

    // Runs what the user does on a thread of its own; the event loop turns until it is
    // done. Then `atEnd` looks at what there is, and every modal window that still stands
    // is closed.
    void does(const std::function<void(X11User&)>& script, const std::function<void()>& atEnd = {});

    // From here on: for the script alone.
    using Time = std::chrono::milliseconds;
    void wait(Time time) const;
    void press(const char* key);  // X's name of it: "Return", "a", "Alt_L"
    void release(const char* key);
    void tap(const char* key);
    void hold(const char* key, Time time);
    void chord(const char* modifier, const char* key);
    void holdChord(const char* modifier, const char* key, Time time);
    // Characters of the US keyboard's lower row, one each `pace`.
    void type(const char* text, Time pace);
    void moveTo(QPoint where);
    void click(Time pause = Time(40));  // where the pointer stands; `pause` after it
    void clickOn(const QWidget& widget);

    // Waits until all that was done has arrived.
    void arrive();
    // The X server hands the strokes to this window. The toolkit calls a modal window active
    // before the window manager has given it the keyboard, and one closed in between leaves
    // no window active.
    bool typesInto(const QWidget& window) const;
    // And until what it set off is over.
    void settle();
    // No request is under way, and nothing held is still to be typed.
    static bool isReady();

    // What the program's own thread says.
    void inProgram(const std::function<void()>& look) const;
    bool waitUntil(const std::function<bool()>& condition) const;

private:
    struct Connection;
    class Watch;
    bool waitUntil(const std::function<bool()>& condition, Time patience) const;

    std::unique_ptr<Connection> connection_;
    std::unique_ptr<Watch> watch_;
};

}  // namespace tarn::test
