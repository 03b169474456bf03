// The drawn forms as lists of what is asked of the page printer.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "labels/print_labels.h"
#include "runtime/runtime_error.h"
#include "tests/labels/label_answers.h"
#include "tests/support/boxes.h"
#include "tests/support/test_environment.h"
#include "tests/support/texts.h"

namespace tarn::test {

using namespace labels;
namespace {

using testing::ElementsAre;

const Box printed = information(" Etiquetas impressas com sucesso!   ");
const Box noLabels = information(" Não há Etiquetas nesse intervalo!   ");

class DrawnForms : public testing::Test {
protected:
    std::vector<std::string> print(LabelForm form, const std::string& rows,
                                   const std::string& from = sender) {
        env.boxes.onShow = [this](const Box&) { beforeBox = env.printer.operations.size(); };
        printLabels(env.environment, form, run(rows, from), {});
        return env.printer.lines();
    }
    // What is drawn of one label, on a page of its own set up and ended as the form does.
    std::vector<std::string> page(LabelForm form, const std::string& row) {
        return print(form, answers::rowset(row));
    }

    TestEnvironment env;
    std::size_t beforeBox = 0;  // operations that came before the last box
};

// PIMACO 6280. Origins of its columns and rows, thousandths of a centimetre, half a
// centimetre off already.
constexpr std::array<int, 3> columns{500, 7500, 14500};
constexpr std::array<int, 10> rows{1200,  3700,  6300,  8900,  11500,
                                   14000, 16600, 19200, 21700, 24300};

void addLabel(std::vector<std::string>& all, int number) {
    const int place = (number - 1) % 30;
    const int x = columns[static_cast<std::size_t>(place % 3)];
    const int y = rows[static_cast<std::size_t>(place / 3)];
    const std::string n = std::to_string(number);
    for (const auto& [dx, dy, text] :
         {std::tuple{0, 0, "NOME " + n}, std::tuple{0, 300, "RUA " + n + ", 5"},
          std::tuple{0, 600, "CJ " + n}, std::tuple{3400, 600, "BAIRRO " + n},
          std::tuple{0, 900, "CIDADE " + n}, std::tuple{3400, 900, "U" + n},
          std::tuple{0, 1200, "CEP " + n}, std::tuple{0, 1500, "COD " + n}}) {
        all.push_back(drawn(x + dx, y + dy, 6, text));
    }
}

class Pimaco : public DrawnForms, public testing::WithParamInterface<int> {};

TEST_P(Pimaco, EveryLabelInItsPlace) {
    const int count = GetParam();
    std::vector<std::string> expected{"scale\t7", "orientation\t1"};
    for (int number = 1; number <= count; ++number) {
        addLabel(expected, number);
        if (number % 30 == 0) {
            expected.insert(expected.end(), {"newpage", "enddoc"});
        }
    }
    const std::size_t drawnBeforeBox = expected.size();
    expected.insert(expected.end(), {"newpage", "enddoc"});
    EXPECT_EQ(print(LabelForm::Pimaco6280, labelRows(count)), expected);
    EXPECT_EQ(env.boxes.shown, (Boxes{printed}));
    EXPECT_EQ(beforeBox, drawnBeforeBox) << "the last sheet waits for OK";
}
INSTANTIATE_TEST_SUITE_P(Labels, Pimaco, testing::Values(1, 2, 3, 4, 29, 30, 31, 60, 61));

TEST_F(DrawnForms, TheFirstLabelOfASheetInFull) {
    EXPECT_EQ(
        print(LabelForm::Pimaco6280, labelRows(1)),
        (Texts{"scale\t7", "orientation\t1", "text\t0.500\t1.200\tArial\t6\t1\tNOME 1",
               "text\t0.500\t1.500\tArial\t6\t1\tRUA 1, 5", "text\t0.500\t1.800\tArial\t6\t1\tCJ 1",
               "text\t3.900\t1.800\tArial\t6\t1\tBAIRRO 1",
               "text\t0.500\t2.100\tArial\t6\t1\tCIDADE 1", "text\t3.900\t2.100\tArial\t6\t1\tU1",
               "text\t0.500\t2.400\tArial\t6\t1\tCEP 1", "text\t0.500\t2.700\tArial\t6\t1\tCOD 1",
               "newpage", "enddoc"}));
}

// The calls on the raw channel that end every drawn run: no job is open for them.
TEST_F(DrawnForms, TheRawChannelIsClosedAllTheSame) {
    print(LabelForm::Pimaco6280, labelRows(1));
    using Call = RecordingSpooler::Call;
    EXPECT_EQ(env.spooler.calls, (std::vector{Call::EndPage, Call::EndDocument, Call::Close}));
    EXPECT_TRUE(env.spooler.jobs.empty());
}

TEST_F(DrawnForms, ARangeWithoutLabels) {
    for (const LabelForm form : {LabelForm::Pimaco6280, LabelForm::A5, LabelForm::A4WithSender}) {
        for (const std::string& none : {labelRows(0), std::string("<xml/>")}) {
            TestEnvironment fresh;
            printLabels(fresh.environment, form, run(none, sender), {});
            EXPECT_EQ(fresh.printer.lines(), (Texts{"scale\t7", "orientation\t1"}));
            EXPECT_EQ(fresh.boxes.shown, (Boxes{noLabels}));
            EXPECT_TRUE(fresh.spooler.calls.empty());
        }
    }
}

TEST_F(DrawnForms, ThreeFieldsAreCutTo24Characters) {
    const std::string long24 = "ÀBCDEFGHIJKLMNOPQRSTUVWÇ";
    const std::string row = "<z:row NOME='" + long24 + "X' ENDERECO='" + long24 +
                            "X' COMPLEMENTO='" + long24 + "X' BAIRRO='" + long24 +
                            "Y' MUNICIPIO='" + long24 + "Z' UF='" + long24 + "X' CEP='" + long24 +
                            "X' CODIGO='" + long24 + "X'/>";
    EXPECT_EQ(page(LabelForm::Pimaco6280, row),
              (Texts{"scale\t7", "orientation\t1", drawn(500, 1200, 6, long24 + "X"),
                     drawn(500, 1500, 6, long24 + "X"), drawn(500, 1800, 6, long24),
                     drawn(3900, 1800, 6, long24), drawn(500, 2100, 6, long24),
                     drawn(3900, 2100, 6, long24 + "X"), drawn(500, 2400, 6, long24 + "X"),
                     drawn(500, 2700, 6, long24 + "X"), "newpage", "enddoc"}));
}

TEST_F(DrawnForms, AbsentFieldsAreDrawnEmptyAndControlsAsBlanks) {
    const std::vector<std::string> lines =
        page(LabelForm::Pimaco6280, "<z:row NOME='A&#10;B&#9;C'/>");
    ASSERT_EQ(lines.size(), 12U);
    EXPECT_EQ(lines[2], drawn(500, 1200, 6, "A B C"));
    EXPECT_EQ(lines[3], drawn(500, 1500, 6, ""));
    EXPECT_EQ(lines[9], drawn(500, 2700, 6, ""));
}

TEST_F(DrawnForms, TheA5Page) {
    EXPECT_EQ(print(LabelForm::A5, labelRows(1)),
              (Texts{"scale\t7", "orientation\t1", drawn(500, 1200, 15, "NOME 1"),
                     drawn(500, 1800, 15, "RUA 1, 5"), drawn(500, 2400, 15, "BAIRRO 1"),
                     drawn(10000, 2400, 15, "CJ 1"), drawn(500, 3000, 15, "CIDADE 1"),
                     drawn(10000, 3000, 15, "U1"), drawn(500, 3600, 15, "CEP 1"),
                     drawn(500, 4200, 15, "COD 1"), "newpage", "enddoc"}));
    EXPECT_EQ(env.boxes.shown, (Boxes{printed}));
    EXPECT_EQ(beforeBox, 10U);
}

TEST_F(DrawnForms, TheSecondLabelOnA5FallsOnTheFirst) {
    const std::vector<std::string> lines = print(LabelForm::A5, labelRows(2));
    ASSERT_EQ(lines.size(), 20U);
    EXPECT_EQ(lines[2], drawn(500, 1200, 15, "NOME 1"));
    EXPECT_EQ(lines[10], drawn(500, 1200, 15, "NOME 2"));
    EXPECT_EQ(lines[17], drawn(500, 4200, 15, "COD 2"));
    EXPECT_EQ(lines[18], "newpage");
    EXPECT_EQ(lines[19], "enddoc");
}

TEST_F(DrawnForms, AnA5NameOfMoreThanTenCharactersIsDrawnTwice) {
    EXPECT_EQ(page(LabelForm::A5, "<z:row NOME='ÀBCDEFGHIÇ'/>").size(), 12U);
    env.printer.operations.clear();
    const std::vector<std::string> lines =
        page(LabelForm::A5,
             "<z:row NOME='ÀBCDEFGHIÇK' BAIRRO='1234567890123456789012345' "
             "COMPLEMENTO='1234567890123456789012345' "
             "MUNICIPIO='1234567890123456789012345'/>");
    ASSERT_EQ(lines.size(), 13U);
    EXPECT_EQ(lines[2], drawn(500, 1200, 15, "ÀBCDEFGHIÇK"));
    EXPECT_EQ(lines[3], lines[2]);
    const std::string cut = "123456789012345678901234";
    EXPECT_EQ(lines[5], drawn(500, 2400, 15, cut));
    EXPECT_EQ(lines[6], drawn(10000, 2400, 15, cut));
    EXPECT_EQ(lines[7], drawn(500, 3000, 15, cut));
}

const std::string rule = "=====================";

std::vector<std::string> senderBlock() {
    return {drawn(500, 15500, 13, "REMETENTE"),  drawn(500, 16000, 10, rule),
            drawn(500, 16500, 20, "FILIAL SUL"), drawn(500, 17300, 20, "AV. BRASIL"),
            drawn(500, 18100, 20, "Nº "),        drawn(1500, 18100, 20, "2000"),
            drawn(12500, 18100, 20, "LOJA 1"),   drawn(500, 18900, 20, "CENTRO"),
            drawn(500, 19700, 20, "CURITIBA"),   drawn(12500, 19700, 20, "PR"),
            drawn(500, 20500, 20, "CEP: "),      drawn(2500, 20500, 20, "80000-000")};
}

std::vector<std::string> addresseeBlock(const std::string& n) {
    return {drawn(500, 500, 13, "DESTINATÁRIO"), drawn(500, 1000, 10, rule),
            drawn(500, 1500, 20, "NOME " + n),   drawn(500, 2300, 20, "RUA " + n),
            drawn(500, 3100, 20, "Nº "),         drawn(1500, 3100, 20, n),
            drawn(11500, 3100, 20, "CJ " + n),   drawn(500, 3900, 20, "BAIRRO " + n),
            drawn(500, 4700, 20, "CIDADE " + n), drawn(11500, 4700, 20, "U" + n),
            drawn(500, 5500, 20, "CEP: "),       drawn(2500, 5500, 20, "CEP " + n),
            drawn(500, 6300, 20, "COD " + n)};
}

TEST_F(DrawnForms, AnA4PageForEachLabelWithTheSender) {
    std::vector<std::string> expected{"scale\t7", "orientation\t1"};
    for (const char* n : {"1", "2"}) {
        for (const auto& block : {addresseeBlock(n), senderBlock()}) {
            expected.insert(expected.end(), block.begin(), block.end());
        }
        expected.emplace_back("newpage");
    }
    const std::size_t drawnBeforeBox = expected.size();
    expected.emplace_back("enddoc");
    EXPECT_EQ(print(LabelForm::A4WithSender, labelRows(2)), expected);
    EXPECT_EQ(env.boxes.shown, (Boxes{printed}));
    EXPECT_EQ(beforeBox, drawnBeforeBox);
}

// 45 characters, an accent at either end.
const std::string fullLine = "ÀBCDEFGHIJKLMNOPQRSTUVWXYZ0123456789abcdefghÇ";

TEST_F(DrawnForms, ANameOf45CharactersTakesOneLineOf46Two) {
    std::vector<std::string> lines =
        page(LabelForm::A4WithSender,
             "<z:row NOME='" + fullLine + "' SOMENTE_ENDERECO='R' CODIGO='C'/>");
    ASSERT_EQ(lines.size(), 2U + 13U + 12U + 2U);
    EXPECT_EQ(lines[4], drawn(500, 1500, 20, fullLine));
    EXPECT_EQ(lines[5], drawn(500, 2300, 20, "R"));
    EXPECT_EQ(lines[14], drawn(500, 6300, 20, "C"));

    env.printer.operations.clear();
    lines = page(LabelForm::A4WithSender,
                 "<z:row NOME='" + fullLine + "È' SOMENTE_ENDERECO='R' CODIGO='C'/>");
    ASSERT_EQ(lines.size(), 2U + 14U + 12U + 2U);
    EXPECT_EQ(lines[4], drawn(500, 1500, 20, fullLine));
    EXPECT_EQ(lines[5], drawn(500, 2300, 20, "È"));
    EXPECT_EQ(lines[6], drawn(500, 3100, 20, "R"));
    EXPECT_EQ(lines[15], drawn(500, 7100, 20, "C"));
    const std::vector<std::string> below(lines.begin() + 16, lines.begin() + 28);
    EXPECT_EQ(below, senderBlock()) << "the sender stays where it is";
}

TEST_F(DrawnForms, WhatIsLeftOfALongLineIsNotCutAgain) {
    const std::string rest(60, 'x');
    const std::vector<std::string> lines =
        page(LabelForm::A4WithSender, "<z:row SOMENTE_ENDERECO='" + fullLine + rest +
                                          "' ENDERECO='not this one' BAIRRO='B'/>");
    EXPECT_EQ(lines[4], drawn(500, 1500, 20, "")) << "no name";
    EXPECT_EQ(lines[5], drawn(500, 2300, 20, fullLine));
    EXPECT_EQ(lines[6], drawn(500, 3100, 20, rest));
    EXPECT_EQ(lines[7], drawn(500, 3900, 20, "Nº "));
    EXPECT_EQ(lines[10], drawn(500, 4700, 20, "B"));
}

TEST_F(DrawnForms, TheSendersLongLinesAreBrokenAndItsFieldsNotCut) {
    const std::string long30(30, 'b');
    const std::string from = answers::rowset(
        "<z:row NOME='" + fullLine + "+' ENDERECO='" + fullLine + "-' BAIRRO='" + long30 +
        "' MUNICIPIO='" + long30 + "' UF='PR' CEP='8' DESCRICAO=' " + long30 + " ' NUMERO='12A'/>");
    const std::vector<std::string> lines = print(LabelForm::A4WithSender, labelRows(1), from);
    const std::vector<std::string> block(lines.begin() + 15, lines.end() - 2);
    EXPECT_EQ(block,
              (Texts{drawn(500, 15500, 13, "REMETENTE"), drawn(500, 16000, 10, rule),
                     drawn(500, 16500, 20, fullLine), drawn(500, 17300, 20, "+"),
                     drawn(500, 18100, 20, fullLine), drawn(500, 18900, 20, "-"),
                     drawn(500, 19700, 20, "Nº "), drawn(1500, 19700, 20, "12A"),
                     drawn(12500, 19700, 20, " " + long30 + " "), drawn(500, 20500, 20, long30),
                     drawn(500, 21300, 20, long30), drawn(12500, 21300, 20, "PR"),
                     drawn(500, 22100, 20, "CEP: "), drawn(2500, 22100, 20, "8")}));
}

TEST_F(DrawnForms, TheAddresseesShortFieldsAreCutOnA4) {
    const std::string long24(24, 'a');
    const std::vector<std::string> lines =
        page(LabelForm::A4WithSender, "<z:row COMPLEMENTO='" + long24 + "x' BAIRRO='" + long24 +
                                          "y' MUNICIPIO='" + long24 + "z'/>");
    EXPECT_EQ(lines[8], drawn(11500, 3100, 20, long24));
    EXPECT_EQ(lines[9], drawn(500, 3900, 20, long24));
    EXPECT_EQ(lines[10], drawn(500, 4700, 20, long24));
}

TEST_F(DrawnForms, ANumberThatCountsAsZeroPrintsNothing) {
    for (const auto& [number, shown] :
         {std::pair{"0", ""}, std::pair{"00", ""}, std::pair{"", ""}, std::pair{"S/N", ""},
          std::pair{"0A", ""}, std::pair{"12A", "12A"}, std::pair{"1.500", "1.500"}}) {
        TestEnvironment fresh;
        const std::string field = std::string(" NUMERO='") + number + "'";
        printLabels(fresh.environment, LabelForm::A4WithSender,
                    run(answers::rowset("<z:row" + field + "/>"),
                        answers::rowset("<z:row DESCRICAO='  '" + field + "/>")),
                    {});
        const std::vector<std::string> lines = fresh.printer.lines();
        EXPECT_EQ(lines[6], drawn(500, 3100, 20, "Nº "));
        EXPECT_EQ(lines[7], drawn(1500, 3100, 20, shown)) << number;
        EXPECT_EQ(lines[20], drawn(1500, 18100, 20, shown)) << number;
        EXPECT_EQ(lines[21], drawn(12500, 18100, 20, "")) << "a blank description is none";
    }
}

TEST_F(DrawnForms, AFailureIsShownAndTheNextTextDrawn) {
    env.printer.failAt = 3;  // the second text
    EXPECT_EQ(print(LabelForm::A5, labelRows(1)).size(), 12U);
    EXPECT_EQ(env.boxes.shown, (Boxes{printerRefused, printed}));
}

TEST_F(DrawnForms, AFailureOfTheEndIsShownToo) {
    env.printer.failAt = 11;  // EndDoc
    print(LabelForm::A5, labelRows(1));
    EXPECT_EQ(env.boxes.shown, (Boxes{printed, printerRefused}));
}

TEST(Sender, MustHaveARow) {
    for (const std::string& none : {answers::rowset(""), std::string("<xml/>")}) {
        EXPECT_THROW(readSender(document(none)), RuntimeError);
    }
}

TEST_F(DrawnForms, ProgressIsToldLabelByLabel) {
    for (const LabelForm form : {LabelForm::Pimaco6280, LabelForm::A5, LabelForm::A4WithSender}) {
        std::vector<std::size_t> told;
        printLabels(env.environment, form, run(labelRows(3), sender),
                    [&told](std::size_t done, std::size_t total) {
                        told.push_back(done);
                        EXPECT_EQ(total, 3U);
                    });
        EXPECT_THAT(told, ElementsAre(1, 2, 3));
    }
}

// Tells of two pages while it ends a document.
class SlowPrinter : public RecordingPrinter {
public:
    std::optional<PrinterFailure> perform(const PrintOperation& operation) override {
        if (std::holds_alternative<DocumentEnd>(operation) && progress) {
            progress(1, 2);
        }
        return RecordingPrinter::perform(operation);
    }
};

TEST_F(DrawnForms, ThePrintersOwnProgressIsToldAfterTheBox) {
    SlowPrinter slow;
    Environment there = env.with(slow);
    std::vector<std::string> told;
    env.boxes.onShow = [&told](const Box&) { told.emplace_back("box"); };
    printLabels(there, LabelForm::A4WithSender, run(labelRows(3), sender),
                [&told](std::size_t done, std::size_t total) {
                    told.push_back(std::to_string(done) + "/" + std::to_string(total));
                });
    EXPECT_EQ(told, (Texts{"1/3", "2/3", "3/3", "box", "1/2", "2/2"}));
    EXPECT_FALSE(slow.progress);
}

TEST(FormOf, ComparesTheFormAsANumber) {
    EXPECT_EQ(labelFormOf("1"), LabelForm::Pimaco6280);
    EXPECT_EQ(labelFormOf(" 2,0 "), LabelForm::DotMatrix);
    EXPECT_EQ(labelFormOf("03"), LabelForm::A5);
    for (const char* other : {"4", "0", "5", "1,5", "-1", "", "x"}) {
        EXPECT_EQ(labelFormOf(other), LabelForm::A4WithSender) << other;
    }
}

TEST(FormOf, NamesAsThePrintScreenShowsThem) {
    EXPECT_EQ(labelFormName(LabelForm::Pimaco6280), "PIMACO 6280 - LASER");
    EXPECT_EQ(labelFormName(LabelForm::DotMatrix), "PIMACO - XXX - MATRICIAL");
    EXPECT_EQ(labelFormName(LabelForm::A5), "PDF - A5 - LASER");
    EXPECT_EQ(labelFormName(LabelForm::A4WithSender),
              "PDF - A4 - DESTINATÁRIO - REMETENTE - LASER");
}

}  // namespace
}  // namespace tarn::test
