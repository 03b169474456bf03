// Jobs through a real cupsd of the test's own, down to the printer's socket.
#include "platform/cups/cups_spooler.h"

#include <cups/cups.h>
#include <gtest/gtest.h>

#include <random>

#include "common/raw_channel.h"
#include "tests/support/cups_test.h"
#include "tests/support/raw_jobs.h"

namespace tarn::test {
namespace {

class CupsSpoolerTest : public CupsTest {
protected:
    // The state of the newest job of the queue.
    static ipp_jstate_t newestState() {
        cups_job_t* jobs = nullptr;
        const int count = cupsGetJobs(&jobs, PrivateCupsd::queueName, 0, CUPS_WHICHJOBS_ALL);
        ipp_jstate_t state = IPP_JSTATE_PENDING;
        int newest = 0;
        for (int i = 0; i < count; ++i) {
            if (jobs[i].id > newest) {
                newest = jobs[i].id;
                state = jobs[i].state;
            }
        }
        cupsFreeJobs(count, jobs);
        return state;
    }
};

TEST_F(CupsSpoolerTest, TheDefaultPrinterIsTheServers) {
    CupsSpooler spooler;
    EXPECT_EQ(spooler.defaultPrinter(), PrivateCupsd::queueName);
}

TEST_F(CupsSpoolerTest, EveryByteArrivesAsItIs) {
    std::string bytes;
    for (int i = 0; i < 256; ++i) {
        bytes.push_back(static_cast<char>(i));
    }
    CupsSpooler spooler;
    ASSERT_TRUE(beginJob(spooler, bytes)) << server_->errorLog();
    EXPECT_EQ(spooler.write(""), 0U);
    EXPECT_EQ(spooler.write("\x1B@end\r\n"), 7U);
    ASSERT_TRUE(endJob(spooler));
    EXPECT_EQ(printed(), bytes + "\x1B@end\r\n") << server_->errorLog();
}

TEST_F(CupsSpoolerTest, ALargeJobInManyWrites) {
    std::mt19937 random(42);
    CupsSpooler spooler;
    ASSERT_TRUE(beginJob(spooler, "first line\r\n"));
    std::string all = "first line\r\n";
    while (all.size() < 3000000) {
        std::string piece(1 + random() % 300, '\0');
        for (char& c : piece) {
            c = static_cast<char>(random() % 256);
        }
        ASSERT_EQ(spooler.write(piece), piece.size());
        all += piece;
    }
    ASSERT_TRUE(endJob(spooler));
    EXPECT_TRUE(printed() == all) << "the bytes differ";
}

TEST_F(CupsSpoolerTest, JobsArriveInOrder) {
    CupsSpooler spooler;
    for (const char* text : {"one", "two", "three"}) {
        ASSERT_TRUE(beginJob(spooler, text));
        ASSERT_TRUE(endJob(spooler));
    }
    EXPECT_EQ(printed(), "one");
    EXPECT_EQ(printed(), "two");
    EXPECT_EQ(printed(), "three");
}

TEST_F(CupsSpoolerTest, TheRawChannelPrintsOnTheDefaultPrinter) {
    CupsSpooler spooler;
    RawChannel channel(spooler, CodePage::Page1252);
    channel.open({.docName = "Impressao de Cheque", .outputFile = "", .dataType = ""});
    std::string line = "SÃO PAULO";
    channel.ImprimeRaw(1, line, 2);
    channel.close();
    EXPECT_EQ(printed(), " S\xC3O PAULO\r\n\r\n");
}

TEST_F(CupsSpoolerTest, AJobLeftOpenIsCancelledWhenItsHandleIsReplaced) {
    CupsSpooler spooler;
    ASSERT_TRUE(beginJob(spooler, "never ended"));
    ASSERT_TRUE(spooler.openPrinter(PrivateCupsd::queueName));
    EXPECT_EQ(newestState(), IPP_JSTATE_CANCELED);
    ASSERT_TRUE(spooler.startDocument({}) && spooler.startPage());
    EXPECT_EQ(spooler.write("the next"), 8U);
    ASSERT_TRUE(endJob(spooler));
    EXPECT_EQ(printed(), "the next");
}

TEST_F(CupsSpoolerTest, AJobLeftOpenIsCancelledWhenTheSpoolerDies) {
    {
        CupsSpooler spooler;
        ASSERT_TRUE(beginJob(spooler, std::string(100000, 'x')));
    }
    EXPECT_EQ(newestState(), IPP_JSTATE_CANCELED);
    CupsSpooler spooler;
    ASSERT_TRUE(beginJob(spooler, "after"));
    ASSERT_TRUE(endJob(spooler));
    EXPECT_EQ(printed(), "after");
}

TEST_F(CupsSpoolerTest, AQueueThatIsNotThereFails) {
    CupsSpooler spooler;
    EXPECT_FALSE(spooler.openPrinter("no_such_queue"));
    EXPECT_FALSE(spooler.openPrinter(""));
    expectRefusals(spooler);
}

}  // namespace
}  // namespace tarn::test
