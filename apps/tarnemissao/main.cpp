// The desk: the machine's seams, the main window, the event loop.
#include <QTimer>
#include <cstdio>
#include <memory>

#include "opcoes.h"
#include "platform/curl/curl_loader.h"
#include "platform/directory/directory_spooler.h"
#include "platform/qt/blocking_loader.h"
#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_machine.h"
#include "platform/qt/qt_message_boxes.h"
#include "platform/system_spooler.h"
#include "session/desk_application.h"
#include "session/mdi_menu.h"
#include "session/tela_futura.h"

namespace {

std::unique_ptr<tarn::Spooler> impressora(const tarn::Opcoes& opcoes) {
    if (opcoes.impressoraVirtual.empty()) {
        return tarn::makeSystemSpooler();
    }
    return std::make_unique<tarn::DirectorySpooler>(opcoes.impressoraVirtual);
}

int roda(tarn::DeskApplication& programa, const tarn::Opcoes& opcoes) {
    tarn::CurlLoader rede;
    tarn::BlockingLoader http(rede);
    const std::unique_ptr<tarn::Spooler> spooler = impressora(opcoes);
    if (!spooler) {
        std::fputs(
            "tarnemissao: este programa foi compilado sem impressora do sistema; use "
            "--impressora-virtual PASTA.\n",
            stderr);
        return 1;
    }
    tarn::QtMessageBoxes caixas;
    tarn::QtClock relogio;
    tarn::QtMachine maquina;
    tarn::Environment ambiente{
        http, *spooler, caixas, relogio, maquina, opcoes.baseUrl, opcoes.paginaDeCodigo};
    tarn::Sessao sessao;
    tarn::FimDoPrograma fim;
    tarn::DeskContext desk{ambiente, sessao, fim};
    programa.setRelato([&desk](const std::exception_ptr& erro) { tarn::relataErro(desk, erro); });
    QObject::connect(&fim, &tarn::FimDoPrograma::encerrou, &programa, [&http](int status) {
        http.close();
        QCoreApplication::exit(status);
    });
    tarn::MDIMenu menu(desk);
    menu.show();
    QTimer::singleShot(0, &menu, [&] {
        menu.carrega();
        if (opcoes.selecaoEtiquetas && !fim.encerrado()) {
            tarn::avisaTelaFutura(ambiente, "Seleção de Etiquetas");
        }
    });
    return programa.exec();
}

}  // namespace

int main(int argc, char** argv) {
    const auto lidas = tarn::leOpcoes(
        argc, argv, qEnvironmentVariable("TARN_SERVIDOR").toStdString(), TARN_BASE_URL);
    if (const auto* parada = std::get_if<tarn::SemPartida>(&lidas)) {
        std::fputs(parada->texto.c_str(), parada->status == 0 ? stdout : stderr);
        return parada->status;
    }
    tarn::DeskApplication programa(argc, argv);
    return roda(programa, std::get<tarn::Opcoes>(lidas));
}
