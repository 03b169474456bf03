// The customer dialog, and its choice on its way into the screen.
#include "customers/frm_pesq_cliente.h"

#include "tests/bills/bill_screen_test.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FrmPesqClienteTest : public TelaDeDuplicatas {
protected:
    // Opens the dialog from the bill search.
    void comODialogo(const std::function<void(QWidget&)>& usa) {
        comATela([&](QWidget& tela) {
            server.addresses.clear();
            comOsClientes(tela, [&](QWidget& dialogo) {
                usa(dialogo);
                if (dialogo.isVisible()) {
                    click(dialogo, "cmdVoltar");
                }
            });
        });
    }
    void achaDois() {
        server.on("Sel_Cliente",
                  answers::rowset("<z:row NM_PES_CPL='ANA &amp; &lt;b>CIA' DC_TIP_EMP='COMÉRCIO' "
                                  "ID_PES_CLI='0071'/>"
                                  "<z:row NM_PES_CPL='ANABELA' ID_PES_CLI='82'/>"));
    }
    void pesquisa(QWidget& dialogo, const char* nome = "ana") {
        type(dialogo, "txtNmCli", nome);
        click(dialogo, "cmdPesquisar");
    }
    static std::string filtro(const std::string& nome) {
        return "Sel_Cliente&id_emp_tarn=1361&Filtro=" + nome;
    }
    // The tag that the search sends.
    std::string codigo(const QWidget& tela) {
        return named<QLineEdit>(tela, "txtCliente").property("Tag").toString().toStdString();
    }
};

TEST_F(FrmPesqClienteTest, SaysWhatItIs) {
    comODialogo([&](QWidget& dialogo) {
        EXPECT_EQ(dialogo.windowTitle(), QStringLiteral("Pesquisa de Clientes"));
        EXPECT_EQ(named<QLabel>(dialogo, "Label1").text(), QStringLiteral("Cliente"));
        const QAbstractItemModel& grade = *named<QTableView>(dialogo, "sprDados").model();
        std::vector<std::string> titulos;
        for (int coluna = 0; coluna < grade.columnCount(); ++coluna) {
            titulos.push_back(grade.headerData(coluna, Qt::Horizontal).toString().toStdString());
        }
        EXPECT_THAT(titulos, ElementsAre("Cliente", "Tipo de Empresa", "ID_PES_CLI", "ID_ETB_CLI"));
        EXPECT_EQ(linhas(dialogo), 0);
        EXPECT_EQ(focused(dialogo), "txtNmCli");
        EXPECT_THAT(
            tabOrder(dialogo, "txtNmCli", 5),
            ElementsAre("txtNmCli", "sprDados", "cmdPesquisar", "cmdSelecionar", "cmdVoltar"));
    });
    EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(FrmPesqClienteTest, AShortNameIsRefusedBeforeAnyRequest) {
    comODialogo([&](QWidget& dialogo) {
        for (const char* nome : {"", "an", "   ", " ab "}) {
            pesquisa(dialogo, nome);
            EXPECT_EQ(focused(dialogo), "txtNmCli");
            EXPECT_EQ(mostrado(dialogo, "txtNmCli"), nome);
        }
        EXPECT_THAT(server.addresses, IsEmpty());
    });
    EXPECT_THAT(boxes.shown, testing::Each(informa(
                                 "Nome do cliente deve ter no mínimo 3 letras.    ", "Aviso")));
    EXPECT_EQ(boxes.shown.size(), 4U);
}

TEST_F(FrmPesqClienteTest, TheNameGoesOutAsTyped) {
    achaDois();
    comODialogo([&](QWidget& dialogo) {
        pesquisa(dialogo, " abc ");
        pesquisa(dialogo, "A&B&");
        EXPECT_THAT(server.queries(),
                    ElementsAre("comando=Sel_Cliente&id_emp_tarn=1361&Filtro= abc &"
                                "ServerName=SRV1",
                                "comando=Sel_Cliente&id_emp_tarn=1361&Filtro=A|B|&"
                                "ServerName=SRV1"));
    });
    EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(FrmPesqClienteTest, ShowsWhatWasFound) {
    achaDois();
    comODialogo([&](QWidget& dialogo) {
        pesquisa(dialogo);
        ASSERT_EQ(linhas(dialogo), 2);
        EXPECT_EQ(celula(dialogo, 1, 1), "ANA & <b>CIA");
        EXPECT_EQ(celula(dialogo, 1, 2), "COMÉRCIO");
        EXPECT_EQ(celula(dialogo, 1, 3), "0071");
        EXPECT_EQ(celula(dialogo, 1, 4), "");
        EXPECT_EQ(celula(dialogo, 2, 2), "") << "absent";
        EXPECT_EQ(focused(dialogo), "cmdPesquisar") << "the focus isn't moved";
    });
}

TEST_F(FrmPesqClienteTest, NothingFoundEmptiesTheGridAndSaysSo) {
    achaDois();
    server.on(filtro("xyz"), answers::rowset("")).on(filtro("uvw"), "<?xml version='1.0'?><xml/>");
    comODialogo([&](QWidget& dialogo) {
        boxes.onShow = [&](const Box&) { EXPECT_EQ(linhas(dialogo), 0) << "the box comes last"; };
        pesquisa(dialogo);
        pesquisa(dialogo, "xyz");
        EXPECT_EQ(linhas(dialogo), 0);
        pesquisa(dialogo);
        pesquisa(dialogo, "uvw");
        EXPECT_EQ(linhas(dialogo), 0);
        boxes.onShow = nullptr;
    });
    EXPECT_THAT(boxes.shown,
                ElementsAre(informa("Pesquisa nao encontrou nenhum registro.     ", "Aviso"),
                            informa("Pesquisa nao encontrou nenhum registro.     ", "Aviso")));
}

TEST_F(FrmPesqClienteTest, AFailedRequestLeavesTheGrid) {
    achaDois();
    server.failOn(filtro("xyz"));
    comODialogo([&](QWidget& dialogo) {
        pesquisa(dialogo);
        pesquisa(dialogo, "xyz");
        EXPECT_EQ(linhas(dialogo), 2);
    });
    EXPECT_THAT(boxes.shown,
                ElementsAre(critica("Tarn0024 - Erro na pesquisa de cliente - Não foi possível "
                                    "obter os dados da Internet. Verifique a conexão com a "
                                    "Internet.")));
}

TEST_F(FrmPesqClienteTest, ThePointerIsBusyForTheWholeSearch) {
    comODialogo([&](QWidget& dialogo) {
        boxes.onShow = [](const Box&) {
            ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
            EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
        };
        pesquisa(dialogo, "a");
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        boxes.onShow = nullptr;
    });
    EXPECT_EQ(boxes.shown.size(), 1U);
}

TEST_F(FrmPesqClienteTest, WhatElseGoesWrongGivesThePointerBackAndSaysNothing) {
    comODialogo([&](QWidget& dialogo) {
        boxes.onShow = [](const Box&) { throw std::runtime_error("inesperado"); };
        pesquisa(dialogo, "a");
        boxes.onShow = nullptr;
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_TRUE(dialogo.isVisible());
    });
    EXPECT_EQ(boxes.shown.size(), 1U) << "the refusal alone";
    EXPECT_FALSE(fim.encerrado());
}

TEST_F(FrmPesqClienteTest, WithoutRowsNothingCanBeChosen) {
    comODialogo([&](QWidget& dialogo) {
        click(dialogo, "cmdSelecionar");
        EXPECT_TRUE(dialogo.isVisible());
    });
    EXPECT_THAT(boxes.shown, ElementsAre(informa(
                                 "Faça uma pesquisa para selecionar um cliente.     ", "Aviso")));
}

TEST_F(FrmPesqClienteTest, TheActiveRowGoesIntoTheScreen) {
    achaDois();
    comATela([&](QWidget& tela) {
        comOsClientes(tela, [&](QWidget& dialogo) {
            pesquisa(dialogo);
            clicaCelula(dialogo, 2, 2);
            click(dialogo, "cmdSelecionar");
            EXPECT_FALSE(dialogo.isVisible());
        });
        EXPECT_EQ(mostrado(tela, "txtCliente"), "ANABELA");
        EXPECT_EQ(codigo(tela), "82");
        comOsClientes(tela, [&](QWidget& dialogo) {
            EXPECT_EQ(mostrado(dialogo, "txtNmCli"), "ana") << "hidden, not unloaded";
            ASSERT_EQ(linhas(dialogo), 2);
            pesquisa(dialogo);
            click(dialogo, "cmdSelecionar");
        });
        EXPECT_EQ(mostrado(tela, "txtCliente"), "ANA & <b>CIA") << "no row clicked: the first";
        EXPECT_EQ(codigo(tela), "0071");
    });
}

TEST_F(FrmPesqClienteTest, ADoubleClickOrEnterInTheGridChoosesToo) {
    achaDois();
    comATela([&](QWidget& tela) {
        comOsClientes(tela, [&](QWidget& dialogo) {
            pesquisa(dialogo);
            clicaCelula(dialogo, 2, 1);
            auto& grade = named<QTableView>(dialogo, "sprDados");
            const QPoint meio = grade.visualRect(grade.model()->index(1, 0)).center();
            QTest::mouseDClick(grade.viewport(), Qt::LeftButton, {}, meio);
        });
        EXPECT_EQ(codigo(tela), "82");
        server.addresses.clear();
        comOsClientes(tela, [&](QWidget& dialogo) {
            auto& grade = named<QTableView>(dialogo, "sprDados");
            grade.setFocus();
            QTest::keyClick(&grade, Qt::Key_Up);
            QTest::keyClick(&grade, Qt::Key_Return);
        });
        EXPECT_EQ(codigo(tela), "0071");
        EXPECT_THAT(server.queries(), ElementsAre(pedeFiliais)) << "Enter searched nothing";
    });
}

TEST_F(FrmPesqClienteTest, EnterInTheNameSearches) {
    achaDois();
    comODialogo([&](QWidget& dialogo) {
        type(dialogo, "txtNmCli", "ana");
        key(dialogo, Qt::Key_Return);
        EXPECT_EQ(linhas(dialogo), 2);
        EXPECT_TRUE(dialogo.isVisible());
    });
}

TEST_F(FrmPesqClienteTest, LeavingWithoutAChoiceLeavesTheScreensCustomer) {
    achaDois();
    comATela([&](QWidget& tela) {
        comOsClientes(tela, [&](QWidget& dialogo) {
            pesquisa(dialogo);
            click(dialogo, "cmdSelecionar");
        });
        const std::function<void(QWidget&)> saidas[] = {
            [](QWidget& dialogo) { click(dialogo, "cmdVoltar"); },
            [](QWidget& dialogo) { key(dialogo, Qt::Key_Escape); },
            [](QWidget& dialogo) { dialogo.close(); }};
        for (const auto& sai : saidas) {
            comOsClientes(tela, [&](QWidget& dialogo) {
                clicaCelula(dialogo, 2, 1);
                sai(dialogo);
                EXPECT_FALSE(dialogo.isVisible());
            });
            EXPECT_EQ(mostrado(tela, "txtCliente"), "ANA & <b>CIA");
            EXPECT_EQ(codigo(tela), "0071");
        }
    });
}

TEST_F(FrmPesqClienteTest, TheDialogOutlivesTheScreenAndTheScreenComesBackEmpty) {
    achaDois();
    comATela([&](QWidget& tela) {
        comOsClientes(tela, [&](QWidget& dialogo) {
            pesquisa(dialogo);
            click(dialogo, "cmdSelecionar");
        });
        type(tela, "txtDtVncAte", "31122012");
    });
    comATela([&](QWidget& tela) {
        EXPECT_EQ(mostrado(tela, "txtCliente"), "");
        EXPECT_EQ(codigo(tela), "");
        EXPECT_EQ(mostrado(tela, "txtDtVncAte"), "");
        comOsClientes(tela, [&](QWidget& dialogo) {
            EXPECT_EQ(linhas(dialogo), 2);
            EXPECT_EQ(mostrado(dialogo, "txtNmCli"), "ana");
            click(dialogo, "cmdSelecionar");
        });
        EXPECT_EQ(codigo(tela), "0071");
    });
}

}  // namespace
}  // namespace tarn
