// A field where Enter is the Tab stroke, without the rules of the desk's own.
#pragma once

#include <QKeyEvent>
#include <QLineEdit>
#include <QTest>

#include "platform/qt/acting_keys.h"

namespace tarn::test {

class TabField : public QLineEdit {
public:
    TabField() { letEnterMoveOn(*this); }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Return) {
            QTest::keyClick(this, Qt::Key_Tab);
        } else {
            QLineEdit::keyPressEvent(event);
        }
    }
};

}  // namespace tarn::test
