// One job after the other, each as far as its size goes.
#include "printer/intake/job_intake.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "tests/printer/intake.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

TEST_F(Intake, OneJobAtATime) {
    EXPECT_TRUE(intake_.begin(QStringLiteral("a")));
    EXPECT_FALSE(intake_.begin(QStringLiteral("b")));
    EXPECT_TRUE(intake_.take("um\r\n"));
    QSignalSpy idle(&intake_, &JobIntake::idle);
    intake_.end();
    EXPECT_EQ(idle.count(), 1);
    EXPECT_TRUE(intake_.begin(QStringLiteral("b")));
    intake_.take("dois");
    intake_.end();
    EXPECT_EQ(text(), "um\ndois\n");
    EXPECT_EQ(intake_.ended(), 2U);
    ASSERT_EQ(roll_.jobs().size(), 2U);
    EXPECT_EQ(roll_.jobs()[1].name, "b");
}

// A job that doesn't say what it prints may be known when it is whole; a slow one is watched.
TEST_F(Intake, AJobThatIsNotWholeIsOnThePaperBeforeLong) {
    ASSERT_TRUE(intake_.begin(QStringLiteral("a")));
    EXPECT_TRUE(intake_.take("um"));
    EXPECT_FALSE(intake_.isOnPaper());
    EXPECT_EQ(text(), "");
    ASSERT_TRUE(QTest::qWaitFor([this] { return intake_.isOnPaper(); }, limit));
    EXPECT_EQ(text(), "um\n");
    EXPECT_TRUE(intake_.take(" dois"));
    EXPECT_EQ(text(), "um dois\n");
    intake_.end();
    EXPECT_FALSE(intake_.isOnPaper());
}

TEST_F(Intake, ALongJobIsOnThePaperAsItComes) {
    ASSERT_TRUE(intake_.begin(QStringLiteral("a")));
    EXPECT_TRUE(intake_.take("um\r\n"));
    EXPECT_TRUE(intake_.take(QByteArray(70'000, ' ')));
    EXPECT_TRUE(intake_.isOnPaper());
    EXPECT_EQ(text(), "um\n");
}

TEST_F(SmallIntake, AJobOverItsSizeIsCutAndTold) {
    intake_.begin(QStringLiteral("grande"));
    EXPECT_TRUE(intake_.take("12345"));
    EXPECT_TRUE(intake_.take("67890"));
    EXPECT_FALSE(intake_.take("x"));
    EXPECT_FALSE(intake_.busy());
    ASSERT_EQ(ended_.size(), 1U);
    EXPECT_EQ(ended_[0].remark, QStringLiteral("o trabalho passa de 10 bytes; o resto foi "
                                               "desprezado."));
    EXPECT_EQ(text(), "1234567890\n");
    intake_.begin(QStringLiteral("outro"));
    EXPECT_TRUE(intake_.take("12345"));
}

}  // namespace
}  // namespace tarn::test
