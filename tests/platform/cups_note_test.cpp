// A fiscal note from its document to the printer's socket, through a real cupsd of the
// test's own.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "notes/print_note.h"
#include "platform/cups/cups_spooler.h"
#include "runtime/runtime_error.h"
#include "tests/support/cups_test.h"
#include "tests/support/test_environment.h"

namespace tarn::test {
namespace {

std::string noteFile(const char* name) {
    std::ifstream in(std::string(TARN_NOTE_DATA) + "/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

class CupsNoteTest : public CupsTest {
protected:
    void print(Spooler& spooler, const char* noteDocument) {
        Environment environment{.http = seams_.loader,
                                .spooler = spooler,
                                .printer = seams_.printer,
                                .boxes = seams_.boxes,
                                .clock = seams_.clock,
                                .machine = seams_.machine,
                                .baseUrl = {}};
        Sessao session;
        session.NCOMPANYCODE = 1361;
        session.ID_ETB_TARN = 1;
        XmlDocument document;
        ASSERT_TRUE(document.loadXML(noteFile(noteDocument)));
        printNote(Ladder::Issuing, environment, session, document, "4567");
    }

    const std::string golden_ = noteFile("note_1361.prn");
    TestEnvironment seams_;
};

TEST_F(CupsNoteTest, SetUpAndNoteArriveByteForByteAndInOrder) {
    ASSERT_FALSE(golden_.empty());
    CupsSpooler spooler;
    for (int time = 0; time < 2; ++time) {
        print(spooler, "note_1361.xml");
        EXPECT_EQ(printed(), " \x0F") << server_->errorLog();
        EXPECT_EQ(printed(), golden_) << server_->errorLog();
    }
}

TEST_F(CupsNoteTest, ANoteStoppedByAnErrorDoesNotHoldUpTheNext) {
    CupsSpooler spooler;
    EXPECT_THROW(print(spooler, "note_wrong_quantity.xml"), RuntimeError);
    EXPECT_EQ(printed(), " \x0F") << server_->errorLog();
    print(spooler, "note_1361.xml");
    EXPECT_EQ(printed(), " \x0F") << server_->errorLog();
    EXPECT_EQ(printed(), golden_) << server_->errorLog();
}

}  // namespace
}  // namespace tarn::test
