// A run over the grid: jobs, writes, ticks and numbers in their order.
#include "slips/print_slips.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "runtime/runtime_error.h"
#include "tests/slips/slip_fixture.h"
#include "tests/support/sessions.h"
#include "tests/support/test_environment.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

using testing::ElementsAre;

const std::string preparation = " \x0F\x1BM";
const std::string slipPreparation =
    " \x1B"
    "2 \x0F\x1BG";
const Box none{"Selecione um item na Lista!     ", BoxIcon::Information, "TArn"};

std::string joined(const std::vector<std::string>& lines) {
    std::string all;
    for (const std::string& line : lines) {
        all += line;
    }
    return all;
}

GridRow ofBank(const std::string& number, const std::string& bank) {
    GridRow row = document(number);
    row.text(SlipColumn::Bank) = bank;
    return row;
}

class PrintSlipsTest : public testing::Test {
protected:
    void run(const Portfolio& portfolio, const std::string& first) {
        if (ticks.empty()) {
            ticks.assign(documents.size(), true);
        }
        for (std::size_t i = 0; i < documents.size(); ++i) {
            documents[i].ticked = ticks[i];
        }
        ticks.clear();
        printSlips(seams.environment, session, portfolio,
                   {.next = first, .includesPortfolio = includesPortfolio}, documents,
                   {.untick =
                        [this](std::size_t i) {
                            documents[i].ticked = false;
                            callsAtUntick.push_back(seams.spooler.calls.size());
                        },
                    .passed = [this] { ++passed; },
                    .progress = [this](std::size_t done,
                                       std::size_t total) { progress.emplace_back(done, total); }});
    }
    std::vector<bool> ticked() const {
        std::vector<bool> all;
        for (const GridRow& document : documents) {
            all.push_back(document.ticked);
        }
        return all;
    }
    int errorOfRun(const Portfolio& portfolio, const std::string& first) {
        try {
            run(portfolio, first);
        } catch (const RuntimeError& error) {
            return static_cast<int>(error.number());
        }
        return 0;
    }
    // Last bytes of the slips: which number each bears.
    std::vector<std::string> numbers() {
        std::vector<std::string> all;
        for (const RecordingSpooler::Job& job : seams.spooler.jobs) {
            const std::string bytes = job.bytes();
            for (const std::string mark : {"NOSSO NUMERO: ", "N.N.  "}) {
                const std::size_t at = bytes.find(mark);
                if (at != std::string::npos) {
                    all.push_back(bytes.substr(at + mark.size(), mark.size() == 14 ? 15 : 9));
                }
            }
        }
        return all;
    }

    TestEnvironment seams;
    Sessao session = sessionOf(2161, 9);
    std::vector<GridRow> documents{document()};
    std::vector<bool> ticks;  // of the next run; empty: all
    bool includesPortfolio = false;
    std::size_t passed = 0;  // rows
    std::vector<std::pair<std::size_t, std::size_t>> progress;
    std::vector<std::size_t> callsAtUntick;
};

TEST_F(PrintSlipsTest, Wallet57WritesTwiceAndPrints) {
    run(isWallet57, "1234");
    EXPECT_EQ(seams.loader.queries(),
              (Texts{"comando=altera_docto_cob&ID_ETB=3381&ID_TIP_DOC=201&NR_DOC=4567/1"
                     "&NR_BOL_BANC=1234&ServerName=SRV1",
                     "comando=insere_car_cob&ID_EMP_TARN=2161&ID_ETB=3381&ID_TIP_DOC=201"
                     "&NR_DOC=4567/1&ID_CRT_COB=5&NR_BOL_BANC=1234&ID_PES_USU=77"
                     "&ServerName=SRV1"}));
    ASSERT_EQ(seams.spooler.jobs.size(), 2U);
    EXPECT_EQ(seams.spooler.bytes(0), preparation);
    EXPECT_EQ(seams.spooler.bytes(1), slipPreparation + joined(wallet57Lines()));
    EXPECT_EQ(seams.boxes.shown, Boxes{});
}

TEST_F(PrintSlipsTest, EachJobTellsItsBanksForm) {
    documents = {document("1"), ofBank("2", "1084"), ofBank("3", "2033")};
    run(isWallet57, "1234");
    run(wallet101, "0000001");
    std::vector<std::string> forms;
    for (const RecordingSpooler::Job& job : seams.spooler.jobs) {
        EXPECT_EQ(job.description.kind.document, JobDocument::Slip);
        forms.push_back(job.description.kind.form);
    }
    EXPECT_THAT(forms, ElementsAre("Boleto_1016_57", "Boleto_1016_57", "Boleto_1084_57",
                                   "Boleto_1084_57", "", "", "Boleto_1016", "Boleto_1016",
                                   "Boleto_1084", "Boleto_1084", "", ""));
}

TEST_F(PrintSlipsTest, AnyOtherWalletWritesOnceAndPrints) {
    run(wallet101, "1234567");
    EXPECT_EQ(seams.loader.queries(),
              (Texts{"comando=altera_docto_cob&ID_ETB=3381&ID_TIP_DOC=201&NR_DOC=4567/1"
                     "&NR_BOL_BANC=12345679&ServerName=SRV1"}));
    ASSERT_EQ(seams.spooler.jobs.size(), 2U);
    EXPECT_EQ(seams.spooler.bytes(0), preparation);
    EXPECT_EQ(seams.spooler.bytes(1), slipPreparation + joined(sevenDigitLines()));
}

TEST_F(PrintSlipsTest, ReceivablesHaveTheirOwnCommandsAndASecondSpelling) {
    documents = {receivable("88", "CTL 9")};
    run(isWallet57, "1234");
    EXPECT_EQ(seams.loader.queries(),
              (Texts{"comando=altera_docto_rec&ID_ETB=3381&ID_NR_CTL=CTL 9&ServerName=SRV1"
                     "&NR_BOL_BANC=1234",
                     "comando=insere_car_rec&ID_EMP_TARN=2161&ID_ETB=3381&ID_NR_CTL=CTL 9"
                     "&ID_CRT_COB=5&NR_BOL_BANC=1234&ID_PES_USU=77&ServerName=SRV1"}));
    seams.loader.addresses.clear();
    run(wallet101, "1234567");
    EXPECT_EQ(seams.loader.queries(),
              (Texts{"comando=altera_docto_rec&ID_ETB=3381&ID_NR_CLT=CTL 9&ServerName=SRV1"
                     "&NR_BOL_BANC=12345679"}));
}

TEST_F(PrintSlipsTest, ADocumentOfNoKnownTableIsAReceivableWithoutAControlNumber) {
    documents[0].text(SlipColumn::Table) = "OUTRA";
    run(isWallet57, "1234");
    EXPECT_EQ(seams.loader.queries(),
              (Texts{"comando=altera_docto_rec&ID_ETB=3381&ID_NR_CTL=&ServerName=SRV1"
                     "&NR_BOL_BANC=1234",
                     "comando=insere_car_rec&ID_EMP_TARN=2161&ID_ETB=3381&ID_NR_CTL="
                     "&ID_CRT_COB=5&NR_BOL_BANC=1234&ID_PES_USU=77&ServerName=SRV1"}));
}

TEST_F(PrintSlipsTest, BothJobsOpenBeforeTheTickGoesAndTheWritesComeBeforeTheLines) {
    using Call = RecordingSpooler::Call;
    run(isWallet57, "1234");
    std::vector<Call> expected{Call::Open,      Call::StartDocument, Call::StartPage,
                               Call::Write,     Call::EndPage,       Call::EndDocument,
                               Call::Close,     Call::Open,          Call::StartDocument,
                               Call::StartPage, Call::Write,         Call::Write};
    EXPECT_EQ(callsAtUntick, (std::vector{expected.size()}));
    expected.insert(expected.end(), 14, Call::Write);
    expected.insert(expected.end(), {Call::EndPage, Call::EndDocument, Call::Close});
    EXPECT_EQ(seams.spooler.calls, expected);
    EXPECT_EQ(seams.spooler.opened, (Texts{"Impressora de teste", "Impressora de teste"}));
    for (const RecordingSpooler::Job& job : seams.spooler.jobs) {
        EXPECT_FALSE(job.description.docName || job.description.outputFile ||
                     job.description.dataType);
    }
    EXPECT_THAT(seams.spooler.jobs[1].writes[0],
                " \x1B"
                "2");
    EXPECT_THAT(seams.spooler.jobs[1].writes[1], " \x0F\x1BG");
}

// Asked while a write is under way: only the set-up is in the slip's job.
TEST_F(PrintSlipsTest, NothingIsPrintedUntilTheWritesAreDone) {
    struct WatchedLoader : HttpLoader {
        RecordingSpooler* spooler = nullptr;
        std::vector<std::size_t> writes;
        HttpAnswer get(const std::string&) override {
            writes.push_back(spooler->writes);
            return {};
        }
    } watched;
    watched.spooler = &seams.spooler;
    Environment environment = seams.with(watched);
    documents[0].ticked = true;
    printSlips(environment, session, isWallet57, {.next = "1"}, documents,
               {.untick = [](std::size_t) {}});
    EXPECT_THAT(watched.writes, ElementsAre(3U, 3U));
}

TEST_F(PrintSlipsTest, TickedRowsGetConsecutiveNumbersInGridOrder) {
    documents = {document("1"), document("2"), document("3"), document("4")};
    ticks = {true, false, true, true};
    run(isWallet57, "9");
    EXPECT_EQ(numbers(), (Texts{"0000000000009/2", "0000000000010/9", "0000000000011/8"}));
    EXPECT_EQ(passed, 4U);
    EXPECT_THAT(progress, testing::ElementsAre(std::pair(0U, 3U), std::pair(1U, 3U),
                                               std::pair(2U, 3U), std::pair(3U, 3U)));
    EXPECT_EQ(ticked(), (std::vector<bool>{false, false, false, false}));
    ASSERT_EQ(seams.spooler.jobs.size(), 6U) << "the preparation comes before each slip";
    for (const std::size_t job : {0U, 2U, 4U}) {
        EXPECT_EQ(seams.spooler.bytes(job), preparation);
        EXPECT_EQ(seams.spooler.bytes(job + 1).substr(0, 7), slipPreparation);
    }
    EXPECT_THAT(seams.loader.queries()[2], testing::HasSubstr("&NR_DOC=3&NR_BOL_BANC=10&"));
}

TEST_F(PrintSlipsTest, SevenDigitsStepAndAreFilled) {
    documents = {document("1"), document("2")};
    run(wallet101, "9");
    EXPECT_EQ(numbers(), (Texts{"0000009-4", "0000010-8"}));
    EXPECT_THAT(seams.loader.queries()[1], testing::HasSubstr("&NR_BOL_BANC=00000108&"));
}

TEST_F(PrintSlipsTest, ARowOfAnotherBankTakesNoNumberAndLeavesItsJobOpen) {
    documents = {ofBank("1", "1016"), ofBank("2", "1050"), ofBank("3", "1095")};
    run(isWallet57, "9");
    EXPECT_EQ(numbers(), (Texts{"0000000000009/2", "0000000000010/9"}));
    EXPECT_EQ(ticked(), (std::vector<bool>{false, false, false}));
    EXPECT_EQ(seams.loader.queries().size(), 4U);
    const auto& jobs = seams.spooler.jobs;
    ASSERT_EQ(jobs.size(), 6U);
    EXPECT_TRUE(jobs[2].closed);
    EXPECT_EQ(jobs[3].bytes(), slipPreparation);
    EXPECT_FALSE(jobs[3].pageEnded || jobs[3].ended || jobs[3].closed);
    EXPECT_TRUE(jobs[5].closed);
    EXPECT_EQ(seams.boxes.shown, Boxes{});
}

TEST_F(PrintSlipsTest, OnlyRowsOfOtherBanksAreNoSlip) {
    documents = {ofBank("1", "1050"), ofBank("2", "")};
    run(isWallet57, "9");
    EXPECT_EQ(seams.loader.queries(), Texts{});
    EXPECT_EQ(seams.boxes.shown, (Boxes{none}));
    EXPECT_EQ(ticked(), (std::vector<bool>{false, false}));
    EXPECT_EQ(seams.spooler.jobs.size(), 4U);
}

TEST_F(PrintSlipsTest, NothingTicked) {
    ticks = {false};
    run(isWallet57, "9");
    EXPECT_EQ(seams.boxes.shown, (Boxes{none}));
    EXPECT_THAT(seams.spooler.calls, testing::IsEmpty());
    EXPECT_EQ(passed, 1U);
}

TEST_F(PrintSlipsTest, AnEmptyGrid) {
    documents.clear();
    run(isWallet57, "9");
    EXPECT_EQ(seams.boxes.shown, (Boxes{none}));
    EXPECT_EQ(passed, 0U);
}

TEST_F(PrintSlipsTest, BanksAreComparedAsNumbers) {
    for (const char* bank : {"1016", "01084", " 1095 ", "1.016", "1016,0"}) {
        documents.push_back(ofBank(bank, bank));
    }
    for (const char* bank : {"", "016", "1016x", "10166", "1016,5"}) {
        documents.push_back(ofBank(bank, bank));
    }
    run(isWallet57, "1");
    EXPECT_EQ(numbers().size(), 1U + 5U);
}

TEST_F(PrintSlipsTest, WithThePortfolioIncludedItsBankCounts) {
    includesPortfolio = true;
    documents = {ofBank("1", ""), ofBank("2", "1050")};
    run(isWallet57, "9");
    EXPECT_EQ(numbers().size(), 2U);
    Portfolio foreign = isWallet57;
    foreign.ID_PES_BAN = "1050";
    documents = {ofBank("1", "1016")};
    run(foreign, "9");
    EXPECT_EQ(numbers().size(), 2U);
    EXPECT_EQ(seams.boxes.shown, (Boxes{none}));
}

// Wallet, agency and account stay the portfolio's, whatever the row's bank.
TEST_F(PrintSlipsTest, ARowsBankChangesOnlyTheBank) {
    documents = {ofBank("1", "1084")};
    run(isWallet57, "1234");
    EXPECT_EQ(numbers(), (Texts{"0000000001234/7"}));
}

TEST_F(PrintSlipsTest, AnEmptyPortfolio) {
    run(Portfolio(), "9");
    EXPECT_EQ(numbers(), (Texts{"0000009-4"}));
    includesPortfolio = true;
    run(Portfolio(), "9");
    EXPECT_EQ(numbers().size(), 1U);
    EXPECT_EQ(seams.boxes.shown, (Boxes{none}));
}

TEST_F(PrintSlipsTest, TheServersFailureOrAnswerChangesNothing) {
    documents = {document("1"), document("2")};
    seams.loader.failOn("altera_docto_cob");
    seams.loader.on("insere_car_cob", "nada de XML");
    run(isWallet57, "9");
    EXPECT_EQ(numbers(), (Texts{"0000000000009/2", "0000000000010/9"}));
    EXPECT_EQ(seams.loader.queries().size(), 4U) << "nothing is sent twice";
    EXPECT_EQ(seams.boxes.shown, Boxes{});
}

TEST_F(PrintSlipsTest, ThePrintersFailureChangesNothing) {
    documents = {document("1"), document("2")};
    seams.spooler.failOpen = 1;  // the first slip's job
    run(isWallet57, "9");
    EXPECT_EQ(numbers(), (Texts{"0000000000010/9"}));
    EXPECT_EQ(seams.loader.queries().size(), 4U) << "the number is on the server all the same";
    EXPECT_EQ(ticked(), (std::vector<bool>{false, false}));
    EXPECT_EQ(seams.boxes.shown, Boxes{});
}

TEST_F(PrintSlipsTest, AWriteToThePrinterThatFailsChangesNothing) {
    seams.spooler.failWrite = 12;  // the line of the number
    run(isWallet57, "1234");
    ASSERT_EQ(seams.spooler.jobs.size(), 2U);
    std::vector<std::string> lines = wallet57Lines();
    lines.erase(lines.begin() + 9);
    EXPECT_EQ(seams.spooler.bytes(1), slipPreparation + joined(lines));
    EXPECT_TRUE(seams.spooler.jobs[1].closed);
    EXPECT_EQ(seams.boxes.shown, Boxes{});
}

TEST_F(PrintSlipsTest, ANumberThatIsNoneEndsTheRunAtItsBegin) {
    EXPECT_EQ(errorOfRun(isWallet57, ","), 13);
    EXPECT_THAT(seams.spooler.calls, testing::IsEmpty());
    EXPECT_EQ(ticked(), (std::vector<bool>{true}));
    ticks = {false};
    EXPECT_EQ(errorOfRun(wallet101, "1,,2"), 13) << "also with nothing ticked";
    EXPECT_EQ(passed, 0U);
}

TEST_F(PrintSlipsTest, AShortAgencyEndsTheRunBeforeTheWrites) {
    Portfolio shortOne = isWallet57;
    shortOne.CD_AGE_BAN_CNAB = "112";
    EXPECT_EQ(errorOfRun(shortOne, "1"), 5);
    EXPECT_EQ(seams.loader.queries(), Texts{});
    ASSERT_EQ(seams.spooler.jobs.size(), 2U);
    EXPECT_EQ(seams.spooler.bytes(1), slipPreparation);
    EXPECT_FALSE(seams.spooler.jobs[1].closed);
    EXPECT_EQ(ticked(), (std::vector<bool>{false}));
    EXPECT_EQ(passed, 0U);
}

TEST_F(PrintSlipsTest, AnAccountThatIsNoNumberEndsTheRunBeforeTheWrites) {
    Portfolio lettered = isWallet57;
    lettered.NR_CCOR_CNAB = "45678X";
    documents = {ofBank("1", "1050"), document("2")};
    EXPECT_EQ(errorOfRun(lettered, "1"), 13);
    EXPECT_EQ(seams.loader.queries(), Texts{});
    EXPECT_EQ(seams.spooler.jobs.size(), 4U) << "the foreign row asks for no digit";
    EXPECT_EQ(passed, 1U);
}

TEST_F(PrintSlipsTest, AfterTheLastSevenDigitNumberTheRunEnds) {
    documents = {document("1"), document("2"), document("3")};
    EXPECT_EQ(errorOfRun(wallet101, "9999998"), 5);
    EXPECT_EQ(numbers(), (Texts{"9999998-6", "9999999-4"}));
    EXPECT_EQ(seams.loader.queries().size(), 2U);
    EXPECT_TRUE(seams.spooler.jobs.back().closed);
    EXPECT_EQ(ticked(), (std::vector<bool>{false, false, true}));
    EXPECT_EQ(passed, 1U);
}

TEST_F(PrintSlipsTest, ANumberOfEightDigitsIsPrintedOnce) {
    documents = {document("1"), document("2")};
    EXPECT_EQ(errorOfRun(wallet101, "12345678"), 5);
    ASSERT_EQ(seams.spooler.jobs.size(), 2U);
    EXPECT_THAT(seams.spooler.bytes(1), testing::HasSubstr("N.N.  12345678-9\r\n"));
    EXPECT_THAT(seams.loader.queries(), ElementsAre(testing::HasSubstr("&NR_BOL_BANC=123456789&")));
}

// The count of slips is a 16-bit number.
TEST_F(PrintSlipsTest, TheSlipPast32767EndsTheRun) {
    struct NoPaper : Spooler {
        std::string defaultPrinter() override { return "x"; }
        bool openPrinter(const std::string&) override { return true; }
        bool startDocument(const JobDescription&) override { return true; }
        bool startPage() override { return true; }
        std::size_t write(std::string_view bytes) override { return bytes.size(); }
        bool endPage() override { return true; }
        bool endDocument() override { return true; }
        bool closePrinter() override { return true; }
    } noPaper;
    Environment environment = seams.with(noPaper);
    documents[0].ticked = true;
    const std::vector<GridRow> many(40000, documents[0]);
    std::size_t done = 0;
    try {
        printSlips(environment, session, isWallet57, {.next = "1"}, many,
                   {.untick = [](std::size_t) {}, .passed = [&done] { ++done; }});
        FAIL() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeErrorCode::Overflow);
    }
    EXPECT_EQ(done, 32767U);
    EXPECT_EQ(seams.loader.addresses.size(), 2U * 32768);
}

}  // namespace
}  // namespace tarn::test
