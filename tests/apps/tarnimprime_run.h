// Runs tarnimprime as its users do.
#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/files.h"
#include "tests/support/own_directory.h"

namespace tarn::test {

namespace fs = std::filesystem;

inline std::string quoted(const std::string& word) {
    std::string out = "'";
    for (const char c : word) {
        out += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return out + "'";
}

struct Result {
    int status = -1;
    std::string out;
    std::string err;
};

// Runs the program in a directory of its own; jobs go to "papel" in it.
class Tarnimprime : public testing::Test {
protected:
    Result run(const std::vector<std::string>& words) const {
        std::string command = quoted(TARNIMPRIME);
        for (const std::string& word : words) {
            command += " " + quoted(word);
        }
        command += " >" + quoted(file("out")) + " 2>" + quoted(file("err"));
        const int ended = std::system(command.c_str());
        return {WIFEXITED(ended) ? WEXITSTATUS(ended) : -1, contentOf(file("out")),
                contentOf(file("err"))};
    }
    // A command whose one result is a line on stdout.
    std::string shown(const std::vector<std::string>& words) const {
        const Result result = run(words);
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_EQ(result.err, "");
        return result.out;
    }
    std::string file(const std::string& name) const { return (room_ / name).string(); }
    std::string job(const std::string& name) const { return contentOf(room_ / "papel" / name); }
    bool hasJob(const std::string& name) const { return fs::exists(room_ / "papel" / name); }

    OwnDirectory own_{u8"tarnimprime"};
    const fs::path& room_ = own_.path();
};

}  // namespace tarn::test
