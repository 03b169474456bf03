// The job of a clerk in the real screens, without anybody at the keys. Leaves a picture
// of every step and the printed jobs in a folder.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <cstdio>

#include "apps/tarnroteiro/cheque_walk.h"
#include "apps/tarnroteiro/collection_walk.h"
#include "apps/tarnroteiro/gestures.h"
#include "apps/tarnroteiro/labels_walk.h"
#include "apps/tarnroteiro/note_walk.h"
#include "apps/tarnroteiro/printer_picture.h"
#include "desk/desk_assembly.h"

namespace tarn {
namespace {

// The desk as a clerk's screen shows it, whatever the size of the screen that is lacking.
constexpr int larguraDaMesa = 1280;
constexpr int alturaDaMesa = 820;

void escreveDia(Roteiro& roteiro, const Entrada& entrada) {
    escreveEmissao(roteiro);
    escreveReimpressao(roteiro, entrada);
    escreveCancelamento(roteiro, entrada);
    escreveDuplicatas(roteiro);
    escreveBoletos(roteiro);
    escreveCheque(roteiro);
    escreveEtiquetas(roteiro);
}

// Whose user may not issue.
void escreveRecusa(Roteiro& roteiro, const Entrada&) {
    roteiro
        .quando("MDIMenu", "",
                [](QWidget& janela) {
                    abreMenu(janela, "mnuNF");
                    escolhe(janela, "mnuNF", "mOFT");
                })
        .quando("MessageBox", "direito-recusado", aceita);
}

void escreveSelecao(Roteiro& roteiro, const Entrada&) {
    escreveSelecaoEtiquetas(roteiro);
}

struct Andanca {
    const char* nome;
    void (*escreve)(Roteiro& roteiro, const Entrada& entrada);
};
constexpr std::array andancas{Andanca{"dia", escreveDia}, Andanca{"recusa", escreveRecusa},
                              Andanca{"selecao", escreveSelecao}};

int anda(DeskApplication& programa, const Entrada& entrada, const std::string& nome) {
    const auto andanca = std::ranges::find(andancas, nome, &Andanca::nome);
    Opcoes opcoes;
    opcoes.baseUrl = enderecoDoServidor(entrada.servidor);
    opcoes.impressoraVirtual = entrada.pasta;
    opcoes.selecaoEtiquetas = nome == "selecao";
    Mesa mesa(programa, opcoes, impressorasDe(opcoes));
    Roteiro roteiro(QString::fromStdString(entrada.pasta));
    escreveLogon(roteiro, entrada);
    andanca->escreve(roteiro, entrada);
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
    app.add_option("--servidor", entrada.servidor, "endereço do servidor de treino");
    app.add_option("--saida", entrada.pasta, "pasta das imagens e do papel")->required();
    app.add_option("--empresa", entrada.empresa, "empresa do logon de treino");
    app.add_option("--usuario", entrada.usuario, "usuário do logon de treino");
    app.add_option("--senha", entrada.senha, "senha do logon de treino");
    std::string nome = "dia";
    app.add_option("--roteiro", nome,
                   "dia (usual), recusa (de quem não pode emitir), selecao (de etiquetas) ou "
                   "impressora (a janela da impressora virtual com a nota que já está na pasta)")
        ->check(CLI::IsMember({"dia", "recusa", "selecao", "impressora"}));
    CLI11_PARSE(app, argc, argv);
    tarn::DeskApplication programa(argc, argv);
    if (nome == "impressora") {
        return tarn::retrataImpressora(entrada.pasta) ? 0 : 1;
    }
    return tarn::anda(programa, entrada, nome);
}
