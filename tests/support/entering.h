// The ways by which a text gets into a field.
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <string>

#include "tests/support/fixed_machine.h"
#include "tests/support/user.h"

namespace tarn::test {

// A key that brings the text, with whatever is held beside it.
inline void typeWith(QWidget& field, Qt::KeyboardModifiers held, const QString& text) {
    const auto key = static_cast<Qt::Key>(text.front().toUpper().unicode());
    QTest::sendKeyEvent(QTest::Click, &field, key, text, held);
}

inline void compose(QWidget& field, const QString& text, const QString& stillComposed = {}) {
    QInputMethodEvent input(stillComposed, {});
    input.setCommitString(text);
    QCoreApplication::sendEvent(&field, &input);
}

inline void paste(QWidget& field, const QString& text) {
    QApplication::clipboard()->setText(text);
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
}

inline void pasteByInsert(QWidget& field, const QString& text) {
    QApplication::clipboard()->setText(text);
    QTest::keyClick(&field, Qt::Key_Insert, Qt::ShiftModifier);
}

// From the menu that the right button opens.
inline void pasteByMenu(QWidget& field, const QString& text) {
    QApplication::clipboard()->setText(text);
    const QPoint place = field.rect().center();
    QContextMenuEvent wish(QContextMenuEvent::Mouse, place, field.mapToGlobal(place));
    QCoreApplication::sendEvent(&field, &wish);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (QAction* entry : menu->actions()) {
        if (entry->text().startsWith(QLineEdit::tr("&Paste"))) {
            entry->trigger();
        }
    }
    menu->close();
    field.activateWindow();  // off-screen an open menu takes the activation along
    EXPECT_TRUE(QTest::qWaitForWindowActive(field.window()));
}

// True: the field took something of it.
inline bool drop(QWidget& field, const QString& text) {
    QMimeData dragged;
    dragged.setText(text);
    QDragEnterEvent enter({2, 2}, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&field, &enter);
    QDropEvent event(QPointF(2, 2), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&field, &event);
    return event.isAccepted();
}

enum class Comma { Taken, LeftOut };

// The field of a screen takes digits, and commas if so told, whatever brings them.
inline void expectNumbersOnly(QWidget& screen, const char* name, FixedMachine& machine,
                              Comma comma) {
    SCOPED_TRACE(name);
    auto& field = named<QLineEdit>(screen, name);
    const auto holds = [&field](const char* text) { return field.text().toStdString() == text; };
    atLeisure([&field] { field.setFocus(); });
    field.selectAll();
    paste(field, QStringLiteral("1.2/3-4 5"));
    EXPECT_TRUE(holds("12345")) << field.text().toStdString();
    field.selectAll();
    paste(field, QStringLiteral("6,7"));
    EXPECT_TRUE(holds(comma == Comma::Taken ? "6,7" : "67")) << field.text().toStdString();
    field.selectAll();
    field.insert(QStringLiteral("1"));
    machine.beeps = 0;
    typeWith(field, Qt::AltModifier, QStringLiteral("x"));
    typeWith(field, Qt::ControlModifier | Qt::AltModifier, QString::fromUtf8("²"));
    typeWith(field, Qt::MetaModifier, QStringLiteral("."));
    compose(field, QString::fromUtf8("á"));
    paste(field, QStringLiteral("2\r\n3"));
    pasteByInsert(field, QStringLiteral("R$ 5"));
    pasteByMenu(field, QStringLiteral("9a"));
    EXPECT_FALSE(drop(field, QStringLiteral("b")));
    EXPECT_TRUE(holds("1")) << field.text().toStdString();
    EXPECT_EQ(machine.beeps, 8);
    machine.beeps = 0;
}

}  // namespace tarn::test
