// Every screen, filled with the practice company's data, on the small monitors that it must
// fit: whole as it opens, as small as it can be made and as large as the monitor.
// TARN_TEST_PICTURES names a folder for a picture of each.
#include <QDir>
#include <QHeaderView>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>

#include "billing/orders.h"
#include "bills/bill_search.h"
#include "platform/qt/box_window.h"
#include "slips/slip_search.h"
#include "tests/e2e/note_faults.h"
#include "tests/support/screen_check.h"
#include "tests/support/texts.h"
#include "widgets/free_text_field.h"
#include "widgets/progress_window.h"

namespace tarn::test {
namespace {

void settle(QWidget& window) {
    QCoreApplication::sendPostedEvents();
    QTest::qWait(1);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
}

QSize mostOf(const QWidget& window) {
    return window.screen()->availableSize() - QSize(2 * frameSide, frameTop + frameSide);
}

class ScreenSizes : public NoteFaults {
protected:
    void SetUp() override {
        ScreenTest::SetUp();
        QObject::connect(&end, &ProgramEnd::didEnd, &end, [this] { network.blocking.close(); });
        menu.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&menu));
    }
    void enter() {
        logOn();
        menu.tell(QStringLiteral(
            "10:32 NF 008529 da ordem 45112 gerada, mas a impressora LX-300 do faturamento recusou "
            "o trabalho: use ReImpressão de NF"));
    }

    static void photograph(QWidget& window, const std::string& name) {
        const QString folder = qEnvironmentVariable("TARN_TEST_PICTURES");
        if (!folder.isEmpty()) {
            QDir().mkpath(folder);
            window.grab().save(
                QDir(folder).filePath(QString::fromStdString(name) + QStringLiteral(".png")));
        }
    }
    static void expectWhole(QWidget& window, const std::string& name) {
        SCOPED_TRACE(name + " at " + std::to_string(window.width()) + "x" +
                     std::to_string(window.height()));
        settle(window);
        photograph(window, name);
        EXPECT_EQ(faultsOf(window), Texts{});
        EXPECT_EQ(faultsOfPlace(window), Texts{});
    }
    // A dialog as it opens, as small as it goes, as large as the monitor, and as before.
    static void look(QWidget& window, const std::string& name) {
        const QSize usual = window.size();
        expectWhole(window, name);
        EXPECT_EQ(faultsOfColours(window), Texts{});
        window.resize(0, 0);
        expectWhole(window, name + "-least");
        window.resize(mostOf(window));
        expectWhole(window, name + "-most");
        window.resize(usual);
        expectWhole(window, name + "-again");
    }
    // The desk restored as it opens, maximised, as small as it goes, restored again.
    void lookAtDesk(const std::string& name) {
        const QSize usual = menu.size();
        expectWhole(menu, name);
        EXPECT_EQ(faultsOfColours(menu), Texts{});
        menu.resize(mostOf(menu));
        expectWhole(menu, name + "-most");
        menu.showMaximized();
        settle(menu);
        EXPECT_EQ(faultsOf(menu), Texts{});
        menu.showNormal();
        menu.resize(usual);
        settle(menu);
        EXPECT_EQ(faultsOf(menu), Texts{});
        menu.resize(0, 0);
        expectWhole(menu, name + "-least");
        menu.resize(usual);
        expectWhole(menu, name + "-again");
    }

    // The box as it stands before a screen.
    void seeBox(const Box& box, QWidget& screen, const std::string& name) {
        modals.then("MessageBox", [&](QWidget& window) {
            expectWhole(window, name);
            key(window, Qt::Key_Return);
        });
        BoxWindow(box, &screen).ask();
    }
    // Whole, without scrolling.
    static void expectInView(const QTableView& grid, int column) {
        const QHeaderView& heading = *grid.horizontalHeader();
        const int end = heading.sectionViewportPosition(column) + heading.sectionSize(column);
        EXPECT_LE(end, grid.viewport()->width())
            << grid.model()->headerData(column, Qt::Horizontal).toString().toStdString();
    }
    static void fillGrid(QWidget& screen) {
        QTableView& grid = gridOf(screen);
        ASSERT_GT(grid::rows(grid), 0);
        grid::click(grid, 1, 1);
    }
};

TEST_F(ScreenSizes, Logon) {
    modals.then("FrmLogon", [](QWidget& logon) {
        typeLogon(logon);
        look(logon, "logon");
        key(logon, Qt::Key_Return);
    });
    menu.load();
}

TEST_F(ScreenSizes, Desk) {
    enter();
    lookAtDesk("desk");
    menu.showServer(QStringLiteral("http://treinamento.tresirmaos.com.br:8080"));
    lookAtDesk("desk-server");
}

TEST_F(ScreenSizes, Orders) {
    enter();
    openOrders();
    lookAtDesk("orders");
    menu.resize(mostOf(menu));
    settle(menu);
    const bool small = menu.screen()->availableSize().width() < 1024;
    expectInView(orders(),
                 static_cast<int>(small ? OrderColumn::GrossWeight : OrderColumn::NetWeight));
}

TEST_F(ScreenSizes, Maintenance) {
    enter();
    openOrders();
    modals.then("frmMensagemAlerta", [](QWidget& alert) {
        look(alert, "alert");
        click(alert, "cmdOk");
    });
    modals.then("frmManutDetOFT", [](QWidget& dialog) {
        type(dialog, "txtQtde", "123456,789");
        type(dialog, "txtPesoBruto", "9999999,999");
        named<FreeTextField>(dialog, "txtObs")
            .setPlainText(QString("Entregar na doca 3, das 8 às 11 horas. ").repeated(12));
        look(dialog, "maintenance");
        click(dialog, "cmdCancelar");
    });
    press("45006", "cmdDetOFT");
}

TEST_F(ScreenSizes, AlertOfMissingStock) {
    enter();
    openOrders();
    modals.then("frmMensagemAlerta", [](QWidget& alert) {
        look(alert, "alert-stock");
        click(alert, "cmdVoltar");
    });
    generate("45007");
}

TEST_F(ScreenSizes, Help) {
    enter();
    modals.then("frmAjuda", [](QWidget& help) {
        look(help, "help");
        click(help, "cmdVoltar");
    });
    choose(menu, "mnuAjuda");
}

TEST_F(ScreenSizes, Reprint) {
    enter();
    const std::string note = makeNote();
    open("mRINF");
    search(note);
    ASSERT_EQ(shown("LBLNOTA"), note);
    lookAtDesk("reprint");
}

TEST_F(ScreenSizes, Cancellation) {
    enter();
    const std::string note = makeNote();
    open("mCNF");
    search(note);
    ASSERT_EQ(shown("LBLNOTA"), note);
    pickIn(menu, "CboMot_Can", 1);
    lookAtDesk("cancellation");
}

TEST_F(ScreenSizes, BillsAndCustomers) {
    enter();
    modals.then("FrmPesqDupli", [this](QWidget& screen) {
        modals.then("FrmPesqCliente", [](QWidget& dialog) {
            type(dialog, "txtNmCli", "ltda");
            click(dialog, "cmdPesquisar");
            fillGrid(dialog);
            look(dialog, "customers");
            click(dialog, "cmdVoltar");
        });
        click(screen, "cmdPesqCli");
        pickIn(screen, "cboTpDocto", 1);
        type(screen, "txtDtVncAte", "31122012");
        click(screen, "cmdPesquisar");
        fillGrid(screen);
        look(screen, "bills");
        expectInView(gridOf(screen), static_cast<int>(BillColumn::Value));
        click(screen, "cmdVoltar");
    });
    choose(menu, "mnuDuplicata");
}

TEST_F(ScreenSizes, Slips) {
    enter();
    modals.then("frmPesqBoleto", [](QWidget& screen) {
        type(screen, "txtDtEmsDe", "01012012");
        type(screen, "txtDtVncAte", "31122012");
        pickIn(screen, "cboCartCob", 1);
        type(screen, "txtNr_Bol_Banc", "1234567890123");
        click(screen, "cmdPesquisar");
        fillGrid(screen);
        look(screen, "slips");
        expectInView(gridOf(screen), static_cast<int>(SlipColumn::Value));
        click(screen, "cmdVoltar");
    });
    choose(menu, "mnuBoleto");
}

TEST_F(ScreenSizes, Cheque) {
    enter();
    modals.then("frmCheque", [](QWidget& screen) {
        pickIn(screen, "cboBancoAgConta", 1);
        type(screen, "txtNumeroCheque", "123456789012345");
        type(screen, "txtSerie", "AB1");
        type(screen, "txtValor", "1234567,89");
        type(screen, "txtFavorecido", "INDUSTRIA E COMERCIO DE PAPEIS TRES PONTES LTDA EPP");
        named<FreeTextField>(screen, "txtObservacao")
            .setPlainText(QString("Material de escritório e limpeza. ").repeated(7));
        look(screen, "cheque");
        click(screen, "cmdCancelar");
    });
    choose(menu, "mnuCheque", "mnuChequeImpressao");
}

TEST_F(ScreenSizes, Labels) {
    enter();
    modals.then("frmPesqEtiquetas", [this](QWidget& queue) {
        pickIn(queue, "cboMotivo", 1);
        pickIn(queue, "cboTp_Form", 4);
        pickIn(queue, "CboFilialRemet", 1);
        ASSERT_GT(grid::rows(gridOf(queue)), 0);
        look(queue, "labels");
        modals.then("frmImprimirEtiqueta", [](QWidget& run) {
            type(run, "txtDe", "1");
            type(run, "txtAte", "999999");
            look(run, "labels-print");
            click(run, "cmdCancelar");
        });
        click(queue, "cmdImprimir");
        modals.then("frmExcluirEtiqueta", [](QWidget& deletion) {
            type(deletion, "txtDe", "1");
            type(deletion, "txtAte", "999999");
            look(deletion, "labels-delete");
            click(deletion, "cmdCancelar");
        });
        click(queue, "cmdExcluir");
        click(queue, "cmdVoltar");
    });
    choose(menu, "mnuEtiquetas", "mnuImprClientes");
}

TEST_F(ScreenSizes, LabelSelection) {
    enter();
    modals.then("FrmImprEtiq", [this](QWidget& selection) {
        type(selection, "txtCepDe", "01000000");
        type(selection, "txtCepAte", "99999999");
        click(selection, "cmdPesquisar");
        fillGrid(selection);
        look(selection, "selection");
        seeBox(boxes.shown.front(), selection, "box-query");
        click(selection, "cmdVoltar");
    });
    menu.openLabelSelection();
}

TEST_F(ScreenSizes, Boxes) {
    enter();
    const auto see = [this](const Box& box, const std::string& name) { seeBox(box, menu, name); };
    see({"Confirma o cancelamento da Ordem de Faturamento nº 45006 ?     ", BoxIcon::Question,
         "Aviso", BoxButtons::YesNo},
        "box-question");
    see({"Esta opção só deverá ser selecionada quando se deseja incluir, no momento da impressão "
         "do boleto, um documento que esteja sem carteira de cobrança associada. A carteira a ser "
         "associada é a selecionada no combo acima.      ",
         BoxIcon::Information, "TarnEmissao"},
        "box-long");
    see(endReportWithNote(), "box-report");
    see({std::string(6000, 'x'), BoxIcon::Exclamation, "Aviso"}, "box-huge");
    std::string missing;
    for (int product = 1; product <= 3000; ++product) {
        missing += "Falta o produto " + std::to_string(product) + " no depósito\n";
    }
    see({missing, BoxIcon::Exclamation, "Aviso"}, "box-list");
}

TEST_F(ScreenSizes, Progress) {
    enter();
    ProgressWindow progress(menu);
    const Progress report = progress.notices();
    report(99999, 100000);
    auto& window = named<QWidget>(menu, "progress");
    expectWhole(window, "progress");
    report(100000, 100000);
}

// The order list follows the desk, the others keep their size in the middle of its top.
TEST_F(ScreenSizes, TheOrderListFillsTheDesk) {
    enter();
    openOrders();
    const auto& area = named<QMdiArea>(menu, "mdiArea");
    const auto& list = *area.subWindowList().at(0);
    const auto expectFilled = [&] {
        settle(menu);
        EXPECT_EQ(list.geometry(), area.viewport()->rect());
    };
    expectFilled();
    const QSize usual = menu.size();
    menu.showMaximized();
    expectFilled();
    menu.showNormal();
    menu.resize(usual);
    expectFilled();
    menu.resize(usual - QSize(100, 100));
    expectFilled();
}

TEST_F(ScreenSizes, TheReprintScreenStaysInTheMiddleOfTheTop) {
    enter();
    open("mRINF");
    const auto& area = named<QMdiArea>(menu, "mdiArea");
    const auto& screen = *area.subWindowList().at(0);
    const QSize usual = screen.size();
    menu.resize(menu.size() - QSize(120, 10));
    settle(menu);
    EXPECT_EQ(screen.size(), usual);
    EXPECT_EQ(screen.geometry().topLeft(),
              QPoint((area.viewport()->width() - usual.width()) / 2, 0));
}

}  // namespace
}  // namespace tarn::test
