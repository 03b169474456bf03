// Another program, and the processor time that it takes.
#pragma once

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace tarn::bench {

inline double secondsOf(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

// Whether the program is there to be run.
inline bool isInstalled(const std::string& program) {
    return std::system(("command -v " + program + " >/dev/null 2>&1").c_str()) == 0;
}

// Seconds of all threads, kernel included, with what the program says thrown away. A program
// that fails ends the measurement with status 2.
inline double processorSecondsOf(const std::vector<std::string>& words) {
    const pid_t child = fork();
    if (child == 0) {
        std::vector<char*> arguments;
        for (const std::string& word : words) {
            arguments.push_back(const_cast<char*>(word.c_str()));
        }
        arguments.push_back(nullptr);
        if (std::freopen("/dev/null", "w", stdout) != nullptr) {
            execvp(arguments.front(), arguments.data());
        }
        std::_Exit(127);
    }
    int status = 0;
    rusage used{};
    if (child < 0 || wait4(child, &status, 0, &used) != child || status != 0) {
        std::fprintf(stderr, "%s failed\n", words.front().c_str());
        std::exit(2);
    }
    return secondsOf(used.ru_utime) + secondsOf(used.ru_stime);
}

}  // namespace tarn::bench
