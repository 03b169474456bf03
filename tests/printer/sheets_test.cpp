// Drawn documents beside the paper, as poppler's programs draw them.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QFile>
#include <QMessageBox>
#include <QPainter>
#include <QPdfWriter>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QWheelEvent>

#include "printer/sheets/sheet_dock.h"
#include "tests/printer/shown_printer.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

class Sheets : public ShownPrinter {
protected:
    void SetUp() override {
        ShownPrinter::SetUp();
        window_.watchSheets(folder_.path());
    }

    // A4, each page with a black square of an inch, an inch from its corner.
    void draw(const char* name, int pages = 1) {
        QPdfWriter writer(file(name));
        writer.setResolution(72);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageMargins({});
        QPainter painter(&writer);
        for (int page = 0; page < pages; ++page) {
            if (page > 0) {
                writer.newPage();
            }
            painter.fillRect(QRect(72, 72, 72, 72), Qt::black);
        }
    }
    bool shows(const QString& sheet) {
        return QTest::qWaitFor([&] { return sheets_.presentSheet() == sheet && sheets_.isDrawn(); },
                               printerLimit);
    }
    bool counts(const QString& text) {
        return QTest::qWaitFor([&] { return label("count").contains(text); }, printerLimit);
    }
    // Left upper corner and side of the first black square in sight.
    QRect square() {
        const QImage image = sheets_.viewport()->grab().toImage();
        const auto black = [&](int x, int y) { return qGray(image.pixel(x, y)) < 30; };
        for (int y = 30; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                int side = 0;
                while (x + side < image.width() && black(x + side, y)) {
                    ++side;
                }
                if (side > 20) {
                    return {x, y, side, side};
                }
            }
        }
        return {};
    }

    SheetView& sheets_ = named<SheetView>(window_, "sheets");
};

TEST_F(Sheets, TheyComeBesideThePaperInTheOrderOfTheDay) {
    EXPECT_FALSE(sheets_.isVisible());
    job("um\f\f\f", "job-001.prn");
    job("tres\f\f\f", "job-003.prn");
    draw("job-004.pdf", 2);
    draw("nota.pdf");  // the paper itself, written out
    ASSERT_TRUE(shows("job-004.pdf, página 1 de 2"));
    EXPECT_TRUE(counts(", 2 folha(s)"));
    draw("job-1000.pdf");
    ASSERT_TRUE(shows("job-1000.pdf, página 1 de 1")) << sheets_.presentSheet().toStdString();
    draw("job-002.pdf");
    ASSERT_TRUE(shows("job-002.pdf, página 1 de 1"));
    EXPECT_EQ(sheets_.verticalScrollBar()->value(), 0) << "above those printed later";
    EXPECT_TRUE(counts(", 4 folha(s)"));
    // A click leads to the paper that was printed before.
    clickAt(*sheets_.viewport(), QPoint(100, 200));
    EXPECT_EQ(view_.topY(), 0);
    QTest::keyClick(&sheets_, Qt::Key_End);
    clickAt(*sheets_.viewport(), QPoint(100, sheets_.viewport()->height() - 100));
    EXPECT_EQ(view_.topY(), roll_.jobs()[1].y);
}

TEST_F(Sheets, TheyAreOfTrueSizeAndZoomWithThePaper) {
    draw("job-001.pdf");
    ASSERT_TRUE(shows("job-001.pdf, página 1 de 1"));
    EXPECT_NEAR(square().width(), 96, 2);
    QTest::keyClick(&view_, Qt::Key_Minus, Qt::ControlModifier);
    QTest::keyClick(&view_, Qt::Key_Minus, Qt::ControlModifier);
    ASSERT_TRUE(QTest::qWaitFor([this] { return sheets_.isDrawn(); }, printerLimit));
    EXPECT_NEAR(square().width(), 96 * 0.64, 2);
    QWheelEvent wheel(QPointF(50, 50), sheets_.viewport()->mapToGlobal(QPointF(50, 50)), {},
                      QPoint(0, 120), Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(sheets_.viewport(), &wheel);
    EXPECT_DOUBLE_EQ(view_.zoom(), 0.64 * 1.15);
    ASSERT_TRUE(QTest::qWaitFor([this] { return sheets_.isDrawn(); }, printerLimit));
    EXPECT_NEAR(square().width(), 96 * 0.64 * 1.15, 2);
}

TEST_F(Sheets, ABrokenFileIsToldAndTakenWhenItIsWhole) {
    draw("inteiro.pdf");
    QFile whole(file("inteiro.pdf"));
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    write("job-001.pdf", bytes.left(bytes.size() / 10));
    ASSERT_TRUE(QTest::qWaitFor(
        [this] {
            return sheets_.presentSheet().startsWith(
                QStringLiteral("job-001.pdf: Ainda não dá para ler esta folha: "));
        },
        printerLimit))
        << sheets_.presentSheet().toStdString();
    EXPECT_TRUE(named<QPlainTextEdit>(window_, "log")
                    .toPlainText()
                    .contains(QStringLiteral("job-001.pdf: Ainda não dá para ler esta folha")));
    draw("job-002.pdf");  // isn't held up by it
    ASSERT_TRUE(counts(", 1 folha(s)"));
    write("job-001.pdf", bytes);
    ASSERT_TRUE(counts(", 2 folha(s)"));
    QTest::keyClick(&sheets_, Qt::Key_Home);
    EXPECT_TRUE(shows("job-001.pdf, página 1 de 1"));
    EXPECT_NEAR(square().width(), 96, 2);
}

TEST_F(Sheets, OfAThousandPagesOnlyThoseInSightAreDrawn) {
    draw("job-001.pdf", 1000);
    int turns = 0;
    QTimer awake;
    QObject::connect(&awake, &QTimer::timeout, [&turns] { ++turns; });
    awake.start(1);
    ASSERT_TRUE(shows("job-001.pdf, página 1 de 1000"));
    EXPECT_GT(turns, 20) << "the window works meanwhile";
    EXPECT_LE(sheets_.picturesHeld(), 2U);
    QTest::keyClick(&sheets_, Qt::Key_End);
    ASSERT_TRUE(QTest::qWaitFor([this] { return sheets_.isDrawn(); }, printerLimit));
    EXPECT_TRUE(sheets_.presentSheet().endsWith(QStringLiteral("de 1000")));
    EXPECT_LE(sheets_.picturesHeld(), 4U);
    const QString before = sheets_.presentSheet();
    QTest::keyClick(&view_, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(sheets_.presentSheet(), before) << "what is looked at stays";
}

TEST_F(Sheets, TheyAreTakenAwayAndComeAgainWhenTheyChange) {
    draw("job-001.pdf");
    draw("job-002.pdf");
    ASSERT_TRUE(counts(", 2 folha(s)"));
    ASSERT_TRUE(QFile::remove(file("job-002.pdf")));
    ASSERT_TRUE(counts(", 1 folha(s)"));
    choose(window_, "paperMenu", "takeSheets");
    EXPECT_EQ(sheets_.presentSheet(), QString());
    draw("job-003.pdf");
    ASSERT_TRUE(shows("job-003.pdf, página 1 de 1"));
    draw("job-001.pdf", 3);
    EXPECT_TRUE(counts(", 4 folha(s)"));
}

TEST_F(Sheets, AnEmptyPanelSaysWhatComesThere) {
    QTest::keyClick(&view_, Qt::Key_F7);
    ASSERT_TRUE(sheets_.isVisible());
    const auto inked = [this] {
        const QImage image = sheets_.viewport()->grab().toImage();
        int dark = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                dark += qGray(image.pixel(x, y)) < 100 ? 1 : 0;
            }
        }
        return dark;
    };
    EXPECT_GT(inked(), 100);
}

TEST_F(Sheets, WhoClosesThePanelHasItBackByAKey) {
    draw("job-001.pdf");
    ASSERT_TRUE(shows("job-001.pdf, página 1 de 1"));
    QTest::keyClick(&view_, Qt::Key_F7);
    EXPECT_FALSE(sheets_.isVisible());
    draw("job-002.pdf");
    ASSERT_TRUE(counts(", 2 folha(s)"));
    EXPECT_FALSE(sheets_.isVisible());
    QTest::keyClick(&view_, Qt::Key_F7);
    EXPECT_TRUE(shows("job-002.pdf, página 1 de 1"));
}

// From anywhere on the disk, also while no folder is watched.
TEST_F(ShownPrinter, APdfIsALooseSheetAndABrokenOneIsTold) {
    {
        QPdfWriter writer(file("duplicata.pdf"));
        QPainter painter(&writer);
        painter.drawText(100, 100, QStringLiteral("duplicata"));
    }
    write("meia.pdf", "%PDF-1.4\n%");
    write("trabalho.prn", "texto\r\n");
    window_.setQuestions(
        {nullptr,
         [this](const QString&, const QString&) {
             return QStringList{file("duplicata.pdf"), file("meia.pdf"), file("trabalho.prn")};
         },
         nullptr, nullptr});
    auto& sheets = named<SheetView>(window_, "sheets");
    choose(window_, "fileMenu", "open");
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            return window_.errorBox() != nullptr && sheets.isDrawn() &&
                   sheets.presentSheet() == QStringLiteral("duplicata.pdf, página 1 de 1");
        },
        printerLimit))
        << sheets.presentSheet().toStdString();
    EXPECT_TRUE(sheets.isVisible());
    EXPECT_EQ(qobject_cast<QMessageBox*>(window_.errorBox())->text(),
              QStringLiteral("Não foi possível ler \"%1\": o arquivo está incompleto ou não é um "
                             "PDF.")
                  .arg(file("meia.pdf")));
    EXPECT_TRUE(label("count").contains(QStringLiteral(", 1 folha(s)")));
    ASSERT_TRUE(QTest::qWaitFor([this] { return intake_.ended() == 1; }, printerLimit));
    EXPECT_EQ(roll_.jobs().back().name, "trabalho.prn");
}

TEST_F(Sheets, AReaderSpeaksOfThem) {
    draw("job-001.pdf", 2);
    ASSERT_TRUE(shows("job-001.pdf, página 1 de 2"));
    auto* spoken = QAccessible::queryAccessibleInterface(&sheets_);
    EXPECT_EQ(spoken->text(QAccessible::Name), QStringLiteral("Folhas soltas"));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            return spoken->text(QAccessible::Description) ==
                   QStringLiteral("job-001.pdf, página 1 de 2");
        },
        printerLimit));
}

TEST_F(Sheets, AMachineWithoutTheProgramsIsTold) {
    SheetPile pile(
        {.info = QStringLiteral("nao-ha-este-programa"), .paint = QStringLiteral("nem-este")});
    draw("job-001.pdf");
    pile.watch(folder_.path());
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            return !pile.files().empty() &&
                   pile.files()[0].remark.contains(QStringLiteral("poppler-utils"));
        },
        printerLimit));
    EXPECT_TRUE(pile.files()[0].remark.contains(file("job-001.pdf")));
    EXPECT_EQ(pile.sheets(), 0U);
    QStringList refused;
    QObject::connect(&pile, &SheetPile::refused,
                     [&refused](const QString& text) { refused << text; });
    QTemporaryDir elsewhere;
    const QString copy = elsewhere.filePath("job-001.pdf");  // called as the one of the folder
    ASSERT_TRUE(QFile::copy(file("job-001.pdf"), copy));
    pile.open(copy);
    ASSERT_TRUE(QTest::qWaitFor([&] { return refused.size() == 1; }, printerLimit));
    EXPECT_TRUE(refused[0].contains(QStringLiteral("poppler-utils")));
    EXPECT_EQ(pile.files().size(), 1U);
}

TEST(SheetListing, PagesAreTurnedAsTheyAreLookedAt) {
    const auto pages = pagesIn(
        "Producer:        Qt\nPages:           2\n"
        "Page    1 size:  595 x 842 pts (A4)\nPage    1 rot:   0\n"
        "Page    2 size:  300.5 x 100 pts\nPage    2 rot:   270\n");
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages[0], QSizeF(595, 842));
    EXPECT_EQ(pages[1], QSizeF(100, 300.5));
    EXPECT_TRUE(pagesIn("Page    x\n").empty());
}

TEST(SheetListing, APictureHasSoManyPixelsAtMost) {
    EXPECT_DOUBLE_EQ(SheetPainter::bearableDots(384, {595, 842}), 384);
    const double dots = SheetPainter::bearableDots(384, {14'400, 14'400});
    EXPECT_LT(dots * 200 * dots * 200, 16.1e6);
    EXPECT_GE(SheetPainter::bearableDots(384, {14'400, 1}), 1);
}

}  // namespace
}  // namespace tarn::test
