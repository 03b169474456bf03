// What a real cupsd of the test's own does to raw jobs when it, its queue or its printer is in
// trouble; and that nothing takes minutes.
#include <gtest/gtest.h>

#include <chrono>

#include "common/raw_channel.h"
#include "platform/cups/cups_spooler.h"
#include "tests/support/cups_test.h"

namespace tarn::test {
namespace {

using std::chrono::steady_clock;

// A wait for a silent server, and one for the job's cancelling, on a busy machine.
constexpr std::chrono::seconds twoWaits{25};

class CupsTroubles : public CupsTest {
protected:
    void TearDown() override {
        if (server_ && failure_.empty()) {
            server_->goOn();
            EXPECT_TRUE(server_->resumeQueue(PrivateCupsd::queueName));
            EXPECT_TRUE(server_->acceptJobs(PrivateCupsd::queueName));
        }
    }

    // Whether the whole job was taken.
    bool print(const std::string& text) { return begin() && add(text) && end(); }
    bool begin() {
        return spooler_.openPrinter(spooler_.defaultPrinter()) && spooler_.startDocument({}) &&
               spooler_.startPage();
    }
    bool add(const std::string& text) { return spooler_.write(text) == text.size(); }
    bool end() {
        const bool ended = spooler_.endPage() && spooler_.endDocument();
        spooler_.closePrinter();
        return ended;
    }

    CupsSpooler spooler_;
};

TEST_F(CupsTroubles, AStoppedQueueTakesJobsAndPrintsThemInOrderAfterwards) {
    ASSERT_TRUE(server_->pauseQueue(PrivateCupsd::queueName));
    EXPECT_TRUE(print("um"));
    EXPECT_TRUE(print("dois"));
    EXPECT_FALSE(server_->nextJob(std::chrono::milliseconds(200))) << "nothing prints";
    ASSERT_TRUE(server_->resumeQueue(PrivateCupsd::queueName));
    EXPECT_EQ(printed(), "um");
    EXPECT_EQ(printed(), "dois");
}

TEST_F(CupsTroubles, AQueueThatRefusesJobsIsARefusalOfTheFirstCall) {
    ASSERT_TRUE(server_->refuseJobs(PrivateCupsd::queueName));
    EXPECT_EQ(spooler_.defaultPrinter(), PrivateCupsd::queueName);
    EXPECT_TRUE(spooler_.openPrinter(PrivateCupsd::queueName));
    EXPECT_FALSE(spooler_.startDocument({}));
    EXPECT_FALSE(spooler_.startPage());
    EXPECT_EQ(spooler_.write("perdido"), 0U);
    EXPECT_FALSE(spooler_.endDocument());
    EXPECT_TRUE(spooler_.answers()) << "it said no";
    ASSERT_TRUE(server_->acceptJobs(PrivateCupsd::queueName));
    EXPECT_TRUE(print("depois"));
    EXPECT_EQ(printed(), "depois");
}

// The printer takes nothing until it is asked for: its socket's buffers fill, and those of the
// queue's backend; the spool is a file.
TEST_F(CupsTroubles, ASlowPrinterHoldsNobodyUp) {
    const std::string form(200, 'x');
    constexpr int lines = 20000;
    const auto start = steady_clock::now();
    ASSERT_TRUE(begin());
    for (int i = 0; i < lines; ++i) {
        ASSERT_TRUE(add(form));
    }
    EXPECT_TRUE(end());
    EXPECT_TRUE(print("depois"));
    EXPECT_LT(steady_clock::now() - start, twoWaits);
    EXPECT_EQ(printed().value_or("").size(), form.size() * lines);
    EXPECT_EQ(printed(), "depois");
}

TEST_F(CupsTroubles, AServerThatFallsSilentInAJobLosesItWholeAndSoon) {
    ASSERT_TRUE(begin());
    ASSERT_TRUE(add("metade"));
    server_->holdStill();
    const auto start = steady_clock::now();
    EXPECT_FALSE(end());
    EXPECT_FALSE(spooler_.answers());
    EXPECT_LT(steady_clock::now() - start, twoWaits);
    server_->goOn();
    EXPECT_TRUE(print("inteiro"));
    EXPECT_TRUE(spooler_.answers());
    // The half may have been taken before the silence, but never goes out with another.
    std::optional<std::string> job = printed();
    if (job == "metade") {
        job = printed();
    }
    EXPECT_EQ(job, "inteiro");
}

TEST_F(CupsTroubles, AServerThatFallsSilentUnderALongJobIsWaitedForOnce) {
    ASSERT_TRUE(begin());
    server_->holdStill();
    const auto start = steady_clock::now();
    const std::string piece(65536, 'x');
    bool taken = true;
    for (int i = 0; i < 400; ++i) {  // more than any buffer on the way holds
        taken = add(piece) && taken;
    }
    EXPECT_FALSE(taken);
    EXPECT_FALSE(end());
    EXPECT_LT(steady_clock::now() - start, twoWaits);
}

TEST_F(CupsTroubles, AServerThatIsGoneIsKnownAtOnce) {
    PrivateCupsd& server = *server_;
    ASSERT_TRUE(begin());
    ASSERT_TRUE(add("metade"));
    server.stop();
    const auto start = steady_clock::now();
    EXPECT_FALSE(end());
    EXPECT_FALSE(print("nada"));
    EXPECT_EQ(spooler_.defaultPrinter(), "");
    EXPECT_FALSE(spooler_.answers());
    EXPECT_LT(steady_clock::now() - start, twoWaits);
    failure_ = "the server of these tests is stopped";  // the last test
}

}  // namespace
}  // namespace tarn::test
