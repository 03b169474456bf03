// A server that takes the connection and says nothing: seconds, not minutes.
#include <gtest/gtest.h>

#include <chrono>

#include "common/raw_channel.h"
#include "platform/cups/cups_spooler.h"
#include "platform/system_spooler.h"
#include "tests/support/silent_server.h"

namespace tarn::test {
namespace {

using std::chrono::steady_clock;

// One wait, on a busy machine.
constexpr std::chrono::seconds aWait{12};

class CupsSpoolerAtASilentServer : public testing::Test {
protected:
    CupsSpoolerAtASilentServer() {
        static const SilentServer server;  // one for the program: libcups remembers the first
        server.beThePrintServer();
    }

    steady_clock::duration lasted() const { return steady_clock::now() - start_; }

private:
    steady_clock::time_point start_ = steady_clock::now();
};

TEST_F(CupsSpoolerAtASilentServer, AJobIsGivenUpAfterSecondsWithTheReason) {
    CupsSpooler spooler;
    EXPECT_TRUE(spooler.answers()) << "nobody has asked it";
    RawChannel channel(spooler, CodePage::Page1252);
    channel.open();
    EXPECT_FALSE(spooler.answers());
    std::string line = "linha";
    for (int i = 0; i < 70; ++i) {
        channel.ImprimeRaw(1, line, 1);
    }
    channel.close();
    EXPECT_LT(lasted(), aWait);
}

TEST_F(CupsSpoolerAtASilentServer, AnOpenedNameIsGivenUpToo) {
    CupsSpooler spooler;
    EXPECT_FALSE(spooler.openPrinter("fila"));
    EXPECT_FALSE(spooler.answers());
    EXPECT_LT(lasted(), aWait);
}

TEST_F(CupsSpoolerAtASilentServer, WhoDrawsPagesLearnsItBeforehand) {
    EXPECT_FALSE(systemSpoolerAnswers());
    EXPECT_LT(lasted(), aWait);
}

}  // namespace
}  // namespace tarn::test
