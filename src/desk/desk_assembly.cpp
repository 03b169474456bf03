#include "desk/desk_assembly.h"

#include <QTimer>

#include "platform/directory/directory_spooler.h"
#include "platform/qt/qt_printer.h"
#include "platform/system_spooler.h"

namespace tarn {

Printers printersOf(const Options& options) {
    if (options.virtualPrinter.empty()) {
        return {makeSystemSpooler(), std::make_unique<QtPrinter>()};
    }
    const auto files = std::make_shared<JobFiles>(options.virtualPrinter);
    return {std::make_unique<DirectorySpooler>(files), std::make_unique<QtPrinter>(files)};
}

Desk::Desk(DeskApplication& program, const Options& options, Printers printers)
    : program_(program),
      labelSelection_(options.labelSelection),
      printers_(std::move(printers)),
      environment_{.http = http_,
                   .spooler = *printers_.raw,
                   .printer = *printers_.pages,
                   .boxes = boxes_,
                   .clock = clock_,
                   .machine = machine_,
                   .baseUrl = options.baseUrl,
                   .codePage = options.codePage} {
    if (!options.pictureFolder.empty()) {
        environment_.pictureFolder = options.pictureFolder;
    }
    program_.setErrorReport([this](const std::exception_ptr& error) { reportError(desk_, error); });
    QObject::connect(&end_, &ProgramEnd::didEnd, &program_, [this](int status) {
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

}  // namespace tarn
