// Two prints that may differ in letters alone.
#pragma once

#include <vector>

#include "platform/printer.h"
#include "tests/support/recording_spooler.h"

namespace tarn::test {

// The same jobs and writes of the same lengths, with the same control bytes at the same places.
void expectSameRawPaper(const std::vector<RecordingSpooler::Job>& expected,
                        const std::vector<RecordingSpooler::Job>& printed);

// The same operations at the same places, texts of the same length and without control
// characters.
void expectSameDrawing(const std::vector<PrintOperation>& expected,
                       const std::vector<PrintOperation>& drawn);

}  // namespace tarn::test
