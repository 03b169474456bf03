// Files of a folder that are kept, and go out of it.
#include <QFile>

#include "printer/intake/folder_watch.h"
#include "tests/printer/held_intake.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

using std::chrono::milliseconds;

class FolderKept : public HeldIntake {
protected:
    QString file(const char* name) const { return folder_.filePath(QLatin1StringView(name)); }
    void put(const char* name, const QByteArray& bytes,
             QIODevice::OpenMode mode = QIODevice::WriteOnly) {
        QFile out(file(name));
        ASSERT_TRUE(out.open(mode));
        out.write(bytes);
    }
    QByteArray kept(int number) { return desk_->bytesOf(number).value_or("none"); }

    QTemporaryDir folder_;
};

TEST_F(FolderKept, AFileThatHasStoppedGrowingIsKeptAndGoes) {
    FolderWatch watch(intake_, folder_.path());
    watch.setSettling(milliseconds(400));
    put("job-001.prn", "um ");
    put("job-001.prn", "dois", QIODevice::WriteOnly | QIODevice::Append);
    put("job-002.prn", "outro\r\n");
    ASSERT_TRUE(waitForJobs(2));
    EXPECT_EQ(kept(1), "um dois");
    EXPECT_EQ(kept(2), "outro\r\n");
    EXPECT_FALSE(QFile::exists(file("job-001.prn")));
    EXPECT_FALSE(QFile::exists(file("job-002.prn")));
}

// What the desk told beside it goes with it, and is known after a restart.
TEST_F(FolderKept, WhatIsToldBesideAJobIsKeptWithIt) {
    put("job-001.kind", "documento nota\nformulario ImprimeNF_1361\n");
    put("job-001.prn", "um\r\n");
    FolderWatch watch(intake_, folder_.path());
    watch.setSettling(milliseconds(0));
    ASSERT_TRUE(waitForJobs(1));
    EXPECT_FALSE(QFile::exists(file("job-001.kind")));
    restart();
    EXPECT_EQ(desk_->entry(1)->job.kind.form, "ImprimeNF_1361");
}

// The same name again, after the desk found the folder empty.
TEST_F(FolderKept, ANewFileOfAnOldNameIsANewJob) {
    FolderWatch watch(intake_, folder_.path());
    watch.setSettling(milliseconds(0));
    put("job-001.prn", "um\r\n");
    ASSERT_TRUE(waitForJobs(1));
    put("job-001.prn", "dois\r\n");
    ASSERT_TRUE(waitForJobs(2));
    EXPECT_EQ(kept(2), "dois\r\n");
}

// Ended between the keeping and the going out of the folder.
TEST_F(FolderKept, AFileThatWasKeptBeforeACrashIsNotKeptTwice) {
    put("job-001.prn", "um\r\n");
    {
        FolderWatch watch(intake_, folder_.path());
        watch.setSettling(milliseconds(0));
        // No longer writable: the file stays, as after a crash.
        QFile::rename(file("job-001.prn"), held_.filePath("x.prn"));
        QFile::link(held_.filePath("x.prn"), file("job-001.prn"));
        ASSERT_TRUE(waitForJobs(1));
    }
    QFile::rename(held_.filePath("x.prn"), file("job-001.prn"));
    restart();
    put("job-002.prn", "dois\r\n");
    FolderWatch watch(intake_, folder_.path());
    watch.setSettling(milliseconds(0));
    ASSERT_TRUE(waitForJobs(2));
    EXPECT_EQ(desk_->entries().size(), 2U);
    EXPECT_EQ(kept(2), "dois\r\n");
    EXPECT_FALSE(QFile::exists(file("job-001.prn")));
}

TEST_F(FolderKept, AFolderThatIsNotThereIsWaitedFor) {
    const QString late = folder_.filePath("depois");
    FolderWatch watch(intake_, late);
    watch.setSettling(milliseconds(0));
    watch.look();
    ASSERT_TRUE(QDir().mkpath(late));
    put("depois/job-001.prn", "um\r\n");
    ASSERT_TRUE(waitForJobs(1));
    EXPECT_EQ(kept(1), "um\r\n");
}

}  // namespace
}  // namespace tarn::test
