// Files that a power cut doesn't take back.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace tarn {

// Written out of the system's buffers to the disk; false where that failed.
bool syncFile(const std::filesystem::path& file);
// So that the names in it, and which of them are gone, stay so.
bool syncFolder(const std::filesystem::path& folder);
// To another name in the same folder, at once or not at all, and stays so.
bool renameDurably(const std::filesystem::path& from, const std::filesystem::path& to);
// A small file, whole or not there.
bool writeDurably(const std::filesystem::path& file, std::string_view text);

// A folder that one program at a time has to itself, until it ends by whatever means.
class FolderLock {
public:
    FolderLock();
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    // False where another program has it, or a file can't be made in it.
    bool take(const std::filesystem::path& folder);

private:
    struct File;
    std::unique_ptr<File> file_;
};

}  // namespace tarn
