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
    // The seconds that a line counts; 0 of one that counts none.
    static int secondsOf(const QString& line) {
        const QString beginning = QStringLiteral("Aguardando o servidor há ");
        const bool counts = line.startsWith(beginning) && line.endsWith(QStringLiteral(" s"));
        return counts ? line.sliced(beginning.size()).chopped(2).toInt() : 0;
    }
    // Waits for the count of a wait to say so much or more.
    bool counts(int seconds) {
        return QTest::qWaitFor([&] { return secondsOf(teller.line()) >= seconds; });
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
        const Waiting waiting(teller, "o servidor");
        EXPECT_EQ(line(), "10:32 Ordem 45112 gravada") << "a short wait isn't worth a word";
        const QSignalSpy changes(&teller, &Teller::lineChanged);
        EXPECT_TRUE(counts(3));
        int last = 0;
        for (const QList<QVariant>& change : changes) {
            const int seconds = secondsOf(change.first().toString());
            EXPECT_GT(seconds, last);
            last = seconds;
        }
    }
    EXPECT_EQ(line(), "10:32 Ordem 45112 gravada");
    EXPECT_EQ(errors.str(), "10:32 Ordem 45112 gravada\nAguardando o servidor\n");
}

TEST_F(TellerTest, EachWaitCountsFromItsOwnBeginning) {
    constexpr int longWait = 40;
    {
        const Waiting waiting(teller, "o servidor");
        EXPECT_TRUE(counts(longWait));
    }
    const Waiting waiting(teller, "o servidor");
    EXPECT_EQ(line(), "");
    const QSignalSpy changes(&teller, &Teller::lineChanged);
    EXPECT_TRUE(counts(1));
    EXPECT_LT(secondsOf(changes.first().first().toString()), longWait);
}

TEST_F(TellerTest, WhatIsDoneDuringAWaitShowsAfterIt) {
    {
        const Waiting waiting(teller, "o servidor");
        EXPECT_TRUE(counts(1));
        teller.done("Ordem 1 gravada");
        EXPECT_EQ(line().rfind("Aguardando", 0), 0U);
    }
    EXPECT_EQ(line(), "10:32 Ordem 1 gravada");
}

}  // namespace
}  // namespace tarn::test
