// Regular expressions that Qt only interprets, on Windows. For a compiled one each thread owns a
// stack, and mingw-w64 frees what a thread owns before it is destroyed: the end of a thread would
// read what is no longer its own.
#pragma once

#ifdef _WIN32
#include <cstdlib>
#endif

namespace tarn {

// Before the first regular expression; Qt asks once.
inline void keepPatternsPlain() {
#ifdef _WIN32
    _putenv_s("QT_ENABLE_REGEXP_JIT", "0");
#endif
}

}  // namespace tarn
