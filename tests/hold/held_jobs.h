// A folder of held jobs of the test's own.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>

#include "hold/hold_folder.h"
#include "tests/support/own_directory.h"

namespace tarn::test {

class HeldJobs : public testing::Test {
protected:
    HeldJobs() { folder_ = reopened(); }

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

    OwnDirectory own_{u8"retidos à mão"};
    const std::filesystem::path& root_ = own_.path();
    std::unique_ptr<hold::HoldFolder> folder_;
};

}  // namespace tarn::test
