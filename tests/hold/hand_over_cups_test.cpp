// What a real cupsd tells of jobs that were cut off on their way to it.
#include <cups/cups.h>

#include "hold/hand_over.h"
#include "platform/cups/cups_spooler.h"
#include "tests/hold/held_jobs.h"
#include "tests/support/cups_test.h"

namespace tarn::test {
namespace {

using hold::State;

class HandOverCups : public CupsTest {
protected:
    static int begun(CupsSpooler& spooler) {
        EXPECT_TRUE(spooler.openPrinter(PrivateCupsd::queueName));
        EXPECT_TRUE(spooler.startDocument({}));
        return spooler.documentNumber();
    }
    static JobFate fateOf(int number) {
        CupsSpooler spooler;
        EXPECT_TRUE(spooler.openPrinter(PrivateCupsd::queueName));
        return spooler.fateOf(number);
    }
};

TEST_F(HandOverCups, AJobWhoseEndCameArrivedWaitingAndPrinted) {
    ASSERT_TRUE(server_->pauseQueue(PrivateCupsd::queueName));
    CupsSpooler spooler;
    const int number = begun(spooler);
    EXPECT_GT(number, 0);
    ASSERT_EQ(spooler.write("nota\r\n"), 6U);
    ASSERT_TRUE(spooler.endDocument());
    EXPECT_EQ(fateOf(number), JobFate::Arrived);
    ASSERT_TRUE(server_->resumeQueue(PrivateCupsd::queueName));
    EXPECT_EQ(printed(), "nota\r\n");
    EXPECT_EQ(fateOf(number), JobFate::Arrived);
}

// A process that dies closes its connection in the middle of the document.
TEST_F(HandOverCups, AJobCutOffNeverArrivesAndTheQueueGoesOn) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    const pid_t child = fork();
    if (child == 0) {
        CupsSpooler spooler;
        const int number = begun(spooler);
        spooler.write(std::string(100'000, 'x'));
        static_cast<void>(write(ends[1], &number, sizeof number));
        kill(getpid(), SIGKILL);
    }
    int number = 0;
    ASSERT_EQ(read(ends[0], &number, sizeof number), static_cast<ssize_t>(sizeof number));
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    close(ends[0]);
    close(ends[1]);
    EXPECT_EQ(fateOf(number), JobFate::NeverArrived);
    EXPECT_EQ(fateOf(number), JobFate::NeverArrived) << "also once it is cancelled";
    CupsSpooler spooler;
    begun(spooler);
    ASSERT_EQ(spooler.write("depois\r\n"), 8U);
    ASSERT_TRUE(spooler.endDocument());
    EXPECT_EQ(printed(), "depois\r\n");
}

TEST_F(HandOverCups, AJobThatSomebodyCancelledOrNobodyKnowsIsDoubtful) {
    ASSERT_TRUE(server_->pauseQueue(PrivateCupsd::queueName));
    CupsSpooler spooler;
    const int number = begun(spooler);
    ASSERT_EQ(spooler.write("nota\r\n"), 6U);
    ASSERT_TRUE(spooler.endDocument());
    cupsCancelJob2(CUPS_HTTP_DEFAULT, PrivateCupsd::queueName, number, 0);
    EXPECT_EQ(fateOf(number), JobFate::Doubtful);
    EXPECT_EQ(fateOf(number + 1000), JobFate::Doubtful);
    ASSERT_TRUE(server_->resumeQueue(PrivateCupsd::queueName));
}

TEST_F(HandOverCups, OfASilentServerNothingIsKnown) {
    CupsSpooler spooler;
    const int number = begun(spooler);
    server_->holdStill();
    EXPECT_EQ(spooler.fateOf(number), JobFate::Unknown);
    EXPECT_FALSE(spooler.answers());
    server_->goOn();
}

}  // namespace
}  // namespace tarn::test
