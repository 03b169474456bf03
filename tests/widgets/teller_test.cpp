#include "widgets/teller.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>
#include <sstream>

#include "tests/support/fixed_machine.h"

namespace tarn::test {
namespace {

using namespace std::chrono_literals;

class TellerTest : public testing::Test {
protected:
    std::string line() const { return teller.line().toStdString(); }
    // Waits for the count of a wait to say so much.
    bool counts(const char* what) {
        return QTest::qWaitFor([&] { return line() == what; });
    }

    FixedClock clock;  // 10:32
    std::ostringstream errors;
    Teller teller{clock, errors, 5ms};
    const PaperAct note{.sent = "NF 008529 da ordem 45112 enviada",
                        .made = "NF 008529 gerada",
                        .remedy = "use ReImpressão de NF"};
};

TEST_F(TellerTest, TellsTheLastThingDoneWithItsTime) {
    const QSignalSpy changes(&teller, &Teller::lineChanged);
    teller.done("Ordem 45112 cancelada");
    EXPECT_EQ(line(), "10:32 Ordem 45112 cancelada");
    teller.done("NF 008529 cancelada");
    EXPECT_EQ(line(), "10:32 NF 008529 cancelada");
    EXPECT_EQ(changes.count(), 2);
    EXPECT_EQ(changes.last().first().toString(), teller.line());
    EXPECT_EQ(errors.str(), "10:32 Ordem 45112 cancelada\n10:32 NF 008529 cancelada\n");
}

TEST_F(TellerTest, TellsWhichPrinterThePaperWentTo) {
    teller.paper() = {.asked = true, .printer = "LX-300", .obstacle = {}};
    teller.printed(note);
    EXPECT_EQ(line(), "10:32 NF 008529 da ordem 45112 enviada a LX-300");
    teller.paper() = {.asked = true, .printer = {}, .obstacle = {}};
    teller.printed(note);
    EXPECT_EQ(line(), "10:32 NF 008529 da ordem 45112 enviada à impressora");
}

TEST_F(TellerTest, TellsWhyThereIsNoPaperAndWhatToDo) {
    teller.paper() = {
        .asked = true, .printer = "LX-300", .obstacle = "a impressora LX-300 recusou o trabalho"};
    teller.printed(note);
    EXPECT_EQ(line(),
              "10:32 NF 008529 gerada, mas a impressora LX-300 recusou o trabalho: use ReImpressão "
              "de NF");
    EXPECT_EQ(errors.str(), line() + "\n");
}

TEST_F(TellerTest, WhatWasntSentToPaperIsToldSo) {
    teller.printed(note);
    EXPECT_EQ(line(), "10:32 NF 008529 gerada; nada foi impresso");
}

TEST_F(TellerTest, AnObstacleIsThatOfOneActAlone) {
    teller.paper() = {.asked = true, .printer = "LX-300", .obstacle = "recusou"};
    teller.printed(note);
    teller.paper().asked = true;
    teller.paper().printer = "LX-300";
    teller.printed(note);
    EXPECT_EQ(line(), "10:32 NF 008529 da ordem 45112 enviada a LX-300");
}

TEST_F(TellerTest, AValueCanBeginNoLineOfItsOwn) {
    teller.done("Cheque 1\nsérie \x1B[2J emitido");
    EXPECT_EQ(errors.str(), "10:32 Cheque 1 série  [2J emitido\n");
    EXPECT_EQ(line(), "10:32 Cheque 1 série  [2J emitido");
}

TEST_F(TellerTest, ALongWaitIsToldAndCountsOn) {
    teller.done("Ordem 45112 gravada");
    {
        const Waiting server(teller);
        EXPECT_EQ(line(), "10:32 Ordem 45112 gravada") << "a short wait isn't worth a word";
        EXPECT_TRUE(counts("Aguardando o servidor há 1 s"));
        EXPECT_TRUE(counts("Aguardando o servidor há 3 s"));
    }
    EXPECT_EQ(line(), "10:32 Ordem 45112 gravada");
    EXPECT_EQ(errors.str(), "10:32 Ordem 45112 gravada\nAguardando o servidor\n");
}

TEST_F(TellerTest, EachWaitCountsFromItsOwnBeginning) {
    {
        const Waiting server(teller);
        EXPECT_TRUE(counts("Aguardando o servidor há 2 s"));
    }
    const Waiting server(teller);
    EXPECT_EQ(line(), "");
    EXPECT_TRUE(counts("Aguardando o servidor há 1 s"));
}

TEST_F(TellerTest, WhatIsDoneDuringAWaitShowsAfterIt) {
    {
        const Waiting server(teller);
        EXPECT_TRUE(counts("Aguardando o servidor há 1 s"));
        teller.done("Ordem 1 gravada");
        EXPECT_EQ(line().rfind("Aguardando", 0), 0U);
    }
    EXPECT_EQ(line(), "10:32 Ordem 1 gravada");
}

}  // namespace
}  // namespace tarn::test
