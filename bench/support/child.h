// Another program, and what it takes.
#pragma once

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
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

// Seconds.
struct Spent {
    double processor = 0;  // of all threads, kernel included
    double wall = 0;
};

// What the program says is thrown away. One that fails ends the measurement with status 2.
inline Spent spentBy(const std::vector<std::string>& words) {
    const auto before = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        std::vector<char*> arguments;
        arguments.reserve(words.size() + 1);
        for (const std::string& word : words) {
            arguments.push_back(const_cast<char*>(word.c_str()));
        }
        arguments.push_back(nullptr);
        if (std::freopen("/dev/null", "w", stdout) != nullptr &&
            std::freopen("/dev/null", "w", stderr) != nullptr) {
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
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - before;
    return {secondsOf(used.ru_utime) + secondsOf(used.ru_stime), wall.count()};
}

inline double processorSecondsOf(const std::vector<std::string>& words) {
    return spentBy(words).processor;
}

}  // namespace tarn::bench
