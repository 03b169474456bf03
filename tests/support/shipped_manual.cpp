#include "tests/support/shipped_manual.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>

#include "widgets/manual.h"

namespace tarn::test {
namespace {

const QString fileScheme = QStringLiteral("file");

}  // namespace

ShippedManual::ShippedManual(const QStringList& pages)
    : before_(QDir::searchPaths(QLatin1StringView(manualPrefix))) {
    QDir(folder_.path()).mkpath(QStringLiteral("telas"));
    for (const QString& name : pages) {
        QFile file(page(name));
        if (!file.open(QIODevice::WriteOnly)) {
            qFatal("%s can't be written", qPrintable(name));
        }
    }
    QDir::setSearchPaths(QLatin1StringView(manualPrefix), {folder_.path()});
    QDesktopServices::setUrlHandler(fileScheme, this, "open");
}

ShippedManual::~ShippedManual() {
    QDesktopServices::unsetUrlHandler(fileScheme);
    QDir::setSearchPaths(QLatin1StringView(manualPrefix), before_);
}

}  // namespace tarn::test
