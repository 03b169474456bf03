// The cheque's screen under faults, and what the server keeps of a cheque.
#pragma once

#include <QComboBox>

#include "tests/e2e/fault_desk.h"
#include "tests/support/boxes.h"
#include "widgets/free_text_field.h"

namespace tarn::test {

inline const Box success = information("Cheque emitido com sucesso!     ");
inline const Box noCheck = noInternet9Wide;
inline const Box noRecord = noInternet9;

inline Box taken(const std::string& number) {
    return exclamation("Cheque com este número e série já foi emitido já emitido. \rNúmero: " +
                       number + "\rSérie: AB1");
}

class ChequeFaults : public FaultDesk {
protected:
    void SetUp() override {
        FaultDesk::SetUp();
        logOn();
    }
    void inCheques(const std::function<void()>& work) {
        modals.then("frmCheque", [this, work](QWidget& opened) {
            screen = &opened;
            pickIn(opened, "cboBancoAgConta",
                   position("BANCO DO VALE DO IPÊ - 1123 - 45678-9 - "
                            "FOLHA & ENCARGOS"));
            work();
            settle();
            if (opened.isVisible()) {
                click(opened, "cmdCancelar");
            }
        });
        choose(menu, "mnuCheque", "mnuChequeImpressao");
    }
    int position(const char* account) {
        return named<QComboBox>(*screen, "cboBancoAgConta").findText(QString::fromUtf8(account));
    }
    // Lets the check happen that waits for the focus to settle.
    static void settle() {
        for (int turn = 0; turn < 4; ++turn) {
            QCoreApplication::processEvents();
        }
    }
    void fill(const std::string& number) {
        type(*screen, "txtNumeroCheque", number.c_str());
        named<QLineEdit>(*screen, "txtSerie").setFocus();
        settle();
        type(*screen, "txtSerie", "ab1");
        named<QLineEdit>(*screen, "txtValor").setFocus();
        settle();
        type(*screen, "txtValor", "1234,22");
        type(*screen, "txtFavorecido", "Maria da Silva");
        auto& purpose = named<FreeTextField>(*screen, "txtObservacao");
        purpose.setFocus();
        purpose.selectAll();
        keys(purpose, "Aluguel");
        settle();
    }
    // Fills in a cheque while the server still answers, then lets it fail and clicks.
    void issueUnder(const std::string& command, const FaultCase& fault, const std::string& number) {
        page.heal();
        fill(number);
        forget();
        fail(command, fault);
        click(*screen, "cmdImprimir");
    }
    std::string fresh() { return std::to_string(next_++); }
    void expectFilled(const std::string& number) {
        EXPECT_GT(named<QComboBox>(*screen, "cboBancoAgConta").currentIndex(), 0);
        EXPECT_EQ(text(*screen, "txtNumeroCheque"), number);
        EXPECT_EQ(text(*screen, "txtSerie"), "ab1");
        EXPECT_EQ(text(*screen, "txtValor"), "1.234,22");
        EXPECT_EQ(text(*screen, "txtFavorecido"), "Maria da Silva");
        EXPECT_EQ(text(*screen, "txtDtDeposito"), "05/09/2012");
        EXPECT_EQ(named<FreeTextField>(*screen, "txtObservacao").text(), "Aluguel");
    }
    void expectEmptied() {
        for (const char* field : {"txtNumeroCheque", "txtValor", "txtFavorecido"}) {
            EXPECT_EQ(text(*screen, field), "") << field;
        }
        EXPECT_EQ(text(*screen, "txtSerie"), "ab1");
        EXPECT_EQ(named<FreeTextField>(*screen, "txtObservacao").text(), "");
        EXPECT_EQ(focused(*screen), "txtNumeroCheque");
    }
    // So many cheques on paper, each whole.
    void expectPaper(std::size_t cheques) {
        ASSERT_EQ(spooler.jobs.size(), cheques);
        for (const RecordingSpooler::Job& job : spooler.jobs) {
            EXPECT_THAT(job.bytes(),
                        testing::HasSubstr(" " + std::string(64, ' ') + "      1.234,22\r\n"));
            EXPECT_THAT(job.bytes(), testing::HasSubstr("\r\n     MARIA DA SILVA\r\n"));
            EXPECT_TRUE(job.ended && job.closed);
        }
    }
    bool recorded(const std::string& number) {
        return rowsOf(
                   "comando=seleciona_um_controle_cheque_emitido&ID_EMP_TARN=1361"
                   "&ID_ETB_TARN=1361&Id_Pes_Ban=1016&Cd_Age_Ban=1123&Nr_Ccor=45678-9&Nr_Che=" +
                   number + "&Nr_Ser=AB1&ServerName=DADOS1361") == 1;
    }
    void record(const std::string& number) {
        asked(
            "comando=adiciona_controle_cheque_emitido&ID_EMP_TARN=1361&ID_ETB_TARN=1361"
            "&UserCode=101&ID_PES_BAN=1016&CD_AGE_BAN=1123&NR_CCOR=45678-9&NR_CHE=" +
            number +
            "&NR_SER=AB1&VL_CH=1,00&DC_FAV=X&DT_DEP=05/09/2012&DC_OBS=&ServerName="
            "DADOS1361");
        ASSERT_TRUE(recorded(number));
    }

    QWidget* screen = nullptr;

private:
    int next_ = 501;
};

}  // namespace tarn::test
