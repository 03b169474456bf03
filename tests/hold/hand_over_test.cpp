// A job reaches its queue once, whatever breaks off on the way.
#include "hold/hand_over.h"

#include "tests/hold/held_jobs.h"
#include "tests/support/recording_spooler.h"

namespace tarn::test {
namespace {

using hold::State;
using Call = RecordingSpooler::Call;

class HandOverTest : public HeldJobs {
protected:
    hold::Job passed(hold::Job job) {
        hold::HandOver(*folder_, spooler_, "LX300").pass(job);
        return job;
    }
    State onDisk() const { return folder_->jobs().at(0).state; }

    RecordingSpooler spooler_;
};

TEST_F(HandOverTest, TheBytesGoAsTheyCame) {
    std::string bytes(200'000, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<char>(i * 7 + i / 256);
    }
    const hold::Job job = passed(keep(bytes, "job-001.prn"));
    EXPECT_EQ(job.state, State::PassedOn);
    EXPECT_EQ(onDisk(), State::PassedOn);
    EXPECT_EQ(spooler_.opened, std::vector<std::string>{"LX300"});
    ASSERT_EQ(spooler_.jobs.size(), 1U);
    EXPECT_TRUE(spooler_.bytes() == bytes);
    EXPECT_TRUE(spooler_.jobs[0].ended);
    EXPECT_TRUE(spooler_.jobs[0].closed);
    EXPECT_EQ(spooler_.jobs[0].description.docName, "tarnimpressora 1 job-001.prn");
    EXPECT_EQ(spooler_.jobs[0].description.dataType, "RAW");
}

// Whatever call fails, the job is held and says why; no document is left to print.
TEST_F(HandOverTest, AQueueThatRefusesKeepsTheJob) {
    for (const Call call : {Call::Open, Call::StartDocument, Call::StartPage, Call::Write,
                            Call::EndPage, Call::EndDocument}) {
        spooler_.refuses = [call](Call asked, std::size_t) { return asked == call; };
        hold::Job job = folder_->jobs().empty() ? keep("nota") : folder_->jobs().at(0);
        job = passed(job);
        EXPECT_EQ(job.state, State::Held) << static_cast<int>(call);
        EXPECT_EQ(onDisk(), State::Held);
        EXPECT_FALSE(job.remark.empty());
        EXPECT_EQ(folder_->jobs().at(0).queueJob, 0);
    }
    spooler_.refuses = nullptr;
    spooler_.fate = nullptr;
    EXPECT_EQ(passed(folder_->jobs().at(0)).state, State::PassedOn);
}

// The queue took all of it, and its last answer was lost.
TEST_F(HandOverTest, AJobThatArrivedAfterAllIsPassedOn) {
    spooler_.refuses = [](Call asked, std::size_t) { return asked == Call::EndDocument; };
    spooler_.fate = [](int) { return JobFate::Arrived; };
    EXPECT_EQ(passed(keep("nota")).state, State::PassedOn);
}

TEST_F(HandOverTest, WhatTheQueueCannotTellIsLeftOpen) {
    spooler_.refuses = [](Call asked, std::size_t) { return asked == Call::EndDocument; };
    for (const JobFate fate : {JobFate::Doubtful, JobFate::Unknown}) {
        spooler_.fate = [fate](int) { return fate; };
        hold::Job job = folder_->jobs().empty() ? keep("nota") : folder_->jobs().at(0);
        folder_->move(job, State::Held);
        job = passed(job);
        EXPECT_EQ(job.state, State::HandingOver);
        EXPECT_EQ(onDisk(), State::HandingOver);
        EXPECT_FALSE(job.remark.empty());
    }
}

// A crash before the queue's number is on the disk: nothing was sent yet. Behind it, the
// queue that took the job is asked.
TEST_F(HandOverTest, AfterACrashTheQueueIsAsked) {
    hold::Job job = keep("nota");
    const auto settled = [&] {
        hold::Job found = folder_->jobs().at(0);
        hold::HandOver(*folder_, spooler_, "OUTRA").settle(found);
        EXPECT_EQ(found.state, onDisk());
        return found.state;
    };
    ASSERT_TRUE(folder_->move(job, State::HandingOver));
    folder_ = reopened();
    EXPECT_EQ(settled(), State::Held);
    EXPECT_TRUE(spooler_.opened.empty());

    for (const auto& [fate, expected] : {std::pair(JobFate::NeverArrived, State::Held),
                                         std::pair(JobFate::Unknown, State::HandingOver),
                                         std::pair(JobFate::Doubtful, State::HandingOver),
                                         std::pair(JobFate::Arrived, State::PassedOn)}) {
        job = folder_->jobs().at(0);
        ASSERT_TRUE(folder_->move(job, State::HandingOver));
        ASSERT_TRUE(folder_->tellQueueJob(job, "LX300", 41));
        folder_ = reopened();
        spooler_.fate = [fate = fate](int number) {
            EXPECT_EQ(number, 41);
            return fate;
        };
        EXPECT_EQ(settled(), expected);
        EXPECT_EQ(spooler_.opened.back(), "LX300");
    }
}

TEST_F(HandOverTest, AQueueWithoutNumbersCannotBeAsked) {
    spooler_.numbersJobs = false;
    spooler_.refuses = [](Call asked, std::size_t) { return asked == Call::EndDocument; };
    const hold::Job job = passed(keep("nota"));
    EXPECT_EQ(job.state, State::HandingOver);
    EXPECT_NE(job.remark.find("confira o papel"), std::string::npos);
}

TEST_F(HandOverTest, ASilentServiceIsCalledSo) {
    spooler_.silent = true;
    spooler_.refuses = [](Call asked, std::size_t) { return asked == Call::Open; };
    EXPECT_EQ(passed(keep("nota")).remark, spoolerIsSilent);
    spooler_.silent = false;
    EXPECT_EQ(passed(folder_->jobs().at(0)).remark, "não há fila \"LX300\" nesta máquina");
}

}  // namespace
}  // namespace tarn::test
