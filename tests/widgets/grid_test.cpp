// The ticked grid under real clicks and keys, and the progress of a long run.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <array>

#include "tests/support/user.h"
#include "widgets/grid_model.h"
#include "widgets/progress_window.h"

namespace tarn {
namespace {

using testing::ElementsAre;

constexpr std::array<ColunaGrade, 4> colunas{
    {{"", 0, TipoColuna::Caixa}, {"Nome", 20}, {"Guardada", 0}, {"Valor", 12, TipoColuna::Numero}}};

class GradeTest : public testing::Test {
protected:
    void SetUp() override {
        preparaGrade(grade, modelo);
        grade.setSelectionBehavior(QAbstractItemView::SelectRows);
        grade.setSelectionMode(QAbstractItemView::SingleSelection);
        grade.setEditTriggers(QAbstractItemView::NoEditTriggers);
        grade.resize(600, 300);
        modelo.mostra({{{"", "A", "x", "1,00"}}, {{"", "B", "y", "2,00"}}, {{"", "C"}}});
        grade.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&grade));
    }
    std::vector<bool> marcas() const {
        std::vector<bool> todas;
        for (int linha = 0; linha < modelo.rowCount(); ++linha) {
            todas.push_back(modelo.marcada(linha));
        }
        return todas;
    }
    void clica(int linha, int coluna, Qt::MouseButton botao = Qt::LeftButton) {
        QTest::mouseClick(grade.viewport(), botao, {},
                          grade.visualRect(modelo.index(linha, coluna)).center());
    }
    void clicaCabecalho(int coluna) {
        QHeaderView& cabecalho = *grade.horizontalHeader();
        QTest::mouseClick(cabecalho.viewport(), Qt::LeftButton, {},
                          QPoint(cabecalho.sectionViewportPosition(coluna) + 5, 5));
    }

    GradeModel modelo{colunas, nullptr};
    QTableView grade;
};

TEST_F(GradeTest, ShowsItsColumns) {
    EXPECT_TRUE(grade.isColumnHidden(2)) << "kept for the printing";
    EXPECT_FALSE(grade.isColumnHidden(0));
    EXPECT_EQ(modelo.index(0, 2).data(), QStringLiteral("x"));
    EXPECT_EQ(modelo.index(2, 3).data(), QVariant()) << "a row may be shorter";
    EXPECT_EQ(modelo.index(0, 3).data(Qt::TextAlignmentRole),
              QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter));
    EXPECT_FALSE(modelo.index(0, 1).data(Qt::TextAlignmentRole).isValid());
    EXPECT_EQ(modelo.headerData(1, Qt::Horizontal, Qt::DisplayRole), QStringLiteral("Nome"));
    EXPECT_EQ(modelo.headerData(1, Qt::Vertical, Qt::DisplayRole), 2);
    EXPECT_FALSE(modelo.headerData(0, Qt::Horizontal, Qt::ToolTipRole).toString().isEmpty());
}

TEST_F(GradeTest, AClickInTheFirstColumnTicksTheRow) {
    clica(1, 0);
    EXPECT_THAT(marcas(), ElementsAre(false, true, false));
    clica(1, 0);
    EXPECT_THAT(marcas(), ElementsAre(false, false, false));
    clica(1, 1);
    clica(1, 0, Qt::RightButton);
    EXPECT_THAT(marcas(), ElementsAre(false, false, false));
}

TEST_F(GradeTest, SpaceTicksTheActiveRow) {
    clica(2, 1);
    QTest::keyClick(&grade, Qt::Key_Space);
    QTest::keyClick(&grade, Qt::Key_Up);
    QTest::keyClick(&grade, Qt::Key_Up);
    QTest::keyClick(&grade, Qt::Key_Space);
    EXPECT_THAT(marcas(), ElementsAre(true, false, true));
    QTest::keyClick(&grade, Qt::Key_Space);
    EXPECT_THAT(marcas(), ElementsAre(false, false, true));
}

TEST_F(GradeTest, ADoubleClickIsTwoTicks) {
    const QPoint caixa = grade.visualRect(modelo.index(1, 0)).center();
    QTest::mouseClick(grade.viewport(), Qt::LeftButton, {}, caixa);
    EXPECT_THAT(marcas(), ElementsAre(false, true, false));
    QTest::mouseDClick(grade.viewport(), Qt::LeftButton, {}, caixa);
    EXPECT_THAT(marcas(), ElementsAre(false, true, false));
}

TEST_F(GradeTest, AClickThatEndsInAnotherCellTicksNothing) {
    const auto meio = [&](int linha, int coluna) {
        return grade.visualRect(modelo.index(linha, coluna)).center();
    };
    QTest::mousePress(grade.viewport(), Qt::LeftButton, {}, meio(0, 0));
    QTest::mouseRelease(grade.viewport(), Qt::LeftButton, {}, meio(2, 0));
    QTest::mousePress(grade.viewport(), Qt::LeftButton, {}, meio(1, 1));
    QTest::mouseRelease(grade.viewport(), Qt::LeftButton, {}, meio(1, 0));
    EXPECT_THAT(marcas(), ElementsAre(false, false, false));
}

TEST_F(GradeTest, SpaceHeldDownTicksOnce) {
    clica(1, 1);
    QTest::keyPress(&grade, Qt::Key_Space);
    for (int vez = 0; vez < 3; ++vez) {
        QKeyEvent repetida(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "),
                           true);
        QCoreApplication::sendEvent(&grade, &repetida);
    }
    EXPECT_THAT(marcas(), ElementsAre(false, true, false));
}

TEST_F(GradeTest, TheHeadingSetsAllRowsByTheLastOne) {
    clica(0, 0);
    clicaCabecalho(0);
    EXPECT_THAT(marcas(), ElementsAre(true, true, true));
    clica(0, 0);
    clicaCabecalho(0);
    EXPECT_THAT(marcas(), ElementsAre(false, false, false));
    clica(2, 0);
    clicaCabecalho(0);
    EXPECT_THAT(marcas(), ElementsAre(false, false, false));
    clicaCabecalho(1);
    EXPECT_THAT(marcas(), ElementsAre(false, false, false)) << "another heading does nothing";
}

TEST_F(GradeTest, WithoutRowsNothingHappens) {
    modelo.mostra({});
    clicaCabecalho(0);
    QTest::keyClick(&grade, Qt::Key_Space);
    EXPECT_EQ(modelo.rowCount(), 0);
}

TEST_F(GradeTest, NewRowsComeUnticked) {
    clicaCabecalho(0);
    modelo.mostra({{{"", "D", "", ""}}});
    EXPECT_THAT(marcas(), ElementsAre(false));
    EXPECT_EQ(modelo.linha(0).coluna(2), "D");
}

// What a run sees of the program while it is under way.
class AndamentoTest : public testing::Test {
protected:
    void SetUp() override {
        tela.resize(500, 300);
        tela.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&tela));
    }
    void TearDown() override { EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr); }
    QWidget* janela() { return tela.findChild<QWidget*>(QStringLiteral("andamento")); }

    QWidget tela;
};

class ContaPinturas : public QWidget {
public:
    using QWidget::QWidget;
    int pinturas = 0;

protected:
    void paintEvent(QPaintEvent* /*event*/) override { ++pinturas; }
};

TEST_F(AndamentoTest, CountsManyItemsFromTheStart) {
    Andamento andamento(tela);
    const Progress avisa = andamento.avisos();
    avisa(0, 500);
    ASSERT_NE(janela(), nullptr);
    EXPECT_TRUE(janela()->isVisible());
    EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
    avisa(37, 500);
    EXPECT_EQ(named<QLabel>(tela, "lblAndamento").text(), QStringLiteral("Imprimindo: 37 de 500"));
    EXPECT_EQ(named<QProgressBar>(tela, "barAndamento").value(), 37);
    EXPECT_EQ(named<QProgressBar>(tela, "barAndamento").maximum(), 500);
    avisa(500, 500);
    EXPECT_EQ(janela(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(AndamentoTest, AShortRunShowsNothing) {
    Andamento andamento(tela);
    const Progress avisa = andamento.avisos();
    for (std::size_t feitos = 0; feitos <= 3; ++feitos) {
        avisa(feitos, 3);
        EXPECT_EQ(janela(), nullptr);
    }
}

TEST_F(AndamentoTest, ALongRunOfFewItemsShowsItselfInTheEnd) {
    Andamento andamento(tela);
    const Progress avisa = andamento.avisos();
    avisa(0, 2);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        avisa(1, 2);
        return janela() != nullptr;
    }));
}

TEST_F(AndamentoTest, WindowsRepaintAndInputIsDiscarded) {
    ContaPinturas pintada(&tela);
    pintada.resize(100, 100);
    pintada.show();
    QLineEdit campo(&tela);
    campo.show();
    campo.setFocus();
    QTimer relogio;
    relogio.setObjectName(QStringLiteral("Timer"));
    int batidas = 0;
    QObject::connect(&relogio, &QTimer::timeout, [&] { ++batidas; });
    QCoreApplication::processEvents();
    Andamento andamento(tela);
    const Progress avisa = andamento.avisos();
    avisa(0, 500);
    const int antes = pintada.pinturas;
    pintada.update();
    relogio.start(0);
    QCoreApplication::postEvent(&campo, new QKeyEvent(QEvent::KeyPress, Qt::Key_A, {}, "a"));
    avisa(500, 500);
    EXPECT_GT(pintada.pinturas, antes);
    EXPECT_EQ(campo.text(), QString());
    EXPECT_EQ(batidas, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return batidas > 0; })) << "it ticks behind the run";
}

TEST_F(AndamentoTest, AGivenUpRunTakesItsWindowAlong) {
    {
        Andamento andamento(tela);
        andamento.avisos()(1, 500);
        ASSERT_NE(janela(), nullptr);
    }
    EXPECT_EQ(janela(), nullptr);
}

}  // namespace
}  // namespace tarn
