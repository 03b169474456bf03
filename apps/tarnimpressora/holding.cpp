#include "apps/tarnimpressora/holding.h"

#include <QFile>
#include <QStandardPaths>
#include <chrono>

#include "platform/system_spooler.h"

namespace tarn::printer {

dotmatrix::HoldDesk::MakeSpooler systemQueues() {
    return [] { return makeSystemSpooler(); };
}

QString holdFolderOf(const Options& options) {
    return options.held.empty()
               ? QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                     QStringLiteral("/tarnemissao/retidos")
               : QFile::decodeName(options.held.c_str());
}

QString startHolding(const Options& options, dotmatrix::HoldDesk& desk,
                     dotmatrix::JobIntake& intake) {
    if (!desk.isOpen()) {
        if (QString wrong = desk.open(holdFolderOf(options)); !wrong.isEmpty()) {
            return wrong;
        }
        desk.showHeld(intake);
        intake.keepIn(&desk);
    }
    const auto after =
        options.releaseAfter
            ? std::optional<std::chrono::milliseconds>(std::chrono::seconds(*options.releaseAfter))
            : std::nullopt;
    desk.passTo(QString::fromStdString(options.queue), after);
    return {};
}

}  // namespace tarn::printer
