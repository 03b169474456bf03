#include "apps/tarnroteiro/gestures.h"

#include <QAbstractItemView>
#include <QAction>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTableView>
#include <QTest>

namespace tarn {
namespace {

QMenuBar& barraDe(QWidget& janela) {
    return *static_cast<QMainWindow&>(janela).menuBar();
}

void clicaNaAcao(QMenuBar& barra, QAction* acao) {
    QTest::mouseClick(&barra, Qt::LeftButton, {}, barra.actionGeometry(acao).center());
}

}  // namespace

void faltaNaTela(const char* nome) {
    qFatal("%s não está na tela", nome);
}

void clica(QWidget& janela, const char* botao) {
    QTest::mouseClick(&filho<QPushButton>(janela, botao), Qt::LeftButton);
}

void assinala(QWidget& janela, const char* opcao) {
    auto& marca = filho<QWidget>(janela, opcao);
    QTest::mouseClick(&marca, Qt::LeftButton, {}, {8, marca.height() / 2});
}

void tecla(QWidget& campo, const std::string& texto) {
    const QString letras = QString::fromStdString(texto);
    for (const QChar letra : letras) {
        QTest::sendKeyEvent(QTest::Click, &campo, Qt::Key_unknown, QString(letra), Qt::NoModifier);
    }
}

void digita(QWidget& janela, const char* campo, const std::string& texto) {
    auto& linha = filho<QLineEdit>(janela, campo);
    linha.setFocus();
    tecla(linha, texto);
}

void abreMenu(QWidget& janela, const char* menu) {
    clicaNaAcao(barraDe(janela), filho<QMenu>(janela, menu).menuAction());
}

void escolhe(QWidget& janela, const char* menu, const char* entrada) {
    auto& aberto = filho<QMenu>(janela, menu);
    const QRect lugar = aberto.actionGeometry(&filho<QAction>(janela, entrada));
    QTest::mouseClick(&aberto, Qt::LeftButton, {}, lugar.center());
}

void clicaNaBarra(QWidget& janela, const char* entrada) {
    clicaNaAcao(barraDe(janela), &filho<QAction>(janela, entrada));
}

void clicaNaGrade(QWidget& tela, int linha, int coluna) {
    auto& grade = filho<QTableView>(tela, "sprDados");
    const QModelIndex celula = grade.model()->index(linha, coluna);
    grade.scrollTo(celula);
    QTest::mouseClick(grade.viewport(), Qt::LeftButton, {}, grade.visualRect(celula).center());
}

void escolheNaLista(QWidget& tela, const char* lista, int linha) {
    auto& combo = filho<QComboBox>(tela, lista);
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_Space);
    QAbstractItemView& itens = *combo.view();
    const QRect lugar = itens.visualRect(itens.model()->index(linha, 0));
    QTest::mouseClick(itens.viewport(), Qt::LeftButton, {}, lugar.center());
}

void aceita(QWidget& caixa) {
    QTest::keyClick(&caixa, Qt::Key_Return);
}

}  // namespace tarn
