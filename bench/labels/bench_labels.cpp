// What a label costs on each form of stationery, in a run of 10 and in one of 10,000:
// reading it from the answer and writing it to a printer that takes everything and
// does nothing. A large answer leaves the processor's caches, for whoever reads it; how much
// that costs is what a bare walk over the same trees loses, and beside it the growth is
// measured.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "bench/support/counting_seams.h"
#include "bench/support/label_rows.h"
#include "bench/support/measure.h"
#include "labels/customer_selection.h"
#include "labels/print_labels.h"
#include "labels/print_selection.h"
#include "platform/environment.h"
#include "tests/support/answers.h"
#include "tests/support/test_environment.h"

namespace {

using tarn::bench::CountingPrinter;
using tarn::bench::CountingSpooler;
using tarn::bench::leastOf;
using tarn::bench::ratioOf;
using tarn::bench::secondsOf;
using tarn::labels::LabelForm;

constexpr int small = 10;
constexpr int large = 10000;
constexpr int repeats = large / small;  // of a small run, in one measurement

class SilentBoxes : public tarn::MessageBoxes {
public:
    tarn::BoxAnswer show(const tarn::Box&) override { return tarn::BoxAnswer::Ok; }
};

tarn::XmlDocument parsed(const std::string& rows) {
    tarn::XmlDocument document;
    document.loadXML(tarn::test::answers::rowset(rows));
    return document;
}

std::string customersOf(int count) {
    std::string rows;
    for (int i = 1; i <= count; ++i) {
        const std::string n = std::to_string(i);
        rows.append("<z:row CD_CEP='01310-100' NM_PES_CPL='COMÉRCIO DE PEÇAS ").append(n);
        rows.append(" LTDA' DC_LG_CPL='AVENIDA BRASIL, ").append(n);
        rows.append("' NM_BRR='JARDIM AMÉRICA' SG_UF='SP' NM_MUN='SÃO PAULO'/>");
    }
    return rows;
}

tarn::labels::PrintRun runOf(int count) {
    const tarn::XmlDocument sender = parsed(tarn::bench::senderRow);
    return {parsed(tarn::bench::labelsOf(count)), tarn::labels::readSender(sender)};
}

std::vector<tarn::GridRow> tickedOf(int count) {
    std::vector<tarn::GridRow> rows = tarn::labels::customersOf(parsed(customersOf(count)));
    for (tarn::GridRow& row : rows) {
        row.ticked = true;
    }
    return rows;
}

// Seconds of as many labels in small runs and in a large one, round by round.
struct Times {
    std::vector<double> smallRuns;
    std::vector<double> largeRun;
};

constexpr std::array<std::pair<const char*, LabelForm>, 4> forms{
    {{"form 1, drawn 3 by 10", LabelForm::Pimaco6280},
     {"form 2, raw 4 across", LabelForm::DotMatrix},
     {"form 3, drawn A5", LabelForm::A5},
     {"form 4, drawn with sender", LabelForm::A4WithSender}}};
constexpr const char* selection = "selection, drawn 2 across";

std::map<std::string, Times>& measured() {
    static std::map<std::string, Times> all;
    return all;
}

// Every attribute's text of every row, and no more.
void walk(const tarn::XmlDocument& document) {
    std::size_t sum = 0;
    for (const tarn::XmlNode row : document.selectNodes("xml/rs:data/z:row")) {
        for (tarn::XmlAttribute one = row.attributes().first(); one; one = one.next()) {
            for (const char byte : one.text()) {
                sum += static_cast<unsigned char>(byte);
            }
        }
    }
    benchmark::DoNotOptimize(sum);
}

constexpr const char* bareWalk = "bare walk";

template <typename Small, typename Large>
void measure(const char* what, const Small& printSmall, const Large& printLarge) {
    Times& times = measured()[what];
    times.smallRuns.push_back(secondsOf([&] {
        for (int i = 0; i < repeats; ++i) {
            printSmall();
        }
    }));
    times.largeRun.push_back(secondsOf(printLarge));
}

void labels(benchmark::State& state) {
    tarn::test::TestEnvironment seams;
    CountingSpooler spooler;
    CountingPrinter printer;
    SilentBoxes boxes;
    tarn::Environment environment{.http = seams.loader,
                                  .spooler = spooler,
                                  .printer = printer,
                                  .boxes = boxes,
                                  .clock = seams.clock,
                                  .machine = seams.machine,
                                  .baseUrl = {}};
    const tarn::labels::PrintRun few = runOf(small);
    const tarn::labels::PrintRun many = runOf(large);
    const std::vector<tarn::GridRow> fewTicked = tickedOf(small);
    const std::vector<tarn::GridRow> manyTicked = tickedOf(large);
    while (state.KeepRunning()) {
        measure(
            bareWalk, [&] { walk(few.labels); }, [&] { walk(many.labels); });
        for (const auto& [name, form] : forms) {
            const auto print = [&environment, form = form](const tarn::labels::PrintRun& run) {
                tarn::labels::printLabels(environment, form, run, {});
            };
            measure(
                name, [&] { print(few); }, [&] { print(many); });
        }
        measure(
            selection, [&] { tarn::labels::printSelection(environment, fewTicked, {}); },
            [&] { tarn::labels::printSelection(environment, manyTicked, {}); });
    }
}
BENCHMARK(labels)->Iterations(31)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    for (const auto& [what, times] : measured()) {
        std::printf("%-26s %7.0f ns a label of 10,000\n", what.c_str(),
                    leastOf(times.largeRun) * 1e9 / large);
    }
    const Times& walked = measured()[bareWalk];
    const double walkGrowth = std::max(1.0, ratioOf(walked.largeRun, walked.smallRuns));
    std::printf("(growth of the bare walk itself: %.2f)\n", walkGrowth);
    tarn::bench::Limits limits;
    for (const auto& [what, times] : measured()) {
        if (what != bareWalk) {
            limits.check(what + ": 10,000 over 10, beside the walk",
                         ratioOf(times.largeRun, times.smallRuns) / walkGrowth, 1.3);
        }
    }
    return limits.exitStatus();
}
