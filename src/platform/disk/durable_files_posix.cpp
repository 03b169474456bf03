#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

#include "platform/disk/durable_files.h"

namespace tarn {

namespace fs = std::filesystem;

namespace {

class Descriptor {
public:
    Descriptor(const fs::path& path, int flags) : number_(open(path.c_str(), flags, 0666)) {}
    ~Descriptor() {
        if (number_ >= 0) {
            close(number_);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return number_; }
    bool sync() const { return number_ >= 0 && fsync(number_) == 0; }

private:
    int number_;
};

bool writeAll(int file, std::string_view text) {
    while (!text.empty()) {
        const ssize_t count = write(file, text.data(), text.size());
        if (count < 0 && errno != EINTR) {
            return false;
        }
        text.remove_prefix(count > 0 ? static_cast<std::size_t>(count) : 0);
    }
    return true;
}

}  // namespace

bool syncFile(const fs::path& file) {
    return Descriptor(file, O_RDONLY | O_CLOEXEC).sync();
}

bool syncFolder(const fs::path& folder) {
    return Descriptor(folder, O_RDONLY | O_DIRECTORY | O_CLOEXEC).sync();
}

bool renameDurably(const fs::path& from, const fs::path& to) {
    std::error_code failed;
    fs::rename(from, to, failed);
    return !failed && syncFolder(to.parent_path());
}

bool writeDurably(const fs::path& file, std::string_view text) {
    fs::path fresh = file;
    fresh += ".new";
    {
        const Descriptor out(fresh, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC);
        if (out.number() < 0 || !writeAll(out.number(), text) || !out.sync()) {
            return false;
        }
    }
    return renameDurably(fresh, file);
}

struct FolderLock::File {
    Descriptor descriptor;
};

FolderLock::FolderLock() = default;
FolderLock::~FolderLock() = default;

bool FolderLock::take(const fs::path& folder) {
    file_.reset(new File{Descriptor(folder / ".lock", O_RDWR | O_CREAT | O_CLOEXEC)});
    if (file_->descriptor.number() >= 0 &&
        flock(file_->descriptor.number(), LOCK_EX | LOCK_NB) == 0) {
        return true;
    }
    file_.reset();
    return false;
}

}  // namespace tarn
