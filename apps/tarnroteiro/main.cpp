// The main job of a clerk in the real screens, without anybody at the keys: logon,
// list, an order that is refused, one without stock, and one that becomes a note; that
// note is printed again and cancelled. Leaves a picture of every step and the printed
// jobs in a folder.
#include <CLI/CLI.hpp>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <cstdio>

#include "mesa.h"
#include "roteiro.h"

namespace tarn {
namespace {

struct Entrada {
    std::string servidor;
    std::string pasta;
    std::string empresa = "1361";
    std::string usuario = "clara";
    std::string senha = "pratica";
};

template <typename T>
T& filho(QWidget& janela, const char* nome) {
    T* achado = janela.findChild<T*>(QLatin1StringView(nome));
    if (achado == nullptr) {
        qFatal("%s não está na tela", nome);
    }
    return *achado;
}

void clica(QWidget& janela, const char* botao) {
    QTest::mouseClick(&filho<QPushButton>(janela, botao), Qt::LeftButton);
}

void digita(QWidget& janela, const char* campo, const std::string& texto) {
    auto& linha = filho<QLineEdit>(janela, campo);
    linha.setFocus();
    QTest::keyClicks(&linha, QString::fromStdString(texto));
}

QMenuBar& barraDe(QWidget& janela) {
    return *static_cast<QMainWindow&>(janela).menuBar();
}

void abreMenu(QWidget& janela, const char* menu) {
    auto& barra = barraDe(janela);
    const QRect lugar = barra.actionGeometry(filho<QMenu>(janela, menu).menuAction());
    QTest::mouseClick(&barra, Qt::LeftButton, {}, lugar.center());
}

void escolhe(QWidget& janela, const char* menu, const char* entrada) {
    auto& aberto = filho<QMenu>(janela, menu);
    const QRect lugar = aberto.actionGeometry(&filho<QAction>(janela, entrada));
    QTest::mouseClick(&aberto, Qt::LeftButton, {}, lugar.center());
}

// Clicks the row (counted from 0) as a clerk would, on the customer's name.
void marca(QWidget& tela, int linha) {
    auto& grade = filho<QTableView>(tela, "sprDados");
    const QModelIndex celula = grade.model()->index(linha, 1);
    grade.scrollTo(celula);
    QTest::mouseClick(grade.viewport(), Qt::LeftButton, {}, grade.visualRect(celula).center());
}

// Opens the list and clicks the item of that row.
void escolheNaLista(QWidget& tela, const char* lista, int linha) {
    auto& combo = filho<QComboBox>(tela, lista);
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_Space);
    QAbstractItemView& itens = *combo.view();
    const QRect lugar = itens.visualRect(itens.model()->index(linha, 0));
    QTest::mouseClick(itens.viewport(), Qt::LeftButton, {}, lugar.center());
}

// The number of the note that came out last, read off its paper: the first line's
// columns 125 to 130.
std::string numeroNoPapel(const std::string& pasta) {
    const QDir folhas(QString::fromStdString(pasta));
    const QStringList jobs = folhas.entryList({"job-*.prn"}, QDir::Files, QDir::Name);
    QFile nota(jobs.isEmpty() ? QString() : folhas.filePath(jobs.last()));
    if (!nota.open(QIODevice::ReadOnly)) {
        qFatal("a nota não saiu na impressora");
    }
    return nota.readAll().mid(124, 6).toStdString();
}

void pesquisa(QWidget& tela, const std::string& numero) {
    escolheNaLista(tela, "cboSerie", 0);
    digita(tela, "txtNF", numero);
    clica(tela, "cmdPesquisar");
}

void aceita(QWidget& caixa) {
    QTest::keyClick(&caixa, Qt::Key_Return);
}

// The desk as a clerk's screen shows it, whatever the size of the screen that is lacking.
constexpr int larguraDaMesa = 1280;
constexpr int alturaDaMesa = 820;

// Rows of the practice data, counted from 0.
constexpr int primeira = 0;
constexpr int comObservacao = 5;
constexpr int semEstoque = 6;
constexpr int recusada = 7;

void escreveEmissao(Roteiro& roteiro, const Entrada& entrada) {
    roteiro
        .quando("FrmLogon", "logon",
                [&](QWidget& janela) {
                    digita(janela, "txtEmpresa", entrada.empresa);
                    digita(janela, "txtUsuario", entrada.usuario);
                    digita(janela, "txtSenha", entrada.senha);
                    roteiro.fotografa(janela, "logon-preenchido");
                    clica(janela, "btnLogin");
                })
        .quando("MDIMenu", "mesa",
                [&](QWidget& janela) {
                    abreMenu(janela, "mnuNF");
                    roteiro.fotografa(filho<QMenu>(janela, "mnuNF"), "menu-nota-fiscal");
                    escolhe(janela, "mnuNF", "mOFT");
                })
        .quando("FrmOFT", "ordens",
                [](QWidget& tela) {
                    marca(tela, primeira);
                    clica(tela, "cmdDetOFT");
                })
        .quando("frmManutDetOFT", "manutencao",
                [](QWidget& dialogo) { clica(dialogo, "cmdCancelar"); })
        .quando("FrmOFT", "",
                [](QWidget& tela) {
                    marca(tela, recusada);
                    clica(tela, "cmdSelecionar");
                })
        .quando("MessageBox", "recusa-do-servidor", aceita)
        .quando("FrmOFT", "",
                [](QWidget& tela) {
                    marca(tela, semEstoque);
                    clica(tela, "cmdSelecionar");
                })
        .quando("frmMensagemAlerta", "sem-estoque",
                [](QWidget& dialogo) { clica(dialogo, "cmdVoltar"); })
        .quando("FrmOFT", "",
                [](QWidget& tela) {
                    marca(tela, comObservacao);
                    clica(tela, "cmdSelecionar");
                })
        .quando("frmMensagemAlerta", "observacao",
                [](QWidget& dialogo) { clica(dialogo, "cmdOk"); })
        .quando("FrmOFT", "nota-emitida", [](QWidget& tela) { clica(tela, "CmdFechar"); })
        .quando("MDIMenu", "",
                [](QWidget& janela) {
                    auto& barra = barraDe(janela);
                    const QRect lugar = barra.actionGeometry(&filho<QAction>(janela, "mnuAjuda"));
                    QTest::mouseClick(&barra, Qt::LeftButton, {}, lugar.center());
                })
        .quando("frmAjuda", "ajuda", [](QWidget& dialogo) { clica(dialogo, "cmdVoltar"); });
}

void escreveReimpressao(Roteiro& roteiro, const Entrada& entrada) {
    roteiro
        .quando("MDIMenu", "",
                [](QWidget& janela) {
                    abreMenu(janela, "mnuNF");
                    escolhe(janela, "mnuNF", "mRINF");
                })
        .quando("FrmReImprimeNF", "reimpressao",
                [&](QWidget& tela) {
                    pesquisa(tela, numeroNoPapel(entrada.pasta));
                    roteiro.fotografa(tela, "reimpressao-preenchida");
                    clica(tela, "cmdSelecionar");
                })
        .quando("FrmReImprimeNF", "", [](QWidget& tela) { clica(tela, "CmdFechar"); });
}

void escreveCancelamento(Roteiro& roteiro, const Entrada& entrada) {
    roteiro
        .quando("MDIMenu", "",
                [](QWidget& janela) {
                    abreMenu(janela, "mnuNF");
                    escolhe(janela, "mnuNF", "mCNF");
                })
        .quando("FrmReImprimeNF", "cancelamento",
                [&](QWidget& tela) {
                    pesquisa(tela, numeroNoPapel(entrada.pasta));
                    auto& semNovo = filho<QWidget>(tela, "OptionReimp_1");
                    QTest::mouseClick(&semNovo, Qt::LeftButton, {}, {8, semNovo.height() / 2});
                    escolheNaLista(tela, "CboMot_Can", 1);
                    roteiro.fotografa(tela, "cancelamento-preenchido");
                    clica(tela, "cmdSelecionar");
                })
        .quando("MessageBox", "nota-cancelada", aceita)
        .quando("FrmReImprimeNF", "", [](QWidget& tela) { clica(tela, "cmdPesquisar"); })
        .quando("MessageBox", "nota-nao-encontrada", aceita)
        .quando("FrmReImprimeNF", "", [](QWidget& tela) { clica(tela, "CmdFechar"); });
}

int anda(DeskApplication& programa, const Entrada& entrada) {
    Opcoes opcoes;
    opcoes.baseUrl = enderecoDoServidor(entrada.servidor);
    opcoes.impressoraVirtual = entrada.pasta;
    Mesa mesa(programa, opcoes, impressorasDe(opcoes));
    Roteiro roteiro(QString::fromStdString(entrada.pasta));
    escreveEmissao(roteiro, entrada);
    escreveReimpressao(roteiro, entrada);
    escreveCancelamento(roteiro, entrada);
    roteiro.quando("MDIMenu", "fim", [](QWidget& janela) { janela.close(); });
    QObject::connect(&roteiro, &Roteiro::acabou, [](const QString& motivo) {
        if (!motivo.isEmpty()) {
            std::fprintf(stderr, "tarnroteiro: %s.\n", qPrintable(motivo));
            QCoreApplication::exit(1);
        }
    });
    mesa.menu().resize(larguraDaMesa, alturaDaMesa);
    mesa.abre();
    roteiro.comeca();
    const int status = programa.exec();
    if (status == 0 && !roteiro.completo()) {
        std::fputs("tarnroteiro: a mesa fechou antes do fim do roteiro.\n", stderr);
        return 1;
    }
    return status;
}

}  // namespace
}  // namespace tarn

// The off-screen platform complains of what it can't do; only what ends the walk counts.
static void soFatais(QtMsgType tipo, const QMessageLogContext&, const QString& texto) {
    if (tipo == QtFatalMsg) {
        std::fprintf(stderr, "tarnroteiro: %s\n", qPrintable(texto));
    }
}

int main(int argc, char** argv) {
    qInstallMessageHandler(soFatais);
    tarn::Entrada entrada;
    CLI::App app("Percorre o trabalho principal nas telas reais e guarda as imagens e o papel.",
                 "tarnroteiro");
    app.add_option("--servidor", entrada.servidor, "endereço do servidor de treino")->required();
    app.add_option("--saida", entrada.pasta, "pasta das imagens e do papel")->required();
    app.add_option("--empresa", entrada.empresa, "empresa do logon de treino");
    app.add_option("--usuario", entrada.usuario, "usuário do logon de treino");
    app.add_option("--senha", entrada.senha, "senha do logon de treino");
    CLI11_PARSE(app, argc, argv);
    tarn::DeskApplication programa(argc, argv);
    return tarn::anda(programa, entrada);
}
