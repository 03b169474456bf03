// The billing desk and the reprint screen under faults.
#pragma once

#include <QComboBox>
#include <QLabel>

#include "billing/frm_oft.h"
#include "platform/qt/tick.h"
#include "reprint/frm_reimprime_nf.h"
#include "tests/e2e/fault_desk.h"

namespace tarn::test {

class NoteFaults : public FaultDesk {
protected:
    static constexpr int orderCount = 23;
    static constexpr int series1 = 0;  // of cboSerie

    void SetUp() override {
        FaultDesk::SetUp();
        logOn();
    }
    // Orders of establishment 1361 that become notes of series 1 without a question.
    std::string takeOrder() {
        constexpr std::array plain{45001, 45002, 45003, 45004, 45005, 45009, 45010, 45011,
                                   45012, 45013, 45014, 45015, 45017, 45018, 45019};
        return std::to_string(plain.at(taken_++));
    }
    void openOrders() {
        open("mOFT");
        ASSERT_EQ(grid::rows(orders()), orderCount);
        forget();
    }
    QTableView& orders() { return gridOf(menu); }
    // -1 for an order that isn't on the list.
    int rowOf(const std::string& order) {
        for (int row = 1; row <= grid::rows(orders()); ++row) {
            if (grid::cell(orders(), row, 1) == order) {
                return row;
            }
        }
        return -1;
    }
    bool timerRuns() { return named<Tick>(menu, "Timer").isActive(); }
    // Clicks the order and a button.
    void press(const std::string& order, const char* button) {
        ASSERT_GE(rowOf(order), 1);
        grid::click(orders(), rowOf(order), 2);
        click(menu, button);
    }
    void generate(const std::string& order) { press(order, "cmdSelecionar"); }
    // The number of the order's note on the server; empty without one.
    std::string noteOf(const std::string& order) {
        const auto numbers = stored("SELECT number FROM note WHERE order_id = " + order, 1);
        return numbers.empty() ? "" : numbers.front();
    }
    std::size_t notes() { return stored("SELECT number FROM note", 1).size(); }
    // Makes a note past the desk; its number.
    std::string makeNote() {
        const std::string order = takeOrder();
        asked("COMANDO=SP_GERA_NF&ID_ETB_TARN=1361&ID_ORD_FAT=" + order +
              "&ID_PES=101&ServerName=DADOS1361");
        return noteOf(order);
    }
    bool found(const std::string& note) {
        return rowsOf("comando=SEL_NF&ID_ETB_TARN=1361&ID_NF_KESTO=" + note +
                      "&CD_SER_NF=1&ServerName=DADOS1361") == 1;
    }

    QWidget& reprint() { return named<QWidget>(menu, "FrmReImprimeNF"); }
    void search(const std::string& note) {
        pickIn(menu, "cboSerie", series1);
        type(reprint(), "txtNF", note.c_str());
        click(reprint(), "cmdPesquisar");
    }
    std::string shown(const char* label) {
        return named<QLabel>(reprint(), label).text().toStdString();
    }
    // The set-up and the note of this number, whole, on the form of company 1361.
    void expectPrinted(const std::string& note) {
        ASSERT_EQ(spooler.jobs.size(), 2U);
        EXPECT_EQ(spooler.bytes(0), " \x0F");
        EXPECT_EQ(spooler.bytes(1).substr(124, 6),
                  note.size() < 6 ? std::string(6 - note.size(), '0') + note : note);
        EXPECT_EQ(spooler.bytes(1)[89], 'X');
        for (const RecordingSpooler::Job& job : spooler.jobs) {
            EXPECT_TRUE(job.ended && job.closed);
        }
    }

private:
    std::size_t taken_ = 0;
};

}  // namespace tarn::test
