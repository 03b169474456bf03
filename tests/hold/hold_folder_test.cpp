// What a start of the program finds of the jobs of the one before.
#include "hold/hold_folder.h"

#include <fstream>

#include "tests/hold/held_jobs.h"
#include "tests/support/files.h"

namespace tarn::test {
namespace {

using hold::State;

class HoldFolderTest : public HeldJobs {};

TEST_F(HoldFolderTest, KeepsEveryByteAndWhatIsKnownOfAJob) {
    std::string bytes;
    for (int i = 0; i < 256; ++i) {
        bytes.push_back(static_cast<char>(i));
    }
    ASSERT_TRUE(folder_->begin());
    ASSERT_TRUE(folder_->add(bytes));
    ASSERT_TRUE(folder_->add("fim"));
    ASSERT_TRUE(folder_->keep(
        {.name = "rede, às 10:32",
         .source = "3 17 /tmp/job 1.prn",
         .remark = "linha um\nlinha dois",
         .arrived = 1'753'000'000'123,
         .kind = {.document = JobDocument::Note, .form = "ImprimeNF_1361", .itemLines = 12}}));
    folder_ = reopened();
    const std::vector<hold::Job> jobs = folder_->jobs();
    ASSERT_EQ(jobs.size(), 1U);
    EXPECT_EQ(jobs[0].number, 1);
    EXPECT_EQ(jobs[0].state, State::Held);
    EXPECT_EQ(jobs[0].name, "rede, às 10:32");
    EXPECT_EQ(jobs[0].source, "3 17 /tmp/job 1.prn");
    EXPECT_EQ(jobs[0].remark, "linha um linha dois");
    EXPECT_EQ(jobs[0].arrived, 1'753'000'000'123);
    EXPECT_EQ(jobs[0].size, 259U);
    EXPECT_EQ(jobs[0].kind.form, "ImprimeNF_1361");
    EXPECT_EQ(jobs[0].kind.itemLines, 12);
    EXPECT_EQ(jobs[0].queueJob, 0);
    EXPECT_EQ(contentOf(folder_->bytesOf(jobs[0])), bytes + "fim");
}

TEST_F(HoldFolderTest, NumbersGoOnAfterARestart) {
    EXPECT_EQ(keep("um").number, 1);
    hold::Job second = keep("dois");
    EXPECT_TRUE(folder_->move(second, State::PassedOn));
    folder_ = reopened();
    EXPECT_EQ(keep("três").number, 3);
    std::vector<int> numbers;
    for (const hold::Job& job : folder_->jobs()) {
        numbers.push_back(job.number);
    }
    EXPECT_EQ(numbers, std::vector<int>({1, 2, 3}));
}

// A crash leaves the files of a job that never came whole, or one that was on its way out.
TEST_F(HoldFolderTest, HalfAJobIsNoJob) {
    keep("um");
    ASSERT_TRUE(folder_->begin());
    ASSERT_TRUE(folder_->add("meio"));
    EXPECT_EQ(folder_->jobs().size(), 1U);
    std::filesystem::create_directory(place() / ".outgoing");
    folder_ = reopened();
    EXPECT_EQ(folder_->jobs().size(), 1U);
    EXPECT_FALSE(std::filesystem::exists(place() / ".incoming"));
    EXPECT_FALSE(std::filesystem::exists(place() / ".outgoing"));
    EXPECT_EQ(keep("dois").number, 2);
}

TEST_F(HoldFolderTest, ADroppedJobLeavesNothing) {
    ASSERT_TRUE(folder_->begin());
    ASSERT_TRUE(folder_->add("nada"));
    folder_->drop();
    EXPECT_TRUE(folder_->jobs().empty());
    EXPECT_EQ(keep("um").number, 1);
}

TEST_F(HoldFolderTest, StatesAndTheQueuesNumberStay) {
    hold::Job job = keep("um");
    ASSERT_TRUE(folder_->move(job, State::HandingOver));
    ASSERT_TRUE(folder_->tellQueueJob(job, "LX 300", 17));
    folder_ = reopened();
    job = folder_->jobs().at(0);
    EXPECT_EQ(job.state, State::HandingOver);
    EXPECT_EQ(job.queueJob, 17);
    EXPECT_EQ(job.queue, "LX 300");
    // Held again it has no number of an earlier try.
    ASSERT_TRUE(folder_->move(job, State::Held));
    EXPECT_EQ(folder_->jobs().at(0).queueJob, 0);
    ASSERT_TRUE(folder_->remove(job));
    EXPECT_TRUE(folder_->jobs().empty());
}

TEST_F(HoldFolderTest, TwoProgramsDontShareIt) {
    hold::HoldFolder other(place());
    const auto wrong = other.open();
    ASSERT_TRUE(wrong);
    EXPECT_NE(wrong->find("está com outra impressora virtual"), std::string::npos);
}

TEST_F(HoldFolderTest, AFolderThatCannotBeMadeIsTold) {
    std::ofstream(root_ / "arquivo") << "x";
    hold::HoldFolder folder(root_ / "arquivo" / "retidos");
    const auto wrong = folder.open();
    ASSERT_TRUE(wrong);
    EXPECT_NE(wrong->find("não foi possível fazer a pasta"), std::string::npos);
}

TEST_F(HoldFolderTest, OtherFilesAreNoJobs) {
    std::ofstream(place() / "nota.txt") << "x";
    std::filesystem::create_directory(place() / "12.outro");
    std::filesystem::create_directory(place() / "-3.held");
    EXPECT_TRUE(folder_->jobs().empty());
}

}  // namespace
}  // namespace tarn::test
