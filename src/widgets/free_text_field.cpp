#include "widgets/free_text_field.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QRegularExpression>
#include <QTextBlock>
#include <algorithm>

#include "platform/qt/acting_keys.h"
#include "runtime/text.h"
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
    shown_ = leftOf(text, static_cast<std::size_t>(limit_));
    crLf_ = shown_.find("\r\n") != std::string::npos;
    setPlainText(QString::fromStdString(shown_));
    document()->setModified(false);
}

std::string FreeTextField::text() const {
    if (!document()->isModified()) {
        return shown_;
    }
    return std::string(leftOf(edited(), static_cast<std::size_t>(limit_)));
}

// The raw text, since the plain one has blanks for no-break blanks.
std::string FreeTextField::edited() const {
    const QString lineEnd = crLf_ ? QStringLiteral("\r\n") : QStringLiteral("\n");
    return document()->toRawText().replace(QChar::ParagraphSeparator, lineEnd).toStdString();
}

QSize FreeTextField::sizeHint() const {
    const int margins = 2 * (frameWidth() + static_cast<int>(document()->documentMargin()));
    return {QPlainTextEdit::sizeHint().width(), lines_ * fontMetrics().lineSpacing() + margins};
}

int FreeTextField::length() const {
    return static_cast<int>(lengthOf(edited()));
}

// What goes over the limit was put right before the cursor. No more goes than came: line
// ends of several kinds become one kind with the first change.
template <typename Edit>
void FreeTextField::withinLimit(Edit edit) {
    const int before = length();
    edit();
    const int after = length();
    const int excess = std::min(after - limit_, after - before);
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
