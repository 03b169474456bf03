// The start of the desk up to the painted logon beside that of bare Qt windows, each a process
// of its own, by turns. The server that the desk asks for its version is on loopback in this
// process.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "bench/support/child.h"
#include "bench/support/measure.h"
#include "tests/support/answers.h"
#include "tests/support/loopback_server.h"

namespace {

using tarn::bench::leastOf;
using tarn::bench::medianOf;
using tarn::bench::ratioOf;

constexpr int rounds = 40;
constexpr double mostOverBareClient = 1.35;

struct Starts {
    std::string program;
    std::vector<double> processor;
    std::vector<double> wall;
};

void start(Starts& starts, const std::string& address) {
    const tarn::bench::Spent spent = tarn::bench::spentBy({starts.program, address});
    starts.processor.push_back(spent.processor);
    starts.wall.push_back(spent.wall);
}

void tell(const char* what, const Starts& starts) {
    std::printf("%-20s processor %5.1f ms (median %5.1f)   wall %5.1f ms (median %5.1f)\n", what,
                leastOf(starts.processor) * 1e3, medianOf(starts.processor) * 1e3,
                leastOf(starts.wall) * 1e3, medianOf(starts.wall) * 1e3);
}

void tellRatio(const char* what, const Starts& work, const Starts& peer) {
    std::printf("%s: processor %.2f, wall %.2f (medians)\n", what,
                ratioOf(work.processor, peer.processor), ratioOf(work.wall, peer.wall));
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
    Starts client{folder / "start_bare_client", {}, {}};
    Starts text{folder / "start_text_window", {}, {}};
    Starts empty{folder / "start_empty_window", {}, {}};
    for (int i = 0; i < rounds; ++i) {
        start(desk, server.baseUrl());
        start(client, server.baseUrl() + "VERSAO_TARN_EMISSAO");
        start(text, {});
        start(empty, {});
    }
    tell("desk", desk);
    tell("bare client", client);
    tell("window with text", text);
    tell("empty window", empty);
    tellRatio("desk over empty window", desk, empty);
    tellRatio("desk over window with text", desk, text);
    tellRatio("bare client over window with text", client, text);
    tarn::bench::Limits limits;
    limits.check("start: desk over a bare client, processor, median",
                 ratioOf(desk.processor, client.processor), mostOverBareClient);
    limits.check("start: desk over a bare client, processor, least",
                 leastOf(desk.processor) / leastOf(client.processor), mostOverBareClient);
    return limits.exitStatus();
}
