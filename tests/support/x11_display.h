// A private X server with a window manager, for tests of what a real keyboard does.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace tarn::test {

class X11Display {
public:
    // Starts Xvfb on a free display and openbox on it, and names it in DISPLAY. Raises
    // std::runtime_error where one of them doesn't come up.
    X11Display();
    ~X11Display();
    X11Display(const X11Display&) = delete;
    X11Display& operator=(const X11Display&) = delete;

private:
    void end();

    std::vector<pid_t> children_;
};

}  // namespace tarn::test
