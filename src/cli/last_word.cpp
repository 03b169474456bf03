#include "cli/last_word.h"

#ifdef _WIN32
#include <windows.h>

#include "runtime/wide_text.h"
#endif

namespace tarn::cli {
namespace {

#ifdef _WIN32

// A file or a pipe that whoever started it reads.
bool isRead(DWORD stream) {
    const HANDLE handle = GetStdHandle(stream);
    return handle != nullptr && handle != INVALID_HANDLE_VALUE &&
           GetFileType(handle) != FILE_TYPE_UNKNOWN;
}

bool saidInBox(const Ending& ending) {
    const bool done = ending.status == statusDone;
    if (isRead(done ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE)) {
        return false;
    }
    const std::wstring text = wideOf(ending.text);
    MessageBoxW(nullptr, text.c_str(), L"TarnEmissao",
                MB_OK | MB_SETFOREGROUND | (done ? MB_ICONINFORMATION : MB_ICONERROR));
    return true;
}

#else

bool saidInBox(const Ending& /*ending*/) {
    return false;
}

#endif

}  // namespace

int sayLast(const Ending& ending) {
    return saidInBox(ending) ? ending.status : say(ending);
}

}  // namespace tarn::cli
