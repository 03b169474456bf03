// What a raw job prints, told beside its bytes: whoever lays paper under it needs to know, and
// the bytes alone don't always tell. The system's spoolers have no use for it; a directory
// keeps it in a small text file next to the job.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

enum class JobDocument { Untold, Note, OrderSheet, Slip, Cheque, Labels };

// A text that a document cuts because its form has no room for it.
struct JobCut {
    int line = 0;        // printed, from the document's first, from 1; 0 where it has none
    int column = 0;      // printed, from 1; 0 where it has none
    std::string what{};  // UTF-8, Portuguese, in one line: the field, and what is missing of it
    bool operator==(const JobCut&) const = default;
};

// A document may take several jobs, such as one that sets the printer up ahead of the note's
// own: all of them have its kind.
struct JobKind {
    JobDocument document = JobDocument::Untold;
    // Name of the form that the document goes on, such as "ImprimeNF_1361".
    std::string form;
    // Lines that a note's form has for items, where the note tells.
    std::optional<int> itemLines;
    // Nothing where the document doesn't tell what it cuts.
    std::optional<std::vector<JobCut>> cuts{};

    bool told() const { return document != JobDocument::Untold; }
    bool operator==(const JobKind&) const = default;
};

// The text of the file, one word and its value a line; docs/practice.md tells the words.
std::string writeJobKind(const JobKind& kind);
// What a text tells. Untold where it says nothing that is known: a job without a sound file
// beside it is a job like any other.
JobKind readJobKind(std::string_view text);

// "job-001.kind" of "job-001.prn", in the same directory.
std::filesystem::path jobKindFile(const std::filesystem::path& job);
// Of a job's file, untold where there is none or it can't be read.
JobKind jobKindBeside(const std::filesystem::path& job);

}  // namespace tarn
