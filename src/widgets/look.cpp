#include "widgets/look.h"

#include <QApplication>
#include <QComboBox>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QProxyStyle>
#include <QPushButton>
#include <QTranslator>

// Resources of a static library are linked in by this call; it must stand outside of
// any namespace.
static void initDeskResources() {
    Q_INIT_RESOURCE(desk);
}

namespace tarn {
namespace {

constexpr QRgb accent = 0xff1f6f78;
constexpr QRgb paper = 0xfff4f6f6;
constexpr QRgb ink = 0xff1d2b2e;

class DeskStyle : public QProxyStyle {
public:
    DeskStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

    // The wheel turns a drop-down list only while it is in use, and doesn't bring it the
    // focus: a choice isn't lost by scrolling past it.
    using QProxyStyle::polish;
    void polish(QWidget* widget) override {
        QProxyStyle::polish(widget);
        if (qobject_cast<QComboBox*>(widget) != nullptr) {
            widget->setFocusPolicy(Qt::StrongFocus);
        }
    }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        if (hint == SH_LineEdit_PasswordCharacter) {
            return '*';
        }
        if (hint == SH_EtchDisabledText || hint == SH_DitherDisabledText) {
            return 0;
        }
        if (hint == SH_ComboBox_AllowWheelScrolling) {
            return widget != nullptr && widget->hasFocus() ? 1 : 0;
        }
        return QProxyStyle::styleHint(hint, option, widget, data);
    }

    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override {
        switch (icon) {
            case SP_MessageBoxInformation:
                return picture(QStringLiteral("box_information"));
            case SP_MessageBoxWarning:
                return picture(QStringLiteral("box_exclamation"));
            case SP_MessageBoxQuestion:
                return picture(QStringLiteral("box_question"));
            case SP_MessageBoxCritical:
                return picture(QStringLiteral("box_critical"));
            default:
                return QProxyStyle::standardIcon(icon, option, widget);
        }
    }
};

QPalette deskPalette() {
    QPalette palette(QColor::fromRgb(0xffe4e9e9), QColor::fromRgb(paper));
    palette.setColor(QPalette::WindowText, QColor::fromRgb(ink));
    palette.setColor(QPalette::Text, QColor::fromRgb(ink));
    palette.setColor(QPalette::ButtonText, QColor::fromRgb(ink));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor::fromRgb(0xffeef3f3));
    palette.setColor(QPalette::Mid, QColor::fromRgb(0xffc3cfcf));
    palette.setColor(QPalette::Highlight, QColor::fromRgb(accent));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, Qt::white);
    palette.setColor(QPalette::ToolTipText, QColor::fromRgb(ink));
    const QColor faded = QColor::fromRgb(0xff8a9697);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faded);
    }
    return palette;
}

// The toolkit's own texts (menus of text fields, of inner windows) in Portuguese.
void translateToolkit(QApplication& program) {
    auto* translator = new QTranslator(&program);
    if (translator->load(QStringLiteral("qtbase_pt_BR"),
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(translator);
    }
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
    QApplication::setPalette(deskPalette());
    QApplication::setWindowIcon(picture(QStringLiteral("tarnemissao")));
    translateToolkit(program);
}

QIcon picture(const QString& name) {
    return QIcon(QStringLiteral(":/desk/%1.svg").arg(name));
}

void setIcon(QPushButton& button, const char* name) {
    showPicture(button, name, button.fontMetrics().height() * 3 / 2);
}

void setLargeIcon(QPushButton& button, const char* name) {
    showPicture(button, name, button.fontMetrics().height() * 2);
}

}  // namespace tarn
