#include "mesa.h"

#include <QTimer>

#include "platform/directory/directory_spooler.h"
#include "platform/system_spooler.h"
#include "session/tela_futura.h"

namespace tarn {

std::unique_ptr<Spooler> impressoraDe(const Opcoes& opcoes) {
    if (opcoes.impressoraVirtual.empty()) {
        return makeSystemSpooler();
    }
    return std::make_unique<DirectorySpooler>(opcoes.impressoraVirtual);
}

Mesa::Mesa(DeskApplication& programa, const Opcoes& opcoes, std::unique_ptr<Spooler> impressora)
    : programa_(programa),
      selecaoEtiquetas_(opcoes.selecaoEtiquetas),
      impressora_(std::move(impressora)),
      ambiente_{http_,          *impressora_,         caixas_, relogio_, maquina_,
                opcoes.baseUrl, opcoes.paginaDeCodigo} {
    programa_.setRelato([this](const std::exception_ptr& erro) { relataErro(desk_, erro); });
    QObject::connect(&fim_, &FimDoPrograma::encerrou, &programa_, [this](int status) {
        http_.close();
        QCoreApplication::exit(status);
    });
}

Mesa::~Mesa() {
    programa_.setRelato(nullptr);
}

void Mesa::abre() {
    menu_.show();
    QTimer::singleShot(0, &menu_, [this] {
        menu_.carrega();
        if (selecaoEtiquetas_ && !fim_.encerrado()) {
            avisaTelaFutura(ambiente_, "Seleção de Etiquetas");
        }
    });
}

}  // namespace tarn
