// A fiscal note from its document to the printer's socket, through a real cupsd of the
// test's own.
#include <gtest/gtest.h>

#include "platform/cups/cups_spooler.h"
#include "runtime/runtime_error.h"
#include "tests/notes/note_files.h"
#include "tests/support/cups_test.h"

namespace tarn::test {
namespace {

class CupsNoteTest : public CupsTest {
protected:
    const std::string golden_ = noteFile("note_1361.prn");
};

TEST_F(CupsNoteTest, SetUpAndNoteArriveByteForByteAndInOrder) {
    ASSERT_FALSE(golden_.empty());
    CupsSpooler spooler;
    for (int time = 0; time < 2; ++time) {
        issueNoteFile(spooler, "note_1361.xml");
        EXPECT_EQ(printed(), " \x0F") << server_->errorLog();
        EXPECT_EQ(printed(), golden_) << server_->errorLog();
    }
}

TEST_F(CupsNoteTest, ANoteStoppedByAnErrorDoesNotHoldUpTheNext) {
    CupsSpooler spooler;
    EXPECT_THROW(issueNoteFile(spooler, "note_wrong_quantity.xml"), RuntimeError);
    EXPECT_EQ(printed(), " \x0F") << server_->errorLog();
    issueNoteFile(spooler, "note_1361.xml");
    EXPECT_EQ(printed(), " \x0F") << server_->errorLog();
    EXPECT_EQ(printed(), golden_) << server_->errorLog();
}

}  // namespace
}  // namespace tarn::test
