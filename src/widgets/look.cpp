#include "widgets/look.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QPushButton>
#include <QTranslator>

#include "widgets/desk_palette.h"
#include "widgets/desk_style.h"
#include "widgets/late_icon.h"
#include "widgets/toolkit_words.h"

// Resources of a static library are linked in by this call; it must stand outside of
// any namespace.
static void initDeskResources() {
    Q_INIT_RESOURCE(desk);
}

namespace tarn {
namespace {

// The toolkit's own texts (menus of text fields, of inner windows) in Portuguese.
void translateToolkit(QApplication& program) {
    auto* translator = new QTranslator(&program);
    if (translator->load(QStringLiteral("qtbase_pt_BR"),
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(translator);
    }
    QApplication::installTranslator(new ToolkitWords(&program));
}

void showPicture(QPushButton& button, const char* name, int side) {
    button.setIcon(picture(QLatin1StringView(name)));
    button.setIconSize({side, side});
}

}  // namespace

void applyLook(QApplication& program) {
    initDeskResources();
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    QApplication::setStyle(new DeskStyle);
    replacePalettes();
    QApplication::setWindowIcon(picture(QStringLiteral("tarnemissao")));
    translateToolkit(program);
}

#ifdef TARN_PICTURE_SIDES

QIcon picture(const QString& name) {
    QIcon icon;
    for (const int side : {TARN_PICTURE_SIDES}) {
        icon.addFile(QStringLiteral(":/desk/%1-%2.png").arg(name).arg(side));
    }
    return icon;
}

#else

QIcon picture(const QString& name) {
    return lateIcon([name] { return QIcon(QStringLiteral(":/desk/%1.svg").arg(name)); });
}

#endif

void setIcon(QPushButton& button, const char* name) {
    showPicture(button, name, button.fontMetrics().height() * 3 / 2);
}

void setLargeIcon(QPushButton& button, const char* name) {
    showPicture(button, name, button.fontMetrics().height() * 2);
}

}  // namespace tarn
