// The files that stand for print jobs in a directory: job-001.prn, job-002.pdf, ...
// One numbering for all kinds of jobs, in the order in which they are opened.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

// Where the numbering begins: behind the highest number present, so that nothing is
// lost, or at 1, taking the place of files of the same name.
enum class JobNumbering { AfterHighest, FromOne };

// A file that goes with a job's, of the same number: there and whole before it.
struct JobCompanion {
    std::string_view extension{};  // empty: none
    std::string text{};
};

class JobFiles {
public:
    explicit JobFiles(std::filesystem::path directory,
                      JobNumbering numbering = JobNumbering::AfterHighest)
        : directory_(std::move(directory)), numbering_(numbering) {}

    const std::filesystem::path& directory() const { return directory_; }

    // Makes the directory if it isn't there; false when that can't be done.
    bool makeDirectory() const;

    // Whether a job's file could be made: there, made by now, and open to this user.
    bool canWrite() const;

    // The next job's file, now there and empty, `extension` without a point. Nothing
    // when it can't be made; the number is then not spent. A companion that can't be written
    // is left out.
    std::optional<std::filesystem::path> create(std::string_view extension,
                                                const JobCompanion& companion = {});

private:
    enum class Made { Yes, Taken, No };
    Made make(int number, std::string_view extension, const JobCompanion& companion,
              std::filesystem::path& file) const;

    std::filesystem::path directory_;
    JobNumbering numbering_;
    int last_ = 0;
};

}  // namespace tarn
