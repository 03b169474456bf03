// The start of the desk up to the painted logon beside that of a bare Qt window,
// each a process of its own, by turns. The server that the desk asks for its version
// is on loopback in this process.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "bench/support/measure.h"
#include "tests/support/answers.h"
#include "tests/support/loopback_server.h"

namespace {

constexpr int rounds = 40;
constexpr double mostOverText = 1.5;

struct Starts {
    std::string program;
    std::vector<double> processor;  // seconds, all threads, kernel included
    std::vector<double> wall;
};

double seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

void start(Starts& starts, const std::string& argument) {
    const auto before = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        execl(starts.program.c_str(), starts.program.c_str(), argument.c_str(), nullptr);
        std::_Exit(127);
    }
    int status = 0;
    rusage used{};
    if (child < 0 || wait4(child, &status, 0, &used) != child || status != 0) {
        std::fprintf(stderr, "bench_start: %s failed\n", starts.program.c_str());
        std::exit(2);
    }
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - before;
    starts.wall.push_back(wall.count());
    starts.processor.push_back(seconds(used.ru_utime) + seconds(used.ru_stime));
}

void tell(const char* what, const Starts& starts) {
    using tarn::bench::leastOf;
    using tarn::bench::medianOf;
    std::printf("%-20s processor %5.1f ms (median %5.1f)   wall %5.1f ms (median %5.1f)\n", what,
                leastOf(starts.processor) * 1e3, medianOf(starts.processor) * 1e3,
                leastOf(starts.wall) * 1e3, medianOf(starts.wall) * 1e3);
}

}  // namespace

int main(int /*argc*/, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("QT_LOGGING_RULES", "*=false", 1);
    tarn::test::LoopbackServer server;
    server.on("VERSAO_TARN_EMISSAO",
              tarn::test::LoopbackReply::xml(tarn::test::answers::version("OK")));
    const std::filesystem::path folder = std::filesystem::path(argv[0]).parent_path();
    Starts desk{folder / "start_desk", {}, {}};
    Starts text{folder / "start_text_window", {}, {}};
    Starts empty{folder / "start_empty_window", {}, {}};
    for (int i = 0; i < rounds; ++i) {
        for (Starts* one : {&desk, &text, &empty}) {
            start(*one, server.baseUrl());
        }
    }
    tell("desk", desk);
    tell("window with text", text);
    tell("empty window", empty);
    using tarn::bench::leastOf;
    using tarn::bench::medianOf;
    using tarn::bench::ratioOf;
    std::printf("desk over empty window: processor %.2f, wall %.2f (medians)\n",
                ratioOf(desk.processor, empty.processor), ratioOf(desk.wall, empty.wall));
    std::printf("desk over window with text: wall %.2f (medians), %.2f (least)\n",
                ratioOf(desk.wall, text.wall), leastOf(desk.wall) / leastOf(text.wall));
    tarn::bench::Limits limits;
    limits.check("start: desk over a window with text, processor, median",
                 ratioOf(desk.processor, text.processor), mostOverText);
    limits.check("start: desk over a window with text, processor, least",
                 leastOf(desk.processor) / leastOf(text.processor), mostOverText);
    return limits.exitStatus();
}
