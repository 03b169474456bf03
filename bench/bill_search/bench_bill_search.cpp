// What a search of bills costs a row: answer, parse, the 23 cells, model and the grid
// shown, off-screen, with the answer at hand instead of a server; and the click that
// ticks all rows.
#include <benchmark/benchmark.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QTableView>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

#include "bench/support/answer_at_hand.h"
#include "bench/support/measure.h"
#include "bench/support/parse_alone.h"
#include "bills/frm_pesq_dupli.h"
#include "desk/desk_application.h"
#include "tests/support/answers.h"
#include "widgets/desk_context.h"
#include "widgets/grid_model.h"

namespace {

using tarn::bench::AnswerAtHand;
using tarn::bench::environmentOver;
using tarn::bench::leastOf;
using tarn::bench::parseAlone;
using tarn::bench::secondsOf;

// A grid that shows something always has a screenful of rows.
constexpr int screenful = 20;
constexpr std::array<int, 4> sizes{screenful, 100, 2000, 20000};
constexpr int kindOfBills = 1;  // row of cboTpDocto

std::string documentsOf(int rows) {
    std::string all;
    for (int i = 1; i <= rows; ++i) {
        const std::string n = std::to_string(i);
        all.append("<z:row SG_FIL='MATRIZ' DT_VNC_DOC_FMA='15/04/2012' DT_EMS_DOC='15/03/2012' ");
        all.append("NR_DOC='").append(n).append("/A' NM_CLI_ETB='COMÉRCIO DE PEÇAS ").append(n);
        all.append(" LTDA' DC_LG_CPL='RUA DAS FLORES, ").append(n).append("' VL_PRN_DOC='");
        all.append(n).append(
            ".50' CD_CEP='13000-000' NM_MUN='CAMPINAS' SG_UF='SP' NR_CGC_CPL='98765432000110' "
            "CD_ICR_EST='244.555.666.777' PES_JUR='1' TIPO_DOCTO='DOCTO_COBRANCA' ID_TIP_DOC='1' "
            "DC_REF_REC='' NR_DOC_NF='");
        all.append(n).append(
            "' EG_COB='RUA DO PORTO, 3' MUN_COB='SANTOS' ES_COB='SP' CD_CEP_COB='11000-000'/>");
    }
    return tarn::test::answers::rowset(all);
}

// The search shown in a window of its own, its fields filled.
class ShownSearch {
public:
    explicit ShownSearch(AnswerAtHand& server) : environment_(environmentOver(server, seams_)) {
        screen_.show();
        QCoreApplication::processEvents();
        screen_.findChild<QComboBox*>("cboTpDocto")->setCurrentIndex(kindOfBills);
        screen_.findChild<QLineEdit*>("txtDtVncAte")->setText("31/12/2012");
    }

    void fill() {
        search_->click();
        QCoreApplication::processEvents();  // paints it
    }
    void needRows(int rows) const {
        if (rows_->rowCount() != rows) {
            std::fprintf(stderr, "the search shows %d rows of %d\n", rows_->rowCount(), rows);
            std::exit(2);
        }
    }
    void tickAll() {
        rows_->toggleByLastRow();
        QCoreApplication::processEvents();
    }

private:
    tarn::test::TestEnvironment seams_;
    tarn::Environment environment_;
    tarn::Sessao session_;
    tarn::ProgramEnd end_;
    tarn::DeskContext desk_{environment_, session_, end_};
    tarn::FrmPesqDupli screen_{desk_, nullptr};
    QAbstractButton* search_ = screen_.findChild<QAbstractButton*>("cmdPesquisar");
    tarn::GridModel* rows_ =
        static_cast<tarn::GridModel*>(screen_.findChild<QTableView*>("sprDados")->model());
};

std::map<int, std::vector<double>> filled;
std::map<int, std::vector<double>> ticked;
std::map<int, std::vector<double>> parsed;

// How much more a row costs among 20,000 than among 2,000.
double growthOf(std::map<int, std::vector<double>>& times) {
    return leastOf(times[20000]) / (10 * leastOf(times[2000]));
}

// One round searches for every size, so that a busy machine slows all alike.
void billSearch(benchmark::State& state) {
    std::map<int, std::string> answers;
    for (const int rows : sizes) {
        answers[rows] = documentsOf(rows);
    }
    AnswerAtHand server;
    server.setAnswer(answers[screenful]);
    ShownSearch search(server);
    while (state.KeepRunning()) {
        for (const int rows : sizes) {
            server.setAnswer(answers[rows]);
            const int repeats = rows <= 100 ? 20 : 1;
            for (int i = 0; i < repeats; ++i) {
                filled[rows].push_back(secondsOf([&] { search.fill(); }));
                search.needRows(rows);
                ticked[rows].push_back(secondsOf([&] { search.tickAll(); }));
                parsed[rows].push_back(secondsOf([&] { parseAlone(answers[rows]); }));
            }
        }
    }
    for (const int rows : sizes) {
        state.counters["us_per_row_of_" + std::to_string(rows)] =
            benchmark::Counter(leastOf(filled[rows]) * 1e6 / rows);
    }
}
BENCHMARK(billSearch)->Iterations(7)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const tarn::DeskApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    const double shown = leastOf(filled[screenful]);
    const double of100 = leastOf(filled[100]);
    const double perRow2000 = leastOf(filled[2000]) / 2000;
    tarn::bench::Limits limits;
    limits.check("bill search: growth of a row, 2,000 to 20,000, over the parse's",
                 growthOf(filled) / growthOf(parsed), 1.15);
    limits.check("bill search: 100 rows over a screenful and 80 rows of 2,000",
                 of100 / (shown + 80 * perRow2000), 1.3);
    limits.check("bill search: ticking 20,000 rows over searching for them",
                 leastOf(ticked[20000]) / leastOf(filled[20000]), 0.1);
    return limits.exitStatus();
}
