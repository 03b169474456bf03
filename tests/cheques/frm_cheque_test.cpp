#include "cheques/frm_cheque.h"

#include <gmock/gmock.h>

#include "tests/cheques/frm_cheque_fixture.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

TEST_F(FrmChequeTest, OpensWithTheAccountsAndTheSessionsDate) {
    use([&](QWidget& screen) {
        EXPECT_TRUE(screen.isModal());
        EXPECT_EQ(screen.windowTitle(), QStringLiteral("Impressão de Cheque"));
        EXPECT_EQ(named<QLabel>(screen, "lblTitulo").text(), QStringLiteral("Imprimir Cheque"));
        auto& list = named<QComboBox>(screen, "cboBancoAgConta");
        std::vector<std::pair<std::string, int>> items;
        items.reserve(static_cast<std::size_t>(list.count()));
        for (int i = 0; i < list.count(); ++i) {
            items.emplace_back(list.itemText(i).toStdString(), list.itemData(i).toInt());
        }
        EXPECT_THAT(items, testing::ElementsAre(std::pair{"------------", 0},
                                                std::pair{"ITAU - 0123 - 4567-8 - MATRIZ", 901},
                                                std::pair{"SANTANDER - 9 - 1", 902}));
        EXPECT_EQ(account(screen), 0);
        EXPECT_EQ(text(screen, "txtDtDeposito"), "15/03/2012");
        for (const char* empty : {"txtNumeroCheque", "txtSerie", "txtValor", "txtFavorecido"}) {
            EXPECT_EQ(text(screen, empty), "") << empty;
        }
        EXPECT_EQ(purposeOf(screen), "");
        EXPECT_EQ(focused(screen), "cboBancoAgConta");
    });
    EXPECT_EQ(onOpening, (Texts{rightQuery, accountsQuery}));
    EXPECT_EQ(server.queries(), (Texts{companyQuery})) << "the desk is active again";
    EXPECT_EQ(boxes.shown, Boxes{});
}

TEST_F(FrmChequeTest, WithoutTheRightItDoesntOpen) {
    server.on("ServerName=SRV1&sTransacao=EMI005", answers::status("Sem direito a cheques. "));
    choose(menu, "mnuCheque", "mnuChequeImpressao");
    EXPECT_EQ(boxes.shown, (Boxes{exclamation("Sem direito a cheques. ")}));
    EXPECT_EQ(server.queries(), (Texts{rightQuery}));
    EXPECT_EQ(modals.taken(), 0);
}

TEST_F(FrmChequeTest, PrintsThenRecordsAndKeepsWhatTheNextChequeNeeds) {
    useFilled([&](QWidget& screen) {
        click(screen, "cmdImprimir");
        EXPECT_EQ(server.queries(), (Texts{usualCheck, companyQuery, usualRecord}));
        EXPECT_EQ(boxes.shown, (Boxes{success}));
        EXPECT_EQ(account(screen), 1);
        EXPECT_EQ(text(screen, "txtSerie"), "aç1");
        EXPECT_EQ(text(screen, "txtDtDeposito"), "15/03/2012");
        for (const char* empty : {"txtNumeroCheque", "txtValor", "txtFavorecido"}) {
            EXPECT_EQ(text(screen, empty), "") << empty;
        }
        EXPECT_EQ(purposeOf(screen), "");
        EXPECT_EQ(focused(screen), "txtNumeroCheque");
    });
    ASSERT_EQ(spooler.jobs.size(), 1U);
    const auto& writes = spooler.jobs[0].writes;
    ASSERT_EQ(writes.size(), 7U);
    EXPECT_EQ(writes[1], std::string(1 + 64 + 6, ' ') + "1.234,22\r\n\r\n");
    EXPECT_EQ(writes[4], "     JO\xC3O & FILHOS\r\n\r\n");
    EXPECT_EQ(writes[5], std::string(1 + 29, ' ') + "Campinas" + std::string(11 + 2, ' ') +
                             "15   MARCO" + std::string(12 + 2, ' ') + "2012\r\n\r\n");
}

TEST_F(FrmChequeTest, TheFieldsAreEmptiedAfterTheBoxOfSuccess) {
    useFilled([&](QWidget& screen) {
        boxes.onShow = [&](const Box&) { expectFilled(screen); };
        click(screen, "cmdImprimir");
        boxes.onShow = nullptr;
        EXPECT_EQ(text(screen, "txtNumeroCheque"), "");
    });
}

TEST_F(FrmChequeTest, TheNextNumberOfTheBookCanBeTypedAtOnce) {
    useFilled([&](QWidget& screen) {
        click(screen, "cmdImprimir");
        server.addresses.clear();
        keys(*screen.focusWidget(), "000124");
        key(screen, Qt::Key_Tab);
        settle();
        EXPECT_EQ(server.queries(), (Texts{checkQuery("000124", "AÇ1")}));
        type(screen, "txtValor", "100");
        click(screen, "cmdImprimir");
        EXPECT_EQ(boxes.shown, (Boxes{success, success}));
        EXPECT_THAT(server.queries().back(), recordQuery("000124", "100,00", "", ""));
    });
    EXPECT_EQ(spooler.jobs.size(), 2U);
}

TEST_F(FrmChequeTest, TheClicksTestsInTheirOrderAndWhereTheFocusGoes) {
    useFilled([&](QWidget& screen) {
        const auto refuses = [&](const char* focus, const char* message) {
            boxes.shown.clear();
            click(screen, "cmdImprimir");
            EXPECT_EQ(boxes.shown, (Boxes{exclamation(message)}));
            EXPECT_EQ(focused(screen), focus);
        };
        chooseAccount(screen, 0);
        clear(screen, "txtNumeroCheque");
        type(screen, "txtSerie", "  ");
        clear(screen, "txtValor");
        clear(screen, "txtFavorecido");
        clear(screen, "txtDtDeposito");
        refuses("cboBancoAgConta", "Banco/Ag./Conta é um campo obrigatório. ");
        chooseAccount(screen, 1);
        refuses("txtNumeroCheque", "Nº Cheque é um campo obrigatório. ");
        type(screen, "txtNumeroCheque", "000123");
        refuses("txtSerie", "Série é um campo obrigatório. ");
        EXPECT_EQ(server.queries(), Texts{}) << "a blank series isn't filled in";
        type(screen, "txtSerie", "aç1");
        named<QWidget>(screen, "cmdCancelar").setFocus();
        settle();
        server.addresses.clear();
        refuses("txtValor", "Valor é um campo obrigatório. ");
        type(screen, "txtValor", "0");
        refuses("txtValor", "Valor deve ser maior que R$ 0,00. ");
        type(screen, "txtValor", "100,01");
        refuses("txtFavorecido",
                "Favorecido é um campo obrigatório para cheques com valores maiores que R$ "
                "100,00. ");
        type(screen, "txtFavorecido", "M");
        refuses("txtDtDeposito", "Data para Depósito é um campo obrigatório. ");
        EXPECT_EQ(server.queries(), Texts{});
        type(screen, "txtDtDeposito", "15032012");
        boxes.shown.clear();
        click(screen, "cmdImprimir");
        EXPECT_EQ(boxes.shown, (Boxes{success}));
    });
    EXPECT_EQ(spooler.jobs.size(), 1U);
}

TEST_F(FrmChequeTest, AHundredNeedsNoPayeeAndACentMoreDoes) {
    useFilled([&](QWidget& screen) {
        clear(screen, "txtFavorecido");
        type(screen, "txtValor", "100,01");
        click(screen, "cmdImprimir");
        EXPECT_EQ(focused(screen), "txtFavorecido");
        EXPECT_EQ(server.queries(), Texts{});
        EXPECT_THAT(spooler.jobs, testing::IsEmpty());
        type(screen, "txtValor", "100");
        boxes.shown.clear();
        click(screen, "cmdImprimir");
        EXPECT_EQ(boxes.shown, (Boxes{success}));
        EXPECT_EQ(server.queries(),
                  (Texts{usualCheck, companyQuery,
                         recordQuery("000123", "100,00", "", "COMPRA DE PEÇAS")}));
    });
    ASSERT_EQ(spooler.jobs.size(), 1U);
    EXPECT_EQ(spooler.jobs[0].writes.at(4), "     \r\n\r\n");
}

TEST_F(FrmChequeTest, ATakenNumberStopsTheClick) {
    server.on("seleciona_um_controle_cheque_emitido", answers::rowset("<z:row NR_CHE='000123'/>"));
    useFilled([&](QWidget& screen) {
        click(screen, "cmdImprimir");
        EXPECT_EQ(server.queries(), (Texts{usualCheck}));
        EXPECT_EQ(boxes.shown, (Boxes{taken}));
        EXPECT_EQ(focused(screen), "txtNumeroCheque");
        expectFilled(screen);
    });
    EXPECT_THAT(spooler.calls, testing::IsEmpty());
}

TEST_F(FrmChequeTest, AFailedCheckLetsThePrintThrough) {
    server.failOn("seleciona_um_controle_cheque_emitido");
    useFilled([&](QWidget& screen) {
        click(screen, "cmdImprimir");
        EXPECT_EQ(server.queries(), (Texts{usualCheck, companyQuery, usualRecord}));
        EXPECT_EQ(boxes.shown, (Boxes{noInternet9Wide, success}));
    });
    EXPECT_EQ(spooler.jobs.size(), 1U);
}

TEST_F(FrmChequeTest, WithoutTheTownNothingIsPrinted) {
    useFilled([&](QWidget& screen) {
        ScriptedLoader without;
        without.on("seleciona_um", answers::rowset("")).failOn("sel_dados_empresa");
        server = without;
        click(screen, "cmdImprimir");
        EXPECT_EQ(server.queries(), (Texts{usualCheck, companyQuery}));
        EXPECT_EQ(boxes.shown, (Boxes{noInternet9}));
        expectFilled(screen);
        EXPECT_EQ(focused(screen), "cmdImprimir") << "the focus isn't moved";
        server.on("sel_dados_empresa&Id_Etb_Tarn", answers::branch("F"));
    });
    EXPECT_THAT(spooler.calls, testing::IsEmpty());
}

TEST_F(FrmChequeTest, ARecordThatFailsAfterThePrintLeavesTheFields) {
    server.failOn("adiciona_controle_cheque_emitido")
        .on("adiciona_controle_cheque_emitido", answers::status("OK"));
    useFilled([&](QWidget& screen) {
        click(screen, "cmdImprimir");
        EXPECT_EQ(server.queries(), (Texts{usualCheck, companyQuery, usualRecord}));
        EXPECT_EQ(boxes.shown, (Boxes{noInternet9}));
        EXPECT_EQ(spooler.jobs.size(), 1U);
        expectFilled(screen);
        click(screen, "cmdImprimir");
        EXPECT_EQ(boxes.shown, (Boxes{noInternet9, success}));
        EXPECT_EQ(spooler.jobs.size(), 2U) << "printed again";
        EXPECT_EQ(spooler.bytes(0), spooler.bytes(1));
    });
}

TEST_F(FrmChequeTest, ARefusedRecordShowsTheServersWordsAndLeavesTheFields) {
    server.on("adiciona_controle_cheque_emitido", answers::status("Talão &lt;b&gt; bloqueado"));
    useFilled([&](QWidget& screen) {
        click(screen, "cmdImprimir");
        EXPECT_EQ(boxes.shown, (Boxes{exclamation("Talão <b> bloqueado")}));
        expectFilled(screen);
        EXPECT_EQ(focused(screen), "cmdImprimir") << "the focus isn't moved";
    });
    EXPECT_EQ(spooler.jobs.size(), 1U);
}

TEST_F(FrmChequeTest, AnAnswerWithoutAStatusEndsTheProgramAfterThePrint) {
    server.on("adiciona_controle_cheque_emitido", "<R a='0' s='OK'/>");
    useFilled([&](QWidget& screen) {
        click(screen, "cmdImprimir");
        ASSERT_EQ(boxes.shown.size(), 1U);
        EXPECT_EQ(boxes.shown[0].text.rfind("Erro em tempo de execução '91'", 0), 0U);
        EXPECT_EQ(end.status(), 3);
        expectFilled(screen);
    });
    EXPECT_EQ(spooler.jobs.size(), 1U);
}

TEST_F(FrmChequeTest, ABankCodeThatIsNoNumberEndsTheProgramBeforeThePrint) {
    server.on("sel_banco_agencia_conta&ID_EMP",
              answers::rowset("<z:row ID_PES_BAN='901' BANCO='X' CD_AGE_BAN='0123' "
                              "NR_CCOR='4567-8' NR_OFI_BAN='S/N'/>"));
    useFilled([&](QWidget& screen) {
        click(screen, "cmdImprimir");
        ASSERT_EQ(boxes.shown.size(), 1U);
        EXPECT_EQ(boxes.shown[0].text.rfind("Erro em tempo de execução '13'", 0), 0U);
        EXPECT_EQ(end.status(), 3);
    });
    EXPECT_THAT(spooler.calls, testing::IsEmpty());
}

TEST_F(FrmChequeTest, APrinterThatFailsIsNotNoticed) {
    spooler.failOpen = 0;
    useFilled([&](QWidget& screen) {
        click(screen, "cmdImprimir");
        EXPECT_EQ(server.queries(), (Texts{usualCheck, companyQuery, usualRecord}));
        EXPECT_EQ(boxes.shown, (Boxes{success}));
    });
    EXPECT_THAT(spooler.jobs, testing::IsEmpty());
}

TEST_F(FrmChequeTest, AnotherAccountsChequeGoesToItsBank) {
    useFilled([&](QWidget& screen) {
        chooseAccount(screen, 2);
        click(screen, "cmdImprimir");
        EXPECT_EQ(server.queries().at(0),
                  checkQuery("000123", "AÇ1", "&Id_Pes_Ban=902&Cd_Age_Ban=9&Nr_Ccor=1"));
        EXPECT_NE(server.queries().at(2).find("&ID_PES_BAN=902&CD_AGE_BAN=9&NR_CCOR=1&"),
                  std::string::npos);
    });
    ASSERT_EQ(spooler.jobs.size(), 1U);
    EXPECT_EQ(spooler.jobs[0].writes.at(0), " \x1B\x41\x06") << "bank 33";
}

TEST_F(FrmChequeTest, AFailedListLeavesNoAccountToChoose) {
    server.failOn("sel_banco_agencia_conta&ID_EMP");
    use([&](QWidget& screen) {
        EXPECT_EQ(boxes.shown, (Boxes{noInternet9Wide}));
        EXPECT_EQ(named<QComboBox>(screen, "cboBancoAgConta").count(), 0);
        EXPECT_EQ(text(screen, "txtDtDeposito"), "15/03/2012") << "the load goes on";
        type(screen, "txtNumeroCheque", "000123");
        type(screen, "txtSerie", "aç1");
        key(screen, Qt::Key_Tab);
        settle();
        EXPECT_EQ(server.queries(),
                  (Texts{checkQuery("000123", "AÇ1", "&Id_Pes_Ban=0&Cd_Age_Ban=&Nr_Ccor=")}));
        boxes.shown.clear();
        click(screen, "cmdImprimir");
        EXPECT_EQ(boxes.shown, (Boxes{exclamation("Banco/Ag./Conta é um campo obrigatório. ")}));
        EXPECT_EQ(focused(screen), "cboBancoAgConta");
    });
    EXPECT_THAT(spooler.calls, testing::IsEmpty());
}

TEST_F(FrmChequeTest, ComingBackFromTheTaskBarKeepsTheFocus) {
    use([&](QWidget& screen) {
        EXPECT_EQ(focused(screen), "cboBancoAgConta");
        named<QWidget>(screen, "txtFavorecido").setFocus();
        QShowEvent fromOutside;
        QSpontaneKeyEvent::setSpontaneous(&fromOutside);
        qApp->notify(&screen, &fromOutside);
        EXPECT_EQ(focused(screen), "txtFavorecido");
    });
}

// Leaving the number or the series.

TEST_F(FrmChequeTest, ATakenNumberIsToldOnLeavingEitherField) {
    server.on("seleciona_um_controle_cheque_emitido", answers::rowset("<z:row/>"));
    useFilled([&](QWidget& screen) {
        named<QWidget>(screen, "txtNumeroCheque").setFocus();
        settle();
        EXPECT_EQ(server.queries(), Texts{});
        key(screen, Qt::Key_Tab);
        settle();
        EXPECT_EQ(boxes.shown, (Boxes{taken}));
        EXPECT_EQ(focused(screen), "txtSerie") << "where the user was going";
        key(screen, Qt::Key_Return);
        settle();
        EXPECT_EQ(boxes.shown, (Boxes{taken, taken}));
        EXPECT_EQ(focused(screen), "txtValor");
        EXPECT_EQ(server.queries(), (Texts{usualCheck, usualCheck}));
        expectFilled(screen);
    });
}

TEST_F(FrmChequeTest, NothingIsAskedWhileNumberOrSeriesIsBlank) {
    use([&](QWidget& screen) {
        type(screen, "txtNumeroCheque", "000123");
        key(screen, Qt::Key_Tab);
        settle();
        type(screen, "txtSerie", "  ");
        key(screen, Qt::Key_Tab);
        settle();
        clear(screen, "txtNumeroCheque");
        type(screen, "txtSerie", "A");
        key(screen, Qt::Key_Tab);
        settle();
        EXPECT_EQ(server.queries(), Texts{});
    });
    EXPECT_EQ(boxes.shown, Boxes{});
}

TEST_F(FrmChequeTest, AFailedCheckOnLeavingIsToldByTheGatewayAlone) {
    server.failOn("seleciona_um_controle_cheque_emitido");
    useFilled([&](QWidget& screen) {
        named<QWidget>(screen, "txtSerie").setFocus();
        key(screen, Qt::Key_Tab);
        settle();
        EXPECT_EQ(boxes.shown, (Boxes{noInternet9Wide}));
        EXPECT_EQ(focused(screen), "txtValor");
    });
}

TEST_F(FrmChequeTest, AClickOnThePrintButtonLeavesTheFieldFirst) {
    server.on("seleciona_um_controle_cheque_emitido", answers::rowset("<z:row/>"));
    useFilled([&](QWidget& screen) {
        named<QWidget>(screen, "txtSerie").setFocus();
        click(screen, "cmdImprimir");
        settle();
        EXPECT_EQ(server.queries(), (Texts{usualCheck, usualCheck}));
        EXPECT_EQ(boxes.shown, (Boxes{taken, taken}));
        EXPECT_EQ(focused(screen), "txtNumeroCheque");
    });
    EXPECT_THAT(spooler.calls, testing::IsEmpty());
}

}  // namespace
}  // namespace tarn::test
