// The boxes of the printer's window, which works on while one is open.
#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace tarn::dotmatrix {

// What parts what the user meant from a slip of the finger: the safe answer is the one that
// the Enter key gives.
struct Question {
    const char* name = "";  // of the box
    QString text{};
    const char* yesName = "";  // of the button that does it
    QString yes{};
    QString no{};
};

// `run` is called when the user says yes.
void ask(QWidget& window, const Question& question, const std::function<void()>& run);

// What the user only has to read.
void showNotice(QWidget& window, const char* name, const QString& title, const QString& text);
// What went wrong, a whole sentence.
void showWarning(QWidget& window, const char* name, const QString& text);

}  // namespace tarn::dotmatrix
