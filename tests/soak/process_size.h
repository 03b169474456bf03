// What this process holds of the machine.
#pragma once

#include <malloc.h>

#include <unistd.h>
#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <string>

namespace tarn::test {

struct ProcessSize {
    std::size_t heap = 0;      // bytes that were asked for and not given back (mallinfo2)
    std::size_t resident = 0;  // bytes in memory
    std::size_t handles = 0;   // open files
    std::size_t threads = 0;
};

inline std::size_t entriesOf(const char* folder) {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder), {}));
}

inline ProcessSize sizeOfProcess() {
    malloc_trim(0);
    const struct mallinfo2 heap = mallinfo2();
    std::size_t pages = 0;
    std::size_t residentPages = 0;
    std::ifstream("/proc/self/statm") >> pages >> residentPages;
    return {.heap = heap.uordblks + heap.hblkhd,
            .resident = residentPages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE)),
            .handles = entriesOf("/proc/self/fd"),
            .threads = entriesOf("/proc/self/task")};
}

inline std::ostream& operator<<(std::ostream& out, const ProcessSize& size) {
    return out << size.heap / 1024 << " KiB asked for, " << size.resident / 1024
               << " KiB resident, " << size.handles << " handles, " << size.threads << " threads";
}

}  // namespace tarn::test
