// Raw jobs through the print service of Windows, as far as the printer's port. The machine's
// default printer must be TARN_TEST_PRINTER, and write what it gets behind the file
// TARN_TEST_PAPER.
#include "platform/winspool/winspool_spooler.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <thread>

#include "runtime/file_names.h"
#include "runtime/wide_text.h"
#include "tests/notes/note_files.h"
#include "tests/support/raw_jobs.h"

namespace tarn::test {
namespace {

namespace fs = std::filesystem;

std::string environmentText(const wchar_t* name) {
    const wchar_t* value = _wgetenv(name);
    return value == nullptr ? "" : utf8Of(value);
}

class WinspoolTest : public testing::Test {
protected:
    void SetUp() override {
        if (paper_.empty()) {
            GTEST_SKIP() << "TARN_TEST_PAPER names no file";
        }
        fs::remove(paper_);
    }

    // What arrived, once it is as long as awaited; the service takes its time.
    std::string arrived(std::size_t length) const {
        constexpr std::chrono::seconds most{20};
        const auto end = std::chrono::steady_clock::now() + most;
        std::string bytes;
        while ((bytes = contentOf(paper_)).size() < length &&
               std::chrono::steady_clock::now() < end) {
            std::this_thread::yield();
        }
        return bytes;
    }

    fs::path paper_ = pathOf(environmentText(L"TARN_TEST_PAPER"));
};

TEST_F(WinspoolTest, TheDefaultPrinterHasItsWholeName) {
    WinspoolSpooler spooler;
    EXPECT_EQ(spooler.defaultPrinter(), environmentText(L"TARN_TEST_PRINTER"));
    EXPECT_TRUE(spooler.answers());
}

TEST_F(WinspoolTest, EveryByteArrives) {
    std::string all;
    for (int i = 0; i < 256; ++i) {
        all.push_back(static_cast<char>(i));
    }
    WinspoolSpooler spooler;
    EXPECT_TRUE(beginJob(spooler, all));
    EXPECT_EQ(spooler.write("\x1A\r\n"), 3U);
    EXPECT_TRUE(endJob(spooler));
    EXPECT_EQ(arrived(259), all + "\x1A\r\n");
}

TEST_F(WinspoolTest, ACallOutOfTurnIsRefused) {
    WinspoolSpooler spooler;
    EXPECT_FALSE(spooler.openPrinter("nenhuma impressora"));
    EXPECT_TRUE(spooler.answers());
    expectRefusals(spooler);
}

TEST_F(WinspoolTest, AJobThatIsNotEndedDoesNotPrint) {
    {
        WinspoolSpooler spooler;
        EXPECT_TRUE(beginJob(spooler, "never"));
    }
    WinspoolSpooler spooler;
    EXPECT_TRUE(beginJob(spooler, "printed"));
    EXPECT_TRUE(endJob(spooler));
    EXPECT_EQ(arrived(7), "printed");
}

TEST_F(WinspoolTest, ANoteArrivesByteForByte) {
    const std::string golden = noteFile("note_1361.prn");
    ASSERT_FALSE(golden.empty());
    WinspoolSpooler spooler;
    issueNoteFile(spooler, "note_1361.xml");
    EXPECT_EQ(arrived(golden.size() + 2), " \x0F" + golden);
}

}  // namespace
}  // namespace tarn::test
