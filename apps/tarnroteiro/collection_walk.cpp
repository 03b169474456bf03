#include "apps/tarnroteiro/collection_walk.h"

#include "apps/tarnroteiro/gestures.h"

namespace tarn {
namespace {

// Items of the lists, counted from 0.
constexpr int duplicata = 1;
constexpr int recibo = 2;
constexpr int carteira57 = 1;

constexpr int caixa = 0;  // column of the check boxes
constexpr const char* desdeSempre = "01012000";
constexpr const char* ateSempre = "31122099";

void marcaAsPrimeiras(QWidget& tela, int quantas) {
    for (int linha = 0; linha < quantas; ++linha) {
        clicaNaGrade(tela, linha, caixa);
    }
}

}  // namespace

void escreveDuplicatas(Roteiro& roteiro) {
    roteiro.quando("MDIMenu", "", [](QWidget& janela) { clicaNaBarra(janela, "mnuDuplicata"); })
        .quando("FrmPesqDupli", "", [](QWidget& tela) { clica(tela, "cmdPesqCli"); })
        .quando("FrmPesqCliente", "",
                [&](QWidget& dialogo) {
                    digita(dialogo, "txtNmCli", "pão de ara");
                    clica(dialogo, "cmdPesquisar");
                    clicaNaGrade(dialogo, 0, 0);
                    roteiro.fotografa(dialogo, "clientes");
                    clica(dialogo, "cmdSelecionar");
                })
        .quando("FrmPesqDupli", "",
                [&](QWidget& tela) {
                    escolheNaLista(tela, "cboTpDocto", duplicata);
                    digita(tela, "txtDtVncAte", ateSempre);
                    clica(tela, "cmdPesquisar");
                    marcaAsPrimeiras(tela, 2);
                    roteiro.fotografa(tela, "duplicatas");
                    clica(tela, "cmdImprimir");
                })
        .quando("MessageBox", "duplicatas-impressas", aceita)
        .quando("FrmPesqDupli", "",
                [&](QWidget& tela) {
                    clica(tela, "cmdLimpar");
                    escolheNaLista(tela, "cboTpDocto", recibo);
                    clica(tela, "cmdPesquisar");
                    marcaAsPrimeiras(tela, 1);
                    roteiro.fotografa(tela, "recibos");
                    clica(tela, "cmdImprimir");
                })
        .quando("MessageBox", "", aceita)
        .quando("FrmPesqDupli", "", [](QWidget& tela) { clica(tela, "cmdVoltar"); });
}

void escreveBoletos(Roteiro& roteiro) {
    roteiro.quando("MDIMenu", "", [](QWidget& janela) { clicaNaBarra(janela, "mnuBoleto"); })
        .quando("frmPesqBoleto", "",
                [](QWidget& tela) {
                    clica(tela, "cmdLimpar");
                    digita(tela, "txtDtEmsDe", desdeSempre);
                    digita(tela, "txtDtVncAte", ateSempre);
                    clica(tela, "cmdPesquisar");
                })
        .quando("MessageBox", "carteira-obrigatoria", aceita)
        .quando("frmPesqBoleto", "",
                [&](QWidget& tela) {
                    escolheNaLista(tela, "cboCartCob", carteira57);
                    clica(tela, "cmdPesquisar");
                    marcaAsPrimeiras(tela, 2);
                    digita(tela, "txtNr_Bol_Banc", "1234");
                    roteiro.fotografa(tela, "boletos");
                    clica(tela, "cmdImprimir");
                    roteiro.fotografa(tela, "boleto-impresso");
                })
        .quando("frmPesqBoleto", "", [](QWidget& tela) { clica(tela, "cmdVoltar"); });
}

}  // namespace tarn
