// What the tests of printed notes share: a short note, a form printed on a recorded
// printer, and printed lines as tables of column and value.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "notes/layout.h"
#include "runtime/runtime_error.h"
#include "tests/notes/plain_note.h"
#include "tests/support/recording_spooler.h"

namespace tarn::test {

using Job = RecordingSpooler::Job;

// A short note with texts that fit: three parcels, two items, six item lines.
NoteDraft sampleNote();

// Prints and gives back the jobs; `error` takes the run-time error, if one came.
std::vector<Job> print(const notes::Form& form, const std::string& xml,
                       std::optional<RuntimeErrorCode>* error = nullptr,
                       std::string_view number = "4567");
// The note's own job, which is the last one.
std::string printed(const notes::Form& form, const NoteDraft& note);

// The stream cut at its line ends; what follows the last one is the last entry.
std::vector<std::string> linesOf(const std::string& stream);

// `prefix` and the number behind it.
std::string numbered(std::string_view prefix, std::size_t number);

// A line of `length` characters with each value at its column, counted from 1.
// Values are windows-1252.
std::string lineOf(std::size_t length,
                   const std::vector<std::pair<std::size_t, std::string>>& values);

}  // namespace tarn::test
