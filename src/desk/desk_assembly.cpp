#include "desk/desk_assembly.h"

#include <QTimer>
#include <iostream>

#include "desk/report.h"
#include "desk/server_address.h"
#include "gateway/commands.h"
#include "platform/directory/directory_spooler.h"
#include "platform/directory/picture_folder.h"
#include "platform/parts/printing_part.h"
#include "runtime/file_names.h"
#include "runtime/version.h"
#include "widgets/manual.h"

namespace tarn {

Printers printersOf(const Options& options) {
    if (options.virtualPrinter.empty()) {
        return {newLateSpooler(), newLatePrinter({})};
    }
    const auto files = std::make_shared<JobFiles>(pathOf(options.virtualPrinter));
    return {std::make_unique<DirectorySpooler>(files), newLatePrinter(files)};
}

std::string printerObstacle(const Options& options, const Printers& printers) {
    if (!printers.raw) {
        return "este programa foi compilado sem impressora do sistema; use --impressora-virtual "
               "PASTA.";
    }
    if (!options.virtualPrinter.empty() && !JobFiles(pathOf(options.virtualPrinter)).canWrite()) {
        return "--impressora-virtual \"" + options.virtualPrinter +
               "\": não é possível gravar nesta pasta. Confira o nome e a permissão.";
    }
    return {};
}

Desk::Desk(DeskApplication& program, const Options& options, Printers printers)
    : program_(program),
      labelSelection_(options.labelSelection),
      early_(*network_, options.baseUrl + commands::VERSAO_TARN_EMISSAO(versionDate)),
      printers_(std::move(printers)),
      teller_(clock_, std::cerr),
      environment_{.http = server_,
                   .spooler = spooler_,
                   .printer = pages_,
                   .boxes = boxes_,
                   .clock = clock_,
                   .machine = machine_,
                   .baseUrl = options.baseUrl,
                   .codePage = options.codePage,
                   .pictureFolder =
                       options.pictureFolder.empty() ? usualPictureFolder() : options.pictureFolder,
                   .acts = &teller_} {
    if (options.serverReplaced) {
        menu_.showServer(QString::fromStdString(shownAddress(options.baseUrl)));
    }
    QObject::connect(&teller_, &Teller::lineChanged, &menu_, &MDIMenu::tell);
    QObject::connect(&program_.manualKey(), &ManualKey::notOpened, &menu_,
                     [this](const QString& trouble) {
                         boxes_.show({.text = trouble.toStdString(), .icon = BoxIcon::Exclamation});
                     });
    program_.setErrorReport([this](const std::exception_ptr& error) { reportError(desk_, error); });
    QObject::connect(&end_, &ProgramEnd::didEnd, &program_, [this](int status) {
        menu_.hide();
        http_.close();
        QCoreApplication::exit(status);
    });
}

Desk::~Desk() {
    program_.setErrorReport(nullptr);
}

void Desk::open() {
    menu_.show();
    QTimer::singleShot(0, &menu_, [this] {
        menu_.load();
        if (labelSelection_ && !end_.ended()) {
            menu_.openLabelSelection();
        }
    });
}

int runDesk(DeskApplication& program, const Options& options, Printers printers) {
    reportUncaughtErrors();
    return reportingErrors([&] {
        Desk desk(program, options, std::move(printers));
        desk.open();
        return DeskApplication::exec();
    });
}

}  // namespace tarn
