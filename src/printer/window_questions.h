// What the user is asked beside the window; tests give their own answers.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

class QPrinter;
class QWidget;

namespace tarn::dotmatrix {

// A name is empty, and `print` false, when the user wants nothing.
struct WindowQuestions {
    std::function<QString(const QString& title, const QString& suggested, const QString& kinds)>
        saveAs;
    std::function<QStringList(const QString& title, const QString& kinds)> open;
    std::function<bool(QPrinter& printer)> print;
    // The name of a queue of the machine.
    std::function<QString()> queue;
};

// The file and print dialogs of Qt over `window`, which must outlive the result.
WindowQuestions askTheUser(QWidget* window);

}  // namespace tarn::dotmatrix
