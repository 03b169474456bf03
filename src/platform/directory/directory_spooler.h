// A directory in the printer's place: each raw job becomes a file with the exact
// bytes, there from the first write on. A job never ended stays as it is. What a job prints
// is told in a file beside it, whole before the job's own is there.
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>

#include "platform/directory/job_files.h"
#include "platform/spooler.h"

namespace tarn {

// Whether what the jobs print is told beside them.
enum class TellsKinds { No, Yes };

class DirectorySpooler : public Spooler {
public:
    // `files` may be shared with what draws pages into the same directory.
    explicit DirectorySpooler(std::shared_ptr<JobFiles> files, TellsKinds kinds = TellsKinds::Yes)
        : files_(std::move(files)), kinds_(kinds) {}
    explicit DirectorySpooler(std::filesystem::path directory,
                              JobNumbering numbering = JobNumbering::AfterHighest)
        : DirectorySpooler(std::make_shared<JobFiles>(std::move(directory), numbering)) {}

    std::string defaultPrinter() override;  // the directory's path
    bool openPrinter(const std::string& name) override;
    bool startDocument(const JobDescription& job) override;
    bool startPage() override;
    std::size_t write(std::string_view bytes) override;
    bool endPage() override;
    bool endDocument() override;
    bool closePrinter() override;
    bool tellsKinds() const override { return kinds_ == TellsKinds::Yes; }

private:
    struct CloseFile {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    std::optional<std::filesystem::path> makeJob(const JobKind& kind);

    std::shared_ptr<JobFiles> files_;
    TellsKinds kinds_;
    bool open_ = false;
    std::unique_ptr<std::FILE, CloseFile> job_;  // null between jobs
};

}  // namespace tarn
