// A note from its document through a real cupsd's raw queue to the program's socket, and
// out of it as PDF and text.
#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>

#include "platform/cups/cups_spooler.h"
#include "tests/dotmatrix/poppler.h"
#include "tests/notes/note_files.h"
#include "tests/support/private_cupsd.h"

namespace tarn::test {
namespace {

constexpr int limit = 60000;  // milliseconds

// The port in "Recebendo em 127.0.0.1, porta 43210".
int portOf(QProcess& printer) {
    while (!printer.canReadLine() && printer.waitForReadyRead(limit)) {
    }
    const QString line = QString::fromUtf8(printer.readLine()).trimmed();
    EXPECT_TRUE(line.startsWith(QStringLiteral("Recebendo em 127.0.0.1, porta ")))
        << line.toStdString();
    return line.section(u' ', -1).toInt();
}

TEST(CupsPaper, ANoteComesOutAsPdfAndText) {
    if (const std::string why = PrivateCupsd::whyMissing(); !why.empty()) {
        GTEST_SKIP() << why;
    }
    const QTemporaryDir folder;
    const QString pdf = folder.filePath(QStringLiteral("nota.pdf"));
    const QString text = folder.filePath(QStringLiteral("nota.txt"));
    QProcess printer;
    printer.start(
        QStringLiteral(TARNIMPRESSORA),
        {QStringLiteral("--porta"), QStringLiteral("0"), QStringLiteral("--quantos"),
         QStringLiteral("2"), QStringLiteral("--formulario"), QStringLiteral("ImprimeNF_1361"),
         QStringLiteral("--pdf"), pdf, QStringLiteral("--texto"), text});
    ASSERT_TRUE(printer.waitForStarted());
    PrivateCupsd server;
    server.printTo(portOf(printer));
    ASSERT_EQ(server.start(), "");

    CupsSpooler spooler;
    issueNoteFile(spooler, "note_1361.xml");

    ASSERT_TRUE(printer.waitForFinished(limit)) << server.errorLog();
    EXPECT_EQ(printer.exitCode(), 0) << printer.readAllStandardError().toStdString();

    // The stream without its set-up, line for line; the set-up job's blank stands ahead of
    // the first one.
    QByteArray expected = ' ' + QByteArray::fromStdString(noteFile("note_1361.prn"));
    QStringList lines;
    for (QByteArray line : expected.replace("\r\n", "\n").split('\n')) {
        while (line.endsWith(' ')) {
            line.chop(1);
        }
        lines << QString::fromLatin1(line);
    }
    while (!lines.isEmpty() && lines.back().isEmpty()) {
        lines.removeLast();
    }
    EXPECT_EQ(QString::fromStdString(contentOf(text.toStdString())), lines.join(u'\n') + u'\n');

    bool number = false;
    for (const test::Word& word : test::wordsIn(pdf)) {
        // Column 125 of the second job's first line, behind a blank of ten an inch.
        number |= word.text == QStringLiteral("004567") &&
                  std::abs(word.left - (36 + 7.2 + 124 * 4.2)) < 0.2 / 25.4 * 72;
    }
    EXPECT_TRUE(number);
}

}  // namespace
}  // namespace tarn::test
