// The colours of a dark desktop, as its theme hands them to a program.
#pragma once

#include <QApplication>
#include <QPalette>
#include <QToolTip>

namespace tarn::test {

inline QPalette darkPalette() {
    QPalette dark(QColor(0x20, 0x20, 0x20), QColor(0x10, 0x10, 0x10));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::HighlightedText, QPalette::ToolTipText}) {
        dark.setColor(role, Qt::white);
    }
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::AlternateBase, QColor(0x18, 0x18, 0x18));
    dark.setColor(QPalette::ToolTipBase, Qt::black);
    dark.setColor(QPalette::PlaceholderText, Qt::yellow);
    dark.setColor(QPalette::Link, Qt::yellow);
    return dark;
}

// Also for single kinds of widgets, as themes do.
inline void setDarkDesktop() {
    QApplication::setPalette(darkPalette());
    for (const char* kind :
         {"QAbstractButton", "QAbstractItemView", "QCheckBox", "QComboBox", "QGroupBox",
          "QHeaderView", "QLabel", "QLineEdit", "QMenu", "QMenuBar", "QMessageBox", "QRadioButton",
          "QPlainTextEdit", "QTabBar", "QTextEdit", "QTextControl", "QToolButton"}) {
        QApplication::setPalette(darkPalette(), kind);
    }
    QToolTip::setPalette(darkPalette());
}

}  // namespace tarn::test
