// The drawn half: PDF, pictures and text on the disk, seen through other programs' eyes.
#include <gtest/gtest.h>

#include <QImage>
#include <QTemporaryDir>
#include <map>
#include <set>

#include "dotmatrix/form_design.h"
#include "dotmatrix/paper_export.h"
#include "dotmatrix/paper_roll.h"
#include "tests/dotmatrix/paper_page.h"
#include "tests/dotmatrix/poppler.h"
#include "tests/dotmatrix/printer_rig.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

// Words of the first page by their text, in points.
std::map<QString, Word> wordsOf(const QString& pdf) {
    std::map<QString, Word> found;
    for (const Word& word : wordsIn(pdf)) {
        found[word.text] = word;
    }
    return found;
}

int darkPixels(const QImage& image, const QRect& where) {
    int dark = 0;
    for (int y = where.top(); y <= where.bottom(); ++y) {
        for (int x = where.left(); x <= where.right(); ++x) {
            dark += 255 - qGray(image.pixel(x, y));
        }
    }
    return dark / 255;
}

class PaperFiles : public testing::Test {
protected:
    QString file(const char* name) const { return folder_.filePath(QString::fromLatin1(name)); }
    QTemporaryDir folder_;
};

TEST_F(PaperFiles, PdfWordsStandOnTheGridAtEachPitch) {
    PrinterRig rig;
    // Each word begins in column 41 and is 20 characters long.
    const std::string gap(40, ' ');
    rig.job(gap + "PICA5678901234567890\r\n\x1BM" + gap + "ELITE678901234567890\r\n\x0F" + gap +
            "TWENTY78901234567890\r\n\x1BP" + gap + "CONDENSED01234567890\r\n" + gap +
            "abc def\r\n\r\n" + std::string(117, ' ') + "FARAWAY\r\n");
    ASSERT_FALSE(writePdf(pagesOf(rig.paper), {}, file("grid.pdf")));
    auto words = wordsOf(file("grid.pdf"));
    const std::map<QString, double> pitches{{"PICA5678901234567890", 7.2},
                                            {"ELITE678901234567890", 6.0},
                                            {"TWENTY78901234567890", 3.6},
                                            {"CONDENSED01234567890", 4.2}};
    for (const auto& [text, pitch] : pitches) {
        ASSERT_TRUE(words.count(text)) << text.toStdString();
        EXPECT_NEAR(words[text].left, strip + 40 * pitch, tolerance) << text.toStdString();
        EXPECT_NEAR(words[text].right, strip + 60 * pitch, tolerance) << text.toStdString();
    }
    // A word in the middle of a line drawn in one go.
    EXPECT_NEAR(words["def"].left, strip + 44 * 4.2, tolerance);
    EXPECT_NEAR(words["FARAWAY"].left, strip + 117 * 4.2, tolerance);
    EXPECT_NEAR(words["FARAWAY"].top - words["PICA5678901234567890"].top, 6 * 12, 0.01);
}

TEST_F(PaperFiles, PdfKeepsAccentsOverprintsAndOnePageAForm) {
    PrinterRig rig;
    rig.job(
        "A\xC7\xC3O \x1BGS\xC3O\x1BH\f\f\x1B"
        "C\x18"
        "terceira");
    ASSERT_FALSE(writePdf(pagesOf(rig.paper), {}, file("forms.pdf")));
    const QString info = output(QStringLiteral("pdfinfo"),
                                {QStringLiteral("-l"), QStringLiteral("9"), file("forms.pdf")});
    EXPECT_TRUE(info.contains(QRegularExpression("Pages: +3\\b"))) << info.toStdString();
    EXPECT_TRUE(info.contains(QRegularExpression("Page +1 size: +684 x 792 pts")));
    EXPECT_TRUE(info.contains(QRegularExpression("Page +3 size: +684 x 288 pts")));
    const QString text =
        output(QStringLiteral("pdftotext"), {file("forms.pdf"), QStringLiteral("-")});
    EXPECT_TRUE(text.contains(QStringLiteral("AÇÃO SÃO"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("terceira")));
    const QString fonts = output(QStringLiteral("pdffonts"), {file("forms.pdf")});
    EXPECT_TRUE(fonts.contains(QRegularExpression("Mono.* yes (yes|no) +yes")))
        << fonts.toStdString();
}

// A full form: as many lines as it has, each as long as a condensed one of its paper.
std::string fullForm(int number) {
    std::string bytes = "\x0F";
    for (int line = 1; line <= 66; ++line) {
        bytes += std::to_string(number) + "." + std::to_string(line) +
                 "  PARAFUSO SEXTAVADO A\xC7O INOX (10)  12,5 " + std::to_string(number * line) +
                 ",00  S\xC3O JOS\xC9 \\ \xC0 VISTA\r\n";
    }
    return bytes;
}

TEST_F(PaperFiles, PdfTextIsCopiedLineByLineAsItWasPrinted) {
    PrinterRig rig;
    rig.job(fullForm(7));
    ASSERT_FALSE(writePdf(pagesOf(rig.paper), {}, file("copy.pdf")));
    const QString copied = output(QStringLiteral("pdftotext"),
                                  {QStringLiteral("-raw"), file("copy.pdf"), QStringLiteral("-")});
    ASSERT_FALSE(writeText(pagesOf(rig.paper), file("copy.txt")));
    QFile text(file("copy.txt"));
    ASSERT_TRUE(text.open(QIODevice::ReadOnly));
    const auto withSingleBlanks = [](QString whole) {
        whole.replace(QRegularExpression(QStringLiteral("[ \f]+")), QStringLiteral(" "));
        return whole.trimmed();
    };
    const QString printed = withSingleBlanks(QString::fromUtf8(text.readAll()));
    EXPECT_TRUE(printed.contains(QStringLiteral("INOX (10) 12,5 462,00 SÃO JOSÉ \\ À VISTA")));
    EXPECT_EQ(withSingleBlanks(copied).toStdString(), printed.toStdString());
}

TEST_F(PaperFiles, PdfStoresAFaceAndTheSheetOnce) {
    const auto sizeOf = [this](int forms) {
        PrinterRig rig;
        for (int form = 1; form <= forms; ++form) {
            rig.job(fullForm(form));
        }
        EXPECT_FALSE(writePdf(pagesOf(rig.paper), {.title = "MODELO"}, file("many.pdf")));
        return QFileInfo(file("many.pdf")).size();
    };
    const qint64 few = sizeOf(2);
    const qint64 many = sizeOf(42);
    EXPECT_LT((many - few) / 40, 1600);
    const QString fonts = output(QStringLiteral("pdffonts"), {file("many.pdf")});
    EXPECT_EQ(fonts.count(QStringLiteral("TrueType")), 1) << fonts.toStdString();
}

// What a user draws may be called as another form is.
TEST_F(PaperFiles, PdfTellsFormsOfOneNameAndHeightApart) {
    const auto formWith = [](const char* words) {
        FormDesign form;
        form.name = "nota";
        form.texts.push_back({.x = 0, .y = 0, .text = words});
        return std::make_shared<const FormDesign>(std::move(form));
    };
    PaperRoll roll(Dialect{});
    for (const char* words : {"primeira", "segunda"}) {
        roll.startJob("job", {.form = formWith(words), .told = true});
        ASSERT_FALSE(roll.feed("\r\n\r\ntexto\r\n"));
    }
    ASSERT_EQ(roll.printedForms(), 2U);
    ASSERT_FALSE(writePdf(roll.pages(), {}, file("forms.pdf")));
    const QString text =
        output(QStringLiteral("pdftotext"), {file("forms.pdf"), QStringLiteral("-")});
    EXPECT_TRUE(text.contains(QStringLiteral("primeira"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("segunda"))) << text.toStdString();
}

TEST_F(PaperFiles, PdfStoresAPictureOnce) {
    PrinterRig rig;
    rig.job("uma\f\r\nduas\f\r\ntr\xEAs");
    QImage picture(300, 200, QImage::Format_ARGB32);
    picture.fill(QColor(0, 120, 255, 128));
    const PaintOptions options{.picture = std::make_shared<const QImage>(picture)};
    ASSERT_FALSE(writePdf(pagesOf(rig.paper), options, file("picture.pdf")));
    const QString images =
        output(QStringLiteral("pdfimages"), {QStringLiteral("-list"), file("picture.pdf")});
    static const QRegularExpression image(QStringLiteral(" (image|smask) +300 +200 .* (\\d+) +0 "));
    std::set<QString> objects;
    for (auto match = image.globalMatch(images); match.hasNext();) {
        objects.insert(match.next().captured(2));
    }
    EXPECT_EQ(objects.size(), 1U) << images.toStdString();
    EXPECT_TRUE(images.contains(QStringLiteral("smask")));
}

// What each block of a third of an inch holds of ink.
std::vector<int> inkOf(const QImage& image) {
    constexpr int block = pictureDotsPerInch / 3;
    std::vector<int> ink;
    for (int y = 0; y + block <= image.height(); y += block) {
        for (int x = 0; x + block <= image.width(); x += block) {
            ink.push_back(darkPixels(image, QRect(x, y, block, block)));
        }
    }
    return ink;
}

TEST_F(PaperFiles, PdfHasTheInkOfThePicture) {
    PrinterRig rig;
    rig.job(
        "pica \x1B"
        "Melite\x1BP \x1BGdark\x1BH \x1B"
        "4leaning \xC7\xC3\xE9\x1B"
        "5\r\n"
        "\x1B-1under line\x1B-0 \x1B"
        "E\x1BGboth\x1BH\x1B"
        "F\r\n\x0Ewide\r\n\x0F(small)");
    FormDesign design;
    design.boxes.push_back({.x = 0,
                            .y = unitsPerInch,
                            .width = 3 * unitsPerInch,
                            .height = unitsPerInch / 4,
                            .label = "EMITENTE"});
    QImage picture(4, 4, QImage::Format_ARGB32);
    picture.fill(QColor(255, 200, 0, 40));
    const PaintOptions options{.bands = true,
                               .title = "Modelo fi",
                               .ruler = true,
                               .design = std::make_shared<const FormDesign>(design),
                               .picture = std::make_shared<const QImage>(picture)};
    ASSERT_FALSE(writePdf(pagesOf(rig.paper), options, file("ink.pdf")));
    ASSERT_FALSE(writePng(pagesOf(rig.paper), options, file("ink.png")));
    output(QStringLiteral("pdftoppm"),
           {QStringLiteral("-png"), QStringLiteral("-singlefile"), QStringLiteral("-r"),
            QString::number(pictureDotsPerInch), file("ink.pdf"), file("seen")});
    const QImage seen(file("seen.png"));
    const QImage drawn(file("ink.png"));
    ASSERT_EQ(seen.size(), drawn.size());
    const std::vector<int> inSeen = inkOf(seen);
    const std::vector<int> inDrawn = inkOf(drawn);
    for (std::size_t i = 0; i < inSeen.size(); ++i) {
        EXPECT_NEAR(inSeen[i], inDrawn[i], 12 + inDrawn[i] * 0.2) << "block " << i;
    }
}

TEST_F(PaperFiles, SheetIsChosenByTheWidestContent) {
    EXPECT_EQ(sheetFor(0).width, 9.5);
    EXPECT_EQ(sheetFor(17 * unitsPerInch / 2).width, 9.5);
    EXPECT_EQ(sheetFor(17 * unitsPerInch / 2 + 1).width, 14.875);
    EXPECT_EQ(sheetFor(136 * unitsPerInch / 10).width, 14.875);
    EXPECT_EQ(sheetFor(14 * unitsPerInch).width, 15.0);
}

TEST_F(PaperFiles, PicturesShowInkAndDoubleStrikeIsDarker) {
    PrinterRig rig;
    rig.job("HHHHHHHHHH\r\n\x1BGHHHHHHHHHH\x1BH\r\n\r\n\f\x0Fsegunda");
    ASSERT_FALSE(writePng(pagesOf(rig.paper), {}, file("note.png")));
    const QImage first(file("note.png"));
    ASSERT_EQ(first.size(), QSize(19 * pictureDotsPerInch / 2, 11 * pictureDotsPerInch));
    const int left = pictureDotsPerInch / 2 + 3;
    const int row = pictureDotsPerInch / 6;
    const int plain = darkPixels(first, QRect(left, 2, 115, row - 3));
    const int dark = darkPixels(first, QRect(left, row + 2, 115, row - 3));
    const int blank = darkPixels(first, QRect(left, 2 * row + 3, 115, row - 4));
    EXPECT_GT(plain, 200);
    EXPECT_GT(dark, plain * 5 / 4);
    EXPECT_EQ(blank, 0);
    const QImage second(file("note-002.png"));
    EXPECT_GT(darkPixels(second, QRect(left, 2, 60, row - 3)), 50);
    EXPECT_FALSE(QFile::exists(file("note-003.png")));
}

TEST_F(PaperFiles, ATitleStandsInTheLeftStripOfEachForm) {
    PrinterRig rig;
    rig.job("uma\f\r\nduas");
    ASSERT_FALSE(writePdf(pagesOf(rig.paper), PaintOptions{.title = "MODELO"}, file("title.pdf")));
    const auto words = wordsOf(file("title.pdf"));
    ASSERT_TRUE(words.count("MODELO"));
    EXPECT_LT(words.at("MODELO").right, strip);
    EXPECT_EQ(output(QStringLiteral("pdftotext"), {file("title.pdf"), QStringLiteral("-")})
                  .count(QStringLiteral("MODELO")),
              2);
}

TEST_F(PaperFiles, BandsOnlyWhenAskedFor) {
    PrinterRig rig;
    rig.job("x");
    ASSERT_FALSE(writePng(pagesOf(rig.paper), {}, file("white.png")));
    ASSERT_FALSE(writePng(pagesOf(rig.paper), PaintOptions{.bands = true}, file("bands.png")));
    const QPoint inFirstBand(6 * pictureDotsPerInch, 10);
    EXPECT_EQ(QImage(file("white.png")).pixelColor(inFirstBand), QColor(Qt::white));
    EXPECT_NE(QImage(file("bands.png")).pixelColor(inFirstBand), QColor(Qt::white));
}

TEST_F(PaperFiles, RandomJobsAreDrawn) {
    PrinterRig rig;
    std::string bytes;
    for (unsigned i = 0; i < 4000; ++i) {
        bytes += static_cast<char>((i * 2654435761U) >> 24U);
    }
    rig.job(bytes);
    EXPECT_FALSE(writePdf(pagesOf(rig.paper), {}, file("random.pdf")));
    EXPECT_FALSE(wordsOf(file("random.pdf")).empty());
}

TEST_F(PaperFiles, FailureToWriteIsTold) {
    PrinterRig rig;
    rig.job("x");
    const QString nowhere = file("missing/folder/x");
    for (const auto& failure :
         {writePdf(pagesOf(rig.paper), {}, nowhere), writePng(pagesOf(rig.paper), {}, nowhere),
          writeText(pagesOf(rig.paper), nowhere)}) {
        ASSERT_TRUE(failure);
        EXPECT_FALSE(failure->isEmpty());
    }
}

}  // namespace
}  // namespace tarn::test
