// A PDF seen through another program's eyes.
#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <vector>

namespace tarn::test {

inline QString output(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

struct Word {
    QString text;
    double left = 0;  // points
    double top = 0;
    double right = 0;
};

// Words of the first page.
inline std::vector<Word> wordsIn(const QString& pdf) {
    static const QRegularExpression word(
        QStringLiteral("<word xMin=\"([0-9.]+)\" yMin=\"(-?[0-9.]+)\" xMax=\"([0-9.]+)\" "
                       "yMax=\"[0-9.]+\">([^<]*)<"));
    const QString text =
        output(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), QStringLiteral("-l"),
                                             QStringLiteral("1"), pdf, QStringLiteral("-")});
    std::vector<Word> words;
    for (auto match = word.globalMatch(text); match.hasNext();) {
        const auto one = match.next();
        words.push_back({one.captured(4), one.captured(1).toDouble(), one.captured(2).toDouble(),
                         one.captured(3).toDouble()});
    }
    return words;
}

}  // namespace tarn::test
