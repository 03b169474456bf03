// Jobs from a real directory.
#include "printer/intake/folder_watch.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "tests/printer/intake.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

class Watched : public Intake {
protected:
    void write(const char* name, const QByteArray& bytes,
               QIODevice::OpenMode mode = QIODevice::WriteOnly) {
        QFile file(folder_.filePath(QLatin1StringView(name)));
        ASSERT_TRUE(file.open(mode));
        file.write(bytes);
    }
    bool waitForText(const std::string& expected) {
        return QTest::qWaitFor([&] { return text() == expected; }, limit);
    }
    QTemporaryDir folder_;
};

TEST_F(Watched, FilesThereAndFilesThatComeInTheOrderOfTheirNumbers) {
    write("job-002.prn", "dois\r\n");
    write("job-001.prn", "um\r\n");
    write("job-003.pdf", "nunca");
    FolderWatch watch(intake_, folder_.path());
    ASSERT_TRUE(waitForJobs(2));
    write("job-1000.prn", "mil\r\n");
    write("job-999.prn", "novecentos\r\n");
    ASSERT_TRUE(waitForJobs(4));
    EXPECT_EQ(text(), "um\ndois\nnovecentos\nmil\n");
    ASSERT_EQ(roll_.jobs().size(), 4U);
    EXPECT_EQ(roll_.jobs()[2].name, "job-999.prn");
}

TEST_F(Watched, AFileThatGrowsIsOneJob) {
    FolderWatch watch(intake_, folder_.path());
    write("job-001.prn", "um ");
    ASSERT_TRUE(QTest::qWaitFor([this] { return intake_.busy(); }, limit));
    write("job-001.prn", "dois", QIODevice::WriteOnly | QIODevice::Append);
    ASSERT_TRUE(waitForJobs(1));
    EXPECT_EQ(text(), "um dois\n");
}

TEST_F(Watched, AFileWrittenAnewIsANewJob) {
    FolderWatch watch(intake_, folder_.path());
    write("job-001.prn", "primeira vez\r\n");
    ASSERT_TRUE(waitForJobs(1));
    write("job-001.prn", "outra\r\n");
    ASSERT_TRUE(waitForJobs(2));
    EXPECT_EQ(text(), "primeira vez\noutra\n");
}

TEST_F(Watched, AnEmptyFileIsNoJobAndHoldsNothingUp) {
    write("job-001.prn", "");
    write("job-002.prn", "x");
    FolderWatch watch(intake_, folder_.path());
    ASSERT_TRUE(waitForJobs(1));
    EXPECT_EQ(roll_.jobs().size(), 1U);
}

TEST_F(Watched, WaitsWhileAnotherJobIsTaken) {
    intake_.begin(QStringLiteral("rede"), JobIntake::Kind::LookedAt,
                  {.document = JobDocument::Note, .form = {}, .itemLines = {}});
    intake_.take("primeiro\r\n");
    write("job-001.prn", "depois\r\n");
    FolderWatch watch(intake_, folder_.path());
    watch.look();
    watch.look();
    EXPECT_EQ(text(), "primeiro\n");
    intake_.end();
    ASSERT_TRUE(waitForJobs(2));
    EXPECT_EQ(text(), "primeiro\ndepois\n");
}

TEST_F(Watched, ALongFileComesInPieces) {
    write("job-001.prn", QByteArray("uma linha\r\n").repeated(100'000));
    FolderWatch watch(intake_, folder_.path());
    ASSERT_TRUE(waitForJobs(1));
    EXPECT_EQ(roll_.printedForms(), (100'000U + 65) / 66);
}

}  // namespace
}  // namespace tarn::test
