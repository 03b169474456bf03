#include "apps/tarnroteiro/labels_walk.h"

#include "apps/tarnroteiro/gestures.h"

namespace tarn {
namespace {

// Items of the lists, counted from 0.
constexpr int primeiroMotivo = 1;
constexpr int comRemetente = 4;
constexpr int matricial = 2;
constexpr int primeiraFilial = 1;

void digitaFaixa(QWidget& tela, const char* de, const char* ate) {
    digita(tela, "txtDe", de);
    digita(tela, "txtAte", ate);
}

}  // namespace

void escreveEtiquetas(Roteiro& roteiro) {
    roteiro
        .quando("MDIMenu", "",
                [](QWidget& janela) {
                    abreMenu(janela, "mnuEtiquetas");
                    escolhe(janela, "mnuEtiquetas", "mnuImprClientes");
                })
        .quando("frmPesqEtiquetas", "",
                [&](QWidget& tela) {
                    escolheNaLista(tela, "cboMotivo", primeiroMotivo);
                    escolheNaLista(tela, "cboTp_Form", comRemetente);
                    escolheNaLista(tela, "CboFilialRemet", primeiraFilial);
                    roteiro.fotografa(tela, "etiquetas");
                    clica(tela, "cmdImprimir");
                })
        .quando("frmImprimirEtiqueta", "",
                [&](QWidget& tela) {
                    digitaFaixa(tela, "1", "3");
                    roteiro.fotografa(tela, "etiquetas-imprimir");
                    clica(tela, "cmdOk");
                })
        .quando("MessageBox", "etiquetas-impressas", aceita)
        .quando("frmPesqEtiquetas", "",
                [](QWidget& tela) {
                    escolheNaLista(tela, "cboTp_Form", matricial);
                    clica(tela, "cmdImprimir");
                })
        .quando("frmImprimirEtiqueta", "",
                [](QWidget& tela) {
                    digitaFaixa(tela, "1", "5");
                    clica(tela, "cmdOk");
                })
        .quando("frmPesqEtiquetas", "", [](QWidget& tela) { clica(tela, "cmdExcluir"); })
        .quando("frmExcluirEtiqueta", "",
                [&](QWidget& tela) {
                    digitaFaixa(tela, "1", "3");
                    roteiro.fotografa(tela, "etiquetas-excluir");
                    clica(tela, "cmdOk");
                })
        .quando("MessageBox", "etiquetas-excluidas", aceita)
        .quando("frmPesqEtiquetas", "", [](QWidget& tela) { clica(tela, "cmdVoltar"); });
}

void escreveSelecaoEtiquetas(Roteiro& roteiro) {
    roteiro
        .quando("FrmImprEtiq", "",
                [](QWidget& tela) {
                    digita(tela, "txtCepDe", "01000000");
                    digita(tela, "txtCepAte", "09999999");
                    clica(tela, "cmdPesquisar");
                })
        .quando("MessageBox", "selecao-consulta", aceita)
        .quando("FrmImprEtiq", "",
                [&](QWidget& tela) {
                    for (int linha = 0; linha < 3; ++linha) {
                        clicaNaGrade(tela, linha, 0);
                    }
                    roteiro.fotografa(tela, "selecao-etiquetas");
                    clica(tela, "cmdImprimir");
                })
        .quando("MessageBox", "", aceita)
        .quando("FrmImprEtiq", "", [](QWidget& tela) { clica(tela, "cmdVoltar"); });
}

}  // namespace tarn
