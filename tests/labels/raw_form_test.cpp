// The form that goes out as raw text, byte by byte.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "labels/print_labels.h"
#include "tests/labels/label_answers.h"
#include "tests/support/test_environment.h"
#include "tests/support/texts.h"

namespace tarn::test {

using namespace labels;
namespace {

using testing::ElementsAre;

// The text in a field of that many characters; the tests' texts are ASCII.
std::string field(std::string text, std::size_t width) {
    text.resize(width, ' ');
    return text;
}

// What stands ahead of each column's text, the blank of the margin included.
const std::vector<std::string> gaps{" ", std::string(8, ' '), std::string(13, ' '),
                                    std::string(13, ' ')};

std::string textOf(int number, int line) {
    const std::string n = std::to_string(number);
    switch (line) {
        case 1:
            return field("NOME " + n, 55);
        case 2:
            return field("RUA " + n + ", 5", 55);
        case 3:
            return field("CJ " + n, 27) + "  " + field("BAIRRO " + n, 26);
        case 4:
            return field("CIDADE " + n, 27) + "  " + field("U" + n, 26);
        default:
            return field("CEP " + n, 27) + "  " + field("COD " + n, 26);
    }
}

// The writes of the group from one label to another.
void addGroup(std::vector<std::string>& writes, int first, int last) {
    for (int line = 1; line <= 5; ++line) {
        for (int number = first; number <= last; ++number) {
            writes.push_back(gaps[static_cast<std::size_t>(number - first)] + textOf(number, line));
        }
        writes.emplace_back(line < 5 ? " \r\n" : " \r\n\r\n");
    }
}

class RawForm : public testing::Test {
protected:
    void print(const std::string& rows) {
        printLabels(env.environment, LabelForm::DotMatrix, run(rows, sender), {});
    }
    void expectsJobs() {
        ASSERT_EQ(env.spooler.jobs.size(), 2U);
        EXPECT_EQ(env.spooler.jobs[0].writes, (Texts{" \x0F\x1BM"}));
        for (const RecordingSpooler::Job& job : env.spooler.jobs) {
            EXPECT_EQ(job.description.docName, std::nullopt);
            EXPECT_EQ(job.description.kind.document, JobDocument::Labels);
            EXPECT_EQ(job.description.kind.form, "Etiquetas");
            EXPECT_TRUE(job.pageEnded && job.ended && job.closed);
        }
        EXPECT_EQ(env.spooler.opened, (Texts{env.spooler.printer, env.spooler.printer}));
    }

    TestEnvironment env;
};

TEST_F(RawForm, OneLabel) {
    print(labelRows(1));
    expectsJobs();
    EXPECT_EQ(env.spooler.bytes(1),
              " NOME 1                                                  \r\n"
              " RUA 1, 5                                                \r\n"
              " CJ 1                         BAIRRO 1                   \r\n"
              " CIDADE 1                     U1                         \r\n"
              " CEP 1                        COD 1                      \r\n\r\n");
    EXPECT_TRUE(env.boxes.shown.empty());
    EXPECT_TRUE(env.printer.operations.empty());
}

TEST_F(RawForm, FourLabelsStandSideBySide) {
    print(labelRows(4));
    expectsJobs();
    std::vector<std::string> writes;
    addGroup(writes, 1, 4);
    EXPECT_EQ(env.spooler.jobs[1].writes, writes);
    EXPECT_EQ(env.spooler.bytes(1).find("\r\n"), 4U * 55 + 1 + 8 + 13 + 13 + 1);
}

TEST_F(RawForm, TheFifthLabelBeginsTheNextGroup) {
    print(labelRows(5));
    expectsJobs();
    std::vector<std::string> writes;
    addGroup(writes, 1, 4);
    addGroup(writes, 5, 5);
    EXPECT_EQ(env.spooler.jobs[1].writes, writes);
}

TEST_F(RawForm, NoLabelsLeaveAnEmptyJobAndSayNothing) {
    print(labelRows(0));
    expectsJobs();
    EXPECT_TRUE(env.spooler.jobs[1].writes.empty());
    EXPECT_TRUE(env.boxes.shown.empty());
    EXPECT_TRUE(env.printer.operations.empty());
}

TEST_F(RawForm, TheColumnsWidthCuts) {
    const std::string w30(30, 'w');
    const std::string w60(60, 'w');
    print(answers::rowset("<z:row NOME='" + w60 + "' ENDERECO='" + w60 + "' COMPLEMENTO='" + w30 +
                          "' BAIRRO='" + w30 + "' MUNICIPIO='" + w30 + "' UF='" + w30 + "' CEP='" +
                          w30 + "' CODIGO='" + w30 + "'/>"));
    const std::string whole = " " + std::string(55, 'w');
    const std::string halves = " " + std::string(27, 'w') + "  " + std::string(26, 'w');
    EXPECT_EQ(env.spooler.jobs[1].writes, (Texts{whole, " \r\n", whole, " \r\n", halves, " \r\n",
                                                 halves, " \r\n", halves, " \r\n\r\n"}));
}

TEST_F(RawForm, ACharacterIsAByteAndAControlABlank) {
    print(answers::rowset("<z:row NOME='JOÃO&#10;É' BAIRRO='&#x2014;'/>"));
    EXPECT_EQ(env.spooler.jobs[1].writes[0], " JO\xC3O \xC9" + std::string(49, ' '));
    EXPECT_EQ(env.spooler.jobs[1].writes[4],
              " " + std::string(29, ' ') + "-" + std::string(25, ' '));
}

TEST_F(RawForm, APrinterThatCantBeOpenedGoesUnnoticed) {
    env.spooler.failOpen = 0;
    print(labelRows(1));
    EXPECT_EQ(env.spooler.jobs.size(), 1U) << "only the labels' own job";
    EXPECT_TRUE(env.boxes.shown.empty());
}

TEST_F(RawForm, ProgressIsToldGroupByGroup) {
    std::vector<std::size_t> told;
    printLabels(env.environment, LabelForm::DotMatrix, run(labelRows(6), sender),
                [&told](std::size_t done, std::size_t total) {
                    told.push_back(done);
                    EXPECT_EQ(total, 6U);
                });
    EXPECT_THAT(told, ElementsAre(4, 6));
}

}  // namespace
}  // namespace tarn::test
