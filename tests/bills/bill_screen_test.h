// The desk with FrmPesqDupli opened from its menu.
#pragma once

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>

#include "desk/mdi_menu.h"
#include "tests/support/answers.h"
#include "tests/support/screen_test.h"

namespace tarn {

inline Box informa(const std::string& texto, const std::string& titulo = "TArn") {
    return {texto, BoxIcon::Information, titulo};
}

inline Box critica(const std::string& texto) {
    return {texto, BoxIcon::Critical, "TarnEMISSAO - ERRO INESPERADO"};
}

class TelaDeDuplicatas : public ScreenTest {
protected:
    static constexpr char pedeFiliais[] =
        "comando=sel_filiais&ID_EMP_TARN=1361&UserCode=77&ServerName=SRV1";
    // What the desk sends when a modal screen has closed.
    static constexpr char pedeDaMesa[] = "comando=sel_dados_empresa&Id_Etb_Tarn=9&ServerName=SRV1";
    // Positions of cboTpDocto.
    static constexpr int duplicata = 1;
    static constexpr int recibo = 2;

    void SetUp() override {
        ScreenTest::SetUp();
        entered(1361, 9);
        server.on("sel_filiais", answers::rowset("<z:row SG_FIL='MATRIZ' ID_ETB_TARN='9'/>"
                                                 "<z:row SG_FIL='SUL' ID_ETB_TARN='12'/>"));
        server.on("sel_dados_empresa", answers::branch("F"));
        menu.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&menu));
    }

    // Opens the screen by its menu entry; it is closed again behind `usa`.
    void comATela(const std::function<void(QWidget&)>& usa) {
        modals.then("FrmPesqDupli", [usa](QWidget& tela) {
            usa(tela);
            if (tela.isVisible()) {
                click(tela, "cmdVoltar");
            }
        });
        choose(menu, "mnuDuplicata");
    }
    // Opens the customer dialog from a screen.
    void comOsClientes(QWidget& tela, const std::function<void(QWidget&)>& usa) {
        modals.then("FrmPesqCliente", usa);
        click(tela, "cmdPesqCli");
    }

    // Off-screen an open list takes the activation along.
    static void escolhe(QWidget& tela, const char* lista, int linha) {
        pick(tela, lista, linha);
        tela.activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([&tela] { return QApplication::activeWindow() == &tela; }));
    }
    static std::string mostrado(const QWidget& tela, const char* campo) {
        return named<QLineEdit>(tela, campo).text().toStdString();
    }
    static int linhas(const QWidget& tela) {
        return named<QTableView>(tela, "sprDados").model()->rowCount();
    }
    // Text of a cell; row and column from 1.
    static std::string celula(const QWidget& tela, int linha, int coluna) {
        const QAbstractItemModel& modelo = *named<QTableView>(tela, "sprDados").model();
        return modelo.index(linha - 1, coluna - 1).data().toString().toStdString();
    }
    static bool marcada(const QWidget& tela, int linha) {
        const QAbstractItemModel& modelo = *named<QTableView>(tela, "sprDados").model();
        return modelo.index(linha - 1, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked;
    }
    static void clicaCelula(const QWidget& tela, int linha, int coluna) {
        auto& grade = named<QTableView>(tela, "sprDados");
        const QModelIndex celula = grade.model()->index(linha - 1, coluna - 1);
        grade.scrollTo(celula);
        QTest::mouseClick(grade.viewport(), Qt::LeftButton, {}, grade.visualRect(celula).center());
    }
    static void clicaCabecalho(const QWidget& tela, int coluna) {
        QHeaderView& cabecalho = *named<QTableView>(tela, "sprDados").horizontalHeader();
        const int meio =
            cabecalho.sectionViewportPosition(coluna - 1) + cabecalho.sectionSize(coluna - 1) / 2;
        QTest::mouseClick(cabecalho.viewport(), Qt::LeftButton, {},
                          QPoint(meio, cabecalho.height() / 2));
    }

    MDIMenu menu{desk};
};

}  // namespace tarn
