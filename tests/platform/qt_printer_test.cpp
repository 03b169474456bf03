// Drawn pages as PDF files, read back with the tools of poppler.
#include "platform/qt/qt_printer.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QImageReader>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "platform/directory/directory_spooler.h"
#include "tests/support/no_screen.h"

namespace tarn::test {
namespace {

constexpr double pointsPerCentimetre = 72 / 2.54;
constexpr double halfMillimetre = 0.05 * pointsPerCentimetre;

QByteArray output(const QString& program, const QStringList& words) {
    QProcess process;
    process.start(program, words);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

class QtPrinterTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(room_.isValid()); }

    QString file(const char* name) const { return room_.filePath(QLatin1StringView(name)); }
    QStringList jobs() const { return QDir(room_.path()).entryList(QDir::Files, QDir::Name); }
    QString info(const char* name, const QString& key) const {
        const QString all = QString::fromUtf8(output(QStringLiteral("pdfinfo"), {file(name)}));
        return QRegularExpression(key + QStringLiteral(":\\s+(.*)")).match(all).captured(1);
    }
    // Where a word's box has its top left corner, in points.
    QPointF placeOf(const char* name, const QString& word) const {
        const QString all =
            QString::fromUtf8(output(QStringLiteral("pdftotext"),
                                     {QStringLiteral("-bbox"), file(name), QStringLiteral("-")}));
        const QRegularExpression shape(
            QStringLiteral("xMin=\"([-0-9.]+)\" yMin=\"([-0-9.]+)\"[^>]*>") +
            QRegularExpression::escape(word) + QStringLiteral("<"));
        const auto found = shape.match(all);
        EXPECT_TRUE(found.hasMatch()) << word.toStdString() << all.toStdString();
        return {found.captured(1).toDouble(), found.captured(2).toDouble()};
    }
    // The page at 100 dots a centimetre.
    QImage pageOf(const char* name) const {
        output(QStringLiteral("pdftoppm"),
               {QStringLiteral("-r"), QStringLiteral("254"), QStringLiteral("-singlefile"),
                QStringLiteral("-png"), file(name), file("pagina")});
        return QImage(file("pagina.png"));
    }

    QTemporaryDir room_;
    std::shared_ptr<JobFiles> files_ =
        std::make_shared<JobFiles>(std::filesystem::path(room_.path().toStdString()));
    QtPrinter printer_{files_};
};

bool isInk(const QImage& page, int x, int y) {
    return qGray(page.pixel(x, y)) < 128;
}

TEST_F(QtPrinterTest, ATextHasItsTopLeftCornerAtThePosition) {
    struct Case {
        const char* word;
        double x;
        double y;
        double size;
    };
    constexpr Case cases[] = {{"CANTO", 0, 0, 8}, {"MEIO", 10.5, 14, 20}, {"PONTA", 1.1, 28, 8}};
    for (const Case& text : cases) {
        printer_.FontSize = text.size;
        printer_.CurrentX = text.x;
        printer_.CurrentY = text.y;
        EXPECT_EQ(printer_.Print(text.word), std::nullopt);
    }
    EXPECT_EQ(printer_.EndDoc(), std::nullopt);
    for (const Case& text : cases) {
        const QPointF place = placeOf("job-001.pdf", QLatin1StringView(text.word));
        EXPECT_NEAR(place.x(), text.x * pointsPerCentimetre, halfMillimetre) << text.word;
        EXPECT_NEAR(place.y(), text.y * pointsPerCentimetre, halfMillimetre) << text.word;
    }
    EXPECT_EQ(info("job-001.pdf", QStringLiteral("Page size")),
              QStringLiteral("595 x 842 pts (A4)"));
}

// Arial's advance widths: each figure 0.556 of the size, so ten of them at 20 points
// take 111.2 points.
TEST_F(QtPrinterTest, FacesHaveTheWidthsOfTheOnesAskedForAndAreEmbedded) {
    printer_.FontSize = 20;
    printer_.CurrentX = printer_.CurrentY = 2;
    printer_.Print("0123456789 I");
    printer_.FontBold = true;
    printer_.CurrentY = 4;
    printer_.Print("NEGRITO");
    printer_.FontName = "Courier New";
    printer_.FontBold = false;
    printer_.CurrentY = 6;
    printer_.Print("0000000000 J");
    printer_.EndDoc();
    const double blank = 0.278;
    EXPECT_NEAR(placeOf("job-001.pdf", QStringLiteral("I")).x() - 2 * pointsPerCentimetre,
                20 * (10 * 0.556 + blank), 0.5);
    EXPECT_NEAR(placeOf("job-001.pdf", QStringLiteral("J")).x() - 2 * pointsPerCentimetre,
                20 * 11 * 0.6, 0.5);
    const QStringList fonts =
        QString::fromUtf8(output(QStringLiteral("pdffonts"), {file("job-001.pdf")}))
            .split(u'\n', Qt::SkipEmptyParts)
            .mid(2);
    ASSERT_EQ(fonts.size(), 3);
    for (const QString& font : fonts) {
        EXPECT_TRUE(
            font.contains(QRegularExpression(QStringLiteral("(Liberation|Arial|Courier)"))));
        EXPECT_TRUE(font.contains(QRegularExpression(QStringLiteral("Identity-H\\s+yes"))))
            << font.toStdString();
    }
}

TEST_F(QtPrinterTest, TextsAreCopiedAsTheyWerePrinted) {
    const char* const texts[] = {"COMÉRCIO DE PEÇAS (SÃO JOÃO) \\ LTDA", "fiação e aflição",
                                 "preço ≤ 10 – à vista"};
    for (double size : {6.0, 10.0, 7.5}) {
        for (const char* text : texts) {
            printer_.FontSize = size;
            printer_.CurrentX = 2;
            printer_.CurrentY += 1;
            EXPECT_EQ(printer_.Print(text), std::nullopt);
        }
    }
    EXPECT_EQ(printer_.EndDoc(), std::nullopt);
    const QString copied = QString::fromUtf8(
        output(QStringLiteral("pdftotext"), {file("job-001.pdf"), QStringLiteral("-")}));
    for (const char* text : texts) {
        EXPECT_EQ(copied.count(QString::fromUtf8(text)), 3) << text << copied.toStdString();
    }
    const QString fonts =
        QString::fromUtf8(output(QStringLiteral("pdffonts"), {file("job-001.pdf")}));
    EXPECT_EQ(fonts.count(QStringLiteral("TrueType")), 1) << fonts.toStdString();
}

TEST_F(QtPrinterTest, AFaceIsWholeInEveryDocument) {
    for (const char* word : {"UM", "DOIS"}) {
        printer_.CurrentX = printer_.CurrentY = 3;
        printer_.Print(word);
        printer_.EndDoc();
    }
    EXPECT_NEAR(placeOf("job-002.pdf", QStringLiteral("DOIS")).x(), 3 * pointsPerCentimetre,
                halfMillimetre);
    const QImage page = pageOf("job-002.pdf");
    int dark = 0;
    for (int y = 290; y < 360; ++y) {
        for (int x = 290; x < 420; ++x) {
            dark += isInk(page, x, y) ? 1 : 0;
        }
    }
    EXPECT_GT(dark, 200);
}

TEST_F(QtPrinterTest, LinesInDots) {
    printer_.DrawWidth = 60;
    printer_.Line(2, 3, 8, 3);
    printer_.DrawWidth = 15;
    printer_.Line(10, 5, 10, 9);
    printer_.EndDoc();
    const QImage page = pageOf("job-001.pdf");
    // 60 dots are 2.54 mm, on both sides of y = 3 cm.
    for (const int y : {289, 300, 311}) {
        EXPECT_TRUE(isInk(page, 500, y)) << y;
    }
    EXPECT_FALSE(isInk(page, 500, 285));
    EXPECT_FALSE(isInk(page, 500, 315));
    EXPECT_TRUE(isInk(page, 203, 300) && isInk(page, 797, 300));
    EXPECT_FALSE(isInk(page, 197, 300) || isInk(page, 803, 300)) << "ends at its points";
    // 15 dots are 0.635 mm.
    EXPECT_TRUE(isInk(page, 1000, 700));
    EXPECT_FALSE(isInk(page, 995, 700) || isInk(page, 1005, 700));
    EXPECT_TRUE(isInk(page, 1000, 503) && isInk(page, 1000, 897));
    EXPECT_FALSE(isInk(page, 1000, 497) || isInk(page, 1000, 903));
}

Picture black(const char* format, int dotsPerMetre) {
    QImage image(96, 48, QImage::Format_RGB32);
    image.fill(Qt::black);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format));
    return {"picLogo", bytes.toStdString()};
}

// Width and height of the ink around a point inside it, in dots.
QSize inkAround(const QImage& page, int x, int y) {
    int right = x;
    int bottom = y;
    while (isInk(page, right, y)) {
        ++right;
    }
    while (isInk(page, x, bottom)) {
        ++bottom;
    }
    while (isInk(page, x - 1, y)) {
        --x;
    }
    while (isInk(page, right - 1, y - 1)) {
        --y;
    }
    return {right - x, bottom - y};
}

TEST_F(QtPrinterTest, PicturesAtTheirNaturalSize) {
    constexpr int at96 = 3780;  // dots a metre
    constexpr int at192 = 7559;
    EXPECT_EQ(printer_.PaintPicture(black("PNG", at96), 2, 2), std::nullopt);
    printer_.PaintPicture(black("JPG", at192), 2, 6);
    printer_.PaintPicture({"picVert", "no picture"}, 2, 9);
    printer_.EndDoc();
    const QImage page = pageOf("job-001.pdf");
    EXPECT_TRUE(isInk(page, 203, 203) && !isInk(page, 197, 203) && !isInk(page, 203, 197));
    EXPECT_NEAR(inkAround(page, 210, 210).width(), 254, 3);
    EXPECT_NEAR(inkAround(page, 210, 210).height(), 127, 3);
    EXPECT_NEAR(inkAround(page, 210, 610).width(), 127, 3);
    EXPECT_NEAR(inkAround(page, 210, 610).height(), 63, 3);
}

// A scan of a whole sheet has more dots than the toolkit decodes of its own accord; here
// its limit is lowered instead.
TEST_F(QtPrinterTest, APictureOfVeryManyDotsPrintsToo) {
    constexpr int megabyte = 1;
    const int usual = QImageReader::allocationLimit();
    QImageReader::setAllocationLimit(megabyte);
    QImage scan(800, 600, QImage::Format_RGB32);
    scan.fill(Qt::black);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(scan.save(&buffer, "JPG"));
    ASSERT_TRUE(QImage::fromData(bytes).isNull()) << "beyond the limit";
    printer_.PaintPicture({"picLogo", bytes.toStdString()}, 2, 2);
    EXPECT_EQ(printer_.EndDoc(), std::nullopt);
    QImageReader::setAllocationLimit(usual);
    EXPECT_TRUE(isInk(pageOf("job-001.pdf"), 300, 300));
}

TEST_F(QtPrinterTest, APageBeginsWithTheFirstThingDrawnOnIt) {
    for (const char* word : {"UM", "DOIS"}) {
        printer_.Print(word);
        printer_.NewPage();
    }
    EXPECT_EQ(printer_.EndDoc(), std::nullopt);
    EXPECT_EQ(info("job-001.pdf", QStringLiteral("Pages")), QStringLiteral("2"));
    printer_.NewPage();
    printer_.Print("TRÊS");
    printer_.EndDoc();
    EXPECT_EQ(info("job-002.pdf", QStringLiteral("Pages")), QStringLiteral("1"));
}

TEST_F(QtPrinterTest, TellsEachPageAsItGoesOnPaper) {
    std::vector<std::pair<std::size_t, std::size_t>> told;
    printer_.progress = [&told](std::size_t done, std::size_t total) {
        told.emplace_back(done, total);
    };
    for (const char* word : {"UM", "DOIS", "TRÊS"}) {
        printer_.Print(word);
        printer_.NewPage();
    }
    EXPECT_TRUE(told.empty()) << "nothing is on paper yet";
    printer_.EndDoc();
    EXPECT_EQ(told, (std::vector<std::pair<std::size_t, std::size_t>>{{1, 3}, {2, 3}}));
}

TEST_F(QtPrinterTest, APictureOnEveryPageIsInTheFileOnce) {
    constexpr int at96 = 3780;  // dots a metre
    const Picture picture = black("JPG", at96);
    for (int page = 0; page < 3; ++page) {
        printer_.PaintPicture(picture, 2, 2);
        printer_.NewPage();
    }
    printer_.EndDoc();
    const QStringList images =
        QString::fromUtf8(
            output(QStringLiteral("pdfimages"), {QStringLiteral("-list"), file("job-001.pdf")}))
            .split(u'\n', Qt::SkipEmptyParts)
            .mid(2);
    ASSERT_EQ(images.size(), 3) << "shown on each page";
    const auto object = [](const QString& line) {
        return line.split(u' ', Qt::SkipEmptyParts).at(10);
    };
    EXPECT_EQ(object(images[1]), object(images[0]));
    EXPECT_EQ(object(images[2]), object(images[0]));
}

TEST_F(QtPrinterTest, WithNothingDrawnNothingIsPrinted) {
    printer_.setScaleMode(ScaleMode::Centimetres);
    printer_.setOrientation(Orientation::Portrait);
    EXPECT_EQ(printer_.EndDoc(), std::nullopt);
    printer_.NewPage();
    printer_.EndDoc();
    EXPECT_TRUE(jobs().isEmpty());
}

TEST_F(QtPrinterTest, WhatIsNeverEndedLeavesNothing) {
    {
        QtPrinter given(files_);
        given.Print("A");
        given.NewPage();
        given.Print("B");
    }
    EXPECT_TRUE(jobs().isEmpty());
}

TEST_F(QtPrinterTest, JobsShareTheNumberingOfTheRawOnes) {
    DirectorySpooler spooler(files_);
    ASSERT_TRUE(spooler.openPrinter("x") && spooler.startDocument({}));
    printer_.Print("A");
    printer_.EndDoc();
    ASSERT_TRUE(spooler.openPrinter("x") && spooler.startDocument({}));
    EXPECT_EQ(jobs(), (QStringList{QStringLiteral("job-001.prn"), QStringLiteral("job-002.pdf"),
                                   QStringLiteral("job-003.prn")}));
}

TEST_F(QtPrinterTest, TheOrientationStaysOverTheEnd) {
    printer_.setOrientation(Orientation::Landscape);
    for (int i = 0; i < 2; ++i) {
        printer_.CurrentX = 28;
        printer_.CurrentY = 20;
        printer_.Print("LARGO");
        printer_.EndDoc();
    }
    for (const char* job : {"job-001.pdf", "job-002.pdf"}) {
        EXPECT_TRUE(info(job, QStringLiteral("Page size")).startsWith(QStringLiteral("842 x 595")));
        EXPECT_NEAR(placeOf(job, QStringLiteral("LARGO")).x(), 28 * pointsPerCentimetre,
                    halfMillimetre);
    }
}

TEST_F(QtPrinterTest, AFailureHasANumberAndADescription) {
    QFile taken(file("arquivo"));
    ASSERT_TRUE(taken.open(QIODevice::WriteOnly));
    QtPrinter printer(std::make_shared<JobFiles>(files_->directory() / "arquivo"));
    for (const auto& failure : {printer.Print("A"), printer.Print("B"), printer.EndDoc()}) {
        ASSERT_TRUE(failure);
        EXPECT_EQ(failure->number, 482);
        EXPECT_NE(failure->description.find("não foi possível gravar"), std::string::npos);
    }
    EXPECT_EQ(printer.EndDoc(), std::nullopt) << "the document is over";
}

}  // namespace
}  // namespace tarn::test

int main(int argc, char** argv) {
    tarn::test::chooseNoScreen();
    testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
