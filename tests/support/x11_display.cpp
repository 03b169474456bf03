#include "tests/support/x11_display.h"

#include <X11/Xlib.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <thread>

namespace tarn::test {
namespace {

using namespace std::chrono_literals;

constexpr auto patience = 20s;

// A child that ends with this process, whatever ends it, is silent, and has `kept` open.
pid_t launch(const std::vector<std::string>& command, int kept = -1) {
    std::vector<char*> words;
    words.reserve(command.size() + 1);
    for (const std::string& word : command) {
        words.push_back(const_cast<char*>(word.c_str()));
    }
    words.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        const int nowhere = open("/dev/null", O_RDWR);
        for (const int standard : {0, 1, 2}) {
            dup2(nowhere, standard);
        }
        if (kept >= 0) {
            fcntl(kept, F_SETFD, 0);
        }
        execvp(words[0], words.data());
        _exit(127);
    }
    return child;
}

std::string displayTold(int reader) {
    std::string told;
    char letter = 0;
    while (read(reader, &letter, 1) == 1 && letter != '\n') {
        told += letter;
    }
    return told;
}

// What a window manager tells each window that it manages.
bool isManaged(Display* display, Window window) {
    const Atom mark = XInternAtom(display, "WM_STATE", False);
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* data = nullptr;
    XGetWindowProperty(display, window, mark, 0, 1, False, mark, &type, &format, &count, &left,
                       &data);
    if (data != nullptr) {
        XFree(data);
    }
    return count == 1;
}

// Whether a window shown now is managed soon: one shown while the manager starts may be
// overlooked.
bool managesWindows(Display* display) {
    const Window probe =
        XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 10, 10, 0, 0, 0);
    XMapWindow(display, probe);
    bool managed = false;
    for (int look = 0; look < 50 && !managed; ++look) {
        managed = isManaged(display, probe);
        if (!managed) {
            std::this_thread::sleep_for(10ms);
        }
    }
    XDestroyWindow(display, probe);
    XSync(display, False);
    return managed;
}

void waitForManager() {
    const std::unique_ptr<Display, int (*)(Display*)> display(XOpenDisplay(nullptr), XCloseDisplay);
    if (display == nullptr) {
        throw std::runtime_error("the X server takes no connection");
    }
    const auto end = std::chrono::steady_clock::now() + patience;
    while (!managesWindows(display.get())) {
        if (std::chrono::steady_clock::now() > end) {
            throw std::runtime_error("no window manager (openbox) came up");
        }
    }
}

}  // namespace

X11Display::X11Display() {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        throw std::runtime_error("no pipe");
    }
    children_.push_back(launch({"Xvfb", "-displayfd", std::to_string(ends[1]), "-screen", "0",
                                "1280x1024x24", "-nolisten", "tcp"},
                               ends[1]));
    close(ends[1]);
    const std::string number = displayTold(ends[0]);
    close(ends[0]);
    if (number.empty()) {
        end();
        throw std::runtime_error("Xvfb doesn't start");
    }
    setenv("DISPLAY", (":" + number).c_str(), 1);
    children_.push_back(launch({"openbox", "--sm-disable"}));
    try {
        waitForManager();
    } catch (...) {
        end();
        throw;
    }
}

X11Display::~X11Display() {
    end();
}

void X11Display::end() {
    while (!children_.empty()) {
        kill(children_.back(), SIGTERM);
        waitpid(children_.back(), nullptr, 0);
        children_.pop_back();
    }
}

}  // namespace tarn::test
