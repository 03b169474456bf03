#include "platform/directory/directory_spooler.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <fstream>

#include "platform/directory/new_file.h"
#include "runtime/file_names.h"
#include "tests/support/files.h"
#include "tests/support/own_directory.h"
#include "tests/support/raw_jobs.h"

namespace tarn::test {
namespace {

namespace fs = std::filesystem;

class DirectorySpoolerTest : public testing::Test {
protected:
    std::string bytesOf(const std::string& name) const {
        EXPECT_TRUE(fs::exists(directory_ / name)) << name;
        return contentOf(directory_ / name);
    }

    static bool print(DirectorySpooler& spooler, std::string_view bytes) {
        return beginJob(spooler, bytes) && endJob(spooler);
    }

    OwnDirectory own_;
    const fs::path& base_ = own_.path();
    fs::path directory_ = base_ / "saida" / "trabalhos";
};

TEST_F(DirectorySpoolerTest, EachJobIsAFileInTheOrderOfOpening) {
    DirectorySpooler spooler(directory_);
    EXPECT_EQ(spooler.defaultPrinter(), nameOf(directory_));
    std::string all;
    for (int i = 0; i < 256; ++i) {
        all.push_back(static_cast<char>(i));
    }
    EXPECT_TRUE(print(spooler, all));
    EXPECT_TRUE(print(spooler, "B\r\n"));
    EXPECT_EQ(bytesOf("job-001.prn"), all);
    EXPECT_EQ(bytesOf("job-002.prn"), "B\r\n");
}

TEST_F(DirectorySpoolerTest, TheFolderMayHaveAnyName) {
    const std::string name = "Saída à mão ☺";
    directory_ = base_ / pathOf(name);
    DirectorySpooler spooler(directory_);
    EXPECT_TRUE(spooler.defaultPrinter().ends_with(name));
    EXPECT_TRUE(print(spooler, "A"));
    EXPECT_EQ(bytesOf("job-001.prn"), "A");
    EXPECT_TRUE(JobFiles(directory_).canWrite());
}

TEST_F(DirectorySpoolerTest, AFileThatIsThereIsReplacedOrRefused) {
    const fs::path file = base_ / u8"à.prn";
    std::ofstream(file) << "somebody else's";
    errno = 0;
    EXPECT_EQ(newFile(file, IfThere::Refuse), nullptr);
    EXPECT_EQ(errno, EEXIST);
    EXPECT_EQ(fs::file_size(file), 15U);
    std::FILE* replaced = newFile(file, IfThere::Replace);
    ASSERT_NE(replaced, nullptr);
    std::fputs("a\n", replaced);
    std::fclose(replaced);
    EXPECT_EQ(fs::file_size(file), 2U) << "bytes, not lines of text";
    EXPECT_EQ(newFile(base_ / "none" / "a.prn", IfThere::Replace), nullptr);
}

// Two programs that print into one folder at the same time: neither writes into the other's.
TEST_F(DirectorySpoolerTest, TwoThatPrintAtOnceHaveFilesOfTheirOwn) {
    DirectorySpooler one(directory_);
    DirectorySpooler other(directory_);
    EXPECT_TRUE(beginJob(one, "1"));
    EXPECT_TRUE(beginJob(other, "2"));
    EXPECT_TRUE(endJob(one));
    EXPECT_TRUE(endJob(other));
    EXPECT_EQ(bytesOf("job-001.prn"), "1");
    EXPECT_EQ(bytesOf("job-002.prn"), "2");
}

TEST_F(DirectorySpoolerTest, OpeningAloneMakesNoFile) {
    DirectorySpooler spooler(directory_);
    EXPECT_TRUE(spooler.openPrinter("x"));
    EXPECT_TRUE(fs::is_empty(directory_));
    EXPECT_TRUE(spooler.startDocument({}));
    EXPECT_EQ(bytesOf("job-001.prn"), "");
}

TEST_F(DirectorySpoolerTest, NumberingGoesOnBehindTheHighestPresent) {
    fs::create_directories(directory_);
    for (const char* name : {"job-007.prn", "job-012.pdf", "job-.prn", "job-99", "job--50.prn",
                             "xjob-100.prn", "job-200x.prn"}) {
        std::ofstream(directory_ / name) << "old";
    }
    DirectorySpooler spooler(directory_);
    EXPECT_TRUE(print(spooler, "A"));
    EXPECT_EQ(bytesOf("job-013.prn"), "A");
    std::ofstream(directory_ / "job-999.prn") << "old";
    EXPECT_TRUE(print(spooler, "B"));
    EXPECT_EQ(bytesOf("job-1000.prn"), "B");
    EXPECT_TRUE(print(spooler, "C"));
    EXPECT_EQ(bytesOf("job-1001.prn"), "C");
    EXPECT_EQ(bytesOf("job-007.prn"), "old");
}

JobKind noteKind() {
    return {.document = JobDocument::Note, .form = "ImprimeNF_1361", .itemLines = 13};
}

TEST_F(DirectorySpoolerTest, WhatAJobPrintsIsToldBesideIt) {
    DirectorySpooler spooler(directory_);
    ASSERT_TRUE(spooler.openPrinter("x"));
    ASSERT_TRUE(spooler.startDocument(
        {.docName = {}, .outputFile = {}, .dataType = {}, .kind = noteKind()}));
    EXPECT_EQ(bytesOf("job-001.kind"), "documento nota\nformulario ImprimeNF_1361\nitens 13\n");
    EXPECT_EQ(bytesOf("job-001.prn"), "");
    EXPECT_EQ(jobKindBeside(directory_ / "job-001.prn"), noteKind());
    EXPECT_TRUE(print(spooler, "B"));
    EXPECT_FALSE(fs::exists(directory_ / "job-002.kind"));
    EXPECT_FALSE(jobKindBeside(directory_ / "job-002.prn").told());
}

// A number of which a kind is there is some other program's, also before its job is.
TEST_F(DirectorySpoolerTest, AKindKeepsItsNumberForItsJob) {
    fs::create_directories(directory_);
    std::ofstream(directory_ / "job-004.kind", std::ios::binary) << "documento cheque\n";
    JobFiles files(directory_);
    const JobCompanion companion{.extension = "kind", .text = writeJobKind(noteKind())};
    EXPECT_EQ(files.create("prn", companion), directory_ / "job-005.prn");
    std::ofstream(directory_ / "job-006.kind", std::ios::binary) << "documento cheque\n";
    EXPECT_EQ(files.create("prn", companion), directory_ / "job-007.prn");
    std::ofstream(directory_ / "job-008.prn") << "another's";
    EXPECT_EQ(files.create("prn", companion), directory_ / "job-009.prn");
    EXPECT_FALSE(fs::exists(directory_ / "job-008.kind"));
    EXPECT_EQ(bytesOf("job-004.kind"), "documento cheque\n");
    EXPECT_EQ(bytesOf("job-006.kind"), "documento cheque\n");
}

TEST_F(DirectorySpoolerTest, WhoTellsNoKindsLeavesNoneOfAnEarlierJob) {
    fs::create_directories(directory_);
    std::ofstream(directory_ / "job-001.kind") << "documento cheque\n";
    DirectorySpooler spooler(std::make_shared<JobFiles>(directory_, JobNumbering::FromOne),
                             TellsKinds::No);
    ASSERT_TRUE(spooler.openPrinter("x"));
    ASSERT_TRUE(spooler.startDocument(
        {.docName = {}, .outputFile = {}, .dataType = {}, .kind = noteKind()}));
    EXPECT_FALSE(fs::exists(directory_ / "job-001.kind"));
}

TEST(JobKindText, ReadsWhatItWrites) {
    for (const JobDocument document :
         {JobDocument::Note, JobDocument::OrderSheet, JobDocument::Slip, JobDocument::Cheque,
          JobDocument::Labels}) {
        const JobKind kind{.document = document, .form = "Um formulario", .itemLines = {}};
        EXPECT_EQ(readJobKind(writeJobKind(kind)), kind);
    }
    EXPECT_EQ(writeJobKind({}), "");
}

TEST(JobKindText, WhatIsCutIsToldInALineEach) {
    JobKind kind{.document = JobDocument::Note, .form = "F", .itemLines = 3};
    kind.cuts.emplace();
    EXPECT_EQ(writeJobKind(kind), "documento nota\nformulario F\nitens 3\ncortes 0\n");
    EXPECT_EQ(readJobKind(writeJobKind(kind)), kind);
    kind.cuts = {{12, 4, "CIDADE: perde \"É\""}, {0, 0, "parcelas"}};
    EXPECT_EQ(writeJobKind(kind),
              "documento nota\nformulario F\nitens 3\ncortes 2\n"
              "corta 12 4 CIDADE: perde \"É\"\ncorta 0 0 parcelas\n");
    EXPECT_EQ(readJobKind(writeJobKind(kind)), kind);
}

TEST(JobKindText, LongCutsAreShortenedAndManyLeftOut) {
    JobKind kind{.document = JobDocument::Note, .form = {}, .itemLines = {}};
    kind.cuts.emplace(101, JobCut{1, 2, std::string(400, 'x') + "\n"});
    const JobKind read = readJobKind(writeJobKind(kind));
    ASSERT_EQ(read.cuts->size(), 100U);
    EXPECT_EQ(read.cuts->back(), (JobCut{1, 2, std::string(300, 'x')}));
    kind.cuts = {{1, 2, "a\nb"}};
    EXPECT_EQ(readJobKind(writeJobKind(kind)).cuts->front().what, "a b");
}

TEST(JobKindText, ACutThatIsNoneIsLeftOut) {
    const JobKind read = readJobKind(
        "documento nota\ncorta 1 1 antes\ncortes 3\ncorta 1\ncorta x y z\n"
        "corta -1 2 z\ncorta 1 2\ncorta 1x2 z\ncorta 1 2x z\ncorta 3 4 z\n");
    ASSERT_TRUE(read.cuts);
    EXPECT_EQ(*read.cuts, (std::vector<JobCut>{{3, 4, "z"}}));
}

TEST(JobKindText, WhatIsNotKnownTellsNothing) {
    EXPECT_EQ(readJobKind("documento nota\r\nitens 5\r\n"),
              (JobKind{.document = JobDocument::Note, .form = {}, .itemLines = 5}));
    EXPECT_EQ(readJobKind("documento nota\nitens -1\ncor azul\n").itemLines, std::nullopt);
    EXPECT_EQ(readJobKind("documento nota\nitens 9x").itemLines, std::nullopt);
    EXPECT_EQ(readJobKind("formulario ImprimeNF_7\n"), JobKind{});
    EXPECT_EQ(readJobKind("documento romance\nformulario x\n"), JobKind{});
    EXPECT_EQ(readJobKind(""), JobKind{});
    EXPECT_EQ(readJobKind("\n\n \n"), JobKind{});
}

TEST_F(DirectorySpoolerTest, NumbersBeyondReasonAreNotContinued) {
    fs::create_directories(directory_);
    std::ofstream(directory_ / "job-2147483647.prn") << "old";
    std::ofstream(directory_ / "job-1000000000.prn") << "old";
    {
        DirectorySpooler spooler(directory_);
        EXPECT_TRUE(print(spooler, "A"));
        EXPECT_EQ(bytesOf("job-001.prn"), "A");
    }
    std::ofstream(directory_ / "job-999999999.prn") << "old";
    DirectorySpooler spooler(directory_);
    EXPECT_TRUE(spooler.openPrinter("x"));
    EXPECT_FALSE(spooler.startDocument({}));
    EXPECT_EQ(bytesOf("job-2147483647.prn"), "old");
    EXPECT_EQ(std::distance(fs::directory_iterator(directory_), {}), 4);
}

TEST_F(DirectorySpoolerTest, NumberingFromOneTakesThePlaceOfOldFiles) {
    fs::create_directories(directory_);
    std::ofstream(directory_ / "job-001.prn") << "a long old text";
    std::ofstream(directory_ / "job-009.prn") << "old";
    DirectorySpooler spooler(directory_, JobNumbering::FromOne);
    EXPECT_TRUE(print(spooler, "A"));
    EXPECT_TRUE(print(spooler, "B"));
    EXPECT_EQ(bytesOf("job-001.prn"), "A");
    EXPECT_EQ(bytesOf("job-002.prn"), "B");
    EXPECT_EQ(bytesOf("job-009.prn"), "old");
}

TEST_F(DirectorySpoolerTest, OneNumberingForRawAndDrawnJobs) {
    const auto files = std::make_shared<JobFiles>(directory_, JobNumbering::FromOne);
    DirectorySpooler spooler(files);
    EXPECT_TRUE(print(spooler, "A"));
    EXPECT_EQ(files->create("pdf"), directory_ / "job-002.pdf");
    EXPECT_TRUE(print(spooler, "B"));
    EXPECT_EQ(bytesOf("job-003.prn"), "B");
}

TEST_F(DirectorySpoolerTest, BytesAreThereAfterEachWrite) {
    DirectorySpooler spooler(directory_);
    EXPECT_TRUE(beginJob(spooler, "A"));
    EXPECT_EQ(bytesOf("job-001.prn"), "A");
    EXPECT_EQ(spooler.write(""), 0U);
    EXPECT_EQ(spooler.write("B"), 1U);
    EXPECT_EQ(bytesOf("job-001.prn"), "AB");
}

TEST_F(DirectorySpoolerTest, AJobNeverClosedStaysAndIsNotContinued) {
    {
        DirectorySpooler spooler(directory_);
        EXPECT_TRUE(beginJob(spooler, "A"));
        EXPECT_TRUE(beginJob(spooler, "B"));
        EXPECT_TRUE(print(spooler, "C"));
        EXPECT_TRUE(beginJob(spooler, "D"));
    }
    EXPECT_EQ(bytesOf("job-001.prn"), "A");
    EXPECT_EQ(bytesOf("job-002.prn"), "B");
    EXPECT_EQ(bytesOf("job-003.prn"), "C");
    EXPECT_EQ(bytesOf("job-004.prn"), "D");
}

TEST_F(DirectorySpoolerTest, CallsOutOfOrderFail) {
    DirectorySpooler spooler(directory_);
    expectRefusals(spooler);
    EXPECT_TRUE(beginJob(spooler, "A"));
    EXPECT_FALSE(spooler.startDocument({}));
    EXPECT_TRUE(spooler.endDocument());
    EXPECT_EQ(spooler.write("B"), 0U);
    EXPECT_TRUE(spooler.closePrinter());
    EXPECT_EQ(bytesOf("job-001.prn"), "A");
}

TEST_F(DirectorySpoolerTest, ADirectoryThatCannotBeMadeIsAFailure) {
    std::ofstream(base_ / "file") << "x";
    DirectorySpooler spooler(base_ / "file" / "sub");
    EXPECT_FALSE(spooler.openPrinter("x"));
    EXPECT_FALSE(spooler.startDocument({}));
    EXPECT_EQ(spooler.write("A"), 0U);
}

TEST_F(DirectorySpoolerTest, ADirectoryThatWentAwayIsAFailureOrMadeAgain) {
    DirectorySpooler spooler(directory_);
    EXPECT_TRUE(spooler.openPrinter("x"));
    fs::remove_all(directory_);
    std::ofstream(directory_) << "a file in its place";
    EXPECT_FALSE(spooler.startDocument({}));
    fs::remove(directory_);
    EXPECT_TRUE(spooler.startDocument({}));
    EXPECT_EQ(bytesOf("job-001.prn"), "");
}

TEST_F(DirectorySpoolerTest, AFullDiskIsAFailure) {
    if (!fs::exists("/dev/full")) {
        GTEST_SKIP() << "no /dev/full here";
    }
    fs::create_directories(directory_);
    fs::create_symlink("/dev/full", directory_ / "job-001.prn");
    DirectorySpooler spooler(directory_, JobNumbering::FromOne);
    EXPECT_TRUE(spooler.openPrinter("x"));
    EXPECT_TRUE(spooler.startDocument({}));
    EXPECT_EQ(spooler.write("ABC"), 0U);
}

TEST_F(DirectorySpoolerTest, SaysBeforeTheFirstJobWhetherTheFolderCanBeWritten) {
    EXPECT_TRUE(JobFiles(directory_).canWrite());
    EXPECT_TRUE(fs::is_directory(directory_));
    EXPECT_TRUE(fs::is_empty(directory_)) << "left something behind";
    std::ofstream(base_ / "arquivo").put('x');
    EXPECT_FALSE(JobFiles(base_ / "arquivo").canWrite());
    EXPECT_FALSE(JobFiles(base_ / "arquivo" / "saida").canWrite());
#ifdef __linux__
    EXPECT_FALSE(JobFiles("/proc").canWrite()) << "not even the super-user may write there";
#endif
}

}  // namespace
}  // namespace tarn::test
