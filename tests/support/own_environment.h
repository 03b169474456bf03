// Variables of this program's environment, as C's library reads them.
#pragma once

#include <cstdlib>

namespace tarn::test {

inline void setVariable(const char* name, const char* value) {
#ifdef _WIN32
    _putenv_s(name, value);
#else
    ::setenv(name, value, 1);
#endif
}

inline void removeVariable(const char* name) {
#ifdef _WIN32
    _putenv_s(name, "");
#else
    ::unsetenv(name);
#endif
}

}  // namespace tarn::test
