#include "platform/directory/directory_spooler.h"

#include <system_error>

#include "platform/directory/new_file.h"
#include "runtime/file_names.h"

namespace tarn {

std::string DirectorySpooler::defaultPrinter() {
    return nameOf(files_->directory());
}

bool DirectorySpooler::openPrinter(const std::string& /*name*/) {
    job_.reset();
    open_ = files_->makeDirectory();
    return open_;
}

// A text that can't be written leaves the job without one: the paper matters more.
std::optional<std::filesystem::path> DirectorySpooler::makeJob(const JobKind& kind) {
    constexpr std::string_view job = "prn";
    if (kinds_ == TellsKinds::Yes && kind.told()) {
        return files_->create(job, {.extension = "kind", .text = writeJobKind(kind)});
    }
    const auto file = files_->create(job);
    if (file) {
        std::error_code failed;
        std::filesystem::remove(jobKindFile(*file), failed);  // of a job whose place it takes
    }
    return file;
}

bool DirectorySpooler::startDocument(const JobDescription& job) {
    if (!open_ || job_) {
        return false;
    }
    const auto file = makeJob(job.kind);
    if (!file) {
        return false;
    }
    job_.reset(newFile(*file, IfThere::Replace));
    // Unbuffered: what was written is there after a crash too.
    return job_ && std::setvbuf(job_.get(), nullptr, _IONBF, 0) == 0;
}

bool DirectorySpooler::startPage() {
    return job_ != nullptr;
}

std::size_t DirectorySpooler::write(std::string_view bytes) {
    if (!job_ || bytes.empty()) {
        return 0;
    }
    return std::fwrite(bytes.data(), 1, bytes.size(), job_.get());
}

bool DirectorySpooler::endPage() {
    return job_ != nullptr;
}

bool DirectorySpooler::endDocument() {
    return job_ && std::fclose(job_.release()) == 0;
}

bool DirectorySpooler::closePrinter() {
    const bool wasOpen = open_;
    job_.reset();
    open_ = false;
    return wasOpen;
}

}  // namespace tarn
