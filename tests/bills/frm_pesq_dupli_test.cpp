// Opening, fields, search and grid of FrmPesqDupli.
#include <gmock/gmock.h>

#include <QAccessible>
#include <QCloseEvent>
#include <QFile>
#include <QImageReader>
#include <QTemporaryDir>
#include <QTimer>

#include "tests/bills/bill_screen_test.h"
#include "tests/support/boxes.h"
#include "tests/support/entering.h"
#include "tests/support/grid.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

class FrmPesqDupliTest : public BillScreenTest {
protected:
    // Searches for all bills that fall due up to 31/12/2012.
    void search(QWidget& screen, int kind = bill) {
        pickFrom(screen, "cboTpDocto", kind);
        type(screen, "txtDtVncAte", "31122012");
        click(screen, "cmdPesquisar");
    }
    void findBill(int count) {
        std::string lines;
        for (int i = 1; i <= count; ++i) {
            lines += "<z:row NR_DOC='" + std::to_string(i) + "' ID_TIP_DOC='1'/>";
        }
        server.on("sel_duplicata", answers::rowset(lines));
    }
    void savePicture(const QString& file) const {
        QImage picture(96, 48, QImage::Format_RGB32);
        picture.fill(Qt::red);
        ASSERT_TRUE(picture.save(file, "JPG"));
    }
    static bool show(const QWidget& screen, const char* picture) {
        const auto& label = named<QLabel>(screen, picture);
        return label.isVisible() && !label.pixmap(Qt::ReturnByValue).isNull();
    }
    static std::vector<std::string> items(const QWidget& screen, const char* list) {
        const auto& combo = named<QComboBox>(screen, list);
        std::vector<std::string> all;
        for (int i = 0; i < combo.count(); ++i) {
            all.push_back(combo.itemText(i).toStdString() + "=" +
                          combo.itemData(i).toString().toStdString());
        }
        return all;
    }
    static int position(const QWidget& screen, const char* list) {
        return named<QComboBox>(screen, list).currentIndex();
    }
};

TEST_F(FrmPesqDupliTest, OpensWithItsLists) {
    withScreen([&](QWidget& screen) {
        EXPECT_EQ(server.queries(), (Texts{branchesQuery})) << "no right is asked";
        EXPECT_TRUE(screen.isModal());
        EXPECT_EQ(items(screen, "cboFilial"), (Texts{"<-TODAS->=0", "MATRIZ=9", "SUL=12"}));
        EXPECT_EQ(items(screen, "cboTpDocto"),
                  (Texts{"-------------=0", "DUPLICATA=1", "RECIBO=12"}));
        EXPECT_EQ(position(screen, "cboFilial"), 0);
        EXPECT_EQ(position(screen, "cboTpDocto"), 0);
        EXPECT_EQ(lines(screen), 0);
    });
    EXPECT_EQ(server.queries(), (Texts{branchesQuery, deskQuery}));
    EXPECT_EQ(boxes.shown, Boxes{});
}

TEST_F(FrmPesqDupliTest, SaysWhatItsFieldsAre) {
    withScreen([&](QWidget& screen) {
        EXPECT_EQ(screen.windowTitle(), QStringLiteral(" Duplicata/Recibo"));
        const std::pair<const char*, const char*> captions[] = {
            {"lblTitulo", " Pesquisa de Documentos"},
            {"lblCliente", "Cliente"},
            {"lblFilial", "Filial"},
            {"lblTpDocto", "Tipo Docto"},
            {"lblIssued", "Data Emissão:"},
            {"lblEmsDe", "De"},
            {"lblEmsAte", "Até"},
            {"lblDue", "Data Vencto:"},
            {"lblVncDe", "De"},
            {"lblVncAte", "Até"}};
        for (const auto& [name, caption] : captions) {
            EXPECT_EQ(named<QLabel>(screen, name).text().toStdString(), caption);
        }
        EXPECT_EQ(named<QRadioButton>(screen, "optDupl").text(), QStringLiteral("Duplicata"));
        EXPECT_EQ(named<QRadioButton>(screen, "optTripl").text(), QStringLiteral("Triplicata"));
        EXPECT_TRUE(named<QRadioButton>(screen, "optDupl").isChecked());
        EXPECT_TRUE(named<QLineEdit>(screen, "txtCliente").isReadOnly());
        EXPECT_FALSE(named<QLineEdit>(screen, "txtSlip").isVisible());
        for (const char* name :
             {"cmdPesqCli", "cmdLimpar", "cmdPesquisar", "cmdImprimir", "cmdVoltar"}) {
            EXPECT_FALSE(named<QPushButton>(screen, name).toolTip().isEmpty()) << name;
            EXPECT_FALSE(named<QPushButton>(screen, name).icon().isNull()) << name;
        }
        for (const char* name : {"cmdPesqCli", "cmdLimpar"}) {
            EXPECT_FALSE(named<QPushButton>(screen, name).accessibleName().isEmpty()) << name;
        }
    });
}

TEST_F(FrmPesqDupliTest, TheGridShowsAllItsColumns) {
    withScreen([&](QWidget& screen) {
        const auto& table = named<QTableView>(screen, "sprDados");
        EXPECT_EQ(grid::headings(table), (Texts{"",
                                                "Filial",
                                                "Dt.de Vencimento",
                                                "Dt.de Emissão",
                                                "Nº do Documento",
                                                "Cliente",
                                                "Endereço",
                                                "Vlr.do Documento",
                                                "CEP",
                                                "Município",
                                                "Filial",
                                                "CNPJ / CPF",
                                                "I.E.",
                                                "TP_PES",
                                                "TP_DOCTO1",
                                                "TP_DOCTO2",
                                                "ID_NR_CTL",
                                                "IC_REF_REC",
                                                "NR_DOC_NF",
                                                "Endereço Cobrança",
                                                "Município Cobrança",
                                                "Estado Cobrança",
                                                "CEP Cobrança"}));
        for (int column = 0; column < table.model()->columnCount(); ++column) {
            EXPECT_FALSE(table.isColumnHidden(column)) << column + 1;
        }
    });
}

TEST_F(FrmPesqDupliTest, TabGoesThroughTheFieldsThenTheButtons) {
    withScreen([&](QWidget& screen) {
        EXPECT_EQ(focused(screen), "cboFilial") << "txtCliente takes no typing";
        EXPECT_EQ(tabOrder(screen, "txtCliente", 15),
                  (Texts{"txtCliente", "cboFilial", "cboTpDocto", "txtDtEmsDe", "txtDtEmsAte",
                         "txtDtVncDe", "txtDtVncAte", "optDupl", "sprDados", "cmdPesquisar",
                         "cmdPesqCli", "cmdLimpar", "cmdImprimir", "cmdVoltar", "txtCliente"}));
    });
}

TEST_F(FrmPesqDupliTest, WithoutTheBranchesItOpensWithAllOfThem) {
    ScriptedLoader outside;
    server = outside.failOn("sel_filiais").on("sel_dados_empresa", answers::branch("F"));
    withScreen([&](QWidget& screen) {
        EXPECT_EQ(items(screen, "cboFilial"), (Texts{"<-TODAS->=0"}));
        EXPECT_THAT(items(screen, "cboTpDocto"), testing::SizeIs(3));
    });
    EXPECT_EQ(boxes.shown, (Boxes{noInternet9Wide}));
}

TEST_F(FrmPesqDupliTest, BranchesAsTheyCome) {
    server = ScriptedLoader();
    server.on("sel_dados_empresa", answers::branch("F"))
        .on("sel_filiais", answers::rowset("<z:row SG_FIL=' &lt;b>A '/>"
                                           "<z:row ID_ETB_TARN=' 007 '/>"
                                           "<z:row SG_FIL='B' ID_ETB_TARN='x'/>"
                                           "<z:row SG_FIL='C' ID_ETB_TARN='99999999999'/>"));
    withScreen([&](QWidget& screen) {
        EXPECT_EQ(items(screen, "cboFilial"),
                  (Texts{"<-TODAS->=0", " <b>A =0", "=7", "B=0", "C=0"}));
    });
}

TEST_F(FrmPesqDupliTest, TheSearchWantsAKindThenADueDate) {
    findBill(1);
    withScreen([&](QWidget& screen) {
        server.addresses.clear();
        click(screen, "cmdPesquisar");
        EXPECT_EQ(focused(screen), "cboTpDocto");
        type(screen, "txtDtVncAte", "31122012");
        click(screen, "cmdPesquisar");
        EXPECT_EQ(focused(screen), "cboTpDocto");
        pickFrom(screen, "cboTpDocto", bill);
        type(screen, "txtDtVncAte", "");
        key(screen, Qt::Key_Backspace);
        click(screen, "cmdPesquisar");
        EXPECT_EQ(focused(screen), "txtDtVncAte");
        EXPECT_EQ(position(screen, "cboTpDocto"), bill) << "a box is no activation";
        EXPECT_EQ(server.addresses, Texts{});
    });
    EXPECT_EQ(boxes.shown, (Boxes{information("Tipo de Documento Obrigatório.     "),
                                  information("Tipo de Documento Obrigatório.     "),
                                  information("Data de Vencimento Obrigatória.     ")}));
}

TEST_F(FrmPesqDupliTest, ASearchForAll) {
    findBill(2);
    withScreen([&](QWidget& screen) {
        server.addresses.clear();
        search(screen);
        search(screen, receipt);
        EXPECT_EQ(server.queries(),
                  (Texts{"comando=sel_duplicata&ID_EMP_TARN=1361"
                         "&ID_TIP_DOC=1,201,202,203,262,341,342,361&ID_PES_CLI=&ID_ETB_TARN="
                         "&DT_VNC_DE=&DT_VNC_ATE=31/12/2012&DT_EMS_DE=&DT_EMS_ATE=&ID_PES_USU=77"
                         "&ServerName=SRV1",
                         "comando=sel_duplicata&ID_EMP_TARN=1361&ID_TIP_DOC=12&ID_PES_CLI="
                         "&ID_ETB_TARN=&DT_VNC_DE=&DT_VNC_ATE=31/12/2012&DT_EMS_DE=&DT_EMS_ATE="
                         "&ID_PES_USU=77&ServerName=SRV1"}));
        EXPECT_EQ(lines(screen), 2);
        EXPECT_EQ(cell(screen, 2, 5), "2");
        EXPECT_FALSE(ticked(screen, 1) || ticked(screen, 2));
    });
    EXPECT_EQ(boxes.shown, Boxes{});
}

TEST_F(FrmPesqDupliTest, ASearchWithEverything) {
    findBill(1);
    server.on("Sel_Cliente",
              answers::rowset("<z:row NM_PES_CPL='ANA &lt;b>&amp; CIA' ID_PES_CLI='0071'/>"));
    withScreen([&](QWidget& screen) {
        withCustomers(screen, [](QWidget& dialog) {
            type(dialog, "txtNmCli", "ana");
            click(dialog, "cmdPesquisar");
            click(dialog, "cmdSelecionar");
        });
        EXPECT_EQ(shown(screen, "txtCliente"), "ANA <b>& CIA");
        server.addresses.clear();
        pickFrom(screen, "cboFilial", 2);
        pickFrom(screen, "cboTpDocto", bill);
        type(screen, "txtDtEmsDe", "01012012");
        type(screen, "txtDtEmsAte", "3101");
        type(screen, "txtDtVncDe", "5");
        type(screen, "txtDtVncAte", "311212");
        click(screen, "cmdPesquisar");
        EXPECT_EQ(server.queries(),
                  (Texts{"comando=sel_duplicata&ID_EMP_TARN=1361"
                         "&ID_TIP_DOC=1,201,202,203,262,341,342,361&ID_PES_CLI=0071"
                         "&ID_ETB_TARN=12&DT_VNC_DE=05/03/2012&DT_VNC_ATE=31/12/2012"
                         "&DT_EMS_DE=01/01/2012&DT_EMS_ATE=31/01/2012&ID_PES_USU=77"
                         "&ServerName=SRV1"}));
    });
}

TEST_F(FrmPesqDupliTest, DateFieldsTakeNumbersOnly) {
    withScreen([&](QWidget& screen) {
        for (const char* name : {"txtDtEmsDe", "txtDtEmsAte", "txtDtVncDe", "txtDtVncAte"}) {
            expectNumbersOnly(screen, name, machine, Comma::Taken);
        }
    });
}

TEST_F(FrmPesqDupliTest, DateFieldsFilterAndEnterIsATabStroke) {
    withScreen([&](QWidget& screen) {
        type(screen, "txtDtEmsDe", "1a5/03");
        EXPECT_EQ(shown(screen, "txtDtEmsDe"), "1503");
        EXPECT_EQ(machine.beeps, 2);
        key(screen, Qt::Key_Return);
        EXPECT_EQ(focused(screen), "txtDtEmsAte");
        EXPECT_EQ(shown(screen, "txtDtEmsDe"), "15/03/2012");
        EXPECT_EQ(machine.beeps, 3);
    });
}

// The focus goes along with an access key, and so the date being typed is finished.
TEST_F(FrmPesqDupliTest, AnAccessKeyFinishesTheDate) {
    withScreen([&](QWidget& screen) {
        server.on("sel_duplicata", answers::rowset(""));
        pickFrom(screen, "cboTpDocto", receipt);
        type(screen, "txtDtVncAte", "31032012");
        type(screen, "txtDtVncDe", "1");
        server.addresses.clear();
        QTest::keyClick(screen.focusWidget(), Qt::Key_P, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !server.addresses.empty(); }));
        EXPECT_THAT(server.queries().at(0), testing::HasSubstr("&DT_VNC_DE=01/03/2012&"));
        EXPECT_EQ(focused(screen), "cmdPesquisar");
    });
}

TEST_F(FrmPesqDupliTest, EnterLeavesTheCustomersNameInSilence) {
    withScreen([&](QWidget& screen) {
        named<QLineEdit>(screen, "txtCliente").setFocus();
        key(screen, Qt::Key_Return);
        EXPECT_EQ(focused(screen), "cboFilial");
        EXPECT_EQ(machine.beeps, 0);
    });
}

// A branch's short name has up to 12 characters.
TEST_F(FrmPesqDupliTest, TheWidestShortNameOfABranchIsReadWhole) {
    withScreen([&](QWidget& screen) {
        server.on("sel_duplicata", answers::rowset("<z:row SG_FIL='GUARATINGUET'/>"));
        pickFrom(screen, "cboTpDocto", receipt);
        type(screen, "txtDtVncAte", "31032012");
        click(screen, "cmdPesquisar");
        const auto& grid = named<QTableView>(screen, "sprDados");
        ASSERT_EQ(lines(screen), 1);
        EXPECT_GE(grid.columnWidth(1), grid.sizeHintForIndex(grid.model()->index(0, 1)).width());
    });
}

TEST_F(FrmPesqDupliTest, EnterPressesOnlyAButtonThatHasTheFocus) {
    findBill(3);
    withScreen([&](QWidget& screen) {
        pickFrom(screen, "cboTpDocto", bill);
        type(screen, "txtDtVncAte", "31122012");
        server.addresses.clear();
        for (const char* name : {"txtCliente", "cboFilial", "cboTpDocto", "sprDados", "optDupl"}) {
            named<QWidget>(screen, name).setFocus();
            key(screen, Qt::Key_Return);
        }
        EXPECT_EQ(server.addresses, Texts{});
        EXPECT_TRUE(screen.isVisible());
        named<QWidget>(screen, "cmdPesquisar").setFocus();
        key(screen, Qt::Key_Return);
        EXPECT_EQ(server.addresses.size(), 1U);
    });
    EXPECT_EQ(boxes.shown, Boxes{});
}

TEST_F(FrmPesqDupliTest, ReceiptsHideTheKindOfBillUntilTheNextSearchForBills) {
    findBill(1);
    withScreen([&](QWidget& screen) {
        const auto visible = [&screen] {
            return named<QWidget>(screen, "optDupl").isVisible() &&
                   named<QWidget>(screen, "optTripl").isVisible();
        };
        const auto hidden = [&screen] {
            return !named<QWidget>(screen, "optDupl").isVisible() &&
                   !named<QWidget>(screen, "optTripl").isVisible();
        };
        EXPECT_TRUE(visible());
        click(screen, "optTripl");
        search(screen, receipt);
        EXPECT_TRUE(hidden());
        pickFrom(screen, "cboTpDocto", bill);
        EXPECT_TRUE(hidden()) << "the choice alone changes nothing";
        search(screen, bill);
        EXPECT_TRUE(visible());
        EXPECT_TRUE(named<QRadioButton>(screen, "optTripl").isChecked()) << "its value stays";
    });
}

TEST_F(FrmPesqDupliTest, AFailedSearchLeavesTheGrid) {
    findBill(2);
    server.failOn("sel_duplicata&ID_EMP_TARN=1361&ID_TIP_DOC=12&");
    withScreen([&](QWidget& screen) {
        search(screen);
        clickCell(screen, 2, 1);
        search(screen, receipt);
        EXPECT_EQ(lines(screen), 2);
        EXPECT_TRUE(ticked(screen, 2));
        EXPECT_FALSE(named<QWidget>(screen, "optDupl").isVisible());
    });
    EXPECT_EQ(boxes.shown, (Boxes{noInternet9}));
}

TEST_F(FrmPesqDupliTest, NothingFoundEmptiesTheGridInSilence) {
    findBill(2);
    server.on("sel_duplicata", answers::rowset(""))
        .on("sel_duplicata", answers::rowset("<z:row/>"));
    server.on("sel_duplicata", "<?xml version='1.0'?><xml/>");
    withScreen([&](QWidget& screen) {
        for (const int expected : {2, 0, 1, 0}) {
            search(screen);
            EXPECT_EQ(lines(screen), expected);
        }
    });
    EXPECT_EQ(boxes.shown, Boxes{});
}

TEST_F(FrmPesqDupliTest, TicksByMouseKeyAndHeading) {
    findBill(3);
    withScreen([&](QWidget& screen) {
        clickHeading(screen, 1);
        search(screen);
        clickCell(screen, 1, 1);
        EXPECT_TRUE(ticked(screen, 1));
        clickHeading(screen, 1);
        EXPECT_TRUE(ticked(screen, 1) && ticked(screen, 2) && ticked(screen, 3));
        clickCell(screen, 2, 4);
        QTest::keyClick(&named<QTableView>(screen, "sprDados"), Qt::Key_Space);
        EXPECT_FALSE(ticked(screen, 2));
        clickHeading(screen, 2);
        EXPECT_TRUE(ticked(screen, 1)) << "another heading";
        clickHeading(screen, 1);
        EXPECT_FALSE(ticked(screen, 1) || ticked(screen, 2) || ticked(screen, 3));
    });
}

TEST_F(FrmPesqDupliTest, CmdLimparEmptiesTheCustomerAlone) {
    findBill(1);
    server.on("Sel_Cliente", answers::rowset("<z:row NM_PES_CPL='ANA' ID_PES_CLI='71'/>"));
    withScreen([&](QWidget& screen) {
        withCustomers(screen, [](QWidget& dialog) {
            type(dialog, "txtNmCli", "ana");
            click(dialog, "cmdPesquisar");
            click(dialog, "cmdSelecionar");
        });
        pickFrom(screen, "cboFilial", 1);
        search(screen);
        server.addresses.clear();
        click(screen, "cmdLimpar");
        EXPECT_EQ(shown(screen, "txtCliente"), "");
        EXPECT_EQ(named<QLineEdit>(screen, "txtCliente").property("Tag").toString(), QString());
        EXPECT_EQ(position(screen, "cboFilial"), 1);
        EXPECT_EQ(position(screen, "cboTpDocto"), bill);
        EXPECT_EQ(shown(screen, "txtDtVncAte"), "31/12/2012");
        EXPECT_EQ(lines(screen), 1);
        EXPECT_EQ(server.addresses, Texts{});
        click(screen, "cmdPesquisar");
        EXPECT_NE(server.queries().back().find("&ID_PES_CLI=&"), std::string::npos);
    });
}

TEST_F(FrmPesqDupliTest, TheCustomerDialogActivatesTheScreenAgain) {
    findBill(2);
    withScreen([&](QWidget& screen) {
        pickFrom(screen, "cboFilial", 1);
        search(screen);
        clickCell(screen, 1, 1);
        server.addresses.clear();
        withCustomers(screen, [](QWidget& dialog) { click(dialog, "cmdVoltar"); });
        EXPECT_EQ(server.queries(), (Texts{branchesQuery}));
        EXPECT_EQ(position(screen, "cboFilial"), 0) << "the choices are lost";
        EXPECT_EQ(position(screen, "cboTpDocto"), 0);
        EXPECT_EQ(shown(screen, "txtDtVncAte"), "31/12/2012");
        EXPECT_EQ(lines(screen), 2);
        EXPECT_TRUE(ticked(screen, 1));
    });
}

TEST_F(FrmPesqDupliTest, PicturesAreReadOnEachActivation) {
    const QTemporaryDir folder;
    environment.pictureFolder = folder.path().toStdString();
    savePicture(folder.filePath(QStringLiteral("VERTDUPL.jpg")));
    withScreen([&](QWidget& screen) {
        EXPECT_TRUE(show(screen, "picVert"));
        EXPECT_FALSE(show(screen, "picLogo") || show(screen, "picAss"));
        savePicture(folder.filePath(QStringLiteral("LOGODUPL.jpg")));
        savePicture(folder.filePath(QStringLiteral("ASSEMITENTE.jpg")));
        QFile::remove(folder.filePath(QStringLiteral("VERTDUPL.jpg")));
        EXPECT_TRUE(show(screen, "picVert")) << "until then as they were";
        withCustomers(screen, [](QWidget& dialog) { click(dialog, "cmdVoltar"); });
        EXPECT_TRUE(show(screen, "picLogo") && show(screen, "picAss"));
        EXPECT_FALSE(show(screen, "picVert"));
    });
    EXPECT_EQ(boxes.shown, Boxes{});
}

TEST_F(FrmPesqDupliTest, EachWayOutUnloadsIt) {
    findBill(1);
    const std::function<void(QWidget&)> ways[] = {
        [](QWidget& screen) { click(screen, "cmdVoltar"); },
        [](QWidget& screen) { screen.close(); }};
    for (const auto& out : ways) {
        withScreen([&](QWidget& screen) {
            EXPECT_EQ(lines(screen), 0);
            EXPECT_TRUE(named<QRadioButton>(screen, "optDupl").isChecked());
            EXPECT_EQ(shown(screen, "txtDtVncAte"), "");
            click(screen, "optTripl");
            search(screen);
            server.addresses.clear();
            out(screen);
            EXPECT_FALSE(screen.isVisible());
        });
        EXPECT_EQ(server.queries(), (Texts{deskQuery}));
    }
    EXPECT_FALSE(end.ended());
}

TEST_F(FrmPesqDupliTest, EscLeavesEverythingAsItIs) {
    findBill(1);
    withScreen([&](QWidget& screen) {
        search(screen);
        key(screen, Qt::Key_Escape);
        EXPECT_TRUE(screen.isVisible());
        EXPECT_EQ(lines(screen), 1);
        click(screen, "cmdVoltar");
    });
}

TEST_F(FrmPesqDupliTest, WhatActsDuringARequestIsLost) {
    findBill(3);
    withScreen([&](QWidget& screen) {
        pickFrom(screen, "cboTpDocto", bill);
        type(screen, "txtDtVncAte", "31122012");
        server.addresses.clear();
        QTimer::singleShot(0, &screen, [&screen] {
            for (const int key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space}) {
                QCoreApplication::postEvent(&named<QWidget>(screen, "cmdPesquisar"),
                                            new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier));
                QCoreApplication::postEvent(&screen,
                                            new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier));
            }
            QCoreApplication::postEvent(&screen, new QCloseEvent);
        });
        click(screen, "cmdPesquisar");
        QCoreApplication::processEvents();
        EXPECT_TRUE(screen.isVisible());
        EXPECT_EQ(lines(screen), 3);
        EXPECT_EQ(server.addresses.size(), 1U);
    });
}

// Decoded whole, a scan of a sheet takes more memory than the toolkit allows a picture.
TEST_F(FrmPesqDupliTest, APictureOfVeryManyDotsIsShownToo) {
    const QTemporaryDir folder;
    environment.pictureFolder = folder.path().toStdString();
    QImage sheet(800, 600, QImage::Format_RGB32);
    sheet.fill(Qt::red);
    ASSERT_TRUE(sheet.save(folder.filePath(QStringLiteral("LOGODUPL.jpg")), "JPG"));
    QFile broken(folder.filePath(QStringLiteral("VERTDUPL.jpg")));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly) && broken.write("lixo") > 0);
    broken.close();
    constexpr int megabyte = 1;
    const int usual = QImageReader::allocationLimit();
    QImageReader::setAllocationLimit(megabyte);
    withScreen([&](QWidget& screen) {
        EXPECT_TRUE(show(screen, "picLogo"));
        EXPECT_FALSE(show(screen, "picVert")) << "no picture";
    });
    QImageReader::setAllocationLimit(usual);
    EXPECT_EQ(boxes.shown, Boxes{});
}

TEST_F(FrmPesqDupliTest, AReaderSpeaksOfWhatAreDatesAndTicks) {
    withScreen([&](QWidget& screen) {
        const auto name = [&screen](const char* field) {
            return QAccessible::queryAccessibleInterface(&named<QWidget>(screen, field))
                ->text(QAccessible::Name)
                .toStdString();
        };
        EXPECT_EQ(name("txtDtEmsDe"), "Data de emissão, de");
        EXPECT_EQ(name("txtDtVncAte"), "Data de vencimento, até");
        EXPECT_EQ(name("count"), "Nenhum documento");
    });
}

}  // namespace
}  // namespace tarn::test
