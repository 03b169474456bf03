// Opening, fields, search and grid of frmPesqBoleto.
#include "slips/frm_pesq_boleto.h"

#include <gmock/gmock.h>

#include "tests/slips/slip_screen_test.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

using testing::ElementsAre;

class FrmPesqBoletoTest : public SlipScreenTest {
protected:
    static std::vector<std::string> items(const QComboBox& list) {
        std::vector<std::string> all;
        all.reserve(static_cast<std::size_t>(list.count()));
        for (int i = 0; i < list.count(); ++i) {
            all.push_back(list.itemText(i).toStdString() + "=" +
                          list.itemData(i).toString().toStdString());
        }
        return all;
    }
    static std::string customerCode(const QWidget& screen) {
        return named<QLineEdit>(screen, "txtCliente").property("Tag").toString().toStdString();
    }
    // Chooses the one customer in the dialog.
    void chooseCustomer(QWidget& screen) {
        server.on("Sel_Cliente",
                  answers::rowset("<z:row NM_PES_CPL='ANA &lt;b>' ID_PES_CLI='0071'/>"));
        modals.then("FrmPesqCliente", [](QWidget& dialog) {
            type(dialog, "txtNmCli", "ana");
            click(dialog, "cmdPesquisar");
            click(dialog, "cmdSelecionar");
        });
        click(screen, "cmdPesqCli");
        screen.activateWindow();  // off-screen nobody gives the activation back
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &screen; }));
    }
    // A search that finds nothing behind one that found a row.
    void emptySearch(const std::string& answer) {
        withScreen([&](QWidget& screen) {
            find(screen, line("1"));
            server.on("sel_boleto&ID_EMP_TARN=2161", answer);
            int linesInBox = -1;
            boxes.onShow = [&](const Box&) { linesInBox = grid::rows(grid(screen)); };
            click(screen, "cmdPesquisar");
            boxes.onShow = nullptr;
            EXPECT_EQ(linesInBox, 0);
            EXPECT_EQ(boxes.shown,
                      (Boxes{Box{"Não foi encontrado nenhum documento para esta pesquisa. ",
                                 BoxIcon::Exclamation, "TarnEmissao"}}));
            EXPECT_EQ(focused(screen), "cmdPesquisar") << "the focus isn't moved";
        });
    }
};

const Box portfolioMissing{"Carteira Cobrança é um campo obrigatório.     ", BoxIcon::Information,
                           "TArn"};

TEST_F(FrmPesqBoletoTest, OpensWithBothLists) {
    withScreen([&](QWidget& screen) {
        EXPECT_EQ(server.queries(), (Texts{branchesQuery, portfoliosQuery}));
        EXPECT_TRUE(screen.isModal());
        EXPECT_EQ(screen.windowTitle(), QStringLiteral("Boleto Bancario"));
        EXPECT_EQ(named<QLabel>(screen, "lblTitulo").text(),
                  QStringLiteral(" Pesquisa de Documentos"));
        EXPECT_EQ(items(list(screen, "cboFilial")), (Texts{"<-TODAS->=0", "MATRIZ=9", "SUL=12"}));
        EXPECT_EQ(items(list(screen, "cboCartCob")),
                  (Texts{"--------=0", "Cobrança 57=5", "Cobrança 101=6"}));
        EXPECT_EQ(list(screen, "cboFilial").currentIndex(), 0);
        EXPECT_EQ(list(screen, "cboCartCob").currentIndex(), 0);
        EXPECT_FALSE(named<QCheckBox>(screen, "chkInc_Carteira").isChecked());
        EXPECT_EQ(grid::rows(grid(screen)), 0);
        for (const char* field : {"txtCliente", "txtDtEmsDe", "txtDtEmsAte", "txtDtVncDe",
                                  "txtDtVncAte", "txtNr_Bol_Banc"}) {
            EXPECT_EQ(shown(screen, field), "") << field;
        }
    });
    EXPECT_EQ(server.queries(), (Texts{branchesQuery, portfoliosQuery, deskQuery}));
    EXPECT_EQ(boxes.shown, Boxes{});
}

TEST_F(FrmPesqBoletoTest, SaysWhatItsFieldsAre) {
    withScreen([&](QWidget& screen) {
        const std::vector<std::pair<const char*, const char*>> captions{
            {"lblCliente", "Cliente"},
            {"lblFilial", "Filial"},
            {"lblCartCob", "Carteira Cobrança"},
            {"lblIssued", "Data Emissão:"},
            {"lblEmsDe", "De"},
            {"lblEmsAte", "Até"},
            {"lblDue", "Data Vencto:"},
            {"lblVncDe", "De"},
            {"lblVncAte", "Até"},
            {"lblNr_Bol_Banc",
             "Nr. do Próximo Boleto Bancário (sem o número da agência e sem o "
             "dígito verificador)"}};
        for (const auto& [label, text] : captions) {
            EXPECT_EQ(named<QLabel>(screen, label).text().toStdString(), text);
        }
        EXPECT_EQ(named<QCheckBox>(screen, "chkInc_Carteira").text(),
                  QStringLiteral("Inserir os Doctos abaixo na carteira selecionada"));
        EXPECT_TRUE(named<QLineEdit>(screen, "txtCliente").isReadOnly());
        EXPECT_EQ(named<QLineEdit>(screen, "txtNr_Bol_Banc").maxLength(), 13);
        EXPECT_EQ(focused(screen), "cboFilial") << "txtCliente takes no typing";
        EXPECT_EQ(tabOrder(screen, "txtCliente", 16),
                  (Texts{"txtCliente", "cboFilial", "cboCartCob", "txtDtEmsDe", "txtDtEmsAte",
                         "txtDtVncDe", "txtDtVncAte", "chkInc_Carteira", "txtNr_Bol_Banc",
                         "sprDados", "cmdPesqCli", "cmdPesquisar", "cmdLimpar", "cmdImprimir",
                         "cmdVoltar", "txtCliente"}));
    });
}

TEST_F(FrmPesqBoletoTest, TheGridHasItsColumnsThoseForThePrintingOutOfSight) {
    withScreen([&](QWidget& screen) {
        EXPECT_EQ(grid::headings(grid(screen)), (Texts{"",
                                                       "Filial",
                                                       "Vencimento",
                                                       "Tipo Documento",
                                                       "Nº Documento",
                                                       "Cliente",
                                                       "Dt.de Emissão",
                                                       "Endereço",
                                                       "Vlr.do Documento",
                                                       "CEP",
                                                       "Município",
                                                       "Estado",
                                                       "CNPJ / CPF",
                                                       "I.E.",
                                                       "TP_PES",
                                                       "TP_DOCTO2",
                                                       "ID_NR_CTL",
                                                       "IC_REF_REC",
                                                       "TX_JUR_DIA",
                                                       "PC_MULTA",
                                                       "JUROS_DIA",
                                                       "VL_OUT_DSP",
                                                       "DC_REF_REC",
                                                       "ID_ETB",
                                                       "ID_TIP_DOC",
                                                       "NR_AGE",
                                                       "ID_PES_BAN",
                                                       "CD_EXT",
                                                       "NR_DOC_NF"}));
        for (int column = 1; column <= 29; ++column) {
            EXPECT_EQ(grid(screen).isColumnHidden(column - 1), column > 9) << column;
        }
    });
}

TEST_F(FrmPesqBoletoTest, FailedListsKeepTheirFirstItemAndTheScreenOpens) {
    server.failOn("sel_filiais&ID_EMP_TARN=2161").failOn("sel_carteira&ID_EMP_TARN=2161");
    withScreen([&](QWidget& screen) {
        EXPECT_EQ(items(list(screen, "cboFilial")), (Texts{"<-TODAS->=0"}));
        EXPECT_EQ(items(list(screen, "cboCartCob")), (Texts{"--------=0"}));
        EXPECT_EQ(boxes.shown, (Boxes{noInternet9Wide, noInternet9Wide}));
        EXPECT_EQ(server.queries(), (Texts{branchesQuery, portfoliosQuery}));
    });
}

TEST_F(FrmPesqBoletoTest, ThreeFieldsMustBeThereBeforeASearchIsSent) {
    withScreen([&](QWidget& screen) {
        server.addresses.clear();
        click(screen, "cmdPesquisar");
        EXPECT_EQ(boxes.shown, (Boxes{information("Data Emissão De é Obrigatório.     ")}));
        EXPECT_EQ(focused(screen), "txtDtEmsDe");
        type(screen, "txtDtEmsDe", "1");
        click(screen, "cmdPesquisar");
        EXPECT_EQ(boxes.shown.back(), information("Data de Vencimento Obrigatória.     "));
        EXPECT_EQ(focused(screen), "txtDtVncAte");
        type(screen, "txtDtVncAte", "1");
        click(screen, "cmdPesquisar");
        EXPECT_EQ(boxes.shown.back(), portfolioMissing);
        EXPECT_EQ(focused(screen), "cboCartCob");
        EXPECT_EQ(boxes.shown.size(), 3U);
        EXPECT_EQ(server.addresses, Texts{});
    });
}

TEST_F(FrmPesqBoletoTest, TheOtherFieldsMayStayEmpty) {
    withScreen([&](QWidget& screen) {
        server.on("sel_boleto", answers::rowset(line("1")));
        fillIn(screen);
        server.addresses.clear();
        click(screen, "cmdPesquisar");
        EXPECT_EQ(server.queries(),
                  (Texts{"comando=sel_boleto&ID_EMP_TARN=2161&ID_PES_CLI=&ID_ETB_TARN="
                         "&ID_CRT_COB=5&DT_VNC_DE=&DT_VNC_ATE=31/03/2012"
                         "&DT_EMS_DE=01/02/2012&DT_EMS_ATE=&ID_PES_USU=77&IC_INC_CAR=N"
                         "&ServerName=SRV1"}));
        EXPECT_EQ(grid::rows(grid(screen)), 1);
    });
    EXPECT_EQ(boxes.shown, Boxes{});
}

TEST_F(FrmPesqBoletoTest, AllFieldsGoOut) {
    withScreen([&](QWidget& screen) {
        server.on("sel_boleto", answers::rowset(""));
        chooseCustomer(screen);
        pick(screen, "cboFilial", south);
        fillIn(screen, wallet101Item);
        type(screen, "txtDtEmsAte", "280212");
        type(screen, "txtDtVncDe", "1");
        clickCheckBox(screen);
        server.addresses.clear();
        click(screen, "cmdPesquisar");
        EXPECT_EQ(server.queries(),
                  (Texts{"comando=sel_boleto&ID_EMP_TARN=2161&ID_PES_CLI=0071"
                         "&ID_ETB_TARN=12&ID_CRT_COB=6&DT_VNC_DE=01/03/2012"
                         "&DT_VNC_ATE=31/03/2012&DT_EMS_DE=01/02/2012&DT_EMS_ATE=28/02/2012"
                         "&ID_PES_USU=77&IC_INC_CAR=S&ServerName=SRV1"}));
    });
}

TEST_F(FrmPesqBoletoTest, TheRowsAreShownUnticked) {
    withScreen([&](QWidget& screen) {
        find(screen, line("4567/1") + line("4568/1"));
        QTableView& data = grid(screen);
        EXPECT_EQ(grid::ticks(data), (std::vector<bool>{false, false}));
        std::vector<std::string> cells;
        for (int column = 1; column <= 9; ++column) {
            cells.push_back(grid::cell(data, 1, column));
        }
        EXPECT_EQ(cells, (Texts{"", "SP", "10/04/2012", "DUPLICATA", "4567/1", "JOSÉ & <b>FILHOS",
                                "05/03/2012", "RUA DO COMÉRCIO, 100", "1.234,50"}));
        EXPECT_EQ(grid::cell(data, 1, 13), "12.345.678/0001-95");
        EXPECT_EQ(grid::cell(data, 1, 15), "J");
        EXPECT_EQ(grid::cell(data, 1, 21), "0,42");
        server.on("sel_boleto&ID_EMP_TARN=2161", answers::rowset(line("9")));
        click(screen, "cmdPesquisar");
        EXPECT_EQ(grid::cell(data, 1, 5), "9");
        EXPECT_EQ(grid::rows(data), 1) << "a search takes the place of the one before";
    });
}

TEST_F(FrmPesqBoletoTest, AFailedSearchLeavesTheGrid) {
    withScreen([&](QWidget& screen) {
        find(screen, line("1"));
        grid::click(grid(screen), 1, 1);
        server.failOn("sel_boleto&ID_EMP_TARN=2161");
        click(screen, "cmdPesquisar");
        EXPECT_EQ(boxes.shown, (Boxes{noInternet9}));
        EXPECT_EQ(grid::ticks(grid(screen)), (std::vector<bool>{true}));
    });
}

TEST_F(FrmPesqBoletoTest, NoRowsEmptyTheGridAndAreTold) {
    emptySearch(answers::rowset(""));
}

TEST_F(FrmPesqBoletoTest, AnAnswerThatIsNoRowsetHasNoRows) {
    emptySearch("<xml/>");
}

TEST_F(FrmPesqBoletoTest, TheHeadingOfTheFirstColumnGoesByTheLastRow) {
    withScreen([&](QWidget& screen) {
        QTableView& data = grid(screen);
        grid::clickHeading(data, 1);
        EXPECT_EQ(grid::rows(data), 0);
        find(screen, line("1") + line("2") + line("3"));
        grid::click(data, 1, 1);
        grid::clickHeading(data, 1);
        EXPECT_EQ(grid::ticks(data), (std::vector<bool>{true, true, true}));
        grid::click(data, 2, 1);
        grid::clickHeading(data, 1);
        EXPECT_EQ(grid::ticks(data), (std::vector<bool>{false, false, false}));
        grid::click(data, 3, 1);
        grid::clickHeading(data, 1);
        EXPECT_EQ(grid::ticks(data), (std::vector<bool>{false, false, false}));
        grid::clickHeading(data, 2);
        grid::click(data, 1, 5);
        EXPECT_EQ(grid::ticks(data), (std::vector<bool>{false, false, false}));
        EXPECT_EQ(server.addresses, Texts{});
    });
}

TEST_F(FrmPesqBoletoTest, TickingTheCheckBoxIsExplained) {
    const Box explanation = information(
        "Esta opção só deverá ser selecionada quando se deseja incluir, no momento da impressão do "
        "boleto, um documento que esteja sem carteira de cobrança associada. A carteira a ser "
        "associada é a selecionada no combo acima.      ");
    withScreen([&](QWidget& screen) {
        clickCheckBox(screen);
        EXPECT_TRUE(named<QCheckBox>(screen, "chkInc_Carteira").isChecked());
        EXPECT_EQ(boxes.shown, (Boxes{explanation}));
        clickCheckBox(screen);
        EXPECT_FALSE(named<QCheckBox>(screen, "chkInc_Carteira").isChecked());
        EXPECT_EQ(boxes.shown.size(), 1U);
        QTest::keyClick(&named<QCheckBox>(screen, "chkInc_Carteira"), Qt::Key_Space);
        EXPECT_EQ(boxes.shown, (Boxes{explanation, explanation}));
    });
}

TEST_F(FrmPesqBoletoTest, ACustomerChosenReloadsTheListsAndKeepsTheRest) {
    withScreen([&](QWidget& screen) {
        find(screen, line("1"));
        pick(screen, "cboFilial", south);
        type(screen, "txtNr_Bol_Banc", "77");
        chooseCustomer(screen);
        EXPECT_EQ(shown(screen, "txtCliente"), "ANA <b>");
        EXPECT_EQ(customerCode(screen), "0071");
        EXPECT_THAT(server.queries(),
                    ElementsAre(testing::HasSubstr("Sel_Cliente"), branchesQuery, portfoliosQuery));
        EXPECT_EQ(list(screen, "cboFilial").currentIndex(), 0);
        EXPECT_EQ(list(screen, "cboCartCob").currentIndex(), 0);
        EXPECT_EQ(grid::rows(grid(screen)), 1);
        EXPECT_EQ(shown(screen, "txtDtEmsDe"), "01/02/2012");
        EXPECT_EQ(shown(screen, "txtNr_Bol_Banc"), "77");
        server.addresses.clear();
        pick(screen, "cboFilial", south);
        click(screen, "cmdLimpar");
        EXPECT_EQ(shown(screen, "txtCliente"), "");
        EXPECT_EQ(customerCode(screen), "");
        EXPECT_EQ(list(screen, "cboFilial").currentIndex(), south);
        EXPECT_EQ(shown(screen, "txtDtEmsDe"), "01/02/2012");
        EXPECT_EQ(server.addresses, Texts{});
    });
}

TEST_F(FrmPesqBoletoTest, AMessageIsNoActivation) {
    withScreen([&](QWidget& screen) {
        server.addresses.clear();
        click(screen, "cmdPesquisar");
        EXPECT_EQ(boxes.shown.size(), 1U);
        EXPECT_EQ(server.addresses, Texts{});
    });
}

TEST_F(FrmPesqBoletoTest, TheChoiceReachesTheBillSearchToo) {
    withScreen([&](QWidget& screen) { chooseCustomer(screen); });
    modals.then("FrmPesqDupli", [&](QWidget& screen) {
        EXPECT_EQ(shown(screen, "txtCliente"), "ANA <b>");
        EXPECT_EQ(customerCode(screen), "0071");
        click(screen, "cmdVoltar");
    });
    choose(menu, "mnuDuplicata");
    withScreen([&](QWidget& screen) {
        EXPECT_EQ(shown(screen, "txtCliente"), "") << "it was unloaded when it closed";
    });
}

TEST_F(FrmPesqBoletoTest, AChoiceInTheBillSearchWaitsHere) {
    modals.then("FrmPesqDupli", [&](QWidget& screen) {
        chooseCustomer(screen);
        click(screen, "cmdVoltar");
    });
    choose(menu, "mnuDuplicata");
    server.addresses.clear();
    withScreen([&](QWidget& screen) {
        EXPECT_EQ(shown(screen, "txtCliente"), "ANA <b>");
        EXPECT_EQ(server.queries(), (Texts{branchesQuery, portfoliosQuery}));
    });
}

TEST_F(FrmPesqBoletoTest, FailedListsLoseWhatTheyHeldOnTheNextActivation) {
    withScreen([&](QWidget& screen) {
        find(screen, line("1"));
        grid::click(grid(screen), 1, 1);
        server.failOn("sel_filiais&ID_EMP_TARN=2161").failOn("sel_carteira&ID_EMP_TARN=2161");
        modals.then("FrmPesqCliente", [](QWidget& dialog) { key(dialog, Qt::Key_Escape); });
        click(screen, "cmdPesqCli");
        EXPECT_EQ(boxes.shown, (Boxes{noInternet9Wide, noInternet9Wide}));
        EXPECT_EQ(items(list(screen, "cboFilial")), (Texts{"<-TODAS->=0"}));
        EXPECT_EQ(items(list(screen, "cboCartCob")), (Texts{"--------=0"}));
        EXPECT_EQ(grid::ticks(grid(screen)), (std::vector<bool>{true}));
        boxes.shown.clear();
        click(screen, "cmdPesquisar");
        EXPECT_EQ(boxes.shown, (Boxes{portfolioMissing}));
    });
}

TEST_F(FrmPesqBoletoTest, TheDeskIsActivatedOnceAlsoBehindTheCustomerDialog) {
    withScreen([&](QWidget& screen) {
        chooseCustomer(screen);
        server.addresses.clear();
    });
    EXPECT_EQ(server.queries(), (Texts{deskQuery}));
}

TEST_F(FrmPesqBoletoTest, LongTextsAndMarkupAreShownAsTheyAre) {
    const std::string longText = "<b>A&B</b> " + std::string(3000, 'W');
    const std::string noXml = "&lt;b>A&amp;B&lt;/b> " + std::string(3000, 'W');
    server.on("sel_carteira&ID_EMP_TARN=2161",
              answers::rowset("<z:row DC_CRT_COB='" + noXml + "' ID_CRT_COB='5'/>"));
    withScreen([&](QWidget& screen) {
        const QSize smaller = screen.minimumSizeHint();
        find(screen, "<z:row SG_FIL='" + noXml + "' NM_CLI_ETB='" + noXml + "'/>");
        server.on("Sel_Cliente",
                  answers::rowset("<z:row NM_PES_CPL='" + noXml + "' ID_PES_CLI='1'/>"));
        modals.then("FrmPesqCliente", [](QWidget& dialog) {
            type(dialog, "txtNmCli", "ana");
            click(dialog, "cmdPesquisar");
            click(dialog, "cmdSelecionar");
        });
        click(screen, "cmdPesqCli");
        EXPECT_EQ(list(screen, "cboCartCob").itemText(1).toStdString(), longText);
        EXPECT_EQ(shown(screen, "txtCliente"), longText);
        EXPECT_EQ(named<QLineEdit>(screen, "txtCliente").cursorPosition(), 0) << "its head shows";
        EXPECT_EQ(grid::cell(grid(screen), 1, 6), longText);
        EXPECT_EQ(screen.minimumSizeHint(), smaller);
    });
}

// A branch's short name has up to 12 characters.
TEST_F(FrmPesqBoletoTest, TheWidestShortNameOfABranchIsReadWhole) {
    withScreen([&](QWidget& screen) {
        find(screen, "<z:row SG_FIL='GUARATINGUET' DT_VNC_DOC_FMA='10/04/2012'/>");
        QTableView& data = grid(screen);
        for (const int column : {2, 3}) {
            const QModelIndex cell = data.model()->index(0, column - 1);
            EXPECT_GE(data.columnWidth(column - 1), data.sizeHintForIndex(cell).width()) << column;
        }
    });
}

TEST_F(FrmPesqBoletoTest, TwentyThousandDocumentsAreShownAndTicked) {
    withScreen([&](QWidget& screen) {
        std::string lines;
        for (int i = 1; i <= 20000; ++i) {
            lines += line(std::to_string(i));
        }
        find(screen, lines);
        grid::clickHeading(grid(screen), 1);
        EXPECT_THAT(grid::ticks(grid(screen)), testing::Each(true));
        grid::click(grid(screen), 20000, 1);
        EXPECT_FALSE(grid::ticks(grid(screen)).back());
        EXPECT_EQ(grid::cell(grid(screen), 20000, 5), "20000");
    });
}

}  // namespace
}  // namespace tarn::test
