// Prints a note document on a recorded printer.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "runtime/runtime_error.h"
#include "tests/notes/form_facts.h"
#include "tests/notes/plain_note.h"
#include "tests/support/recording_spooler.h"

namespace tarn::test {

struct Printed {
    std::vector<RecordingSpooler::Job> jobs;
    std::vector<RecordingSpooler::Call> calls;
    std::optional<RuntimeError> error;
    bool documentLetGo = false;

    // Line ends of the note's own job.
    int lineEnds() const;
};

Printed printXml(Ladder ladder, std::int32_t company, std::int32_t establishment,
                 const std::string& xml);
Printed print(const FormFacts& form, const NoteDraft& draft);

}  // namespace tarn::test
