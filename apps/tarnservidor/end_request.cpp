#include "apps/tarnservidor/end_request.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <csignal>
#endif

namespace tarn {

#ifdef _WIN32

namespace {

HANDLE asked() {
    static const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    return event;
}

// Windows ends the program a moment after this returns for any word but Ctrl+C.
BOOL WINAPI hear(DWORD word) {
    SetEvent(asked());
    if (word != CTRL_C_EVENT && word != CTRL_BREAK_EVENT) {
        constexpr DWORD millisecondsToEnd = 4000;
        Sleep(millisecondsToEnd);
    }
    return TRUE;
}

// Takes the messages that have come.
bool wasToldToClose() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
        if (message.message == WM_CLOSE) {
            return true;
        }
        DispatchMessageW(&message);
    }
    return false;
}

}  // namespace

// A thread can be written to once it has looked for a message.
EndRequest::EndRequest() {
    asked();
    SetConsoleCtrlHandler(hear, TRUE);
    wasToldToClose();
}

void EndRequest::wait() {
    const HANDLE event = asked();
    while (MsgWaitForMultipleObjects(1, &event, FALSE, INFINITE, QS_ALLPOSTMESSAGE) !=
               WAIT_OBJECT_0 &&
           !wasToldToClose()) {
    }
}

#else

namespace {

sigset_t endingSignals() {
    sigset_t ending;
    sigemptyset(&ending);
    sigaddset(&ending, SIGINT);
    sigaddset(&ending, SIGTERM);
    return ending;
}

}  // namespace

// Blocked, so that all threads inherit it and only the waiting one takes them.
EndRequest::EndRequest() {
    const sigset_t ending = endingSignals();
    pthread_sigmask(SIG_BLOCK, &ending, nullptr);
}

void EndRequest::wait() {
    const sigset_t ending = endingSignals();
    int received = 0;
    sigwait(&ending, &received);
}

#endif

}  // namespace tarn
