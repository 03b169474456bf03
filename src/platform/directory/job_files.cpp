#include "platform/directory/job_files.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <string>
#include <system_error>

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
        highest = std::max(highest, numberOf(entry->path().filename().string()));
    }
    return highest;
}

std::string nameOf(int number, std::string_view extension) {
    constexpr std::size_t leastDigits = 3;
    std::string digits = std::to_string(number);
    digits.insert(0, leastDigits - std::min(leastDigits, digits.size()), '0');
    std::string name(prefix);
    return name.append(digits).append(".").append(extension);
}

// "x" refuses a file that is there already: another program may print here too.
bool makeEmpty(const fs::path& file, bool replace) {
    std::FILE* made = std::fopen(file.string().c_str(), replace ? "wb" : "wbx");
    return made != nullptr && std::fclose(made) == 0;
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
    const bool made = makeEmpty(probe, true);
    std::error_code failed;
    fs::remove(probe, failed);
    return made;
}

std::optional<fs::path> JobFiles::create(std::string_view extension) {
    if (!makeDirectory()) {
        return std::nullopt;
    }
    const bool replace = numbering_ == JobNumbering::FromOne;
    int number = replace ? last_ : std::max(last_, highestIn(directory_));
    do {
        if (++number > highestNumber) {
            break;
        }
        fs::path file = directory_ / nameOf(number, extension);
        errno = 0;
        if (makeEmpty(file, replace)) {
            last_ = number;
            return file;
        }
    } while (errno == EEXIST);
    return std::nullopt;
}

}  // namespace tarn
