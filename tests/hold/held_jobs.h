// A folder of held jobs of the test's own.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "hold/hold_folder.h"

namespace tarn::test {

inline std::string bytesIn(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

class HeldJobs : public testing::Test {
protected:
    HeldJobs() {
        std::string name = (std::filesystem::temp_directory_path() / "tarn-held-XXXXXX").string();
        root_ = mkdtemp(name.data());
        folder_ = reopened();
    }
    ~HeldJobs() override {
        folder_.reset();
        std::error_code ignored;
        std::filesystem::remove_all(root_, ignored);
    }

    std::filesystem::path place() const { return root_ / "retidos"; }
    // As the next start of the program finds it.
    std::unique_ptr<hold::HoldFolder> reopened() {
        folder_.reset();
        auto folder = std::make_unique<hold::HoldFolder>(place());
        const auto wrong = folder->open();
        EXPECT_FALSE(wrong) << *wrong;
        return folder;
    }
    hold::Job keep(const std::string& bytes, const std::string& name = "nota") {
        EXPECT_TRUE(folder_->begin());
        EXPECT_TRUE(folder_->add(bytes));
        const auto job = folder_->keep({.name = name, .arrived = 7});
        EXPECT_TRUE(job);
        return job.value_or(hold::Job{});
    }

    std::filesystem::path root_;
    std::unique_ptr<hold::HoldFolder> folder_;
};

}  // namespace tarn::test
