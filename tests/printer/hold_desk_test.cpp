// Jobs that are held until the user, or the time, lets them go.
#include "printer/held/hold_desk.h"

#include <QSignalSpy>

#include "tests/printer/held_intake.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

using hold::State;
using std::chrono::milliseconds;
using Jobs = std::vector<std::string>;
using Call = RecordingSpooler::Call;

class HoldDeskTest : public HeldIntake {};

TEST_F(HoldDeskTest, AJobWaitsForTheUser) {
    desk_->passTo("LX300", std::nullopt);
    ASSERT_TRUE(job("um\r\n"));
    ASSERT_TRUE(job("dois\r\n"));
    EXPECT_EQ(text(), "um\ndois\n");
    EXPECT_EQ(desk_->count(State::Held), 2U);
    desk_->release(2);
    ASSERT_TRUE(waitFor(2, State::PassedOn));
    EXPECT_EQ(state(1), State::Held);
    EXPECT_EQ(queue_.jobs(), Jobs{"dois\r\n"});
    desk_->releaseAll();
    ASSERT_TRUE(waitFor(1, State::PassedOn));
    EXPECT_EQ(queue_.jobs(), (Jobs{"dois\r\n", "um\r\n"}));
}

TEST_F(HoldDeskTest, WithoutAQueueNothingLeaves) {
    ASSERT_TRUE(job("um\r\n"));
    desk_->release(1);
    EXPECT_FALSE(desk_->isLeaving(1));
    EXPECT_EQ(state(1), State::Held);
}

TEST_F(HoldDeskTest, JobsLeaveByThemselvesInTheirOrder) {
    desk_->passTo("LX300", milliseconds(0));
    Jobs sent;
    for (int i = 0; i < 20; ++i) {
        sent.push_back("trabalho " + std::to_string(i) + "\r\n");
        ASSERT_TRUE(job(QByteArray::fromStdString(sent.back())));
    }
    ASSERT_TRUE(waitFor(20, State::PassedOn));
    EXPECT_EQ(queue_.jobs(), sent);
}

TEST_F(HoldDeskTest, BeforeItsTimeAJobCanBeRefusedAndLaterPassedOnAllTheSame) {
    desk_->passTo("LX300", milliseconds(600'000));
    ASSERT_TRUE(job("um\r\n"));
    desk_->refuse(1);
    EXPECT_EQ(state(1), State::Refused);
    restart();
    EXPECT_EQ(state(1), State::Refused);
    desk_->passTo("LX300", std::nullopt);
    desk_->release(1);
    ASSERT_TRUE(waitFor(1, State::PassedOn));
    EXPECT_EQ(queue_.jobs(), Jobs{"um\r\n"});
}

// The job that sets the printer up goes with its note, and is refused with it.
TEST_F(HoldDeskTest, ANoteGoesWithTheJobThatSetsItsPrinterUp) {
    desk_->passTo("LX300", std::nullopt);
    for (int i = 0; i < 2; ++i) {
        ASSERT_TRUE(job(" \x0F"));
        ASSERT_TRUE(job("nota\r\n"));
    }
    EXPECT_TRUE(desk_->entry(1)->setsUp);
    EXPECT_FALSE(desk_->entry(2)->setsUp);
    EXPECT_EQ(desk_->count(State::Held), 2U);
    desk_->refuse(4);
    EXPECT_EQ(state(3), State::Refused);
    desk_->release(2);
    ASSERT_TRUE(waitFor(2, State::PassedOn));
    EXPECT_EQ(queue_.jobs(), (Jobs{" \x0F", "nota\r\n"}));
    restart();
    EXPECT_TRUE(desk_->entry(3)->setsUp);
    desk_->forget(4);
    EXPECT_EQ(desk_->entries().size(), 2U);
    restart();
    EXPECT_EQ(desk_->entries().size(), 2U);
}

TEST_F(HoldDeskTest, AQueueThatRefusesKeepsTheJobAndSaysSo) {
    queue_.refuses = [](Call call, std::size_t) { return call == Call::StartDocument; };
    desk_->passTo("LX300", std::nullopt);
    const QSignalSpy told(desk_.get(), &HoldDesk::troubled);
    ASSERT_TRUE(job("um\r\n"));
    ASSERT_TRUE(job("dois\r\n"));
    desk_->releaseAll();
    ASSERT_TRUE(QTest::qWaitFor([&] { return told.size() == 1; }, limit));
    EXPECT_EQ(
        told[0][1].toString(),
        QStringLiteral("O trabalho 1 continua retido: a fila \"LX300\" não aceitou o trabalho."));
    EXPECT_EQ(state(1), State::Held);
    EXPECT_FALSE(desk_->isLeaving(2)) << "the one behind it doesn't overtake it";
    EXPECT_TRUE(queue_.jobs().empty());
}

TEST_F(HoldDeskTest, ByItselfItTriesAgainUntilTheQueueTakesJobs) {
    queue_.refuses = [](Call call, std::size_t) { return call == Call::Open; };
    desk_->passTo("LX300", milliseconds(0));
    const QSignalSpy told(desk_.get(), &HoldDesk::troubled);
    ASSERT_TRUE(job("um\r\n"));
    ASSERT_TRUE(job("dois\r\n"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return told.size() >= 2; }, limit));
    {
        const std::lock_guard lock(queue_.mutex);
        queue_.refuses = nullptr;
    }
    ASSERT_TRUE(waitFor(2, State::PassedOn));
    EXPECT_EQ(queue_.jobs(), (Jobs{"um\r\n", "dois\r\n"}));
}

TEST_F(HoldDeskTest, HalfAJobIsKeptAndNeverLeavesByItself) {
    desk_->passTo("LX300", milliseconds(0));
    ASSERT_TRUE(job("meio", "a conexão foi interrompida."));
    ASSERT_TRUE(job("inteiro\r\n"));
    ASSERT_TRUE(waitFor(2, State::PassedOn));
    EXPECT_EQ(state(1), State::Refused);
    EXPECT_EQ(desk_->entry(1)->job.remark, "a conexão foi interrompida.");
    EXPECT_EQ(queue_.jobs(), Jobs{"inteiro\r\n"});
}

// What a queue can't tell waits for the user's eyes, and nothing overtakes it.
TEST_F(HoldDeskTest, OfADoubtfulJobTheUserSaysWhetherItIsOnPaper) {
    queue_.refuses = [](Call call, std::size_t) { return call == Call::EndDocument; };
    queue_.fate = [](int) { return JobFate::Doubtful; };
    desk_->passTo("LX300", milliseconds(0));
    const QSignalSpy doubted(desk_.get(), &HoldDesk::doubted);
    ASSERT_TRUE(job("um\r\n"));
    ASSERT_TRUE(job("dois\r\n"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return doubted.size() == 1; }, limit));
    EXPECT_TRUE(HoldDesk::isDoubtful(desk_->entry(1)->job));
    EXPECT_EQ(state(2), State::Held);
    {
        const std::lock_guard lock(queue_.mutex);
        queue_.refuses = nullptr;
    }
    desk_->settle(1, true);
    EXPECT_EQ(state(1), State::PassedOn);
    ASSERT_TRUE(waitFor(2, State::PassedOn));
    EXPECT_EQ(queue_.jobs(), Jobs{"dois\r\n"});
}

TEST_F(HoldDeskTest, WhatIsHeldIsOnThePaperAgainAfterARestart) {
    desk_->passTo("LX300", std::nullopt);
    ASSERT_TRUE(job("um\r\n"));
    ASSERT_TRUE(job("dois\r\n"));
    ASSERT_TRUE(job("três\r\n"));
    desk_->release(1);
    ASSERT_TRUE(waitFor(1, State::PassedOn));
    desk_->refuse(2);
    restart();
    roll_.tearOff(false);
    intake_.keepIn(nullptr);
    desk_->showHeld(intake_);
    EXPECT_EQ(text(), "tr\xC3\x83\xC2\xAAs\n");
    EXPECT_EQ(desk_->entries().size(), 3U) << "it isn't kept a second time";
}

TEST_F(HoldDeskTest, OnlyTheLatestPassedOnStay) {
    desk_->passTo("LX300", milliseconds(0));
    const int all = static_cast<int>(HoldDesk::mostPassedOn) + 5;
    for (int i = 0; i < all; ++i) {
        ASSERT_TRUE(job("x\r\n"));
    }
    ASSERT_TRUE(waitFor(all, State::PassedOn));
    EXPECT_EQ(desk_->entries().size(), HoldDesk::mostPassedOn);
    EXPECT_EQ(desk_->entries().front().job.number, 6);
}

// A folder that is gone stands for a disk that is full.
TEST_F(HoldDeskTest, AJobThatCannotBeKeptIsNotTaken) {
    ASSERT_TRUE(QDir(held_.filePath("retidos")).removeRecursively());
    ASSERT_TRUE(intake_.begin("rede", JobIntake::Kind::Printed));
    EXPECT_FALSE(intake_.take("um\r\n"));
    ASSERT_EQ(ended_.size(), 1U);
    EXPECT_NE(ended_[0].remark.indexOf("ele não foi aceito"), -1);
    EXPECT_TRUE(desk_->entries().empty());
}

TEST_F(HoldDeskTest, WhatTheUserOpensIsOnlyLookedAt) {
    ASSERT_TRUE(intake_.begin("a.prn"));
    ASSERT_TRUE(intake_.take("um\r\n"));
    ASSERT_TRUE(intake_.end());
    EXPECT_TRUE(desk_->entries().empty());
    EXPECT_EQ(text(), "um\n");
}

}  // namespace
}  // namespace tarn::test
