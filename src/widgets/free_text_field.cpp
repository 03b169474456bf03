#include "widgets/free_text_field.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QRegularExpression>
#include <QTextBlock>
#include <algorithm>

#include "platform/qt/acting_keys.h"
#include "widgets/field_controller.h"

namespace tarn {
namespace {

// Each line end, however it is written, as one blank.
QString oneParagraph(QString text) {
    static const QRegularExpression lineEnd(
        QStringLiteral("\r\n|[\\n\\r\\x{0b}\\x{0c}\\x{85}\\x{2028}\\x{2029}]"));
    return text.replace(lineEnd, QStringLiteral(" "));
}

}  // namespace

FreeTextField::FreeTextField(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
    letEnterMoveOn(*this);
}

void FreeTextField::loadText(const std::string& text) {
    shown_ = text;
    setPlainText(QString::fromStdString(text));
    document()->setModified(false);
    limit_ = std::max(limit_, length());
}

// The raw text, since the plain one has blanks for no-break blanks.
std::string FreeTextField::text() const {
    if (!document()->isModified()) {
        return shown_;
    }
    const bool crLf = shown_.find("\r\n") != std::string::npos;
    return document()
        ->toRawText()
        .replace(QChar::ParagraphSeparator, crLf ? QStringLiteral("\r\n") : QStringLiteral("\n"))
        .toStdString();
}

QSize FreeTextField::sizeHint() const {
    const int margins = 2 * (frameWidth() + static_cast<int>(document()->documentMargin()));
    return {QPlainTextEdit::sizeHint().width(), lines_ * fontMetrics().lineSpacing() + margins};
}

int FreeTextField::length() const {
    return document()->characterCount() - 1;  // it counts an end of its own
}

// What goes over the limit was put right before the cursor.
template <typename Edit>
void FreeTextField::withinLimit(Edit edit) {
    edit();
    const int excess = length() - limit_;
    if (excess > 0) {
        QTextCursor cursor = textCursor();
        cursor.joinPreviousEditBlock();
        cursor.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor, excess);
        cursor.removeSelectedText();
        cursor.endEditBlock();
    }
}

void FreeTextField::keyPressEvent(QKeyEvent* event) {
    if (isEnter(*event)) {
        sendTab(*this);
        return;
    }
    withinLimit([&] { QPlainTextEdit::keyPressEvent(event); });
}

void FreeTextField::inputMethodEvent(QInputMethodEvent* event) {
    event->setCommitString(oneParagraph(event->commitString()), event->replacementStart(),
                           event->replacementLength());
    withinLimit([&] { QPlainTextEdit::inputMethodEvent(event); });
}

void FreeTextField::insertFromMimeData(const QMimeData* source) {
    if (source->hasText()) {
        withinLimit([&] { insertPlainText(oneParagraph(source->text())); });
        ensureCursorVisible();
    }
}

}  // namespace tarn
