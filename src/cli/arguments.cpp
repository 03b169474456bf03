#include "cli/arguments.h"

#ifdef _WIN32
#include <windows.h>
// after windows.h, which it needs
#include <shellapi.h>

#include <memory>

#include "runtime/wide_text.h"
#endif

#include "runtime/plain_patterns.h"

namespace tarn::cli {
namespace {

#ifdef _WIN32

// Nothing where Windows can't tell; `main` has words all the same.
std::vector<std::string> systemsWords() {
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&LocalFree)> words(
        CommandLineToArgvW(GetCommandLineW(), &count), LocalFree);
    std::vector<std::string> all;
    for (int i = 0; words != nullptr && i < count; ++i) {
        all.push_back(utf8Of(words.get()[i]));
    }
    return all;
}

unsigned int showUtf8() {
    const UINT before = GetConsoleOutputCP();
    return SetConsoleOutputCP(CP_UTF8) != 0 ? before : 0;
}

void showPage(unsigned int page) {
    if (page != 0) {
        SetConsoleOutputCP(page);
    }
}

#else

std::vector<std::string> systemsWords() {
    return {};
}

unsigned int showUtf8() {
    return 0;
}

void showPage(unsigned int /*page*/) {}

#endif

}  // namespace

Arguments::Arguments(int argc, const char* const* argv)
    : texts_(systemsWords()), consolePage_(showUtf8()) {
    keepPatternsPlain();
    if (texts_.empty()) {
        texts_.assign(argv, argv + argc);
    }
    for (const std::string& text : texts_) {
        pointers_.push_back(text.c_str());
    }
    pointers_.push_back(nullptr);
}

Arguments::~Arguments() {
    showPage(consolePage_);
}

}  // namespace tarn::cli
