// A directory of one test, gone with it.
#pragma once

#include <filesystem>
#include <random>
#include <stdexcept>
#include <string>

namespace tarn::test {

class OwnDirectory {
public:
    // In the system's folder for such; `name` in UTF-8.
    explicit OwnDirectory(const std::u8string& name = u8"tarn") {
        std::random_device dice;
        for (int tries = 0; tries < 100; ++tries) {
            path_ = std::filesystem::temp_directory_path() / name;
            path_ += "-" + std::to_string(dice());
            if (std::filesystem::create_directory(path_)) {
                return;
            }
        }
        throw std::runtime_error("no directory for the test");
    }
    ~OwnDirectory() {
        std::error_code failed;
        std::filesystem::remove_all(path_, failed);
    }
    OwnDirectory(const OwnDirectory&) = delete;
    OwnDirectory& operator=(const OwnDirectory&) = delete;

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

}  // namespace tarn::test
