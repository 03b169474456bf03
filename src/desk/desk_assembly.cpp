#include "desk/desk_assembly.h"

#include <QTimer>

#include "platform/directory/directory_spooler.h"
#include "platform/qt/qt_printer.h"
#include "platform/system_spooler.h"

namespace tarn {

Impressoras impressorasDe(const Opcoes& opcoes) {
    if (opcoes.impressoraVirtual.empty()) {
        return {makeSystemSpooler(), std::make_unique<QtPrinter>()};
    }
    const auto files = std::make_shared<JobFiles>(opcoes.impressoraVirtual);
    return {std::make_unique<DirectorySpooler>(files), std::make_unique<QtPrinter>(files)};
}

Mesa::Mesa(DeskApplication& programa, const Opcoes& opcoes, Impressoras impressoras)
    : programa_(programa),
      selecaoEtiquetas_(opcoes.selecaoEtiquetas),
      impressoras_(std::move(impressoras)),
      ambiente_{.http = http_,
                .spooler = *impressoras_.bruta,
                .printer = *impressoras_.paginas,
                .boxes = caixas_,
                .clock = relogio_,
                .machine = maquina_,
                .baseUrl = opcoes.baseUrl,
                .codePage = opcoes.paginaDeCodigo} {
    if (!opcoes.pastaFiguras.empty()) {
        ambiente_.pastaFiguras = opcoes.pastaFiguras;
    }
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
            menu_.abreSelecaoEtiquetas();
        }
    });
}

}  // namespace tarn
