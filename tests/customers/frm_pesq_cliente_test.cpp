// The customer dialog, and its choice on its way into the screen.
#include "customers/frm_pesq_cliente.h"

#include <gmock/gmock.h>

#include "tests/bills/bill_screen_test.h"
#include "tests/support/grid.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

class FrmPesqClienteTest : public BillScreenTest {
protected:
    // Opens the dialog from the bill search.
    void withDialog(const std::function<void(QWidget&)>& use) {
        withScreen([&](QWidget& screen) {
            server.addresses.clear();
            withCustomers(screen, [&](QWidget& dialog) {
                use(dialog);
                if (dialog.isVisible()) {
                    click(dialog, "cmdVoltar");
                }
            });
        });
    }
    void findTwo() {
        server.on("Sel_Cliente",
                  answers::rowset("<z:row NM_PES_CPL='ANA &amp; &lt;b>CIA' DC_TIP_EMP='COMÉRCIO' "
                                  "ID_PES_CLI='0071'/>"
                                  "<z:row NM_PES_CPL='ANABELA' ID_PES_CLI='82'/>"));
    }
    void search(QWidget& dialog, const char* name = "ana") {
        type(dialog, "txtNmCli", name);
        click(dialog, "cmdPesquisar");
    }
    static std::string filter(const std::string& name) {
        return "Sel_Cliente&id_emp_tarn=1361&Filtro=" + name;
    }
    // The tag that the search sends.
    std::string code(const QWidget& screen) {
        return named<QLineEdit>(screen, "txtCliente").property("Tag").toString().toStdString();
    }
};

TEST_F(FrmPesqClienteTest, SaysWhatItIs) {
    withDialog([&](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Pesquisa de Clientes"));
        EXPECT_EQ(named<QLabel>(dialog, "Label1").text(), QStringLiteral("Cliente"));
        const auto& table = named<QTableView>(dialog, "sprDados");
        EXPECT_EQ(grid::headings(table),
                  (Texts{"Cliente", "Tipo de Empresa", "ID_PES_CLI", "ID_ETB_CLI"}));
        EXPECT_FALSE(table.isColumnHidden(3)) << "also the one that nothing fills";
        EXPECT_EQ(lines(dialog), 0);
        EXPECT_EQ(focused(dialog), "txtNmCli");
        EXPECT_EQ(tabOrder(dialog, "txtNmCli", 5),
                  (Texts{"txtNmCli", "sprDados", "cmdPesquisar", "cmdSelecionar", "cmdVoltar"}));
    });
    EXPECT_EQ(boxes.shown, Boxes{});
}

TEST_F(FrmPesqClienteTest, AShortNameIsRefusedBeforeAnyRequest) {
    withDialog([&](QWidget& dialog) {
        for (const char* name : {"", "an", "   ", " ab "}) {
            search(dialog, name);
            EXPECT_EQ(focused(dialog), "txtNmCli");
            EXPECT_EQ(shown(dialog, "txtNmCli"), name);
        }
        EXPECT_EQ(server.addresses, Texts{});
    });
    EXPECT_THAT(boxes.shown, testing::Each(information(
                                 "Nome do cliente deve ter no mínimo 3 letras.    ", "Aviso")));
    EXPECT_EQ(boxes.shown.size(), 4U);
}

TEST_F(FrmPesqClienteTest, TheNameGoesOutAsTyped) {
    findTwo();
    withDialog([&](QWidget& dialog) {
        search(dialog, " abc ");
        search(dialog, "A&B&");
        EXPECT_EQ(server.queries(), (Texts{"comando=Sel_Cliente&id_emp_tarn=1361&Filtro= abc &"
                                           "ServerName=SRV1",
                                           "comando=Sel_Cliente&id_emp_tarn=1361&Filtro=A|B|&"
                                           "ServerName=SRV1"}));
    });
    EXPECT_EQ(boxes.shown, Boxes{});
}

TEST_F(FrmPesqClienteTest, ShowsWhatWasFound) {
    findTwo();
    withDialog([&](QWidget& dialog) {
        search(dialog);
        ASSERT_EQ(lines(dialog), 2);
        EXPECT_EQ(cell(dialog, 1, 1), "ANA & <b>CIA");
        EXPECT_EQ(cell(dialog, 1, 2), "COMÉRCIO");
        EXPECT_EQ(cell(dialog, 1, 3), "0071");
        EXPECT_EQ(cell(dialog, 1, 4), "");
        EXPECT_EQ(cell(dialog, 2, 2), "") << "absent";
        EXPECT_EQ(focused(dialog), "cmdPesquisar") << "the focus isn't moved";
    });
}

TEST_F(FrmPesqClienteTest, NothingFoundEmptiesTheGridAndSaysSo) {
    findTwo();
    server.on(filter("xyz"), answers::rowset("")).on(filter("uvw"), "<?xml version='1.0'?><xml/>");
    withDialog([&](QWidget& dialog) {
        boxes.onShow = [&](const Box&) { EXPECT_EQ(lines(dialog), 0) << "the box comes last"; };
        search(dialog);
        search(dialog, "xyz");
        EXPECT_EQ(lines(dialog), 0);
        search(dialog);
        search(dialog, "uvw");
        EXPECT_EQ(lines(dialog), 0);
        boxes.onShow = nullptr;
    });
    EXPECT_EQ(boxes.shown,
              (Boxes{information("Pesquisa nao encontrou nenhum registro.     ", "Aviso"),
                     information("Pesquisa nao encontrou nenhum registro.     ", "Aviso")}));
}

TEST_F(FrmPesqClienteTest, AFailedRequestLeavesTheGrid) {
    findTwo();
    server.failOn(filter("xyz"));
    withDialog([&](QWidget& dialog) {
        search(dialog);
        search(dialog, "xyz");
        EXPECT_EQ(lines(dialog), 2);
    });
    EXPECT_EQ(boxes.shown,
              (Boxes{requestFailure("Tarn0024 - Erro na pesquisa de cliente - Não foi possível "
                                    "obter os dados da Internet. Verifique a conexão com a "
                                    "Internet.")}));
}

TEST_F(FrmPesqClienteTest, ThePointerIsBusyForTheWholeSearch) {
    withDialog([&](QWidget& dialog) {
        boxes.onShow = [](const Box&) {
            ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
            EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
        };
        search(dialog, "a");
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        boxes.onShow = nullptr;
    });
    EXPECT_EQ(boxes.shown.size(), 1U);
}

TEST_F(FrmPesqClienteTest, WhatElseGoesWrongGivesThePointerBackAndSaysNothing) {
    withDialog([&](QWidget& dialog) {
        boxes.onShow = [](const Box&) { throw std::runtime_error("inesperado"); };
        search(dialog, "a");
        boxes.onShow = nullptr;
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_TRUE(dialog.isVisible());
    });
    EXPECT_EQ(boxes.shown.size(), 1U) << "the refusal alone";
    EXPECT_FALSE(end.ended());
}

TEST_F(FrmPesqClienteTest, WithoutRowsNothingCanBeChosen) {
    withDialog([&](QWidget& dialog) {
        click(dialog, "cmdSelecionar");
        EXPECT_TRUE(dialog.isVisible());
    });
    EXPECT_EQ(boxes.shown,
              (Boxes{information("Faça uma pesquisa para selecionar um cliente.     ", "Aviso")}));
}

TEST_F(FrmPesqClienteTest, TheActiveRowGoesIntoTheScreen) {
    findTwo();
    withScreen([&](QWidget& screen) {
        withCustomers(screen, [&](QWidget& dialog) {
            search(dialog);
            clickCell(dialog, 2, 2);
            click(dialog, "cmdSelecionar");
            EXPECT_FALSE(dialog.isVisible());
        });
        EXPECT_EQ(shown(screen, "txtCliente"), "ANABELA");
        EXPECT_EQ(code(screen), "82");
        withCustomers(screen, [&](QWidget& dialog) {
            EXPECT_EQ(shown(dialog, "txtNmCli"), "ana") << "hidden, not unloaded";
            ASSERT_EQ(lines(dialog), 2);
            search(dialog);
            click(dialog, "cmdSelecionar");
        });
        EXPECT_EQ(shown(screen, "txtCliente"), "ANA & <b>CIA") << "no row clicked: the first";
        EXPECT_EQ(code(screen), "0071");
    });
}

TEST_F(FrmPesqClienteTest, ADoubleClickOrEnterInTheGridChoosesToo) {
    findTwo();
    withScreen([&](QWidget& screen) {
        withCustomers(screen, [&](QWidget& dialog) {
            search(dialog);
            clickCell(dialog, 2, 1);
            auto& grid = named<QTableView>(dialog, "sprDados");
            const QPoint middle = grid.visualRect(grid.model()->index(1, 0)).center();
            QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, middle);
        });
        EXPECT_EQ(code(screen), "82");
        server.addresses.clear();
        withCustomers(screen, [&](QWidget& dialog) {
            auto& grid = named<QTableView>(dialog, "sprDados");
            grid.setFocus();
            QTest::keyClick(&grid, Qt::Key_Up);
            QTest::keyClick(&grid, Qt::Key_Return);
        });
        EXPECT_EQ(code(screen), "0071");
        EXPECT_EQ(server.queries(), (Texts{branchesQuery})) << "Enter searched nothing";
    });
}

TEST_F(FrmPesqClienteTest, EnterInTheNameSearches) {
    findTwo();
    withDialog([&](QWidget& dialog) {
        type(dialog, "txtNmCli", "ana");
        key(dialog, Qt::Key_Return);
        EXPECT_EQ(lines(dialog), 2);
        EXPECT_TRUE(dialog.isVisible());
    });
}

TEST_F(FrmPesqClienteTest, LeavingWithoutAChoiceLeavesTheScreensCustomer) {
    findTwo();
    withScreen([&](QWidget& screen) {
        withCustomers(screen, [&](QWidget& dialog) {
            search(dialog);
            click(dialog, "cmdSelecionar");
        });
        const std::function<void(QWidget&)> ways[] = {
            [](QWidget& dialog) { click(dialog, "cmdVoltar"); },
            [](QWidget& dialog) { key(dialog, Qt::Key_Escape); },
            [](QWidget& dialog) { dialog.close(); }};
        for (const auto& out : ways) {
            withCustomers(screen, [&](QWidget& dialog) {
                clickCell(dialog, 2, 1);
                out(dialog);
                EXPECT_FALSE(dialog.isVisible());
            });
            EXPECT_EQ(shown(screen, "txtCliente"), "ANA & <b>CIA");
            EXPECT_EQ(code(screen), "0071");
        }
    });
}

TEST_F(FrmPesqClienteTest, TheDialogOutlivesTheScreenAndTheScreenComesBackEmpty) {
    findTwo();
    withScreen([&](QWidget& screen) {
        withCustomers(screen, [&](QWidget& dialog) {
            search(dialog);
            click(dialog, "cmdSelecionar");
        });
        type(screen, "txtDtVncAte", "31122012");
    });
    withScreen([&](QWidget& screen) {
        EXPECT_EQ(shown(screen, "txtCliente"), "");
        EXPECT_EQ(code(screen), "");
        EXPECT_EQ(shown(screen, "txtDtVncAte"), "");
        withCustomers(screen, [&](QWidget& dialog) {
            EXPECT_EQ(lines(dialog), 2);
            EXPECT_EQ(shown(dialog, "txtNmCli"), "ana");
            click(dialog, "cmdSelecionar");
        });
        EXPECT_EQ(code(screen), "0071");
    });
}

}  // namespace
}  // namespace tarn::test
