#include "platform/directory/job_files.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <string>
#include <system_error>

#include "platform/directory/new_file.h"
#include "runtime/file_names.h"

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view prefix = "job-";
// No printer gets so far; what is above is somebody else's file.
constexpr int highestNumber = 999'999'999;

// The number in "job-012.prn", 0 for any other name.
int numberOf(const std::string& name) {
    if (!name.starts_with(prefix)) {
        return 0;
    }
    int number = 0;
    const char* first = name.data() + prefix.size();
    const char* last = name.data() + name.size();
    const auto read = std::from_chars(first, last, number);
    const bool shaped = read.ec == std::errc() && read.ptr != last && *read.ptr == '.';
    return shaped && *first != '-' && number <= highestNumber ? number : 0;
}

int highestIn(const fs::path& directory) {
    int highest = 0;
    std::error_code failed;
    for (fs::directory_iterator entry(directory, failed), end; !failed && entry != end;
         entry.increment(failed)) {
        highest = std::max(highest, numberOf(nameOf(entry->path().filename())));
    }
    return highest;
}

std::string jobName(int number, std::string_view extension) {
    constexpr std::size_t leastDigits = 3;
    std::string digits = std::to_string(number);
    digits.insert(0, leastDigits - std::min(leastDigits, digits.size()), '0');
    std::string name(prefix);
    return name.append(digits).append(".").append(extension);
}

bool makeEmpty(const fs::path& file, IfThere ifThere) {
    std::FILE* made = newFile(file, ifThere);
    return made != nullptr && std::fclose(made) == 0;
}

void forget(const fs::path& file) {
    std::error_code failed;
    fs::remove(file, failed);
}

bool writeWhole(std::FILE* file, const std::string& text) {
    const bool written = std::fwrite(text.data(), 1, text.size(), file) == text.size();
    return std::fclose(file) == 0 && written;
}

}  // namespace

bool JobFiles::makeDirectory() const {
    std::error_code failed;
    fs::create_directories(directory_, failed);
    return fs::is_directory(directory_, failed);
}

// Under a name that nothing takes for a job's.
bool JobFiles::canWrite() const {
    if (!makeDirectory()) {
        return false;
    }
    const fs::path probe = directory_ / ".gravacao";
    const bool made = makeEmpty(probe, IfThere::Replace);
    forget(probe);
    return made;
}

// The companion goes first, so that whoever finds the job finds it told; a job that another
// program has made of that number meanwhile keeps none of it.
JobFiles::Made JobFiles::make(int number, std::string_view extension, const JobCompanion& companion,
                              fs::path& file) const {
    const IfThere ifThere =
        numbering_ == JobNumbering::FromOne ? IfThere::Replace : IfThere::Refuse;
    std::optional<fs::path> beside;
    if (!companion.extension.empty()) {
        beside = directory_ / jobName(number, companion.extension);
        std::FILE* made = newFile(*beside, ifThere);
        if (made == nullptr && errno == EEXIST) {
            return Made::Taken;
        }
        if (made == nullptr) {
            beside.reset();
        } else if (!writeWhole(made, companion.text)) {
            forget(*beside);
        }
    }
    file = directory_ / jobName(number, extension);
    if (makeEmpty(file, ifThere)) {
        return Made::Yes;
    }
    const bool taken = errno == EEXIST;
    if (beside) {
        forget(*beside);
    }
    return taken ? Made::Taken : Made::No;
}

std::optional<fs::path> JobFiles::create(std::string_view extension,
                                         const JobCompanion& companion) {
    if (!makeDirectory()) {
        return std::nullopt;
    }
    const bool replace = numbering_ == JobNumbering::FromOne;
    int number = replace ? last_ : std::max(last_, highestIn(directory_));
    fs::path file;
    Made made = Made::Taken;
    while (made == Made::Taken && ++number <= highestNumber) {
        made = make(number, extension, companion, file);
    }
    if (made != Made::Yes) {
        return std::nullopt;
    }
    last_ = number;
    return file;
}

}  // namespace tarn
