// The paper of jobs that come one after the other.
#include "forms/job_papers.h"

#include <gtest/gtest.h>

#include "tests/dotmatrix/note_streams.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

class Papers : public testing::Test {
protected:
    // The note's form once its set-up job has passed.
    std::string formBehindSetUp() {
        const JobPaper paper = papers_.known(note_.back());
        EXPECT_EQ(paper.told, paper.form == nullptr);
        return paper.form ? paper.form->name : "";
    }

    JobPapers papers_;
    const std::vector<std::string> note_ = streamsOf(formNamed("1361"), {}, 13);
    const JobKind told_{
        .document = JobDocument::Note, .form = "ImprimeNF_1361", .itemLines = 13, .cuts = {}};
};

TEST_F(Papers, ASetUpJobIsForTheJobBehindIt) {
    const JobPaper setUp = papers_.known(note_.front());
    EXPECT_EQ(setUp.form, nullptr);
    EXPECT_TRUE(setUp.told);
    EXPECT_EQ(formBehindSetUp(), "ImprimeNF_1361");
    EXPECT_EQ(formBehindSetUp(), "") << "only for the one";
}

TEST_F(Papers, AnyOtherJobBetweenThemParts) {
    papers_.known(note_.front());
    papers_.told(told_);
    EXPECT_EQ(formBehindSetUp(), "");
    papers_.known(note_.front());
    papers_.unknown();
    EXPECT_EQ(formBehindSetUp(), "");
}

TEST_F(Papers, WhatTheSenderTellsIsTheFormAndWhatItCut) {
    EXPECT_FALSE(papers_.told(told_).cuts);
    JobKind kind = told_;
    kind.cuts = {{10, 2, "RAZAO"}};
    const JobPaper paper = papers_.told(kind);
    ASSERT_NE(paper.form, nullptr);
    EXPECT_EQ(paper.form->name, "ImprimeNF_1361");
    EXPECT_TRUE(paper.told);
    ASSERT_TRUE(paper.cuts && paper.cuts->size() == 1);
    EXPECT_EQ(paper.cuts->front().line, 10);
    EXPECT_EQ(paper.cuts->front().column, 2);
    EXPECT_EQ(paper.cuts->front().what, "RAZAO");
}

}  // namespace
}  // namespace tarn::test
