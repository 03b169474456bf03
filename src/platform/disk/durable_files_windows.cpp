#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include "platform/disk/durable_files.h"

namespace tarn {

namespace fs = std::filesystem;

namespace {

class OpenFile {
public:
    OpenFile(const fs::path& path, DWORD access, DWORD share, DWORD creation)
        : handle_(CreateFileW(path.c_str(), access, share, nullptr, creation, FILE_ATTRIBUTE_NORMAL,
                              nullptr)) {}
    ~OpenFile() {
        if (isOpen()) {
            CloseHandle(handle_);
        }
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    bool isOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    bool sync() const { return isOpen() && FlushFileBuffers(handle_) != 0; }
    bool write(std::string_view text) const {
        DWORD written = 0;
        return isOpen() &&
               WriteFile(handle_, text.data(), static_cast<DWORD>(text.size()), &written,
                         nullptr) != 0 &&
               written == text.size();
    }

private:
    HANDLE handle_;
};

}  // namespace

bool syncFile(const fs::path& file) {
    return OpenFile(file, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING).sync();
}

// The file system keeps its names by itself, and MOVEFILE_WRITE_THROUGH waits for it.
bool syncFolder(const fs::path& folder) {
    std::error_code failed;
    return fs::is_directory(folder, failed);
}

bool renameDurably(const fs::path& from, const fs::path& to) {
    return MoveFileExW(from.c_str(), to.c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

bool writeDurably(const fs::path& file, std::string_view text) {
    fs::path fresh = file;
    fresh += ".new";
    {
        const OpenFile out(fresh, GENERIC_WRITE, 0, CREATE_ALWAYS);
        if (!out.write(text) || !out.sync()) {
            return false;
        }
    }
    return renameDurably(fresh, file);
}

struct FolderLock::File {
    OpenFile file;
};

FolderLock::FolderLock() = default;
FolderLock::~FolderLock() = default;

bool FolderLock::take(const fs::path& folder) {
    constexpr DWORD sharedWithNobody = 0;
    file_.reset(new File{OpenFile(folder / ".lock", GENERIC_WRITE, sharedWithNobody, OPEN_ALWAYS)});
    if (file_->file.isOpen()) {
        return true;
    }
    file_.reset();
    return false;
}

}  // namespace tarn
