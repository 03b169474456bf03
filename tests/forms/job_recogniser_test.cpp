// Jobs that don't say what they print: the form that alone fits is found, and no other.
#include "forms/job_recogniser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "cheques/imprime_cheque.h"
#include "labels/raw_form.h"
#include "tests/dotmatrix/note_streams.h"
#include "tests/forms/raw_documents.h"
#include "tests/labels/label_answers.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

class Recogniser : public testing::TestWithParam<FormFacts> {
protected:
    std::string nameOf(const std::string& setUp, const std::string& job) {
        const auto form = recogniser_.formOf(setUp, job);
        return form ? form->name : "";
    }
    // Of a document's jobs, the last of which prints.
    std::string nameOf(const std::vector<std::string>& jobs) {
        return nameOf(jobs.size() > 1 ? jobs[jobs.size() - 2] : std::string(), jobs.back());
    }

    FormShelf shelf_;
    JobRecogniser recogniser_{shelf_};
};

// What a form prints with the set-up and the places of another can't be told from it, and one
// whose pitch is set at the panel can't be known by bytes.
const std::set<std::string> uncertain{"1521"};

TEST_P(Recogniser, ANoteIsKnownByItsBytesOrNotAtAll) {
    for (const int lines : {plainItemLines, 13}) {
        NoteCase note;
        note.items = GetParam().name == "padrao" ? lines : 2;  // as long as its items
        const std::string found = nameOf(streamsOf(GetParam(), note, lines));
        EXPECT_EQ(found, uncertain.contains(GetParam().name) ? "" : layoutNameOf(GetParam()));
    }
}

INSTANTIATE_TEST_SUITE_P(Notes, Recogniser, testing::ValuesIn(allForms()),
                         [](const testing::TestParamInfo<FormFacts>& tested) {
                             return tested.param.name;
                         });

TEST_F(Recogniser, ASlipIsKnownByItsWalletAndNotByItsBank) {
    for (const char* file : {"slip_57_jose.prn", "slip_57_maria.prn"}) {
        EXPECT_EQ(nameOf(slipSetUp, slipFile(file)), "Boleto: carteira 57");
    }
    for (const char* file : {"slip_7_jose.prn", "slip_7_maria.prn"}) {
        EXPECT_EQ(nameOf(slipSetUp, slipFile(file)), "Boleto: outras carteiras");
    }
}

TEST_F(Recogniser, AChequeIsKnown) {
    for (const std::int16_t bank : {std::int16_t{33}, std::int16_t{341}}) {
        TestEnvironment seams;
        ImprimeCheque(seams.environment, {.nNr_Ofi_Ban = bank,
                                          .sValor = "9.999.999,99",
                                          .sFavorecido = "COMPANHIA DE PAPEIS DO VALE LTDA",
                                          .sDataDeposito = "15/02/2012",
                                          .sNmMun = "SAO JOSE DOS CAMPOS"});
        EXPECT_EQ(nameOf(jobsOf(seams)), chequeFormName(bank));
    }
}

TEST_F(Recogniser, LabelsAreKnownFromTheirSecondRowOn) {
    for (const int count : {3, 6, 40}) {
        TestEnvironment seams;
        XmlDocument answer = document(labelRows(count));
        labels::Labels queue(answer);
        labels::printDotMatrix(seams.environment, queue, {});
        EXPECT_EQ(nameOf(jobsOf(seams)), count > 4 ? "Etiquetas" : "") << count;
    }
}

TEST_F(Recogniser, WhatIsNoDocumentIsNotGuessed) {
    std::string report = "RELATORIO DE VENDAS\r\n\r\n";
    for (int line = 0; line < 60; ++line) {
        report += "produto " + std::to_string(line) + "  quantidade 12   valor 1.234,56\r\n";
    }
    for (const std::string setUp : {"", " \x0F", " \x0F\x1BM", " \x0F\x1B\x1BG", " \x1B#3"}) {
        EXPECT_EQ(nameOf(setUp, ""), "");
        EXPECT_EQ(nameOf(setUp, "x"), "");
        EXPECT_EQ(nameOf(setUp, report), "");
        EXPECT_EQ(nameOf(setUp, "\f\f\f"), "");
        EXPECT_EQ(nameOf(setUp, std::string(JobRecogniser::mostBytes + 1, ' ')), "");
    }
}

// A line more, a column to the right, another set-up: no longer the form's own document.
TEST_F(Recogniser, ANoteThatIsOffIsNotKnown) {
    const FormFacts facts = formNamed("1361");
    std::vector<std::string> jobs = streamsOf(facts, {}, 13);
    ASSERT_EQ(nameOf(jobs), "ImprimeNF_1361");
    EXPECT_EQ(nameOf("", jobs.back()), "") << "without the job that sets the printer up";
    EXPECT_EQ(nameOf(jobs.front() + "\x1BM", jobs.back()), "");
    EXPECT_EQ(nameOf(jobs.front(), jobs.back().substr(0, jobs.back().size() / 2)), "");
    std::string shifted;
    for (const char c : jobs.back()) {
        shifted += c;
        shifted += c == '\n' ? "          " : "";
    }
    EXPECT_EQ(nameOf(jobs.front(), shifted), "");
}

}  // namespace
}  // namespace tarn::test
