// No server at all: every call says so and nothing hangs.
#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/cups/cups_spooler.h"

namespace tarn::test {
namespace {

TEST(CupsSpoolerWithoutServer, EveryCallFails) {
    setenv("CUPS_SERVER", "/nonexistent/cups.sock", 1);
    CupsSpooler spooler;
    EXPECT_EQ(spooler.defaultPrinter(), "");
    EXPECT_FALSE(spooler.answers());
    EXPECT_FALSE(spooler.openPrinter("queue"));
    EXPECT_FALSE(spooler.startDocument({}));
    EXPECT_EQ(spooler.write("A"), 0U);
    EXPECT_FALSE(spooler.endDocument());
    EXPECT_FALSE(spooler.closePrinter());
}

}  // namespace
}  // namespace tarn::test
