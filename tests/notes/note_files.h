// Notes that lie in files of their own, and the way of one to any paper.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "notes/print_note.h"
#include "tests/support/files.h"
#include "tests/support/sessions.h"
#include "tests/support/test_environment.h"

namespace tarn::test {

inline std::string noteFile(const std::string& name) {
    return contentOf(std::string(TARN_NOTE_DATA) + "/" + name);
}

// The note of a file as company 1361 issues it, with the number 4567. "note_1361.prn" holds
// the bytes of "note_1361.xml" behind the set-up.
inline void issueNoteFile(Spooler& paper, const std::string& name) {
    TestEnvironment seams;
    Environment environment = seams.with(paper);
    XmlDocument document;
    ASSERT_TRUE(document.loadXML(noteFile(name))) << name;
    printNote(Ladder::Issuing, environment, sessionOf(1361, 1), document, "4567");
}

}  // namespace tarn::test
