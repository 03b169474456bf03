#include "platform/early_loader.h"

#include <gtest/gtest.h>

#include <atomic>
#include <mutex>
#include <stdexcept>
#include <vector>

namespace tarn::test {
namespace {

// Answers with the address, "held" only once it is closed.
class EchoLoader : public HttpLoader {
public:
    HttpAnswer get(const std::string& address) override {
        {
            const std::scoped_lock lock(mutex_);
            asked_.push_back(address);
        }
        if (address == "broken") {
            throw std::runtime_error("broken");
        }
        if (address == "held") {
            closed_.wait(false);
            return {};
        }
        return {true, "answer to " + address};
    }
    void close() override {
        closed_ = true;
        closed_.notify_all();
    }
    std::vector<std::string> asked() const {
        const std::scoped_lock lock(mutex_);
        return asked_;
    }

private:
    std::atomic<bool> closed_ = false;
    mutable std::mutex mutex_;
    std::vector<std::string> asked_;
};

TEST(EarlyLoader, TheFirstRequestIsSentOnceAndItsAnswerGivenToWhoAsks) {
    EchoLoader real;
    EarlyLoader early(real, "first");
    EXPECT_EQ(early.get("first").body, "answer to first");
    EXPECT_EQ(early.get("second").body, "answer to second");
    EXPECT_EQ(early.get("first").body, "answer to first");
    EXPECT_EQ(real.asked(), (std::vector<std::string>{"first", "second", "first"}));
}

TEST(EarlyLoader, AnotherRequestWaitsForItAndGetsItsOwnAnswer) {
    EchoLoader real;
    EarlyLoader early(real, "first");
    EXPECT_EQ(early.get("other").body, "answer to other");
    EXPECT_EQ(real.asked(), (std::vector<std::string>{"first", "other"}));
}

TEST(EarlyLoader, WhatTheRealOneThrowsIsThrownToWhoAsks) {
    EchoLoader real;
    EarlyLoader early(real, "broken");
    EXPECT_THROW(early.get("broken"), std::runtime_error);
}

TEST(EarlyLoader, ItsEndGivesTheRequestUp) {
    EchoLoader real;
    { const EarlyLoader early(real, "held"); }
    EXPECT_EQ(real.asked(), std::vector<std::string>{"held"});
}

TEST(EarlyLoader, ClosingGivesTheRequestUp) {
    EchoLoader real;
    EarlyLoader early(real, "held");
    early.close();
    EXPECT_FALSE(early.get("held").loaded);
}

}  // namespace
}  // namespace tarn::test
