#include "platform/qt/box_window.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>
#include <QWheelEvent>
#include <ctime>

#include "tests/support/user.h"

namespace tarn::test {
namespace {

class BoxWindowTest : public testing::Test {
protected:
    // A box with this text, open.
    QPlainTextEdit& open(const std::string& text) {
        box = std::make_unique<BoxWindow>(Box{text, BoxIcon::Information}, nullptr);
        box->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(box.get()));
        return named<QPlainTextEdit>(*box, "text");
    }
    static void expectWhole(const QPlainTextEdit& text) {
        EXPECT_EQ(text.verticalScrollBar()->maximum(), 0) << "lines out of sight";
        EXPECT_EQ(text.horizontalScrollBar()->maximum(), 0) << "text beyond the edge";
        for (QTextBlock block = text.document()->begin(); block.isValid(); block = block.next()) {
            for (int i = 0; i < block.layout()->lineCount(); ++i) {
                EXPECT_LE(block.layout()->lineAt(i).naturalTextWidth(), text.viewport()->width());
            }
        }
    }
    void expectOnScreen() const {
        const QSize screen = box->screen()->availableSize();
        EXPECT_LE(box->width(), screen.width());
        EXPECT_LE(box->height(), screen.height());
    }

    std::unique_ptr<BoxWindow> box;
};

TEST_F(BoxWindowTest, AShortTextStandsInALineOfItsOwnLength) {
    const QPlainTextEdit& text = open("Digite o Nº Nota !!!    ");
    expectWhole(text);
    EXPECT_LT(text.width(), text.fontMetrics().horizontalAdvance(QString(40, u'x')));
    EXPECT_EQ(text.document()->begin().layout()->lineCount(), 1);
}

TEST_F(BoxWindowTest, LinesThatTheTextBreaksItselfAreKept) {
    const QPlainTextEdit& text = open("a\r\rb\nc");
    expectWhole(text);
    EXPECT_EQ(text.document()->blockCount(), 4);
}

TEST_F(BoxWindowTest, ATextWithoutABlankIsBrokenWhereTheLineEnds) {
    const QPlainTextEdit& text = open("comando=sel_dados_etq" + std::string(1200, '&'));
    expectWhole(text);
    expectOnScreen();
    EXPECT_GT(text.document()->begin().layout()->lineCount(), 5);
}

TEST_F(BoxWindowTest, ATextTooLongForTheScreenScrollsToItsEnd) {
    const std::string end = "fim";
    for (const std::string& text : {std::string(100'000, 'W') + end, [&] {
                                        std::string lines;
                                        for (int i = 0; i < 2000; ++i) {
                                            lines += "linha\r";
                                        }
                                        return lines + end;
                                    }()}) {
        QPlainTextEdit& shown = open(text);
        expectOnScreen();
        EXPECT_TRUE(shown.verticalScrollBar()->isVisible());
        EXPECT_EQ(shown.horizontalScrollBar()->maximum(), 0);
        shown.verticalScrollBar()->setValue(shown.verticalScrollBar()->maximum());
        QTextCursor last(shown.document());
        last.movePosition(QTextCursor::End);
        EXPECT_TRUE(shown.viewport()->rect().contains(shown.cursorRect(last).center()));
        EXPECT_TRUE(named<QPushButton>(*box, "").isVisible());
    }
}

std::string repeated(const std::string& piece, std::size_t bytes) {
    std::string text;
    while (text.size() < bytes) {
        text += piece;
    }
    return text;
}

// A window that takes longer over it stands still for a clerk.
constexpr std::clock_t patience = 3 * CLOCKS_PER_SEC;

TEST_F(BoxWindowTest, AMegabyteIsThereAtOnceAndItsEndTooAndTheButtonIsInSight) {
    for (const char* piece :
         {"linha\r", "Falta o produto 001 no depósito\r\n", "a b ", "W", "\tW\n"}) {
        SCOPED_TRACE(piece);
        const std::string whole = repeated(piece, 1'000'000);
        const std::clock_t start = std::clock();
        QPlainTextEdit& text = open(whole);
        QTest::keyClick(&text, Qt::Key_End, Qt::ControlModifier);
        box->grab();
        EXPECT_LT(std::clock() - start, patience);
        EXPECT_GE(text.toPlainText().size(), 940'000) << "whole";
        expectOnScreen();
        auto& button = named<QPushButton>(*box, "");
        EXPECT_TRUE(box->rect().contains(QRect(button.mapTo(box.get(), QPoint()), button.size())));
        QTest::mouseClick(&button, Qt::LeftButton);
        EXPECT_FALSE(box->isVisible());
    }
}

TEST_F(BoxWindowTest, AWheelOverTheTextScrollsItAndEnterStillPressesTheButton) {
    QPlainTextEdit& text = open(repeated("linha\r", 20'000));
    const QPoint middle = text.viewport()->rect().center();
    QWheelEvent wheel(middle, text.viewport()->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(text.viewport(), &wheel);
    EXPECT_GT(text.verticalScrollBar()->value(), 0);
    QTest::keyClick(&text, Qt::Key_Return);
    EXPECT_FALSE(box->isVisible());
}

TEST_F(BoxWindowTest, CtrlCCopiesTheWholeTextFromTheButtonAndFromTheText) {
    QPlainTextEdit& text = open("Erro 7\rAvise");
    for (QWidget* from :
         {static_cast<QWidget*>(&named<QPushButton>(*box, "")), static_cast<QWidget*>(&text)}) {
        QGuiApplication::clipboard()->setText(QStringLiteral("antes"));
        from->setFocus();
        QTest::keyClick(from, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Erro 7\nAvise"));
    }
}

TEST_F(BoxWindowTest, WhatTheMouseSelectsIsCopiedAlone) {
    QPlainTextEdit& text = open("Erro 7");
    QTest::mouseDClick(text.viewport(), Qt::LeftButton, {}, {3, text.viewport()->height() / 2});
    QTest::keyClick(&text, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Erro"));
}

TEST_F(BoxWindowTest, NothingCanBeTypedIntoTheText) {
    QPlainTextEdit& text = open("Erro");
    text.setFocus();
    QTest::keyClicks(&text, QStringLiteral("abc"));
    QTest::keyClick(&text, Qt::Key_Delete);
    EXPECT_EQ(text.toPlainText(), QStringLiteral("Erro"));
}

TEST_F(BoxWindowTest, TheButtonHasTheKeyboardAndTabReachesTheTextAndReturns) {
    QPlainTextEdit& text = open("Erro");
    auto& button = named<QPushButton>(*box, "");
    EXPECT_TRUE(button.hasFocus());
    QTest::keyClick(&button, Qt::Key_Tab);
    EXPECT_TRUE(text.hasFocus());
    QTest::keyClick(&text, Qt::Key_Tab);
    EXPECT_TRUE(button.hasFocus());
}

TEST_F(BoxWindowTest, AReaderOfTheScreenIsToldTheText) {
    open("Nota <b>8029</b>");
    EXPECT_EQ(box->accessibleDescription(), QStringLiteral("Nota <b>8029</b>"));
}

}  // namespace
}  // namespace tarn::test
