// The pre-printed form and the ruler under the print.
#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <algorithm>

#include "dotmatrix/paper_export.h"
#include "forms/form_loader.h"
#include "tests/dotmatrix/poppler.h"
#include "tests/dotmatrix/printer_rig.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

class Overlay : public testing::Test {
protected:
    QString file(const char* name) const { return folder_.filePath(QLatin1StringView(name)); }
    QString written(const char* name, const QByteArray& bytes) const {
        QFile out(file(name));
        EXPECT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(bytes);
        return out.fileName();
    }
    LoadedForm loaded(const QString& name) {
        auto form = loadForm(name);
        if (const auto* wrong = std::get_if<QString>(&form)) {
            throw std::runtime_error(wrong->toStdString());
        }
        return std::get<LoadedForm>(form);
    }
    static QString refusal(const QString& name) {
        auto form = loadForm(name);
        return std::holds_alternative<QString>(form) ? std::get<QString>(form) : QString();
    }
    QImage picture(const PaintOptions& options) {
        EXPECT_FALSE(writePng(pagesOf(rig_.paper), options, file("paper.png")));
        return QImage(file("paper.png"));
    }

    QTemporaryDir folder_;
    PrinterRig rig_;
};

// Column 11 of ten an inch is an inch from the first print position, line 7 an inch from
// the top; the box's upper edge is drawn a point higher.
TEST_F(Overlay, ABoxIsDrawnWhereTheTextTellsIt) {
    PaintOptions options;
    lay(loaded(written("f.txt", "caixa 7 11 20 3\n")), options);
    const QImage image = picture(options);
    const int inch = pictureDotsPerInch;
    const auto dark = [&image](int x, int y) { return qGray(image.pixel(x, y)) < 245; };
    const auto edgeNear = [&](int x, int y, bool upright) {
        for (int i = -2; i <= 2; ++i) {
            if (dark(upright ? x + i : x, upright ? y : y + i)) {
                return true;
            }
        }
        return false;
    };
    const int left = inch / 2 + inch;
    const int top = inch - 2;
    EXPECT_TRUE(edgeNear(left, top + 20, true));
    EXPECT_TRUE(edgeNear(left + 2 * inch, top + 20, true));
    EXPECT_TRUE(edgeNear(left + 30, top, false));
    EXPECT_TRUE(edgeNear(left + 30, top + inch / 2, false));
    EXPECT_FALSE(edgeNear(left + 30, top + 20, false));
    EXPECT_FALSE(edgeNear(left - 20, top + 20, true));
}

TEST_F(Overlay, WordsOfTheFormAreTextInThePdf) {
    PaintOptions options;
    lay(loaded(QStringLiteral("ImprimeNF_1361")), options);
    ASSERT_FALSE(writePdf(pagesOf(rig_.paper), options, file("f.pdf")));
    const QString text =
        test::output(QStringLiteral("pdftotext"), {file("f.pdf"), QStringLiteral("-")});
    EXPECT_TRUE(text.contains(QStringLiteral("Natureza da operação"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("Peso líquido")));
}

// The sheet is as wide as the form wants it, though nothing is printed.
TEST_F(Overlay, TheSheetHoldsTheForm) {
    PaintOptions options;
    lay(loaded(QStringLiteral("ImprimeNF_2041")), options);
    EXPECT_EQ(picture(options).width(), qRound(14.875 * pictureDotsPerInch));
}

TEST_F(Overlay, APictureCoversTheSheetFromEdgeToEdge) {
    QImage red(20, 20, QImage::Format_RGB32);
    red.fill(QColor(255, 0, 0));
    ASSERT_TRUE(red.save(file("red.png")));
    rig_.job("texto");
    PaintOptions options;
    lay(loaded(file("red.png")), options);
    const QImage image = picture(options);
    EXPECT_EQ(image.pixelColor(3, 60), QColor(255, 0, 0));
    EXPECT_EQ(image.pixelColor(image.width() - 4, image.height() - 40), QColor(255, 0, 0));
    // A text names its picture beside itself.
    lay(loaded(written("f.txt", "figura red.png\n")), options);
    EXPECT_EQ(picture(options).pixelColor(3, 60), QColor(255, 0, 0));
}

TEST_F(Overlay, WhatCannotBeLoadedIsTold) {
    EXPECT_TRUE(
        refusal(file("nada.txt")).startsWith(QStringLiteral("não há formulário nem arquivo")));
    EXPECT_TRUE(refusal(written("a.txt", "caixa\n"))
                    .contains(QStringLiteral("tem um erro na linha 1: \"caixa\" pede")));
    EXPECT_TRUE(refusal(written("b.txt", "figura nada.png\n"))
                    .startsWith(QStringLiteral("não foi possível ler a figura")));
    EXPECT_FALSE(refusal(written("c.png", "\x89PNG\r\n\x1a\n????")).isEmpty());
    EXPECT_FALSE(refusal(folder_.path()).isEmpty());
    EXPECT_FALSE(refusal(QStringLiteral("ImprimeNF_2541")).isEmpty());
}

double leftOf(const std::vector<test::Word>& words, const char* text) {
    for (const test::Word& word : words) {
        if (word.text == QLatin1StringView(text)) {
            return word.left;
        }
    }
    return -1;
}

// The number of a column stands at its middle, in the pitch of the lines below.
TEST_F(Overlay, TheRulerCountsInThePrintedPitch) {
    PaintOptions options;
    options.ruler = true;
    rig_.job(
        "\x0F"
        "condensado\r\n");
    ASSERT_FALSE(writePdf(pagesOf(rig_.paper), options, file("r.pdf")));
    const auto words = test::wordsIn(file("r.pdf"));
    EXPECT_NEAR(leftOf(words, "110"), 36 + 109.5 * 4.2 + 0.5, 0.6);
    PrinterRig plain;
    plain.job("normal\r\n");
    ASSERT_FALSE(writePdf(pagesOf(plain.paper), options, file("p.pdf")));
    EXPECT_NEAR(leftOf(test::wordsIn(file("p.pdf")), "80"), 36 + 79.5 * 7.2 + 0.5, 0.6);
}

TEST_F(Overlay, TheRulerCountsLinesAndChangesWithThePitch) {
    PaintOptions options;
    options.ruler = true;
    rig_.job(
        "normal\r\n\r\n\r\n\x0F"
        "condensado\r\n");
    ASSERT_FALSE(writePdf(pagesOf(rig_.paper), options, file("r.pdf")));
    const auto words = test::wordsIn(file("r.pdf"));
    std::vector<double> thirties;
    double line66 = 0;
    for (const test::Word& word : words) {
        if (word.text == QStringLiteral("30") && word.left > 40) {
            thirties.push_back(word.left);
        }
        line66 = word.text == QStringLiteral("66") ? word.top : line66;
    }
    std::sort(thirties.begin(), thirties.end());
    ASSERT_EQ(thirties.size(), 2U);
    EXPECT_NEAR(thirties[0], 36 + 29.5 * 4.2 + 0.5, 0.6);
    EXPECT_NEAR(thirties[1], 36 + 29.5 * 7.2 + 0.5, 0.6);
    EXPECT_NEAR(line66, 65 * 12, 8);
}

}  // namespace
}  // namespace tarn::test
