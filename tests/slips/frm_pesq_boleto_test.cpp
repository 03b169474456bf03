// Opening, fields, search and grid of frmPesqBoleto.
#include "slips/frm_pesq_boleto.h"

#include "tests/slips/slip_screen_test.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FrmPesqBoletoTest : public TelaDeBoletos {
protected:
    static std::vector<std::string> itens(const QComboBox& lista) {
        std::vector<std::string> todos;
        todos.reserve(static_cast<std::size_t>(lista.count()));
        for (int i = 0; i < lista.count(); ++i) {
            todos.push_back(lista.itemText(i).toStdString() + "=" +
                            lista.itemData(i).toString().toStdString());
        }
        return todos;
    }
    static std::string codigoDoCliente(const QWidget& tela) {
        return named<QLineEdit>(tela, "txtCliente").property("Tag").toString().toStdString();
    }
    // Chooses the one customer in the dialog.
    void escolheCliente(QWidget& tela) {
        server.on("Sel_Cliente",
                  answers::rowset("<z:row NM_PES_CPL='ANA &lt;b>' ID_PES_CLI='0071'/>"));
        modals.then("FrmPesqCliente", [](QWidget& dialogo) {
            type(dialogo, "txtNmCli", "ana");
            click(dialogo, "cmdPesquisar");
            click(dialogo, "cmdSelecionar");
        });
        click(tela, "cmdPesqCli");
        tela.activateWindow();  // off-screen nobody gives the activation back
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &tela; }));
    }
    // A search that finds nothing behind one that found a row.
    void pesquisaVazia(const std::string& resposta) {
        comATela([&](QWidget& tela) {
            encontra(tela, linha("1"));
            server.on("sel_boleto&ID_EMP_TARN=2161", resposta);
            int linhasNaCaixa = -1;
            boxes.onShow = [&](const Box&) { linhasNaCaixa = grid::rows(grade(tela)); };
            click(tela, "cmdPesquisar");
            boxes.onShow = nullptr;
            EXPECT_EQ(linhasNaCaixa, 0);
            EXPECT_THAT(boxes.shown,
                        ElementsAre(Box{"Não foi encontrado nenhum documento para esta pesquisa. ",
                                        BoxIcon::Exclamation, "TarnEmissao"}));
            EXPECT_EQ(focused(tela), "cmdPesquisar") << "the focus isn't moved";
        });
    }
};

const Box faltaCarteira{"Carteira Cobrança é um campo obrigatório.     ", BoxIcon::Information,
                        "TArn"};

TEST_F(FrmPesqBoletoTest, OpensWithBothLists) {
    comATela([&](QWidget& tela) {
        EXPECT_THAT(server.queries(), ElementsAre(pedeFiliais, pedeCarteiras));
        EXPECT_TRUE(tela.isModal());
        EXPECT_EQ(tela.windowTitle(), QStringLiteral("Boleto Bancario"));
        EXPECT_EQ(named<QLabel>(tela, "lblTitulo").text(),
                  QStringLiteral(" Pesquisa de Documentos"));
        EXPECT_THAT(itens(lista(tela, "cboFilial")),
                    ElementsAre("<-TODAS->=0", "MATRIZ=9", "SUL=12"));
        EXPECT_THAT(itens(lista(tela, "cboCartCob")),
                    ElementsAre("--------=0", "Cobrança 57=5", "Cobrança 101=6"));
        EXPECT_EQ(lista(tela, "cboFilial").currentIndex(), 0);
        EXPECT_EQ(lista(tela, "cboCartCob").currentIndex(), 0);
        EXPECT_FALSE(named<QCheckBox>(tela, "chkInc_Carteira").isChecked());
        EXPECT_EQ(grid::rows(grade(tela)), 0);
        for (const char* campo : {"txtCliente", "txtDtEmsDe", "txtDtEmsAte", "txtDtVncDe",
                                  "txtDtVncAte", "txtNr_Bol_Banc"}) {
            EXPECT_EQ(mostrado(tela, campo), "") << campo;
        }
    });
    EXPECT_THAT(server.queries(), ElementsAre(pedeFiliais, pedeCarteiras, pedeDaMesa));
    EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(FrmPesqBoletoTest, SaysWhatItsFieldsAre) {
    comATela([&](QWidget& tela) {
        const std::vector<std::pair<const char*, const char*>> captions{
            {"lblCliente", "Cliente"},
            {"lblFilial", "Filial"},
            {"lblCartCob", "Carteira Cobrança"},
            {"lblEmissao", "Data Emissão:"},
            {"lblEmsDe", "De"},
            {"lblEmsAte", "Até"},
            {"lblVencimento", "Data Vencto:"},
            {"lblVncDe", "De"},
            {"lblVncAte", "Até"},
            {"lblNr_Bol_Banc",
             "Nr. do Próximo Boleto Bancário (sem o número da agência e sem o "
             "dígito verificador)"}};
        for (const auto& [label, text] : captions) {
            EXPECT_EQ(named<QLabel>(tela, label).text().toStdString(), text);
        }
        EXPECT_EQ(named<QCheckBox>(tela, "chkInc_Carteira").text(),
                  QStringLiteral("Inserir os Doctos abaixo na carteira selecionada"));
        EXPECT_TRUE(named<QLineEdit>(tela, "txtCliente").isReadOnly());
        EXPECT_EQ(named<QLineEdit>(tela, "txtNr_Bol_Banc").maxLength(), 13);
        EXPECT_EQ(focused(tela), "txtCliente");
        EXPECT_THAT(tabOrder(tela, "txtCliente", 16),
                    ElementsAre("txtCliente", "cboFilial", "cboCartCob", "txtDtEmsDe",
                                "txtDtEmsAte", "txtDtVncDe", "txtDtVncAte", "chkInc_Carteira",
                                "txtNr_Bol_Banc", "sprDados", "cmdPesqCli", "cmdPesquisar",
                                "cmdLimpar", "cmdImprimir", "cmdVoltar", "txtCliente"));
    });
}

TEST_F(FrmPesqBoletoTest, TheGridHasItsColumnsThoseForThePrintingOutOfSight) {
    comATela([&](QWidget& tela) {
        EXPECT_THAT(grid::headings(grade(tela)),
                    ElementsAre("", "Filial", "Vencimento", "Tipo Documento", "Nº Documento",
                                "Cliente", "Dt.de Emissão", "Endereço", "Vlr.do Documento", "CEP",
                                "Município", "Estado", "CNPJ / CPF", "I.E.", "TP_PES", "TP_DOCTO2",
                                "ID_NR_CTL", "IC_REF_REC", "TX_JUR_DIA", "PC_MULTA", "JUROS_DIA",
                                "VL_OUT_DSP", "DC_REF_REC", "ID_ETB", "ID_TIP_DOC", "NR_AGE",
                                "ID_PES_BAN", "CD_EXT", "NR_DOC_NF"));
        for (int coluna = 1; coluna <= 29; ++coluna) {
            EXPECT_EQ(grade(tela).isColumnHidden(coluna - 1), coluna > 9) << coluna;
        }
    });
}

TEST_F(FrmPesqBoletoTest, FailedListsKeepTheirFirstItemAndTheScreenOpens) {
    server.failOn("sel_filiais&ID_EMP_TARN=2161").failOn("sel_carteira&ID_EMP_TARN=2161");
    comATela([&](QWidget& tela) {
        EXPECT_THAT(itens(lista(tela, "cboFilial")), ElementsAre("<-TODAS->=0"));
        EXPECT_THAT(itens(lista(tela, "cboCartCob")), ElementsAre("--------=0"));
        EXPECT_THAT(boxes.shown, ElementsAre(falhaLarga(), falhaLarga()));
        EXPECT_THAT(server.queries(), ElementsAre(pedeFiliais, pedeCarteiras));
    });
}

TEST_F(FrmPesqBoletoTest, ThreeFieldsMustBeThereBeforeASearchIsSent) {
    comATela([&](QWidget& tela) {
        server.addresses.clear();
        click(tela, "cmdPesquisar");
        EXPECT_THAT(boxes.shown, ElementsAre(informa("Data Emissão De é Obrigatório.     ")));
        EXPECT_EQ(focused(tela), "txtDtEmsDe");
        type(tela, "txtDtEmsDe", "1");
        click(tela, "cmdPesquisar");
        EXPECT_EQ(boxes.shown.back(), informa("Data de Vencimento Obrigatória.     "));
        EXPECT_EQ(focused(tela), "txtDtVncAte");
        type(tela, "txtDtVncAte", "1");
        click(tela, "cmdPesquisar");
        EXPECT_EQ(boxes.shown.back(), faltaCarteira);
        EXPECT_EQ(focused(tela), "cboCartCob");
        EXPECT_EQ(boxes.shown.size(), 3U);
        EXPECT_THAT(server.addresses, IsEmpty());
    });
}

TEST_F(FrmPesqBoletoTest, TheOtherFieldsMayStayEmpty) {
    comATela([&](QWidget& tela) {
        server.on("sel_boleto", answers::rowset(linha("1")));
        preenche(tela);
        server.addresses.clear();
        click(tela, "cmdPesquisar");
        EXPECT_THAT(server.queries(),
                    ElementsAre("comando=sel_boleto&ID_EMP_TARN=2161&ID_PES_CLI=&ID_ETB_TARN="
                                "&ID_CRT_COB=5&DT_VNC_DE=&DT_VNC_ATE=31/03/2012"
                                "&DT_EMS_DE=01/02/2012&DT_EMS_ATE=&ID_PES_USU=77&IC_INC_CAR=N"
                                "&ServerName=SRV1"));
        EXPECT_EQ(grid::rows(grade(tela)), 1);
    });
    EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(FrmPesqBoletoTest, AllFieldsGoOut) {
    comATela([&](QWidget& tela) {
        server.on("sel_boleto", answers::rowset(""));
        escolheCliente(tela);
        pick(tela, "cboFilial", sul);
        preenche(tela, cobra101);
        type(tela, "txtDtEmsAte", "280212");
        type(tela, "txtDtVncDe", "1");
        clicaCaixa(tela);
        server.addresses.clear();
        click(tela, "cmdPesquisar");
        EXPECT_THAT(server.queries(),
                    ElementsAre("comando=sel_boleto&ID_EMP_TARN=2161&ID_PES_CLI=0071"
                                "&ID_ETB_TARN=12&ID_CRT_COB=6&DT_VNC_DE=01/03/2012"
                                "&DT_VNC_ATE=31/03/2012&DT_EMS_DE=01/02/2012&DT_EMS_ATE=28/02/2012"
                                "&ID_PES_USU=77&IC_INC_CAR=S&ServerName=SRV1"));
    });
}

TEST_F(FrmPesqBoletoTest, TheRowsAreShownUnticked) {
    comATela([&](QWidget& tela) {
        encontra(tela, linha("4567/1") + linha("4568/1"));
        QTableView& dados = grade(tela);
        EXPECT_THAT(grid::ticks(dados), ElementsAre(false, false));
        std::vector<std::string> celulas;
        for (int coluna = 1; coluna <= 9; ++coluna) {
            celulas.push_back(grid::cell(dados, 1, coluna));
        }
        EXPECT_THAT(celulas,
                    ElementsAre("", "SP", "10/04/2012", "DUPLICATA", "4567/1", "JOSÉ & <b>FILHOS",
                                "05/03/2012", "RUA DO COMÉRCIO, 100", "1.234,50"));
        EXPECT_EQ(grid::cell(dados, 1, 13), "12.345.678/0001-95");
        EXPECT_EQ(grid::cell(dados, 1, 15), "J");
        EXPECT_EQ(grid::cell(dados, 1, 21), "0,42");
        server.on("sel_boleto&ID_EMP_TARN=2161", answers::rowset(linha("9")));
        click(tela, "cmdPesquisar");
        EXPECT_EQ(grid::cell(dados, 1, 5), "9");
        EXPECT_EQ(grid::rows(dados), 1) << "a search takes the place of the one before";
    });
}

TEST_F(FrmPesqBoletoTest, AFailedSearchLeavesTheGrid) {
    comATela([&](QWidget& tela) {
        encontra(tela, linha("1"));
        grid::click(grade(tela), 1, 1);
        server.failOn("sel_boleto&ID_EMP_TARN=2161");
        click(tela, "cmdPesquisar");
        EXPECT_THAT(boxes.shown, ElementsAre(falha()));
        EXPECT_THAT(grid::ticks(grade(tela)), ElementsAre(true));
    });
}

TEST_F(FrmPesqBoletoTest, NoRowsEmptyTheGridAndAreTold) {
    pesquisaVazia(answers::rowset(""));
}

TEST_F(FrmPesqBoletoTest, AnAnswerThatIsNoRowsetHasNoRows) {
    pesquisaVazia("<xml/>");
}

TEST_F(FrmPesqBoletoTest, TheHeadingOfTheFirstColumnGoesByTheLastRow) {
    comATela([&](QWidget& tela) {
        QTableView& dados = grade(tela);
        grid::clickHeading(dados, 1);
        EXPECT_EQ(grid::rows(dados), 0);
        encontra(tela, linha("1") + linha("2") + linha("3"));
        grid::click(dados, 1, 1);
        grid::clickHeading(dados, 1);
        EXPECT_THAT(grid::ticks(dados), ElementsAre(true, true, true));
        grid::click(dados, 2, 1);
        grid::clickHeading(dados, 1);
        EXPECT_THAT(grid::ticks(dados), ElementsAre(false, false, false));
        grid::click(dados, 3, 1);
        grid::clickHeading(dados, 1);
        EXPECT_THAT(grid::ticks(dados), ElementsAre(false, false, false));
        grid::clickHeading(dados, 2);
        grid::click(dados, 1, 5);
        EXPECT_THAT(grid::ticks(dados), ElementsAre(false, false, false));
        EXPECT_THAT(server.addresses, IsEmpty());
    });
}

TEST_F(FrmPesqBoletoTest, TickingTheCheckBoxIsExplained) {
    const Box explica = informa(
        "Esta opção só deverá ser selecionada quando se deseja incluir, no momento da impressão do "
        "boleto, um documento que esteja sem carteira de cobrança associada. A carteira a ser "
        "associada é a selecionada no combo acima.      ");
    comATela([&](QWidget& tela) {
        clicaCaixa(tela);
        EXPECT_TRUE(named<QCheckBox>(tela, "chkInc_Carteira").isChecked());
        EXPECT_THAT(boxes.shown, ElementsAre(explica));
        clicaCaixa(tela);
        EXPECT_FALSE(named<QCheckBox>(tela, "chkInc_Carteira").isChecked());
        EXPECT_EQ(boxes.shown.size(), 1U);
        QTest::keyClick(&named<QCheckBox>(tela, "chkInc_Carteira"), Qt::Key_Space);
        EXPECT_THAT(boxes.shown, ElementsAre(explica, explica));
    });
}

TEST_F(FrmPesqBoletoTest, ACustomerChosenReloadsTheListsAndKeepsTheRest) {
    comATela([&](QWidget& tela) {
        encontra(tela, linha("1"));
        pick(tela, "cboFilial", sul);
        type(tela, "txtNr_Bol_Banc", "77");
        escolheCliente(tela);
        EXPECT_EQ(mostrado(tela, "txtCliente"), "ANA <b>");
        EXPECT_EQ(codigoDoCliente(tela), "0071");
        EXPECT_THAT(server.queries(),
                    ElementsAre(testing::HasSubstr("Sel_Cliente"), pedeFiliais, pedeCarteiras));
        EXPECT_EQ(lista(tela, "cboFilial").currentIndex(), 0);
        EXPECT_EQ(lista(tela, "cboCartCob").currentIndex(), 0);
        EXPECT_EQ(grid::rows(grade(tela)), 1);
        EXPECT_EQ(mostrado(tela, "txtDtEmsDe"), "01/02/2012");
        EXPECT_EQ(mostrado(tela, "txtNr_Bol_Banc"), "77");
        server.addresses.clear();
        pick(tela, "cboFilial", sul);
        click(tela, "cmdLimpar");
        EXPECT_EQ(mostrado(tela, "txtCliente"), "");
        EXPECT_EQ(codigoDoCliente(tela), "");
        EXPECT_EQ(lista(tela, "cboFilial").currentIndex(), sul);
        EXPECT_EQ(mostrado(tela, "txtDtEmsDe"), "01/02/2012");
        EXPECT_THAT(server.addresses, IsEmpty());
    });
}

TEST_F(FrmPesqBoletoTest, AMessageIsNoActivation) {
    comATela([&](QWidget& tela) {
        server.addresses.clear();
        click(tela, "cmdPesquisar");
        EXPECT_EQ(boxes.shown.size(), 1U);
        EXPECT_THAT(server.addresses, IsEmpty());
    });
}

TEST_F(FrmPesqBoletoTest, TheChoiceReachesTheBillSearchToo) {
    comATela([&](QWidget& tela) { escolheCliente(tela); });
    modals.then("FrmPesqDupli", [&](QWidget& tela) {
        EXPECT_EQ(mostrado(tela, "txtCliente"), "ANA <b>");
        EXPECT_EQ(codigoDoCliente(tela), "0071");
        click(tela, "cmdVoltar");
    });
    choose(menu, "mnuDuplicata");
    comATela([&](QWidget& tela) {
        EXPECT_EQ(mostrado(tela, "txtCliente"), "") << "it was unloaded when it closed";
    });
}

TEST_F(FrmPesqBoletoTest, AChoiceInTheBillSearchWaitsHere) {
    modals.then("FrmPesqDupli", [&](QWidget& tela) {
        escolheCliente(tela);
        click(tela, "cmdVoltar");
    });
    choose(menu, "mnuDuplicata");
    server.addresses.clear();
    comATela([&](QWidget& tela) {
        EXPECT_EQ(mostrado(tela, "txtCliente"), "ANA <b>");
        EXPECT_THAT(server.queries(), ElementsAre(pedeFiliais, pedeCarteiras));
    });
}

TEST_F(FrmPesqBoletoTest, FailedListsLoseWhatTheyHeldOnTheNextActivation) {
    comATela([&](QWidget& tela) {
        encontra(tela, linha("1"));
        grid::click(grade(tela), 1, 1);
        server.failOn("sel_filiais&ID_EMP_TARN=2161").failOn("sel_carteira&ID_EMP_TARN=2161");
        modals.then("FrmPesqCliente", [](QWidget& dialogo) { key(dialogo, Qt::Key_Escape); });
        click(tela, "cmdPesqCli");
        EXPECT_THAT(boxes.shown, ElementsAre(falhaLarga(), falhaLarga()));
        EXPECT_THAT(itens(lista(tela, "cboFilial")), ElementsAre("<-TODAS->=0"));
        EXPECT_THAT(itens(lista(tela, "cboCartCob")), ElementsAre("--------=0"));
        EXPECT_THAT(grid::ticks(grade(tela)), ElementsAre(true));
        boxes.shown.clear();
        click(tela, "cmdPesquisar");
        EXPECT_THAT(boxes.shown, ElementsAre(faltaCarteira));
    });
}

TEST_F(FrmPesqBoletoTest, TheDeskIsActivatedOnceAlsoBehindTheCustomerDialog) {
    comATela([&](QWidget& tela) {
        escolheCliente(tela);
        server.addresses.clear();
    });
    EXPECT_THAT(server.queries(), ElementsAre(pedeDaMesa));
}

TEST_F(FrmPesqBoletoTest, LongTextsAndMarkupAreShownAsTheyAre) {
    const std::string longo = "<b>A&B</b> " + std::string(3000, 'W');
    const std::string noXml = "&lt;b>A&amp;B&lt;/b> " + std::string(3000, 'W');
    server.on("sel_carteira&ID_EMP_TARN=2161",
              answers::rowset("<z:row DC_CRT_COB='" + noXml + "' ID_CRT_COB='5'/>"));
    comATela([&](QWidget& tela) {
        const QSize menor = tela.minimumSizeHint();
        encontra(tela, "<z:row SG_FIL='" + noXml + "' NM_CLI_ETB='" + noXml + "'/>");
        server.on("Sel_Cliente",
                  answers::rowset("<z:row NM_PES_CPL='" + noXml + "' ID_PES_CLI='1'/>"));
        modals.then("FrmPesqCliente", [](QWidget& dialogo) {
            type(dialogo, "txtNmCli", "ana");
            click(dialogo, "cmdPesquisar");
            click(dialogo, "cmdSelecionar");
        });
        click(tela, "cmdPesqCli");
        EXPECT_EQ(lista(tela, "cboCartCob").itemText(1).toStdString(), longo);
        EXPECT_EQ(mostrado(tela, "txtCliente"), longo);
        EXPECT_EQ(named<QLineEdit>(tela, "txtCliente").cursorPosition(), 0) << "its head shows";
        EXPECT_EQ(grid::cell(grade(tela), 1, 6), longo);
        EXPECT_EQ(tela.minimumSizeHint(), menor);
    });
}

// A branch's short name has up to 12 characters.
TEST_F(FrmPesqBoletoTest, TheWidestShortNameOfABranchIsReadWhole) {
    comATela([&](QWidget& tela) {
        encontra(tela, "<z:row SG_FIL='GUARATINGUET' DT_VNC_DOC_FMA='10/04/2012'/>");
        QTableView& dados = grade(tela);
        for (const int coluna : {2, 3}) {
            const QModelIndex celula = dados.model()->index(0, coluna - 1);
            EXPECT_GE(dados.columnWidth(coluna - 1), dados.sizeHintForIndex(celula).width())
                << coluna;
        }
    });
}

TEST_F(FrmPesqBoletoTest, TwentyThousandDocumentsAreShownAndTicked) {
    comATela([&](QWidget& tela) {
        std::string linhas;
        for (int i = 1; i <= 20000; ++i) {
            linhas += linha(std::to_string(i));
        }
        encontra(tela, linhas);
        grid::clickHeading(grade(tela), 1);
        EXPECT_THAT(grid::ticks(grade(tela)), testing::Each(true));
        grid::click(grade(tela), 20000, 1);
        EXPECT_FALSE(grid::ticks(grade(tela)).back());
        EXPECT_EQ(grid::cell(grade(tela), 20000, 5), "20000");
    });
}

}  // namespace
}  // namespace tarn
