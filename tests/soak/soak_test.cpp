// A desk that is never closed: the clerk's day again and again in the real screens, over HTTP
// against the practice server's program. The second half of the rounds must leave the process
// as large as the first did, and each table of the server as the rounds make it.
// TARN_SOAK_ROUNDS says how many.
#include <QPixmapCache>
#include <iostream>

#include "tests/e2e/note_faults.h"
#include "tests/e2e/programs.h"
#include "tests/soak/process_size.h"

namespace tarn::test {
namespace {

constexpr int usualRounds = 6;
constexpr std::size_t mostGrowth = 1024 * 1024;  // bytes, in the second half
constexpr int firstNumber = 1000;                // of cheques and slips

int roundsWanted() {
    const int wanted = qEnvironmentVariableIntValue("TARN_SOAK_ROUNDS");
    return wanted > 0 ? wanted : usualRounds;
}

class Soak : public FaultDesk {
protected:
    void SetUp() override {
        ScreenTest::SetUp();
        QObject::connect(&end, &ProgramEnd::didEnd, &end,
                         [this] { networkOfDay->blocking.close(); });
        process.start(serverFile);
        networkOfDay = std::make_unique<NetworkDesk>(desk, process.address().toStdString());
        menuOfDay = std::make_unique<MDIMenu>(networkOfDay->desk);
        menuOfDay->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(menuOfDay.get()));
        modals.then("FrmLogon", [](QWidget& logon) {
            typeLogon(logon);
            key(logon, Qt::Key_Return);
        });
        menuOfDay->load();
        ASSERT_THAT(boxes.shown, testing::IsEmpty());
    }
    void TearDown() override {
        menuOfDay.reset();
        process.stop();
        FaultDesk::TearDown();
    }

    void openPart(const char* entry) {
        choose(*menuOfDay, "mnuNF", entry);
        activate(*menuOfDay);
    }
    template <typename Screen>
    void closePart() {
        click(*menuOfDay->findChild<Screen*>(), "CmdFechar");
        ASSERT_TRUE(QTest::qWaitFor([this] { return menuOfDay->findChild<Screen*>() == nullptr; }));
    }
    // What was told and printed since this was asked last.
    void expectTold(std::size_t count, const char* last) {
        ASSERT_EQ(boxes.shown.size(), count) << testing::PrintToString(boxes.shown);
        if (count > 0) {
            EXPECT_THAT(boxes.shown.back().text, testing::HasSubstr(last));
        }
        boxes.shown.clear();
    }
    void expectJobs(std::size_t count) {
        ASSERT_EQ(spooler.jobs.size(), count);
        spooler.jobs.clear();
        spooler.calls.clear();
        spooler.opened.clear();
    }
    void expectDrawn() {
        EXPECT_TRUE(printer.ended());
        printer.operations.clear();
    }

    std::string issueNote();
    void searchNote(const std::string& number);
    void printAgain(const std::string& number);
    void cancel(const std::string& number);
    void printBill();
    void printSlip(int round);
    void printCheque(int round);
    void printLabels();
    void oneDay(int round);

    // What the rounds leave as it was, and what they count.
    struct Tables {
        std::vector<std::string> untouched;  // rows of the tables that nobody writes
        std::string order;
        std::int64_t cheques = 0;
        std::int64_t nextNote = 0;
    };
    Tables tables() {
        Tables now;
        for (const char* table : {"billing_order", "order_item", "customer", "document", "label",
                                  "label_reason", "account", "portfolio", "stock"}) {
            now.untouched.push_back(
                stored(std::string("SELECT COUNT(*) FROM ") + table, 1).front());
        }
        now.order =
            stored("SELECT state, packages, gross_weight FROM billing_order WHERE id = 45001", 3)
                .front();
        now.cheques = std::stoll(stored("SELECT COUNT(*) FROM cheque", 1).front());
        now.nextNote = std::stoll(stored("SELECT SUM(next_number) FROM series", 1).front());
        return now;
    }
    std::vector<std::string> stored(const std::string& sql, int columns) {
        practice::Database there{serverFile.toStdString()};
        return rowsIn(there, sql, columns);
    }

    const QString serverFile = folder.filePath("servidor.db");
    Server process;
    std::unique_ptr<NetworkDesk> networkOfDay;
    std::unique_ptr<MDIMenu> menuOfDay;
};

std::string Soak::issueNote() {
    openPart("mOFT");
    QTableView& orders = gridOf(*menuOfDay);
    int row = 1;
    while (row < grid::rows(orders) && grid::cell(orders, row, 1) != "45001") {
        ++row;
    }
    modals.then("frmManutDetOFT", [](QWidget& dialog) {
        type(dialog, "txtQtde", "12");
        click(dialog, "cmdOk");
    });
    grid::click(orders, row, 2);
    click(*menuOfDay, "cmdDetOFT");
    grid::click(orders, row, 2);
    click(*menuOfDay, "cmdImprimirOF");
    EXPECT_EQ(spooler.jobs.size(), 1U) << "the order sheet";
    grid::click(orders, row, 2);
    click(*menuOfDay, "cmdSelecionar");
    EXPECT_EQ(spooler.jobs.size(), 3U) << "the note behind its set-up";
    const std::string number =
        spooler.jobs.empty() ? "" : spooler.jobs.back().bytes().substr(124, 6);
    closePart<FrmOFT>();
    return number;
}

void Soak::searchNote(const std::string& number) {
    QWidget& screen = named<QWidget>(*menuOfDay, "FrmReImprimeNF");
    pickIn(*menuOfDay, "cboSerie", 0);
    type(screen, "txtNF", number.c_str());
    click(screen, "cmdPesquisar");
}

void Soak::printAgain(const std::string& number) {
    openPart("mRINF");
    searchNote(number);
    click(named<QWidget>(*menuOfDay, "FrmReImprimeNF"), "cmdSelecionar");
    closePart<FrmReImprimeNF>();
}

// So that the order can be billed again.
void Soak::cancel(const std::string& number) {
    openPart("mCNF");
    searchNote(number);
    QTest::mouseClick(&named<QWidget>(*menuOfDay, "OptionReimp_0"), Qt::LeftButton, {}, {8, 8});
    pickIn(*menuOfDay, "CboMot_Can", 1);
    click(named<QWidget>(*menuOfDay, "FrmReImprimeNF"), "cmdSelecionar");
    closePart<FrmReImprimeNF>();
}

void Soak::printBill() {
    modals.then("FrmPesqDupli", [](QWidget& screen) {
        pickIn(screen, "cboTpDocto", 1);
        type(screen, "txtDtVncAte", "31082012");
        click(screen, "cmdPesquisar");
        grid::click(gridOf(screen), 1, 1);
        click(screen, "cmdImprimir");
        click(screen, "cmdVoltar");
    });
    choose(*menuOfDay, "mnuDuplicata");
}

void Soak::printSlip(int round) {
    modals.then("frmPesqBoleto", [round](QWidget& screen) {
        type(screen, "txtDtEmsDe", "01012000");
        type(screen, "txtDtVncAte", "31122099");
        pickIn(screen, "cboCartCob", 1);
        type(screen, "txtNr_Bol_Banc", std::to_string(firstNumber + round).c_str());
        click(screen, "cmdPesquisar");
        grid::click(gridOf(screen), 1, 1);
        click(screen, "cmdImprimir");
        click(screen, "cmdVoltar");
    });
    choose(*menuOfDay, "mnuBoleto");
}

void Soak::printCheque(int round) {
    modals.then("frmCheque", [round](QWidget& screen) {
        pickIn(screen, "cboBancoAgConta", 1);
        type(screen, "txtNumeroCheque", std::to_string(firstNumber + round).c_str());
        type(screen, "txtSerie", "A1");
        type(screen, "txtValor", "1234,56");
        type(screen, "txtFavorecido", "PAPELARIA TRES PONTES LTDA");
        click(screen, "cmdImprimir");
        click(screen, "cmdCancelar");
    });
    choose(*menuOfDay, "mnuCheque", "mnuChequeImpressao");
}

void Soak::printLabels() {
    modals.then("frmPesqEtiquetas", [this](QWidget& queue) {
        pickIn(queue, "cboMotivo", 1);
        for (const int form : {4, 2}) {
            pickIn(queue, "cboTp_Form", form);
            pickIn(queue, "CboFilialRemet", 1);
            modals.then("frmImprimirEtiqueta", [](QWidget& range) {
                type(range, "txtDe", "1");
                type(range, "txtAte", "5");
                click(range, "cmdOk");
            });
            click(queue, "cmdImprimir");
        }
        click(queue, "cmdVoltar");
    });
    choose(*menuOfDay, "mnuEtiquetas", "mnuImprClientes");
}

void Soak::oneDay(int round) {
    const std::string number = issueNote();
    ASSERT_NO_FATAL_FAILURE(expectJobs(3));
    ASSERT_NO_FATAL_FAILURE(expectTold(0, ""));
    printAgain(number);
    ASSERT_NO_FATAL_FAILURE(expectJobs(2));
    cancel(number);
    ASSERT_NO_FATAL_FAILURE(expectTold(1, "Nota fiscal cancelada com sucesso"));
    printBill();
    ASSERT_NO_FATAL_FAILURE(expectTold(1, "com sucesso"));
    expectDrawn();
    printSlip(round);
    ASSERT_NO_FATAL_FAILURE(expectTold(0, ""));
    ASSERT_NO_FATAL_FAILURE(expectJobs(2));
    printCheque(round);
    ASSERT_NO_FATAL_FAILURE(expectTold(1, "heque"));
    ASSERT_NO_FATAL_FAILURE(expectJobs(1));
    printLabels();
    ASSERT_NO_FATAL_FAILURE(expectTold(1, "Etiquetas impressas com sucesso"));
    ASSERT_NO_FATAL_FAILURE(expectJobs(2));
    expectDrawn();
}

TEST_F(Soak, RoundsOfTheWholeDayLeaveTheProcessAsLargeAndEveryTableRight) {
    // Qt keeps the pictures it drew last, 10 MiB of them; without them what grows is ours.
    QPixmapCache::setCacheLimit(0);
    const int rounds = roundsWanted();
    const Tables before = tables();
    ProcessSize half;
    for (int round = 1; round <= rounds; ++round) {
        SCOPED_TRACE("round " + std::to_string(round));
        ASSERT_NO_FATAL_FAILURE(oneDay(round));
        if (round == rounds / 2) {
            half = sizeOfProcess();
            std::cerr << "after " << round << " rounds: " << half << "\n";
        }
    }
    const ProcessSize whole = sizeOfProcess();
    std::cerr << "after " << rounds << " rounds: " << whole << "\n";
    EXPECT_LT(whole.heap, half.heap + mostGrowth);
    EXPECT_EQ(whole.handles, half.handles);
    EXPECT_EQ(whole.threads, half.threads);

    const Tables after = tables();
    const std::string made = std::to_string(rounds);
    EXPECT_EQ(after.untouched, before.untouched);
    EXPECT_EQ(after.order, "A|12000|341670") << "free to be billed again, as it was changed";
    EXPECT_EQ(stored("SELECT COUNT(*), SUM(cancelled), COUNT(DISTINCT number) FROM note", 3),
              std::vector{made + "|" + made + "|" + made});
    EXPECT_EQ(stored("SELECT COUNT(*), MIN(amount), MAX(amount) FROM cheque WHERE series = 'A1'"
                     " AND number > " +
                         std::to_string(firstNumber),
                     3),
              std::vector{made + "|123456|123456"});
    EXPECT_EQ(stored("SELECT COUNT(*) FROM document WHERE slip_number = '" +
                         std::to_string(firstNumber + rounds) + "'",
                     1),
              std::vector<std::string>{"1"});
    EXPECT_EQ(after.cheques, before.cheques + rounds);
    EXPECT_EQ(after.nextNote, before.nextNote + rounds);
}

}  // namespace
}  // namespace tarn::test
