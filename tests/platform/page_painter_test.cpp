// A document painted on a printer that writes a PDF file, by itself.
#include "platform/qt/page_painter.h"

#include <gtest/gtest.h>

#include <QPrinter>
#include <QTemporaryDir>
#include <utility>
#include <vector>

#include "tests/dotmatrix/poppler.h"

namespace tarn::test {
namespace {

DrawnText said(const char* word, double x = 1, double y = 1) {
    return {x, y, "Arial", 10, false, word};
}

class PagePainterTest : public testing::Test {
protected:
    bool paint(const std::vector<PrintOperation>& document) {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pdf());
        printer.setPageSize(QPageSize(QPageSize::A4));
        printer.setFullPage(true);
        return paintDocument(printer, document, [this](std::size_t done, std::size_t total) {
            told_.emplace_back(done, total);
        });
    }
    QString pdf() const { return folder_.filePath(QStringLiteral("pagina.pdf")); }
    // The words of each page, pages parted by a form feed.
    std::string words() const {
        return output(QStringLiteral("pdftotext"), {pdf(), QStringLiteral("-")})
            .simplified()
            .toStdString();
    }
    std::string pages() const {
        const QString told = output(QStringLiteral("pdfinfo"), {pdf()});
        return QRegularExpression(QStringLiteral("Pages:\\s+(\\d+)"))
            .match(told)
            .captured(1)
            .toStdString();
    }

    QTemporaryDir folder_;
    std::vector<std::pair<std::size_t, std::size_t>> told_;
};

TEST_F(PagePainterTest, ATextStandsWhereItIsToldTo) {
    ASSERT_TRUE(paint({said("AQUI", 5, 12.7)}));
    const std::vector<Word> found = wordsIn(pdf());
    ASSERT_EQ(found.size(), 1U);
    constexpr double pointsPerCentimetre = 72 / 2.54;
    EXPECT_EQ(found[0].text, QStringLiteral("AQUI"));
    EXPECT_NEAR(found[0].left, 5 * pointsPerCentimetre, 1.5);
    EXPECT_NEAR(found[0].top, 12.7 * pointsPerCentimetre, 1.5);
}

TEST_F(PagePainterTest, ABreakCountsWithSomethingDrawnOnBothSidesOfIt) {
    ASSERT_TRUE(paint({PageBreak{}, said("UM"), PageBreak{}, PageBreak{}, said("DOIS"), PageBreak{},
                       DocumentEnd{}}));
    EXPECT_EQ(pages(), "2");
    EXPECT_EQ(words(), "UM DOIS");
}

TEST_F(PagePainterTest, WhatSetsThePageUpDrawsNothing) {
    ASSERT_TRUE(paint({ScaleMode::Centimetres, Orientation::Portrait, Copies{2}, said("UM"),
                       PageBreak{}, Orientation::Portrait}));
    EXPECT_EQ(pages(), "1");
}

TEST_F(PagePainterTest, TellsOfEachPageThatIsDoneButNotOfTheLast) {
    ASSERT_TRUE(paint({said("UM"), PageBreak{}, said("DOIS"), PageBreak{}, said("TRES")}));
    EXPECT_EQ(told_, (std::vector<std::pair<std::size_t, std::size_t>>{{1, 3}, {2, 3}}));
}

TEST_F(PagePainterTest, OfOnePageThereIsNothingToTell) {
    ASSERT_TRUE(paint({said("UM"), PageBreak{}}));
    EXPECT_EQ(told_.size(), 0U);
}

TEST_F(PagePainterTest, APictureThatIsNoneIsLeftOut) {
    ASSERT_TRUE(paint({DrawnPicture{1, 1, Picture("picLogo", "nada")}, said("UM")}));
    EXPECT_EQ(words(), "UM");
}

TEST_F(PagePainterTest, APrinterThatTakesNothingIsTold) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(folder_.filePath(QStringLiteral("nenhuma/pagina.pdf")));
    const std::vector<PrintOperation> document{said("UM")};
    EXPECT_FALSE(paintDocument(printer, document, nullptr));
}

}  // namespace
}  // namespace tarn::test
