// The two cheque layouts, byte by byte. A line is stated by what follows the blank that
// every write begins with, and by the line ends behind it.
#include "cheques/imprime_cheque.h"

#include <gtest/gtest.h>

#include "runtime/runtime_error.h"
#include "tests/support/test_environment.h"

namespace tarn::test {
namespace {

using Writes = std::vector<std::string>;
using Call = RecordingSpooler::Call;

std::string b(std::size_t blanks) {
    return std::string(blanks, ' ');
}

std::string line(const std::string& text, int ends) {
    std::string bytes = " " + text;
    for (int i = 0; i < ends; ++i) {
        bytes += "\r\n";
    }
    return bytes;
}

const std::string condensed = " \x0F\x1B\x1BG";
const std::string spacing = " \x1B\x41\x06";

// Words of 64, 65 and 200 characters.
const std::string words64 = "UM MIL, DUZENTOS E TRINTA E QUATRO REAIS E VINTE E DOIS CENTAVOS";
const std::string words65 = "UM MIL, DUZENTOS E TRINTA E QUATRO REAIS E VINTE E CINCO CENTAVOS";
const std::string words200 =
    "DOIS TRILHOES, QUATROCENTOS E QUARENTA E QUATRO BILHOES, QUATROCENTOS E QUARENTA E QUATRO "
    "MILHOES, QUATROCENTOS E QUARENTA E QUATRO MIL, QUATROCENTOS E SESSENTA E SEIS REAIS E "
    "QUARENTA E NOVE CENTAVOS";

const std::string date =
    b(29) + "CAMPINAS           " + b(2) + "15" + b(3) + "MARCO            " + b(2) + "2012";
const std::string date33 =
    b(61) + "           CAMPINAS" + b(2) + "15" + b(6) + "MARCO            " + b(9) + "12";

ChequeData cheque(std::string_view amount) {
    return {.nNr_Ofi_Ban = 341,
            .sValor = amount,
            .sFavorecido = "JOÃO & FILHOS",
            .sDataDeposito = "15/03/2012",
            .sNmMun = "CAMPINAS"};
}

class ImprimeChequeTest : public testing::Test {
protected:
    // The writes of the cheque's one job.
    Writes print(const ChequeData& data) {
        seams_.spooler = RecordingSpooler();
        ImprimeCheque(seams_.environment, data);
        EXPECT_EQ(seams_.spooler.jobs.size(), 1U);
        EXPECT_TRUE(seams_.spooler.jobs.at(0).closed);
        EXPECT_EQ(seams_.spooler.jobs[0].description.kind,
                  (JobKind{.document = JobDocument::Cheque,
                           .form = data.nNr_Ofi_Ban == 33 ? "Cheque_33" : "Cheque",
                           .itemLines = {}}));
        return seams_.spooler.jobs.at(0).writes;
    }
    // One of them: the set-up is number 0.
    std::string printed(const ChequeData& data, std::size_t write) { return print(data).at(write); }

    TestEnvironment seams_;
};

TEST_F(ImprimeChequeTest, TheGeneralLayout) {
    EXPECT_EQ(
        print(cheque("1.234,22")),
        (Writes{condensed, line(b(64) + "      1.234,22", 2), line(b(14) + words64, 1), line("", 2),
                line(b(4) + "JO\xC3O & FILHOS", 2), line(date, 2), line("", 9)}));
}

TEST_F(ImprimeChequeTest, TheLayoutOfBank33) {
    ChequeData data = cheque("1.234,22");
    data.nNr_Ofi_Ban = 33;
    EXPECT_EQ(print(data),
              (Writes{spacing, condensed, line("", 2), line(b(93) + "               #1.234,22#", 4),
                      line(b(26) + words64, 2), line("", 2), line(b(12) + "JO\xC3O & FILHOS", 4),
                      line(date33, 2), line("", 20)}));
}

TEST_F(ImprimeChequeTest, OneJobWithANameAndTwoEmptyTexts) {
    print(cheque("1,00"));
    const JobDescription& job = seams_.spooler.jobs.at(0).description;
    EXPECT_EQ(job.docName, "Impressao de Cheque");
    EXPECT_EQ(job.outputFile, "");
    EXPECT_EQ(job.dataType, "");
    EXPECT_EQ(seams_.spooler.opened, Writes{"Impressora de teste"});
    EXPECT_EQ(seams_.spooler.calls,
              (std::vector<Call>{Call::Open, Call::StartDocument, Call::StartPage, Call::Write,
                                 Call::Write, Call::Write, Call::Write, Call::Write, Call::Write,
                                 Call::Write, Call::EndPage, Call::EndDocument, Call::Close}));
}

TEST_F(ImprimeChequeTest, Bank151PrintsAsAnyOther) {
    ChequeData data = cheque("1.234,25");
    const Writes general = print(data);
    for (const char* bank : {"151", "1", "237", "0", "-33", "133"}) {
        data.nNr_Ofi_Ban = bankCode(bank);
        EXPECT_EQ(print(data), general) << bank;
    }
}

TEST_F(ImprimeChequeTest, WordsOf65CharactersBringTheThirdLine) {
    ASSERT_EQ(words64.size(), 64U);
    ASSERT_EQ(words65.size(), 65U);
    const Writes writes = print(cheque("1.234,25"));
    EXPECT_EQ(writes.at(2), line(b(14) + words65.substr(0, 64), 1));
    EXPECT_EQ(writes.at(3), line("  S", 2));
    EXPECT_EQ(writes.size(), 7U);
}

TEST_F(ImprimeChequeTest, WordsOf200Characters) {
    ASSERT_EQ(words200.size(), 200U);
    const Writes writes = print(cheque("2.444.444.444.466,49"));
    EXPECT_EQ(writes.at(1), line(b(64) + "2.444.444.444.", 2)) << "an amount keeps its head";
    EXPECT_EQ(writes.at(2),
              line(b(14) + "DOIS TRILHOES, QUATROCENTOS E QUARENTA E QUATRO BILHOES, QUATROC", 1));
    EXPECT_EQ(writes.at(3),
              line("  ENTOS E QUARENTA E QUATRO MILHOES, QUATROCENTOS E QUARENTA E QUATRO MIL, "
                   "QUATROCENTOS E SESSENTA E SEIS REAIS E QUARENTA E NOVE CENTAVOS",
                   2));
}

TEST_F(ImprimeChequeTest, Bank33JoinsTheThirdLineOfWordsToTheSecond) {
    ChequeData data = cheque("2.444.444.444.466,49");
    data.nNr_Ofi_Ban = 33;
    const Writes writes = print(data);
    EXPECT_EQ(writes.at(3), line(b(93) + "   #2.444.444.444.466,49#", 4));
    EXPECT_EQ(writes.at(4), line(b(26) + "DOIS TRILHOES, QUATROCENTOS E QUARENTA E QUATRO BILHOES, "
                                         "QUATROCENTOS E QUARENTA E QUATRO",
                                 2));
    EXPECT_EQ(
        writes.at(5),
        line(b(10) + "MILHOES, QUATROCENTOS E QUARENTA E QUATRO MIL, QUATROCENTOS E SESSENTA E "
                     "SEIS REAIS E QUARENTA E NOVE CENTAVOS",
             2));
}

TEST_F(ImprimeChequeTest, Bank33WithTwoLinesOfWords) {
    ChequeData data = cheque("444.444,44");
    data.nNr_Ofi_Ban = 33;
    const Writes writes = print(data);
    EXPECT_EQ(writes.at(4), line(b(26) + "QUATROCENTOS E QUARENTA E QUATRO MIL, QUATROCENTOS E "
                                         "QUARENTA E QUATRO REAIS E QUARENTA E",
                                 2));
    EXPECT_EQ(writes.at(5), line(b(10) + "QUATRO CENTAVOS", 2));
}

TEST_F(ImprimeChequeTest, AnEmptyPayeeKeepsItsLine) {
    ChequeData data = cheque("100,00");
    data.sFavorecido = "";
    Writes writes = print(data);
    EXPECT_EQ(writes.at(4), line(b(4), 2));
    EXPECT_EQ(writes.size(), 7U);
    data.nNr_Ofi_Ban = 33;
    writes = print(data);
    EXPECT_EQ(writes.at(6), line(b(12), 4));
    EXPECT_EQ(writes.size(), 9U);
}

TEST_F(ImprimeChequeTest, WhatIsTooLongKeepsItsHead) {
    const std::string payee = std::string(69, 'F') + "ÉG";
    ChequeData data{.nNr_Ofi_Ban = 1,
                    .sValor = "0000000000000001,50",
                    .sFavorecido = payee,
                    .sDataDeposito = "123/3/20125",
                    .sNmMun = "SÃO JOSÉ DOS CAMPOS DO JORDÃO"};
    Writes writes = print(data);
    EXPECT_EQ(writes.at(1), line(b(64) + "00000000000000", 2));
    EXPECT_EQ(writes.at(4), line(b(4) + std::string(69, 'F') + "\xC9", 2));
    EXPECT_EQ(writes.at(5),
              line(b(29) + "S\xC3O JOS\xC9 DOS CAMPOS  12   MARCO" + b(14) + "20125", 2));
    data.nNr_Ofi_Ban = 33;
    data.sValor = "0000000000000000000000000001,50";
    writes = print(data);
    EXPECT_EQ(writes.at(3), line(b(93) + "#000000000000000000000000", 4));
    EXPECT_EQ(writes.at(6), line(b(12) + std::string(69, 'F') + "\xC9", 4));
    EXPECT_EQ(writes.at(7),
              line(b(61) + "S\xC3O JOS\xC9 DOS CAMPOS  12      MARCO" + b(21) + "25", 2));
}

TEST_F(ImprimeChequeTest, TheDayAsTypedAndTheMonthByItsNumber) {
    const struct {
        const char* typed;
        const char* day;
        std::string month;
    } dates[] = {
        {"1/01/2012", " 1", "JANEIRO"},   {"01/2/2012", "01", "FEVEREIRO"},
        {"01/03/2012", "01", "MARCO"},    {"01/04/2012", "01", "ABRIL"},
        {"01/05/2012", "01", "MAIO"},     {"01/06/2012", "01", "JUNHO"},
        {"01/07/2012", "01", "JULHO"},    {"01/08/2012", "01", "AGOSTO"},
        {"01/09/2012", "01", "SETEMBRO"}, {"01/10/2012", "01", "OUTUBRO"},
        {"01/11/2012", "01", "NOVEMBRO"}, {"01/12/2012", "01", "DEZEMBRO"},
        {"01/13/2012", "01", ""},         {"01/00/2012", "01", ""},
        {"01/-1/2012", "01", ""},         {"01/2.5/2012", "01", ""},
        {"01/x/2012", "01", ""},          {"//2012", "  ", ""},
        {"5/6/2012/8", " 5", "JUNHO"},
    };
    for (const auto& one : dates) {
        ChequeData data = cheque("1,00");
        data.sDataDeposito = one.typed;
        EXPECT_EQ(printed(data, 5), line(b(29) + "CAMPINAS           " + b(2) + one.day + b(3) +
                                             one.month + b(17 - one.month.size()) + b(2) + "2012",
                                         2))
            << one.typed;
    }
}

TEST_F(ImprimeChequeTest, Bank33PrintsTwoDigitsOfTheYear) {
    for (const auto& [typed, year] :
         {std::pair{"15/03/2012", "12"}, {"15/03/7", "7"}, {"15/03/", ""}}) {
        ChequeData data = cheque("1,00");
        data.nNr_Ofi_Ban = 33;
        data.sDataDeposito = typed;
        EXPECT_EQ(printed(data, 7), line(date33.substr(0, date33.size() - 2) + year, 2)) << typed;
    }
}

TEST_F(ImprimeChequeTest, AnAmountOfNothingHasNoWords) {
    ChequeData data = cheque("0,00");
    Writes writes = print(data);
    EXPECT_EQ(writes.at(2), line(b(14), 1));
    EXPECT_EQ(writes.at(3), line("", 2));
    data.nNr_Ofi_Ban = 33;
    writes = print(data);
    EXPECT_EQ(writes.at(4), line(b(26), 2));
    EXPECT_EQ(writes.at(5), line("", 2));
}

TEST_F(ImprimeChequeTest, NoValueMovesALineOrCommandsThePrinter) {
    ChequeData data{.nNr_Ofi_Ban = 1,
                    .sValor = "1,00",
                    .sFavorecido = "A\r\nB\x1B@\tC\x7F",
                    .sDataDeposito = "1\n/03/20\x0C",
                    .sNmMun = "X\rY"};
    Writes writes = print(data);
    EXPECT_EQ(writes.at(4), line(b(4) + "A  B @ C ", 2));
    EXPECT_EQ(writes.at(5), line(b(29) + "X Y" + b(18) + "1 " + b(3) + "MARCO" + b(14) + "20 ", 2));
    data.nNr_Ofi_Ban = 33;
    writes = print(data);
    EXPECT_EQ(writes.at(6), line(b(12) + "A  B @ C ", 4));
    EXPECT_EQ(writes.at(7),
              line(b(61) + b(16) + "X Y" + b(2) + "1 " + b(6) + "MARCO" + b(21) + "0 ", 2));
}

TEST_F(ImprimeChequeTest, NothingIsPrintedOfWhatCannotBeRead) {
    const auto refused = [this](const ChequeData& data) {
        try {
            ImprimeCheque(seams_.environment, data);
        } catch (const RuntimeError& error) {
            return error.number();
        }
        ADD_FAILURE() << "printed";
        return RuntimeErrorCode::ObjectRequired;
    };
    ChequeData data = cheque("");
    EXPECT_EQ(refused(data), RuntimeErrorCode::TypeMismatch);
    data.sValor = "R$ 1,00";
    EXPECT_EQ(refused(data), RuntimeErrorCode::TypeMismatch);
    data.sValor = "1,00";
    for (const char* typed : {"", "15", "15/03", "15-03-2012"}) {
        data.sDataDeposito = typed;
        EXPECT_EQ(refused(data), RuntimeErrorCode::OutOfRange) << typed;
    }
    EXPECT_TRUE(seams_.spooler.calls.empty());
}

TEST_F(ImprimeChequeTest, ThePrintersAnswersAreNotLookedAt) {
    seams_.spooler.failOpen = 0;
    ImprimeCheque(seams_.environment, cheque("1,00"));
    EXPECT_EQ(seams_.spooler.calls.size(), 13U);
    EXPECT_TRUE(seams_.boxes.shown.empty());
}

TEST(BankCode, IsA16BitInteger) {
    EXPECT_EQ(bankCode("033"), 33);
    EXPECT_EQ(bankCode("  151 "), 151);
    EXPECT_EQ(bankCode("32767"), 32767);
    const auto number = [](const char* text) {
        try {
            bankCode(text);
        } catch (const RuntimeError& error) {
            return error.number();
        }
        return RuntimeErrorCode::ObjectRequired;
    };
    EXPECT_EQ(number("32768"), RuntimeErrorCode::Overflow);
    EXPECT_EQ(number(""), RuntimeErrorCode::TypeMismatch);
    EXPECT_EQ(number("B33"), RuntimeErrorCode::TypeMismatch);
}

}  // namespace
}  // namespace tarn::test
