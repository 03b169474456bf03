// Every drawn document through a real cupsd of the test's own to the printer's socket: each
// of its texts stands where it was drawn, counted from the printable corner.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <cmath>
#include <vector>

#include "platform/qt/qt_printer.h"
#include "tests/desk/printed_documents.h"
#include "tests/support/cups_test.h"

namespace tarn::test {
namespace {

constexpr double pointsPerCentimetre = 72 / 2.54;
constexpr double fifthOfAMillimetre = 0.02 * pointsPerCentimetre;

struct Word {
    double x = 0;  // points, from the corner of the sheet
    double y = 0;
    QString text;
};
using Sheet = std::vector<Word>;

std::vector<Sheet> sheetsOf(const QString& file) {
    QProcess process;
    process.start(QStringLiteral("pdftotext"),
                  {QStringLiteral("-bbox"), file, QStringLiteral("-")});
    EXPECT_TRUE(process.waitForFinished());
    static const QRegularExpression shape(
        QStringLiteral("<page |<word xMin=\"([-0-9.]+)\" yMin=\"([-0-9.]+)\"[^>]*>([^<]*)<"));
    std::vector<Sheet> sheets;
    auto found = shape.globalMatch(QString::fromUtf8(process.readAllStandardOutput()));
    while (found.hasNext()) {
        const auto match = found.next();
        if (match.capturedLength(1) == 0) {
            sheets.emplace_back();
        } else {
            sheets.back().push_back(
                {match.captured(1).toDouble(), match.captured(2).toDouble(), match.captured(3)});
        }
    }
    return sheets;
}

bool standsAt(const Word& word, const DrawnText& text, const QString& first) {
    const auto near = [](double point, double centimetres) {
        return std::abs(point - PrivateCupsd::pageMargin - centimetres * pointsPerCentimetre) <=
               fifthOfAMillimetre;
    };
    return word.text.startsWith(first) && near(word.x, text.x) && near(word.y, text.y);
}

class CupsDocuments : public CupsTest {
protected:
    static void SetUpTestSuite() { startServer(PrivateCupsd::pageQueueName); }

    std::vector<Sheet> nextSheets() {
        const std::optional<std::string> job = printed();
        EXPECT_TRUE(job && job->starts_with("%PDF")) << server_->errorLog();
        QFile file(room_.filePath(QStringLiteral("papel.pdf")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::fromStdString(job.value_or("")));
        file.close();
        return sheetsOf(file.fileName());
    }

    // The document's operations onto the queue; each end of a document is a job that is looked
    // at, and the texts found in it are counted.
    int print(const std::vector<PrintOperation>& operations) {
        int found = 0;
        std::vector<std::vector<DrawnText>> pages(1);
        bool drawn = false;
        for (const PrintOperation& operation : operations) {
            EXPECT_EQ(printer_.perform(operation), std::nullopt);
            drawn = drawn || draws(operation);
            if (const auto* text = std::get_if<DrawnText>(&operation)) {
                pages.back().push_back(*text);
            } else if (std::holds_alternative<PageBreak>(operation)) {
                pages.emplace_back();
            } else if (std::holds_alternative<DocumentEnd>(operation) && drawn) {
                found += compare(pages, nextSheets());
                pages.assign(1, {});
                drawn = false;
            }
        }
        return found;
    }

private:
    static int compare(const std::vector<std::vector<DrawnText>>& pages,
                       const std::vector<Sheet>& sheets) {
        int found = 0;
        for (std::size_t page = 0; page < pages.size(); ++page) {
            for (const DrawnText& text : pages[page]) {
                const QString shown = QString::fromStdString(text.text);
                const QString first = shown.section(u' ', 0, 0).toHtmlEscaped();
                if (first.isEmpty()) {
                    continue;  // begins with a blank
                }
                if (page >= sheets.size()) {
                    ADD_FAILURE() << "no sheet " << page + 1;
                    return found;
                }
                const bool stands = std::ranges::any_of(
                    sheets[page], [&](const Word& word) { return standsAt(word, text, first); });
                EXPECT_TRUE(stands) << text.text << " at " << text.x << " " << text.y;
                found += stands ? 1 : 0;
            }
        }
        return found;
    }

    QTemporaryDir room_;
    QtPrinter printer_;
};

TEST_F(CupsDocuments, EachOf306TextsOfNineStandsWhereItWasDrawn) {
    int texts = 0;
    for (const PrintedDocument& document : drawnDocuments()) {
        SCOPED_TRACE(document.name);
        PrintingDesk desk;
        document.print(desk);
        texts += print(desk.machine.printer.operations);
    }
    EXPECT_EQ(texts, 306);
}

}  // namespace
}  // namespace tarn::test
