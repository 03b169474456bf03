// What filling the order list costs a row: answer, parse, rows, model and the grid
// shown, off-screen, with the answer at hand instead of a server.
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QTableView>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "bench/support/answer_at_hand.h"
#include "bench/support/measure.h"
#include "billing/frm_oft.h"
#include "desk/desk_application.h"
#include "tests/support/answers.h"
#include "widgets/desk_context.h"

namespace {

using tarn::bench::AnswerAtHand;
using tarn::bench::environmentOver;
using tarn::bench::leastOf;
using tarn::bench::secondsOf;

// A grid that shows something always has a screenful of rows.
constexpr int screenful = 20;
constexpr int most = 50'000;  // about as many as an answer may hold (gateway/answer_limits.h)
constexpr std::array<int, 4> sizes{screenful, 100, 10000, most};

std::string ordersOf(int rows) {
    std::string all;
    for (int i = 1; i <= rows; ++i) {
        const std::string n = std::to_string(i);
        all.append("<z:row ID_ORD_FAT='").append(n);
        all.append("' NM_PES_CPL='COMÉRCIO DE PEÇAS ").append(n);
        all.append(
            " LTDA' NM_RDU='MATRIZ SÃO PAULO' DC_TIP_NF='VENDA DE MERCADORIA' "
            "DT_GER_OFT='12/03/2012' ID_ORD_CRG='");
        all.append(n);
        all.append("' TRANSPORTADORA='TRANSPORTES RÁPIDOS' NM_PES_MOT='JOÃO' DC_OBS='' QT_ESP='");
        all.append(n).append(".5' PESO_BRU='1234.891' PESO_LIQ='1200'/>");
    }
    return tarn::test::answers::rowset(all);
}

// The order list shown in a window of its own.
class ShownList {
public:
    explicit ShownList(AnswerAtHand& server) : environment_(environmentOver(server, seams_)) {
        screen_.show();
        QCoreApplication::processEvents();
    }

    void fill() {
        screen_.loadSpread();
        QCoreApplication::processEvents();  // paints it
    }
    int rows() const { return screen_.findChild<QTableView*>()->model()->rowCount(); }

private:
    tarn::test::TestEnvironment seams_;
    tarn::Environment environment_;
    tarn::Sessao session_;
    tarn::ProgramEnd end_;
    tarn::DeskContext desk_{environment_, session_, end_};
    tarn::FrmOFT screen_{desk_};
};

std::map<int, std::vector<double>>& measured() {
    static std::map<int, std::vector<double>> all;
    return all;
}

// One round fills the list with every size, so that a busy machine slows all alike.
void orderList(benchmark::State& state) {
    std::map<int, std::string> answers;
    for (const int rows : sizes) {
        answers[rows] = ordersOf(rows);
    }
    AnswerAtHand server;
    server.setAnswer(answers[screenful]);
    ShownList list(server);
    while (state.KeepRunning()) {
        for (const int rows : sizes) {
            server.setAnswer(answers[rows]);
            const int repeats = rows <= 100 ? 20 : 1;
            for (int i = 0; i < repeats; ++i) {
                measured()[rows].push_back(secondsOf([&] { list.fill(); }));
            }
            if (list.rows() != rows) {
                std::fprintf(stderr, "the list shows %d rows of %d\n", list.rows(), rows);
                std::exit(2);
            }
        }
    }
    for (const int rows : sizes) {
        state.counters["us_per_row_of_" + std::to_string(rows)] =
            benchmark::Counter(leastOf(measured()[rows]) * 1e6 / rows);
    }
}
BENCHMARK(orderList)->Iterations(7)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const tarn::DeskApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    const double shown = leastOf(measured()[screenful]);
    const double of100 = leastOf(measured()[100]);
    const double perRow10000 = leastOf(measured()[10000]) / 10000;
    const double perRowOfMost = leastOf(measured()[most]) / most;
    tarn::bench::Limits limits;
    limits.check("order list: a row of 50,000 over a row of 10,000", perRowOfMost / perRow10000,
                 1.3);
    limits.check("order list: 100 rows over a screenful and 80 rows of 10,000",
                 of100 / (shown + 80 * perRow10000), 1.3);
    return limits.exitStatus();
}
