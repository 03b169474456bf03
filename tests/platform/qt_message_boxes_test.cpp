#include "platform/qt/qt_message_boxes.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include "tests/support/modal_steps.h"
#include "tests/support/user.h"

namespace tarn::test {
namespace {

constexpr char boxName[] = "MessageBox";

struct Shown {
    QString text;
    QString title;
    Qt::TextFormat format = Qt::AutoText;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QStringList buttons;
};

BoxAnswer show(const Box& box, Qt::Key key, Shown* shown = nullptr) {
    ModalSteps modals;
    modals.then(boxName, [&](QWidget& window) {
        if (shown != nullptr) {
            const auto& message = static_cast<const QMessageBox&>(window);
            auto& label = named<QLabel>(window, "qt_msgbox_label");
            *shown = {label.text(), message.windowTitle(), label.textFormat(), message.icon(), {}};
            for (const QAbstractButton* button : message.buttons()) {
                shown->buttons << button->text();
            }
        }
        tarn::test::key(window, key);
    });
    return QtMessageBoxes().show(box);
}

TEST(QtMessageBoxes, ShowsMarkupAsText) {
    for (const char* text : {"<b>x</b>", "Cliente <A & B> Ltda", "Erro <br> segunda linha",
                             "<img src='file:///etc/hostname'>"}) {
        Shown shown;
        show({text}, Qt::Key_Return, &shown);
        EXPECT_EQ(shown.text, QString::fromUtf8(text));
        EXPECT_EQ(shown.format, Qt::PlainText);
    }
}

TEST(QtMessageBoxes, EachLineEndIsOneLineBreak) {
    Shown shown;
    show({"a\rb\nc\r\nd\r\re\n\rf"}, Qt::Key_Return, &shown);
    EXPECT_EQ(shown.text, QStringLiteral("a\nb\nc\nd\n\ne\n\nf"));
}

TEST(QtMessageBoxes, KeepsBlanksAndTitle) {
    Shown shown;
    show({"          TARN     ", BoxIcon::Critical, "Aviso "}, Qt::Key_Return, &shown);
    EXPECT_EQ(shown.text, QStringLiteral("          TARN     "));
    EXPECT_EQ(shown.title, QStringLiteral("Aviso "));
    show({"x"}, Qt::Key_Return, &shown);
    EXPECT_EQ(shown.title, QStringLiteral("TarnEmissao"));
}

TEST(QtMessageBoxes, HasTheIconAskedFor) {
    const std::pair<BoxIcon, QMessageBox::Icon> pairs[] = {
        {BoxIcon::None, QMessageBox::NoIcon},
        {BoxIcon::Information, QMessageBox::Information},
        {BoxIcon::Exclamation, QMessageBox::Warning},
        {BoxIcon::Question, QMessageBox::Question},
        {BoxIcon::Critical, QMessageBox::Critical}};
    for (const auto& [asked, expected] : pairs) {
        Shown shown;
        show({"x", asked}, Qt::Key_Return, &shown);
        EXPECT_EQ(shown.icon, expected);
    }
}

TEST(QtMessageBoxes, OkBoxHasOneButtonAndClosesByEnterOrEsc) {
    Shown shown;
    EXPECT_EQ(show({"x"}, Qt::Key_Return, &shown), BoxAnswer::Ok);
    EXPECT_EQ(shown.buttons, QStringList{"OK"});
    EXPECT_EQ(show({"x"}, Qt::Key_Escape), BoxAnswer::Ok);
}

TEST(QtMessageBoxes, QuestionDefaultsToSim) {
    const Box question{"x", BoxIcon::Question, "Aviso", BoxButtons::YesNo};
    Shown shown;
    EXPECT_EQ(show(question, Qt::Key_Return, &shown), BoxAnswer::Yes);
    EXPECT_EQ(shown.buttons, (QStringList{"&Sim", "&Não"}));
    EXPECT_EQ(show(question, Qt::Key_Escape), BoxAnswer::No);
}

TEST(QtMessageBoxes, QuestionTakesAClickOnNo) {
    ModalSteps modals;
    modals.then(boxName, [](QWidget& window) {
        auto& box = static_cast<QMessageBox&>(window);
        QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
    });
    EXPECT_EQ(QtMessageBoxes().show({"x", BoxIcon::Question, "Aviso", BoxButtons::YesNo}),
              BoxAnswer::No);
}

TEST(QtMessageBoxes, ShowsAnArrowOverARoutineWithTheHourglass) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    ModalSteps modals;
    modals.then(boxName, [](QWidget& window) {
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::ArrowCursor);
        tarn::test::key(window, Qt::Key_Return);
    });
    QtMessageBoxes().show({"x"});
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QGuiApplication::restoreOverrideCursor();
}

}  // namespace
}  // namespace tarn::test
