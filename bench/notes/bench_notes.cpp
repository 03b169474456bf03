// What a note costs beside the parse that no client can do without: libxml2 alone
// over the answer's bytes, and parse and layout together, in one run. The counter
// `ratio` is the second over the first, `per_item` the time of an item.
#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "bench/support/counting_seams.h"
#include "bench/support/measure.h"
#include "bench/support/note_answer.h"
#include "bench/support/parse_alone.h"
#include "common/raw_channel.h"
#include "gateway/xml_document.h"
#include "notes/layouts/layouts.h"
#include "notes/pipeline.h"
#include "notes/print_note.h"
#include "platform/environment.h"
#include "tests/support/test_environment.h"

namespace {

using tarn::bench::CountingPrinter;
using tarn::bench::CountingSpooler;
using tarn::bench::leastOf;
using tarn::bench::medianOf;
using tarn::bench::noteOf;
using tarn::bench::parseAlone;
using tarn::bench::ratioOf;
using tarn::bench::secondsOf;

struct Times {
    std::vector<double> bare;    // libxml2 alone
    std::vector<double> whole;   // parse and layout
    std::vector<double> layout;  // the layout of a note just parsed
};

void print(const tarn::XmlDocument& document) {
    CountingSpooler spooler;
    tarn::RawChannel channel(spooler, tarn::CodePage::Page1252);
    tarn::notes::printNote(tarn::notes::imprimeNF_1361.formFor(1), document, "4567", channel);
    benchmark::DoNotOptimize(spooler.bytes());
}

void parseAndPrint(const std::string& xml) {
    tarn::XmlDocument document;
    document.loadXML(xml);
    print(document);
}

void measureOnce(const std::string& xml, Times& times) {
    times.bare.push_back(secondsOf([&] { parseAlone(xml); }));
    times.whole.push_back(secondsOf([&] { parseAndPrint(xml); }));
    tarn::XmlDocument document;
    document.loadXML(xml);
    times.layout.push_back(secondsOf([&] { print(document); }));
}

constexpr std::array<int, 3> sizes{5, 50, 5000};

std::map<int, Times>& measured() {
    static std::map<int, Times> all;
    return all;
}

void note(benchmark::State& state) {
    const int items = static_cast<int>(state.range(0));
    const std::string xml = noteOf(items);
    Times& times = measured()[items];
    while (state.KeepRunning()) {
        measureOnce(xml, times);
    }
    const double layout = leastOf(times.layout);
    using benchmark::Counter;
    state.counters["parse_us"] = Counter(leastOf(times.bare) * 1e6);
    state.counters["parse_and_layout_us"] = Counter(leastOf(times.whole) * 1e6);
    state.counters["layout_us"] = Counter(layout * 1e6);
    state.counters["layout_ns_per_item"] = Counter(layout * 1e9 / items);
    state.counters["ratio"] = Counter(ratioOf(times.whole, times.bare));
}
BENCHMARK(note)->Arg(5)->Iterations(4000)->Unit(benchmark::kMicrosecond);
BENCHMARK(note)->Arg(50)->Iterations(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(note)->Arg(5000)->Iterations(41)->Unit(benchmark::kMicrosecond);

struct LadderForm {
    const char* name;
    std::int32_t company;
    std::int32_t establishment;
};

// Every form, by a company and an establishment whose notes go on it.
constexpr std::array<LadderForm, 24> forms{{{"1361", 1361, 1},
                                            {"2041", 2041, 1},
                                            {"Padrao", 1, 1},
                                            {"7", 7, 1},
                                            {"2161_3341", 2161, 3341},
                                            {"2161_3381", 2161, 3381},
                                            {"2161_3383", 2161, 3383},
                                            {"2321", 2321, 1},
                                            {"1581", 1581, 1},
                                            {"2801", 2801, 1},
                                            {"2421 at 3621", 2421, 3621},
                                            {"2421", 2421, 1},
                                            {"1521", 1521, 1},
                                            {"821", 821, 1},
                                            {"3301", 3301, 1},
                                            {"3881", 3881, 1},
                                            {"3601", 3601, 1},
                                            {"E6001", 1, 6001},
                                            {"3081", 3081, 1},
                                            {"E5282", 1, 5282},
                                            {"2541 (drawn)", 2541, 1},
                                            {"3681", 3681, 1},
                                            {"4621 at 7321", 4621, 7321},
                                            {"4621", 4621, 1}}};

// Parse and layout of the same note on one form over the bare parse.
double ratioOfForm(const LadderForm& form, const std::string& xml) {
    tarn::test::TestEnvironment seams;
    CountingSpooler spooler;
    CountingPrinter printer;
    tarn::Environment environment{.http = seams.loader,
                                  .spooler = spooler,
                                  .printer = printer,
                                  .boxes = seams.boxes,
                                  .clock = seams.clock,
                                  .machine = seams.machine,
                                  .baseUrl = {}};
    tarn::Sessao session;
    session.NCOMPANYCODE = form.company;
    session.ID_ETB_TARN = form.establishment;
    Times times;
    constexpr int rounds = 401;
    for (int i = 0; i < rounds; ++i) {
        times.bare.push_back(secondsOf([&] { parseAlone(xml); }));
        times.whole.push_back(secondsOf([&] {
            tarn::XmlDocument document;
            document.loadXML(xml);
            tarn::printNote(tarn::Ladder::Reprint, environment, session, document, "4567");
        }));
    }
    return ratioOf(times.whole, times.bare);
}

// What an item more costs between two sizes of note.
double perItem(const std::vector<double> Times::*which, int from, int to) {
    const double less = medianOf(measured()[from].*which);
    const double more = medianOf(measured()[to].*which);
    return (more - less) / (to - from);
}

// How much more an item costs in a large note than in a small one; 1 is the same.
double growth(const std::vector<double> Times::*which) {
    return perItem(which, 50, 5000) / perItem(which, 5, 50);
}

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    tarn::bench::Limits limits;
    for (const int items : sizes) {
        const Times& times = measured()[items];
        limits.check("note of " + std::to_string(items) + " items: parse and layout over parse",
                     ratioOf(times.whole, times.bare), 1.25);
    }
    // Larger trees leave the processor's caches, for libxml2 alone as well: what
    // counts is that the note's cost grows no faster than the bare parse's.
    const double bareGrowth = growth(&Times::bare);
    limits.check("cost of an item, 50 to 5000 over 5 to 50, beside that of parse",
                 growth(&Times::whole) / bareGrowth, 1.15);
    limits.check("the same of the layout alone", growth(&Times::layout) / bareGrowth, 1.15);
    std::printf("(growth of the bare parse itself: %.2f)\n", bareGrowth);
    // As many items as a form has lines for.
    const std::string fullForm = noteOf(32);
    for (const LadderForm& form : forms) {
        limits.check(std::string("form ") + form.name + ", 32 items: parse and layout over parse",
                     ratioOfForm(form, fullForm), 1.30);
    }
    return limits.exitStatus();
}
