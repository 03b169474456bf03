// What the note tests share: a spooler that keeps every job, documents written as
// texts, and printed lines as tables of column and value.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "notes/layout.h"
#include "platform/spooler.h"
#include "runtime/runtime_error.h"

namespace tarn::test {

struct Job {
    std::vector<std::string> writes;
    bool ended = false;

    std::string bytes() const;
};

class JobSpooler : public Spooler {
public:
    std::string defaultPrinter() override { return "matricial"; }
    bool openPrinter(const std::string& name) override;
    bool startDocument(const JobDescription& job) override;
    bool startPage() override { return true; }
    std::size_t write(std::string_view bytes) override;
    bool endPage() override { return true; }
    bool endDocument() override;
    bool closePrinter() override { return true; }

    std::vector<Job> jobs;
};

using Attributes = std::map<std::string, std::string>;

// A note document as the server sends it. Rows are written out in the order head,
// totals, form, items; a value is escaped.
struct NoteText {
    Attributes head;
    Attributes totals;
    Attributes form;
    std::vector<Attributes> items;

    std::string xml() const;
};

// The note of the forms' maps: three parcels, two items, six item lines.
NoteText sampleNote();

// Prints and gives back the jobs; `error` takes the run-time error, if one came.
std::vector<Job> print(const notes::Form& form, const std::string& xml,
                       std::optional<RuntimeErrorCode>* error = nullptr,
                       std::string_view number = "4567");
// The note's own job, which is the last one.
std::string printed(const notes::Form& form, const NoteText& note);

// The stream cut at its line ends; what follows the last one is the last entry.
std::vector<std::string> linesOf(const std::string& stream);

// `prefix` and the number behind it.
std::string numbered(std::string_view prefix, std::size_t number);

// A line of `length` characters with each value at its column, counted from 1.
// Values are windows-1252.
std::string lineOf(std::size_t length,
                   const std::vector<std::pair<std::size_t, std::string>>& values);

}  // namespace tarn::test
