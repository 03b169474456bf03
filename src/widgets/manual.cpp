#include "widgets/manual.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QUrl>
#include <QWidget>
#include <array>

namespace tarn {
namespace {

// From the folder of the programs: where it is installed, and in the build tree; and where
// everything lies in one folder.
constexpr std::array manualFolders{"/../share/tarnemissao/manual", "/manual"};

QStringList foldersOfManual() {
    QStringList folders;
    for (const char* folder : manualFolders) {
        folders += QCoreApplication::applicationDirPath() + QLatin1StringView(folder);
    }
    return folders;
}

// Empty: there is none of that name.
QString pageFile(const QString& name) {
    const QFileInfo file(QStringLiteral("%1:%2").arg(QLatin1StringView(manualPrefix), name));
    return file.isFile() ? file.canonicalFilePath() : QString();
}

QString pageOfScreen(const QWidget& widget) {
    const QString& name = widget.objectName();
    return name.isEmpty() ? QString() : pageFile(QStringLiteral("telas/%1.html").arg(name));
}

}  // namespace

QString manualPage(const QWidget* widget) {
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (QString page = pageOfScreen(*widget); !page.isEmpty()) {
            return page;
        }
    }
    return pageFile(QStringLiteral("index.html"));
}

std::string openManual(const QWidget* widget) {
    const QString page = manualPage(widget);
    if (page.isEmpty()) {
        return "O manual não está nesta máquina. Peça ao administrador que instale o programa de "
               "novo.";
    }
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(page))) {
        return "O manual não abriu: esta máquina não tem navegador, ou ele não respondeu. O manual "
               "está em " +
               page.toStdString() + "; abra esse arquivo em um navegador.";
    }
    return {};
}

ManualKey::ManualKey(QApplication& application) : QObject(&application) {
    QDir::setSearchPaths(QLatin1StringView(manualPrefix), foldersOfManual());
    application.installEventFilter(this);
}

// The window system's window gets a key first, and then the widget that has the focus.
bool ManualKey::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !receiver->isWidgetType()) {
        return false;
    }
    const auto& stroke = static_cast<const QKeyEvent&>(*event);
    if (stroke.key() != Qt::Key_F1 || stroke.modifiers() != Qt::NoModifier) {
        return false;
    }
    const std::string trouble = openManual(static_cast<QWidget*>(receiver));
    if (!trouble.empty()) {
        emit notOpened(QString::fromStdString(trouble));
    }
    return true;
}

}  // namespace tarn
