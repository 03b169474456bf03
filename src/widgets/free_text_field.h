// A text of several lines on screen that stays one paragraph: Enter is a Tab stroke,
// and what is typed, composed, pasted or dropped brings no line end.
#pragma once

#include <QPlainTextEdit>
#include <string>

namespace tarn {

class FreeTextField : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit FreeTextField(QWidget* parent = nullptr);

    // Most characters that it holds, line ends as their characters.
    void setMaxLength(int characters) { limit_ = characters; }
    // How many lines it shows where its window has the height it asks for.
    void setVisibleLines(int lines) { lines_ = lines; }

    // A text that comes from elsewhere is shown with its line ends, up to the limit.
    void loadText(const std::string& text);
    // What it holds; untouched, exactly what was loaded.
    std::string text() const;

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    int length() const;
    template <typename Edit>
    void withinLimit(Edit edit);

    std::string edited() const;

    int limit_ = 32767;
    int lines_ = 4;
    std::string shown_;
    bool crLf_ = false;  // how a line of what was loaded ends
};

}  // namespace tarn
