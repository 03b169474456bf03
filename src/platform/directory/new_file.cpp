#include "platform/directory/new_file.h"

#include <cerrno>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#endif

namespace tarn {

#ifdef _WIN32

// The C library of old Windows refuses or overlooks the mode "x", and knows names of its own
// 8-bit page alone.
std::FILE* newFile(const std::filesystem::path& path, IfThere ifThere) {
    errno = 0;
    const int how = ifThere == IfThere::Refuse ? _O_EXCL : _O_TRUNC;
    const int file =
        _wopen(path.c_str(), _O_WRONLY | _O_CREAT | _O_BINARY | how, _S_IREAD | _S_IWRITE);
    if (file < 0) {
        return nullptr;
    }
    std::FILE* opened = _fdopen(file, "wb");
    if (opened == nullptr) {
        _close(file);
    }
    return opened;
}

#else

std::FILE* newFile(const std::filesystem::path& path, IfThere ifThere) {
    errno = 0;
    return std::fopen(path.c_str(), ifThere == IfThere::Refuse ? "wbx" : "wb");
}

#endif

}  // namespace tarn
