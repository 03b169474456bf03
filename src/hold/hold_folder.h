// The held jobs on the disk: a folder each, named by number and state ("000012.held"), with
// the bytes as they came (job.prn), what is known of them (about) and their number in the
// queue (queue-job). A job appears, and changes its state, by one renaming, so that a crash
// or a power cut finds it in the state before or behind.
#pragma once

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "hold/held_job.h"
#include "platform/disk/durable_files.h"

namespace tarn::hold {

class HoldFolder {
public:
    explicit HoldFolder(std::filesystem::path folder) : folder_(std::move(folder)) {}

    const std::filesystem::path& path() const { return folder_; }

    // Makes the folder and takes it for this program; what came in by half before is let
    // go of. Else what is wrong, a whole sentence in Portuguese.
    std::optional<std::string> open();
    // By number.
    std::vector<Job> jobs() const;
    std::filesystem::path bytesOf(const Job& job) const;

    // One job comes in at a time: begin, bytes, then kept or dropped. False, and dropped,
    // where the disk takes no more.
    bool begin();
    bool add(std::string_view bytes);
    // On the disk and to stay there, with all but number and size of `as`.
    std::optional<Job> keep(const Job& as);
    void drop();

    // `job` is as on the disk, and changed with it; false where that can't be.
    bool move(Job& job, State state) const;
    bool tellQueueJob(Job& job, const std::string& queue, int queueJob) const;
    bool remove(const Job& job) const;

private:
    std::filesystem::path folderOf(const Job& job) const;
    Job read(int number, State state) const;

    std::filesystem::path folder_;
    FolderLock lock_;
    std::ofstream incoming_;
    int last_ = 0;
};

}  // namespace tarn::hold
