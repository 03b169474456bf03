#include "platform/qt/box_window.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <QTextDocument>
#include <algorithm>
#include <cmath>

#include "platform/qt/text_room.h"

namespace tarn {
namespace {

constexpr int readableWidth = 80;  // characters; a longer line is broken
constexpr int mostOfScreen = 90;   // per cent of its width and height, frame included
constexpr int frame = 40;          // pixels kept for the window manager's

// The text with each CR, LF and CR LF as one line break, as widgets want it.
QString linesOnScreen(const std::string& text) {
    QString shown = QString::fromStdString(text);
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    shown.replace(u'\r', u'\n');
    return shown;
}

// A text for reading that looks like a label. Keys that it has no use for go to the box.
class BoxText : public QPlainTextEdit {
public:
    explicit BoxText(QWidget* parent) : QPlainTextEdit(parent) {
        setObjectName(QStringLiteral("text"));
        setReadOnly(true);
        setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        setUndoRedoEnabled(false);
        setTabChangesFocus(true);
        setFrameStyle(QFrame::NoFrame);
        QPalette seeThrough = palette();
        seeThrough.setColor(QPalette::Base, Qt::transparent);
        setPalette(seeThrough);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->matches(QKeySequence::Copy) && !textCursor().hasSelection()) {
            event->ignore();
        } else {
            QPlainTextEdit::keyPressEvent(event);
        }
    }
};

QStyle::StandardPixmap pictureOf(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::Exclamation:
            return QStyle::SP_MessageBoxWarning;
        case BoxIcon::Question:
            return QStyle::SP_MessageBoxQuestion;
        case BoxIcon::Critical:
            return QStyle::SP_MessageBoxCritical;
        case BoxIcon::Information:
        case BoxIcon::None:
            break;
    }
    return QStyle::SP_MessageBoxInformation;
}

// Where a line may be broken. Looking for the ends of words takes time that grows with the
// square of a word's length.
QTextOption::WrapMode breaksOf(const QString& text) {
    constexpr qsizetype longestWord = 4000;  // characters; some ten milliseconds
    qsizetype word = 0;
    for (const QChar letter : text) {
        word = letter.isSpace() ? 0 : word + 1;
        if (word > longestWord) {
            return QTextOption::WrapAnywhere;
        }
    }
    return QTextOption::WrapAtWordBoundaryOrAnywhere;
}

}  // namespace

BoxWindow::BoxWindow(const Box& box, QWidget* parent)
    : QDialog(parent),
      icon_(new QLabel(this)),
      text_(new BoxText(this)),
      buttons_(new QDialogButtonBox(this)) {
    setObjectName(QStringLiteral("MessageBox"));
    setWindowModality(Qt::ApplicationModal);
    setWindowTitle(QString::fromStdString(box.title));
    auto* grid = new QGridLayout(this);
    const int gap = fontMetrics().height();
    grid->setContentsMargins(gap, gap, gap, gap * 2 / 3);
    grid->setHorizontalSpacing(gap);
    grid->setVerticalSpacing(gap);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    grid->addWidget(icon_, 0, 0, Qt::AlignTop);
    grid->addWidget(text_, 0, 1, Qt::AlignVCenter);
    grid->addWidget(buttons_, 1, 0, 1, 2);
    showIcon(box.icon);
    showText(box.text);
    addButtons(box.buttons);
}

void BoxWindow::showIcon(BoxIcon icon) {
    icon_->setObjectName(QStringLiteral("icon"));
    icon_->setVisible(icon != BoxIcon::None);
    if (icon != BoxIcon::None) {
        const int side = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
        icon_->setPixmap(style()
                             ->standardIcon(pictureOf(icon), nullptr, this)
                             .pixmap(QSize(side, side), devicePixelRatio()));
    }
}

void BoxWindow::showText(const std::string& text) {
    const QString lines = linesOnScreen(text);
    text_->setWordWrapMode(breaksOf(lines));
    text_->setPlainText(lines);
    text_->setAccessibleName(windowTitle());
    setAccessibleDescription(lines);  // read out when the box opens
    fitToText();
}

// As wide as its lines, up to what is good to read; wider where that is too high for the
// screen; and where nothing helps it scrolls.
void BoxWindow::fitToText() {
    constexpr int lastLine = 1;  // dot below it, without which the view scrolls
    const int edge = static_cast<int>(std::ceil(text_->document()->documentMargin()));
    const QSize edges(edge * 2, edge * 2 + lastLine);
    const QMargins margins = layout()->contentsMargins();
    const QSize most = screen()->availableSize() * mostOfScreen / 100 -
                       QSize(margins.left() * 3 + icon_->sizeHint().width(),
                             buttons_->sizeHint().height() + frame + margins.top() * 3) -
                       edges;
    const QString lines = text();
    const auto roomIn = [&](int width) {
        return roomOf(lines, text_->font(), text_->wordWrapMode(), {width, most.height()}, text_);
    };
    const int readable = std::min(readableWidth * fontMetrics().averageCharWidth(), most.width());
    const int bar = text_->verticalScrollBar()->sizeHint().width();
    TextRoom room = roomIn(readable);
    if (!room.fits) {
        room = roomIn(most.width() - bar);
        room.size = {most.width(), std::min(room.size.height(), most.height())};
    }
    text_->setVerticalScrollBarPolicy(room.fits ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAlwaysOn);
    text_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    text_->setFixedSize(room.size + edges);
}

void BoxWindow::addButtons(BoxButtons buttons) {
    const auto add = [this](QDialogButtonBox::StandardButton which, const QString& caption,
                            BoxAnswer answer) {
        QPushButton* button = buttons_->addButton(which);
        button->setText(caption);
        connect(button, &QPushButton::clicked, this,
                [this, answer] { done(static_cast<int>(answer)); });
        return button;
    };
    QPushButton* first = nullptr;
    if (buttons == BoxButtons::Ok) {
        first = add(QDialogButtonBox::Ok, QStringLiteral("OK"), BoxAnswer::Ok);
    } else {
        first = add(QDialogButtonBox::Yes, QStringLiteral("&Sim"), BoxAnswer::Yes);
        add(QDialogButtonBox::No, QStringLiteral("&Não"), BoxAnswer::No);
    }
    first->setDefault(true);
    first->setFocus();
}

BoxAnswer BoxWindow::ask() {
    const bool question = buttons_->buttons().size() > 1;
    const int answer = exec();
    if (!question) {
        return BoxAnswer::Ok;
    }
    return answer == static_cast<int>(BoxAnswer::Yes) ? BoxAnswer::Yes : BoxAnswer::No;
}

QString BoxWindow::text() const {
    return text_->toPlainText();
}

void BoxWindow::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        QGuiApplication::clipboard()->setText(text());
    } else {
        QDialog::keyPressEvent(event);
    }
}

}  // namespace tarn
