// Notes from saved answers to raw jobs by tarnimprime, against an XSLT processor that writes the
// same fields as lines of fixed width. Each takes all answers in one process.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "bench/support/child.h"
#include "bench/support/measure.h"
#include "bench/support/note_answer.h"
#include "tests/support/own_directory.h"

namespace {

namespace fs = std::filesystem;
using tarn::bench::leastOf;
using tarn::bench::processorSecondsOf;

constexpr int notes = 500;
constexpr int items = 32;  // as many as the form has lines for
constexpr int rounds = 7;

std::vector<std::string> writeAnswers(const fs::path& folder) {
    std::vector<std::string> files;
    const std::string answer = tarn::bench::noteOf(items);
    for (int i = 1; i <= notes; ++i) {
        files.push_back((folder / (std::to_string(i) + ".xml")).string());
        std::ofstream(files.back(), std::ios::binary) << answer;
    }
    return files;
}

double secondsOver(std::vector<std::string> words, const std::vector<std::string>& files) {
    words.insert(words.end(), files.begin(), files.end());
    return processorSecondsOf(words);
}

}  // namespace

int main(int /*argc*/, char** argv) {
    if (!tarn::bench::isInstalled("xsltproc")) {
        std::printf("not measured: xsltproc is not installed (package xsltproc)\n");
        return 0;
    }
    const tarn::test::OwnDirectory own;
    const std::vector<std::string> files = writeAnswers(own.path());
    const std::string program = fs::path(argv[0]).parent_path() / "tarnimprime";
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int round = 0; round < rounds; ++round) {
        ours.push_back(secondsOver({program, "--destino", own.path() / "jobs", "nota", "--empresa",
                                    "1361", "--estabelecimento", "1", "--numero", "4567"},
                                   files));
        theirs.push_back(secondsOver({"xsltproc", TARN_NOTE_SHEET}, files));
    }
    std::printf("%d notes: %.2f s, xsltproc %.2f s\n", notes, leastOf(ours), leastOf(theirs));
    tarn::bench::Limits limits;
    limits.check("notes of 32 items, answers to raw jobs, over xsltproc",
                 tarn::bench::ratioOf(ours, theirs), 1.0);
    return limits.exitStatus();
}
