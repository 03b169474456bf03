// Drawn pages through a real cupsd of the test's own, to the printer's socket: where the ink
// stands, as the tools of poppler read it back.
#include <gtest/gtest.h>

#include <QGuiApplication>
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

}  // namespace
}  // namespace tarn::test

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
