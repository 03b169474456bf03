// Drawn pages through a real cupsd of the test's own, to the printer's socket: where the ink
// stands, as the tools of poppler read it back.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <fstream>

#include "platform/qt/qt_printer.h"
#include "tests/support/cups_test.h"

namespace tarn::test {
namespace {

constexpr double pointsPerCentimetre = 72 / 2.54;
constexpr double fifthOfAMillimetre = 0.02 * pointsPerCentimetre;

class CupsPagesTest : public CupsTest {
protected:
    static void SetUpTestSuite() { startServer(PrivateCupsd::pageQueueName); }

    // The next document as it reached the printer.
    QString page() {
        const std::optional<std::string> job = printed();
        EXPECT_TRUE(job && job->starts_with("%PDF")) << server_->errorLog();
        QString file = room_.filePath(QStringLiteral("pagina.pdf"));
        std::ofstream(file.toStdString(), std::ios::binary) << job.value_or("");
        return file;
    }
    static QString output(const QString& program, const QStringList& words) {
        QProcess process;
        process.start(program, words);
        EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
        return QString::fromUtf8(process.readAllStandardOutput());
    }
    // The page at 100 dots a centimetre.
    QImage picture(const QString& file) const {
        const QString name = room_.filePath(QStringLiteral("pagina"));
        output(QStringLiteral("pdftoppm"),
               {QStringLiteral("-r"), QStringLiteral("254"), QStringLiteral("-singlefile"),
                QStringLiteral("-png"), file, name});
        return QImage(name + QStringLiteral(".png"));
    }
    // Where a word's box has its top left corner, in points.
    static QPointF placeOf(const QString& file, const QString& word) {
        const QString all = output(QStringLiteral("pdftotext"),
                                   {QStringLiteral("-bbox"), file, QStringLiteral("-")});
        const QRegularExpression shape(
            QStringLiteral("xMin=\"([-0-9.]+)\" yMin=\"([-0-9.]+)\"[^>]*>") + word +
            QStringLiteral("<"));
        const auto found = shape.match(all);
        EXPECT_TRUE(found.hasMatch()) << word.toStdString() << all.toStdString();
        return {found.captured(1).toDouble(), found.captured(2).toDouble()};
    }

    QTemporaryDir room_;
    QtPrinter printer_;
};

TEST_F(CupsPagesTest, APageBeginsAtTheCornerOfThePrintableArea) {
    struct Case {
        const char* word;
        double x;
        double y;
    };
    constexpr Case cases[] = {{"CANTO", 0, 0}, {"MEIO", 10.5, 14}, {"FORA", -0.3, 2.55}};
    for (const Case& text : cases) {
        printer_.FontSize = 12;
        printer_.CurrentX = text.x;
        printer_.CurrentY = text.y;
        EXPECT_EQ(printer_.Print(text.word), std::nullopt);
    }
    ASSERT_EQ(printer_.EndDoc(), std::nullopt);
    const QString file = page();
    for (const Case& text : cases) {
        const QPointF place = placeOf(file, QLatin1StringView(text.word));
        EXPECT_NEAR(place.x(), PrivateCupsd::pageMargin + text.x * pointsPerCentimetre,
                    fifthOfAMillimetre)
            << text.word;
        EXPECT_NEAR(place.y(), PrivateCupsd::pageMargin + text.y * pointsPerCentimetre,
                    fifthOfAMillimetre)
            << text.word;
    }
}

TEST_F(CupsPagesTest, EveryPageBeginsThereAndTheOneAfterTheEndToo) {
    for (const char* word : {"UM", "DOIS"}) {
        printer_.CurrentX = 1;
        printer_.CurrentY = 2;
        EXPECT_EQ(printer_.Print(word), std::nullopt);
        EXPECT_EQ(printer_.NewPage(), std::nullopt);
    }
    ASSERT_EQ(printer_.EndDoc(), std::nullopt);
    const QString both = page();
    const QPointF first = placeOf(both, QStringLiteral("UM"));
    EXPECT_EQ(placeOf(both, QStringLiteral("DOIS")), first);
    EXPECT_NEAR(first.x(), PrivateCupsd::pageMargin + pointsPerCentimetre, fifthOfAMillimetre);
    printer_.Print("TRES");
    ASSERT_EQ(printer_.EndDoc(), std::nullopt);
    EXPECT_EQ(placeOf(page(), QStringLiteral("TRES")), first);
}

// Left, top, right and bottom of the ink in a part of the page, in hundredths of a centimetre.
QRect inkIn(const QImage& page, const QRect& part) {
    QRect ink;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            if (qGray(page.pixel(x, y)) < 128) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

TEST_F(CupsPagesTest, LinesAndPicturesAreCountedFromThereToo) {
    constexpr double margin = PrivateCupsd::pageMargin / pointsPerCentimetre * 100;
    constexpr double fifth = 2;  // of a millimetre, in dots
    QImage black(96, 48, QImage::Format_RGB32);
    black.fill(Qt::black);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    ASSERT_TRUE(buffer.open(QIODevice::WriteOnly) && black.save(&buffer, "PNG"));
    printer_.DrawWidth = 60;
    printer_.Line(2, 3, 8, 3);
    printer_.PaintPicture({"picLogo", bytes.toStdString()}, 2, 10);
    ASSERT_EQ(printer_.EndDoc(), std::nullopt);
    const QImage sheet = picture(page());
    const QRect line = inkIn(sheet, {100, 200, 1500, 400});
    EXPECT_NEAR(line.left(), margin + 200, fifth);
    EXPECT_NEAR(line.right(), margin + 800, fifth);
    EXPECT_NEAR(line.center().y(), margin + 300, fifth);
    const QRect logo = inkIn(sheet, {100, 900, 1500, 1000});
    EXPECT_NEAR(logo.left(), margin + 200, fifth);
    EXPECT_NEAR(logo.top(), margin + 1000, fifth);
}

}  // namespace
}  // namespace tarn::test

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
