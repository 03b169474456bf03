#include "apps/tarnroteiro/note_walk.h"

#include <QDir>
#include <QFile>
#include <QMenu>

#include "apps/tarnroteiro/gestures.h"

namespace tarn {
namespace {

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

// Rows of the practice data, counted from 0.
constexpr int primeira = 0;
constexpr int comObservacao = 5;
constexpr int semEstoque = 6;
constexpr int recusada = 7;
constexpr int cliente = 1;  // column

}  // namespace

void escreveLogon(Roteiro& roteiro, const Entrada& entrada) {
    roteiro.quando("FrmLogon", "logon", [&](QWidget& janela) {
        digita(janela, "txtEmpresa", entrada.empresa);
        digita(janela, "txtUsuario", entrada.usuario);
        digita(janela, "txtSenha", entrada.senha);
        roteiro.fotografa(janela, "logon-preenchido");
        clica(janela, "btnLogin");
    });
}

void escreveEmissao(Roteiro& roteiro) {
    roteiro
        .quando("MDIMenu", "mesa",
                [&](QWidget& janela) {
                    abreMenu(janela, "mnuNF");
                    roteiro.fotografa(filho<QMenu>(janela, "mnuNF"), "menu-nota-fiscal");
                    escolhe(janela, "mnuNF", "mOFT");
                })
        .quando("FrmOFT", "ordens",
                [](QWidget& tela) {
                    clicaNaGrade(tela, primeira, cliente);
                    clica(tela, "cmdDetOFT");
                })
        .quando("frmManutDetOFT", "manutencao",
                [&](QWidget& dialogo) {
                    digita(dialogo, "txtQtde", "12");
                    digita(dialogo, "txtPesoBruto", "350,5");
                    roteiro.fotografa(dialogo, "manutencao-preenchida");
                    clica(dialogo, "cmdOk");
                })
        .quando("FrmOFT", "",
                [](QWidget& tela) {
                    clicaNaGrade(tela, primeira, cliente);
                    clica(tela, "cmdImprimirOF");
                })
        .quando("FrmOFT", "",
                [](QWidget& tela) {
                    clicaNaGrade(tela, recusada, cliente);
                    clica(tela, "cmdSelecionar");
                })
        .quando("MessageBox", "recusa-do-servidor", aceita)
        .quando("FrmOFT", "",
                [](QWidget& tela) {
                    clicaNaGrade(tela, semEstoque, cliente);
                    clica(tela, "cmdSelecionar");
                })
        .quando("frmMensagemAlerta", "sem-estoque",
                [](QWidget& dialogo) { clica(dialogo, "cmdVoltar"); })
        .quando("FrmOFT", "",
                [](QWidget& tela) {
                    clicaNaGrade(tela, comObservacao, cliente);
                    clica(tela, "cmdSelecionar");
                })
        .quando("frmMensagemAlerta", "observacao",
                [](QWidget& dialogo) { clica(dialogo, "cmdOk"); })
        .quando("FrmOFT", "nota-emitida", [](QWidget& tela) { clica(tela, "CmdFechar"); })
        .quando("MDIMenu", "", [](QWidget& janela) { clicaNaBarra(janela, "mnuAjuda"); })
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
                    assinala(tela, "OptionReimp_1");
                    escolheNaLista(tela, "CboMot_Can", 1);
                    roteiro.fotografa(tela, "cancelamento-preenchido");
                    clica(tela, "cmdSelecionar");
                })
        .quando("MessageBox", "nota-cancelada", aceita)
        .quando("FrmReImprimeNF", "", [](QWidget& tela) { clica(tela, "cmdPesquisar"); })
        .quando("MessageBox", "nota-nao-encontrada", aceita)
        .quando("FrmReImprimeNF", "", [](QWidget& tela) { clica(tela, "CmdFechar"); });
}

}  // namespace tarn
