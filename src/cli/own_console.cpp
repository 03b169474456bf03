#include "cli/own_console.h"

#ifdef _WIN32
#include <windows.h>

#include <array>
#endif

namespace tarn::cli {

#ifdef _WIN32

void closeOwnConsole() {
    std::array<DWORD, 2> users{};
    if (GetConsoleProcessList(users.data(), users.size()) == 1) {
        FreeConsole();
    }
}

#else

void closeOwnConsole() {}

#endif

}  // namespace tarn::cli
