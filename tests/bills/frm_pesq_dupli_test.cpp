// Opening, fields, search and grid of FrmPesqDupli.
#include <QCloseEvent>
#include <QFile>
#include <QImageReader>
#include <QTemporaryDir>
#include <QTimer>

#include "tests/bills/bill_screen_test.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FrmPesqDupliTest : public TelaDeDuplicatas {
protected:
    static constexpr char falhou[] =
        "ERRO Tarn0009 - Não foi possível obter os dados da Internet. Verifique a conexão com a "
        "Internet.";

    // Searches for all bills that fall due up to 31/12/2012.
    void pesquisa(QWidget& tela, int tipo = duplicata) {
        escolhe(tela, "cboTpDocto", tipo);
        type(tela, "txtDtVncAte", "31122012");
        click(tela, "cmdPesquisar");
    }
    void acha(int quantas) {
        std::string linhas;
        for (int i = 1; i <= quantas; ++i) {
            linhas += "<z:row NR_DOC='" + std::to_string(i) + "' ID_TIP_DOC='1'/>";
        }
        server.on("sel_duplicata", answers::rowset(linhas));
    }
    void gravaFigura(const QString& arquivo) const {
        QImage figura(96, 48, QImage::Format_RGB32);
        figura.fill(Qt::red);
        ASSERT_TRUE(figura.save(arquivo, "JPG"));
    }
    static bool mostra(const QWidget& tela, const char* figura) {
        const auto& rotulo = named<QLabel>(tela, figura);
        return rotulo.isVisible() && !rotulo.pixmap(Qt::ReturnByValue).isNull();
    }
    static std::vector<std::string> itens(const QWidget& tela, const char* lista) {
        const auto& combo = named<QComboBox>(tela, lista);
        std::vector<std::string> todos;
        for (int i = 0; i < combo.count(); ++i) {
            todos.push_back(combo.itemText(i).toStdString() + "=" +
                            combo.itemData(i).toString().toStdString());
        }
        return todos;
    }
    static int posicao(const QWidget& tela, const char* lista) {
        return named<QComboBox>(tela, lista).currentIndex();
    }
};

TEST_F(FrmPesqDupliTest, OpensWithItsLists) {
    comATela([&](QWidget& tela) {
        EXPECT_THAT(server.queries(), ElementsAre(pedeFiliais)) << "no right is asked";
        EXPECT_TRUE(tela.isModal());
        EXPECT_THAT(itens(tela, "cboFilial"), ElementsAre("<-TODAS->=0", "MATRIZ=9", "SUL=12"));
        EXPECT_THAT(itens(tela, "cboTpDocto"),
                    ElementsAre("-------------=0", "DUPLICATA=1", "RECIBO=12"));
        EXPECT_EQ(posicao(tela, "cboFilial"), 0);
        EXPECT_EQ(posicao(tela, "cboTpDocto"), 0);
        EXPECT_EQ(linhas(tela), 0);
    });
    EXPECT_THAT(server.queries(), ElementsAre(pedeFiliais, pedeDaMesa));
    EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(FrmPesqDupliTest, SaysWhatItsFieldsAre) {
    comATela([&](QWidget& tela) {
        EXPECT_EQ(tela.windowTitle(), QStringLiteral(" Duplicata/Recibo"));
        const std::pair<const char*, const char*> legendas[] = {
            {"lblTitulo", " Pesquisa de Documentos"},
            {"lblCliente", "Cliente"},
            {"lblFilial", "Filial"},
            {"lblTpDocto", "Tipo Docto"},
            {"lblEmissao", "Data Emissão:"},
            {"lblEmsDe", "De"},
            {"lblEmsAte", "Até"},
            {"lblVencimento", "Data Vencto:"},
            {"lblVncDe", "De"},
            {"lblVncAte", "Até"}};
        for (const auto& [nome, legenda] : legendas) {
            EXPECT_EQ(named<QLabel>(tela, nome).text().toStdString(), legenda);
        }
        EXPECT_EQ(named<QRadioButton>(tela, "optDupl").text(), QStringLiteral("Duplicata"));
        EXPECT_EQ(named<QRadioButton>(tela, "optTripl").text(), QStringLiteral("Triplicata"));
        EXPECT_TRUE(named<QRadioButton>(tela, "optDupl").isChecked());
        EXPECT_TRUE(named<QLineEdit>(tela, "txtCliente").isReadOnly());
        EXPECT_FALSE(named<QLineEdit>(tela, "txtSlip").isVisible());
        for (const char* nome :
             {"cmdPesqCli", "cmdLimpar", "cmdPesquisar", "cmdImprimir", "cmdVoltar"}) {
            EXPECT_FALSE(named<QPushButton>(tela, nome).toolTip().isEmpty()) << nome;
            EXPECT_FALSE(named<QPushButton>(tela, nome).icon().isNull()) << nome;
        }
        for (const char* nome : {"cmdPesqCli", "cmdLimpar"}) {
            EXPECT_FALSE(named<QPushButton>(tela, nome).accessibleName().isEmpty()) << nome;
        }
    });
}

TEST_F(FrmPesqDupliTest, TheGridHasItsHeadings) {
    comATela([&](QWidget& tela) {
        const auto& grade = named<QTableView>(tela, "sprDados");
        std::vector<std::string> titulos;
        std::vector<int> guardadas;
        for (int coluna = 0; coluna < grade.model()->columnCount(); ++coluna) {
            titulos.push_back(
                grade.model()->headerData(coluna, Qt::Horizontal).toString().toStdString());
            if (grade.isColumnHidden(coluna)) {
                guardadas.push_back(coluna + 1);
            }
        }
        EXPECT_THAT(
            titulos,
            ElementsAre("", "Filial", "Dt.de Vencimento", "Dt.de Emissão", "Nº do Documento",
                        "Cliente", "Endereço", "Vlr.do Documento", "CEP", "Município", "Filial",
                        "CNPJ / CPF", "I.E.", "TP_PES", "TP_DOCTO1", "TP_DOCTO2", "ID_NR_CTL",
                        "IC_REF_REC", "NR_DOC_NF", "Endereço Cobrança", "Município Cobrança",
                        "Estado Cobrança", "CEP Cobrança"));
        EXPECT_THAT(guardadas, ElementsAre(14, 15, 16, 17, 18, 19));
    });
}

TEST_F(FrmPesqDupliTest, TabGoesThroughTheFieldsThenTheButtons) {
    comATela([&](QWidget& tela) {
        EXPECT_EQ(focused(tela), "txtCliente");
        EXPECT_THAT(
            tabOrder(tela, "txtCliente", 15),
            ElementsAre("txtCliente", "cboFilial", "cboTpDocto", "txtDtEmsDe", "txtDtEmsAte",
                        "txtDtVncDe", "txtDtVncAte", "optDupl", "sprDados", "cmdPesquisar",
                        "cmdPesqCli", "cmdLimpar", "cmdImprimir", "cmdVoltar", "txtCliente"));
    });
}

TEST_F(FrmPesqDupliTest, WithoutTheBranchesItOpensWithAllOfThem) {
    ScriptedLoader fora;
    server = fora.failOn("sel_filiais").on("sel_dados_empresa", answers::branch("F"));
    comATela([&](QWidget& tela) {
        EXPECT_THAT(itens(tela, "cboFilial"), ElementsAre("<-TODAS->=0"));
        EXPECT_THAT(itens(tela, "cboTpDocto"), testing::SizeIs(3));
    });
    EXPECT_THAT(boxes.shown,
                ElementsAre(critica("ERRO    Tarn0009 - Não foi possível obter os dados da "
                                    "Internet. Verifique a conexão com a Internet.")));
}

TEST_F(FrmPesqDupliTest, BranchesAsTheyCome) {
    server = ScriptedLoader();
    server.on("sel_dados_empresa", answers::branch("F"))
        .on("sel_filiais", answers::rowset("<z:row SG_FIL=' &lt;b>A '/>"
                                           "<z:row ID_ETB_TARN=' 007 '/>"
                                           "<z:row SG_FIL='B' ID_ETB_TARN='x'/>"
                                           "<z:row SG_FIL='C' ID_ETB_TARN='99999999999'/>"));
    comATela([&](QWidget& tela) {
        EXPECT_THAT(itens(tela, "cboFilial"),
                    ElementsAre("<-TODAS->=0", " <b>A =0", "=7", "B=0", "C=0"));
    });
}

TEST_F(FrmPesqDupliTest, TheSearchWantsAKindThenADueDate) {
    acha(1);
    comATela([&](QWidget& tela) {
        server.addresses.clear();
        click(tela, "cmdPesquisar");
        EXPECT_EQ(focused(tela), "cboTpDocto");
        type(tela, "txtDtVncAte", "31122012");
        click(tela, "cmdPesquisar");
        EXPECT_EQ(focused(tela), "cboTpDocto");
        escolhe(tela, "cboTpDocto", duplicata);
        type(tela, "txtDtVncAte", "");
        key(tela, Qt::Key_Backspace);
        click(tela, "cmdPesquisar");
        EXPECT_EQ(focused(tela), "txtDtVncAte");
        EXPECT_EQ(posicao(tela, "cboTpDocto"), duplicata) << "a box is no activation";
        EXPECT_THAT(server.addresses, IsEmpty());
    });
    EXPECT_THAT(boxes.shown, ElementsAre(informa("Tipo de Documento Obrigatório.     "),
                                         informa("Tipo de Documento Obrigatório.     "),
                                         informa("Data de Vencimento Obrigatória.     ")));
}

TEST_F(FrmPesqDupliTest, ASearchForAll) {
    acha(2);
    comATela([&](QWidget& tela) {
        server.addresses.clear();
        pesquisa(tela);
        pesquisa(tela, recibo);
        EXPECT_THAT(
            server.queries(),
            ElementsAre("comando=sel_duplicata&ID_EMP_TARN=1361"
                        "&ID_TIP_DOC=1,201,202,203,262,341,342,361&ID_PES_CLI=&ID_ETB_TARN="
                        "&DT_VNC_DE=&DT_VNC_ATE=31/12/2012&DT_EMS_DE=&DT_EMS_ATE=&ID_PES_USU=77"
                        "&ServerName=SRV1",
                        "comando=sel_duplicata&ID_EMP_TARN=1361&ID_TIP_DOC=12&ID_PES_CLI="
                        "&ID_ETB_TARN=&DT_VNC_DE=&DT_VNC_ATE=31/12/2012&DT_EMS_DE=&DT_EMS_ATE="
                        "&ID_PES_USU=77&ServerName=SRV1"));
        EXPECT_EQ(linhas(tela), 2);
        EXPECT_EQ(celula(tela, 2, 5), "2");
        EXPECT_FALSE(marcada(tela, 1) || marcada(tela, 2));
    });
    EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(FrmPesqDupliTest, ASearchWithEverything) {
    acha(1);
    server.on("Sel_Cliente",
              answers::rowset("<z:row NM_PES_CPL='ANA &lt;b>&amp; CIA' ID_PES_CLI='0071'/>"));
    comATela([&](QWidget& tela) {
        comOsClientes(tela, [](QWidget& dialogo) {
            type(dialogo, "txtNmCli", "ana");
            click(dialogo, "cmdPesquisar");
            click(dialogo, "cmdSelecionar");
        });
        EXPECT_EQ(mostrado(tela, "txtCliente"), "ANA <b>& CIA");
        server.addresses.clear();
        escolhe(tela, "cboFilial", 2);
        escolhe(tela, "cboTpDocto", duplicata);
        type(tela, "txtDtEmsDe", "01012012");
        type(tela, "txtDtEmsAte", "3101");
        type(tela, "txtDtVncDe", "5");
        type(tela, "txtDtVncAte", "311212");
        click(tela, "cmdPesquisar");
        EXPECT_THAT(server.queries(),
                    ElementsAre("comando=sel_duplicata&ID_EMP_TARN=1361"
                                "&ID_TIP_DOC=1,201,202,203,262,341,342,361&ID_PES_CLI=0071"
                                "&ID_ETB_TARN=12&DT_VNC_DE=05/03/2012&DT_VNC_ATE=31/12/2012"
                                "&DT_EMS_DE=01/01/2012&DT_EMS_ATE=31/01/2012&ID_PES_USU=77"
                                "&ServerName=SRV1"));
    });
}

TEST_F(FrmPesqDupliTest, DateFieldsFilterAndEnterIsATabStroke) {
    comATela([&](QWidget& tela) {
        type(tela, "txtDtEmsDe", "1a5/03");
        EXPECT_EQ(mostrado(tela, "txtDtEmsDe"), "1503");
        EXPECT_EQ(machine.beeps, 2);
        key(tela, Qt::Key_Return);
        EXPECT_EQ(focused(tela), "txtDtEmsAte");
        EXPECT_EQ(mostrado(tela, "txtDtEmsDe"), "15/03/2012");
        EXPECT_EQ(machine.beeps, 3);
    });
}

// The focus goes along with an access key, and so the date being typed is finished.
TEST_F(FrmPesqDupliTest, AnAccessKeyFinishesTheDate) {
    comATela([&](QWidget& tela) {
        server.on("sel_duplicata", answers::rowset(""));
        escolhe(tela, "cboTpDocto", recibo);
        type(tela, "txtDtVncAte", "31032012");
        type(tela, "txtDtVncDe", "1");
        server.addresses.clear();
        QTest::keyClick(tela.focusWidget(), Qt::Key_P, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !server.addresses.empty(); }));
        EXPECT_THAT(server.queries().at(0), testing::HasSubstr("&DT_VNC_DE=01/03/2012&"));
        EXPECT_EQ(focused(tela), "cmdPesquisar");
    });
}

TEST_F(FrmPesqDupliTest, EnterLeavesTheCustomersNameInSilence) {
    comATela([&](QWidget& tela) {
        named<QLineEdit>(tela, "txtCliente").setFocus();
        key(tela, Qt::Key_Return);
        EXPECT_EQ(focused(tela), "cboFilial");
        EXPECT_EQ(machine.beeps, 0);
    });
}

// A branch's short name has up to 12 characters.
TEST_F(FrmPesqDupliTest, TheWidestShortNameOfABranchIsReadWhole) {
    comATela([&](QWidget& tela) {
        server.on("sel_duplicata", answers::rowset("<z:row SG_FIL='GUARATINGUET'/>"));
        escolhe(tela, "cboTpDocto", recibo);
        type(tela, "txtDtVncAte", "31032012");
        click(tela, "cmdPesquisar");
        const auto& grade = named<QTableView>(tela, "sprDados");
        ASSERT_EQ(linhas(tela), 1);
        EXPECT_GE(grade.columnWidth(1), grade.sizeHintForIndex(grade.model()->index(0, 1)).width());
    });
}

TEST_F(FrmPesqDupliTest, EnterPressesOnlyAButtonThatHasTheFocus) {
    acha(3);
    comATela([&](QWidget& tela) {
        escolhe(tela, "cboTpDocto", duplicata);
        type(tela, "txtDtVncAte", "31122012");
        server.addresses.clear();
        for (const char* nome : {"txtCliente", "cboFilial", "cboTpDocto", "sprDados", "optDupl"}) {
            named<QWidget>(tela, nome).setFocus();
            key(tela, Qt::Key_Return);
        }
        EXPECT_THAT(server.addresses, IsEmpty());
        EXPECT_TRUE(tela.isVisible());
        named<QWidget>(tela, "cmdPesquisar").setFocus();
        key(tela, Qt::Key_Return);
        EXPECT_EQ(server.addresses.size(), 1U);
    });
    EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(FrmPesqDupliTest, ReceiptsHideTheKindOfBillUntilTheNextSearchForBills) {
    acha(1);
    comATela([&](QWidget& tela) {
        const auto visiveis = [&tela] {
            return named<QWidget>(tela, "optDupl").isVisible() &&
                   named<QWidget>(tela, "optTripl").isVisible();
        };
        const auto escondidas = [&tela] {
            return !named<QWidget>(tela, "optDupl").isVisible() &&
                   !named<QWidget>(tela, "optTripl").isVisible();
        };
        EXPECT_TRUE(visiveis());
        click(tela, "optTripl");
        pesquisa(tela, recibo);
        EXPECT_TRUE(escondidas());
        escolhe(tela, "cboTpDocto", duplicata);
        EXPECT_TRUE(escondidas()) << "the choice alone changes nothing";
        pesquisa(tela, duplicata);
        EXPECT_TRUE(visiveis());
        EXPECT_TRUE(named<QRadioButton>(tela, "optTripl").isChecked()) << "its value stays";
    });
}

TEST_F(FrmPesqDupliTest, AFailedSearchLeavesTheGrid) {
    acha(2);
    server.failOn("sel_duplicata&ID_EMP_TARN=1361&ID_TIP_DOC=12&");
    comATela([&](QWidget& tela) {
        pesquisa(tela);
        clicaCelula(tela, 2, 1);
        pesquisa(tela, recibo);
        EXPECT_EQ(linhas(tela), 2);
        EXPECT_TRUE(marcada(tela, 2));
        EXPECT_FALSE(named<QWidget>(tela, "optDupl").isVisible());
    });
    EXPECT_THAT(boxes.shown, ElementsAre(critica(falhou)));
}

TEST_F(FrmPesqDupliTest, NothingFoundEmptiesTheGridInSilence) {
    acha(2);
    server.on("sel_duplicata", answers::rowset(""))
        .on("sel_duplicata", answers::rowset("<z:row/>"));
    server.on("sel_duplicata", "<?xml version='1.0'?><xml/>");
    comATela([&](QWidget& tela) {
        for (const int esperadas : {2, 0, 1, 0}) {
            pesquisa(tela);
            EXPECT_EQ(linhas(tela), esperadas);
        }
    });
    EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(FrmPesqDupliTest, TicksByMouseKeyAndHeading) {
    acha(3);
    comATela([&](QWidget& tela) {
        clicaCabecalho(tela, 1);
        pesquisa(tela);
        clicaCelula(tela, 1, 1);
        EXPECT_TRUE(marcada(tela, 1));
        clicaCabecalho(tela, 1);
        EXPECT_TRUE(marcada(tela, 1) && marcada(tela, 2) && marcada(tela, 3));
        clicaCelula(tela, 2, 4);
        QTest::keyClick(&named<QTableView>(tela, "sprDados"), Qt::Key_Space);
        EXPECT_FALSE(marcada(tela, 2));
        clicaCabecalho(tela, 2);
        EXPECT_TRUE(marcada(tela, 1)) << "another heading";
        clicaCabecalho(tela, 1);
        EXPECT_FALSE(marcada(tela, 1) || marcada(tela, 2) || marcada(tela, 3));
    });
}

TEST_F(FrmPesqDupliTest, LimparEmptiesTheCustomerAlone) {
    acha(1);
    server.on("Sel_Cliente", answers::rowset("<z:row NM_PES_CPL='ANA' ID_PES_CLI='71'/>"));
    comATela([&](QWidget& tela) {
        comOsClientes(tela, [](QWidget& dialogo) {
            type(dialogo, "txtNmCli", "ana");
            click(dialogo, "cmdPesquisar");
            click(dialogo, "cmdSelecionar");
        });
        escolhe(tela, "cboFilial", 1);
        pesquisa(tela);
        server.addresses.clear();
        click(tela, "cmdLimpar");
        EXPECT_EQ(mostrado(tela, "txtCliente"), "");
        EXPECT_EQ(named<QLineEdit>(tela, "txtCliente").property("Tag").toString(), QString());
        EXPECT_EQ(posicao(tela, "cboFilial"), 1);
        EXPECT_EQ(posicao(tela, "cboTpDocto"), duplicata);
        EXPECT_EQ(mostrado(tela, "txtDtVncAte"), "31/12/2012");
        EXPECT_EQ(linhas(tela), 1);
        EXPECT_THAT(server.addresses, IsEmpty());
        click(tela, "cmdPesquisar");
        EXPECT_NE(server.queries().back().find("&ID_PES_CLI=&"), std::string::npos);
    });
}

TEST_F(FrmPesqDupliTest, TheCustomerDialogActivatesTheScreenAgain) {
    acha(2);
    comATela([&](QWidget& tela) {
        escolhe(tela, "cboFilial", 1);
        pesquisa(tela);
        clicaCelula(tela, 1, 1);
        server.addresses.clear();
        comOsClientes(tela, [](QWidget& dialogo) { click(dialogo, "cmdVoltar"); });
        EXPECT_THAT(server.queries(), ElementsAre(pedeFiliais));
        EXPECT_EQ(posicao(tela, "cboFilial"), 0) << "the choices are lost";
        EXPECT_EQ(posicao(tela, "cboTpDocto"), 0);
        EXPECT_EQ(mostrado(tela, "txtDtVncAte"), "31/12/2012");
        EXPECT_EQ(linhas(tela), 2);
        EXPECT_TRUE(marcada(tela, 1));
    });
}

TEST_F(FrmPesqDupliTest, PicturesAreReadOnEachActivation) {
    const QTemporaryDir pasta;
    ambiente.pastaFiguras = pasta.path().toStdString();
    gravaFigura(pasta.filePath(QStringLiteral("VERTDUPL.jpg")));
    comATela([&](QWidget& tela) {
        EXPECT_TRUE(mostra(tela, "picVert"));
        EXPECT_FALSE(mostra(tela, "picLogo") || mostra(tela, "picAss"));
        gravaFigura(pasta.filePath(QStringLiteral("LOGODUPL.jpg")));
        gravaFigura(pasta.filePath(QStringLiteral("ASSEMITENTE.jpg")));
        QFile::remove(pasta.filePath(QStringLiteral("VERTDUPL.jpg")));
        EXPECT_TRUE(mostra(tela, "picVert")) << "until then as they were";
        comOsClientes(tela, [](QWidget& dialogo) { click(dialogo, "cmdVoltar"); });
        EXPECT_TRUE(mostra(tela, "picLogo") && mostra(tela, "picAss"));
        EXPECT_FALSE(mostra(tela, "picVert"));
    });
    EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(FrmPesqDupliTest, EachWayOutUnloadsIt) {
    acha(1);
    const std::function<void(QWidget&)> saidas[] = {
        [](QWidget& tela) { click(tela, "cmdVoltar"); },
        [](QWidget& tela) { key(tela, Qt::Key_Escape); }, [](QWidget& tela) { tela.close(); }};
    for (const auto& sai : saidas) {
        comATela([&](QWidget& tela) {
            EXPECT_EQ(linhas(tela), 0);
            EXPECT_TRUE(named<QRadioButton>(tela, "optDupl").isChecked());
            EXPECT_EQ(mostrado(tela, "txtDtVncAte"), "");
            click(tela, "optTripl");
            pesquisa(tela);
            server.addresses.clear();
            sai(tela);
            EXPECT_FALSE(tela.isVisible());
        });
        EXPECT_THAT(server.queries(), ElementsAre(pedeDaMesa));
    }
    EXPECT_FALSE(fim.encerrado());
}

TEST_F(FrmPesqDupliTest, WhatIsPressedDuringARequestIsLost) {
    acha(3);
    comATela([&](QWidget& tela) {
        escolhe(tela, "cboTpDocto", duplicata);
        type(tela, "txtDtVncAte", "31122012");
        server.addresses.clear();
        QTimer::singleShot(0, &tela, [&tela] {
            for (const int tecla : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space}) {
                QCoreApplication::postEvent(&named<QWidget>(tela, "cmdPesquisar"),
                                            new QKeyEvent(QEvent::KeyPress, tecla, Qt::NoModifier));
                QCoreApplication::postEvent(&tela,
                                            new QKeyEvent(QEvent::KeyPress, tecla, Qt::NoModifier));
            }
            QCoreApplication::postEvent(&tela, new QCloseEvent);
        });
        click(tela, "cmdPesquisar");
        QCoreApplication::processEvents();
        EXPECT_TRUE(tela.isVisible());
        EXPECT_EQ(linhas(tela), 3);
        EXPECT_EQ(server.addresses.size(), 1U);
    });
}

// Decoded whole, a scan of a sheet takes more memory than the toolkit allows a picture.
TEST_F(FrmPesqDupliTest, APictureOfVeryManyDotsIsShownToo) {
    const QTemporaryDir pasta;
    ambiente.pastaFiguras = pasta.path().toStdString();
    QImage folha(800, 600, QImage::Format_RGB32);
    folha.fill(Qt::red);
    ASSERT_TRUE(folha.save(pasta.filePath(QStringLiteral("LOGODUPL.jpg")), "JPG"));
    QFile quebrada(pasta.filePath(QStringLiteral("VERTDUPL.jpg")));
    ASSERT_TRUE(quebrada.open(QIODevice::WriteOnly) && quebrada.write("lixo") > 0);
    quebrada.close();
    constexpr int megabyte = 1;
    const int usual = QImageReader::allocationLimit();
    QImageReader::setAllocationLimit(megabyte);
    comATela([&](QWidget& tela) {
        EXPECT_TRUE(mostra(tela, "picLogo"));
        EXPECT_FALSE(mostra(tela, "picVert")) << "no picture";
    });
    QImageReader::setAllocationLimit(usual);
    EXPECT_THAT(boxes.shown, IsEmpty());
}

}  // namespace
}  // namespace tarn
