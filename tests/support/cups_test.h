// Tests over a cupsd of their own, one for the whole program: libcups remembers the
// first server it met.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "tests/support/private_cupsd.h"

namespace tarn::test {

class CupsTest : public testing::Test {
protected:
    static void SetUpTestSuite() { startServer(PrivateCupsd::queueName); }
    static void startServer(const char* defaultQueue) {
        if (PrivateCupsd::whyMissing().empty()) {
            server_ = std::make_unique<PrivateCupsd>();
            server_->makeDefault(defaultQueue);
            failure_ = server_->start();
        }
    }
    static void TearDownTestSuite() { server_.reset(); }

    void SetUp() override {
        if (const std::string why = PrivateCupsd::whyMissing(); !why.empty()) {
            GTEST_SKIP() << why;
        }
        ASSERT_EQ(failure_, "");
    }

    // The next job as it reached the printer.
    static std::optional<std::string> printed() {
        constexpr std::chrono::seconds jobLimit{30};
        return server_->nextJob(jobLimit);
    }

    inline static std::unique_ptr<PrivateCupsd> server_;
    inline static std::string failure_;
};

}  // namespace tarn::test
