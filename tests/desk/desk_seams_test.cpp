#include "desk/desk_seams.h"

#include <gtest/gtest.h>

#include <QTest>
#include <sstream>

#include "common/raw_channel.h"
#include "tests/support/fixed_machine.h"
#include "tests/support/raw_line.h"
#include "tests/support/recording_printer.h"
#include "tests/support/recording_spooler.h"
#include "tests/support/scripted_boxes.h"
#include "tests/support/scripted_loader.h"
#include "widgets/program_end.h"
#include "widgets/teller.h"

namespace tarn::test {
namespace {

class DeskSeamsTest : public testing::Test {
protected:
    void print() { printLine(spooler, "x"); }
    // What is told of what was printed since the last time.
    std::string told() {
        teller.printed(
            {.sent = "Nota enviada", .made = "Nota gerada", .remedy = "imprima de novo"});
        return teller.line().toStdString().substr(6);
    }

    FixedClock clock;
    std::ostringstream errors;
    ProgramEnd end;
    Teller teller{clock, errors};
    ScriptedLoader realServer;
    RecordingSpooler realSpooler;
    RecordingPrinter realPrinter;
    ScriptedBoxes realBoxes;
    DeskLoader server{realServer, teller, end};
    DeskSpooler spooler{realSpooler, teller, end};
    DeskPrinter printer{realPrinter, teller, end};
    DeskBoxes boxes{realBoxes, end};
};

TEST_F(DeskSeamsTest, AJobThatWasTakenIsToldWithItsPrinter) {
    print();
    EXPECT_EQ(realSpooler.bytes(), " x\r\n");
    EXPECT_EQ(told(), "Nota enviada a Impressora de teste");
}

TEST_F(DeskSeamsTest, WithoutAPrinterThatIsTold) {
    realSpooler.printer = "";
    realSpooler.failOpen = 0;
    print();
    EXPECT_EQ(told(), "Nota gerada, mas esta máquina não tem impressora padrão: imprima de novo");
}

TEST_F(DeskSeamsTest, APrintServiceThatDoesntAnswerIsNoMissingPrinter) {
    realSpooler.silent = true;
    print();
    EXPECT_EQ(
        told(),
        "Nota gerada, mas o serviço de impressão desta máquina não responde: imprima de novo");
}

TEST_F(DeskSeamsTest, APrinterThatCantBeOpenedRefusedTheJob) {
    realSpooler.failOpen = 0;
    print();
    EXPECT_EQ(told(),
              "Nota gerada, mas a impressora Impressora de teste recusou o trabalho: imprima de "
              "novo");
}

TEST_F(DeskSeamsTest, OneRefusedWriteIsARefusal) {
    realSpooler.failWrite = 0;
    print();
    print();
    EXPECT_EQ(told(),
              "Nota gerada, mas a impressora Impressora de teste recusou o trabalho: imprima de "
              "novo");
    print();
    EXPECT_EQ(told(), "Nota enviada a Impressora de teste");
}

TEST_F(DeskSeamsTest, ClosingWhatWasntOpenIsNoRefusal) {
    printer.Print("x");
    RawChannel(spooler, CodePage::Page1252).close();
    printer.EndDoc();
    EXPECT_EQ(told(), "Nota enviada à impressora");
}

TEST_F(DeskSeamsTest, DrawnPagesAreToldInThePrintersOwnWords) {
    printer.Print("x");
    EXPECT_EQ(printer.EndDoc(), std::nullopt);
    EXPECT_EQ(told(), "Nota enviada à impressora");
    EXPECT_EQ(realPrinter.lines().size(), 2U);
    realPrinter.failAt = realPrinter.operations.size();
    realPrinter.failure.description = "esta máquina não tem impressora padrão. Defina uma.";
    EXPECT_NE(printer.Print("x"), std::nullopt);
    EXPECT_EQ(told(), "Nota gerada, mas esta máquina não tem impressora padrão: imprima de novo");
}

TEST_F(DeskSeamsTest, DrawsInTheFontAndThePlaceThatWereSet) {
    printer.FontName = "Courier New";
    printer.FontSize = 10;
    printer.FontBold = true;
    printer.CurrentX = 2;
    printer.CurrentY = 3;
    printer.Print("x");
    ASSERT_EQ(realPrinter.lines().size(), 1U);
    EXPECT_EQ(realPrinter.lines()[0], "text\t2.000\t3.000\tCourier New\t10\t1\tx");
}

// Counts a page while it puts it on paper.
class CountingPrinter : public RecordingPrinter {
public:
    std::optional<PrinterFailure> perform(const PrintOperation& operation) override {
        if (std::holds_alternative<DocumentEnd>(operation) && progress) {
            progress(7, 9);
        }
        return RecordingPrinter::perform(operation);
    }
};

TEST_F(DeskSeamsTest, TheRealPrintersProgressIsHandedOn) {
    CountingPrinter counting;
    DeskPrinter pages(counting, teller, end);
    std::size_t seen = 0;
    pages.progress = [&](std::size_t done, std::size_t) { seen = done; };
    pages.EndDoc();
    EXPECT_EQ(seen, 7U);
}

TEST_F(DeskSeamsTest, AfterTheEndEachLeavesTheRoutineThatWantsIt) {
    end.endProgram();
    EXPECT_THROW(server.get("http://s/?x"), ProgramEnded);
    EXPECT_THROW(server.load("http://s/?x", [](auto) { return true; }), ProgramEnded);
    EXPECT_THROW(boxes.show({"x"}), ProgramEnded);
    EXPECT_THROW(print(), ProgramEnded);
    EXPECT_THROW(printer.Print("x"), ProgramEnded);
    EXPECT_TRUE(realServer.addresses.empty());
    EXPECT_TRUE(realBoxes.shown.empty());
    EXPECT_TRUE(realSpooler.calls.empty());
    EXPECT_TRUE(realPrinter.operations.empty());
}

TEST_F(DeskSeamsTest, TheEndUnderABoxLeavesTheRoutineThatShowedIt) {
    realBoxes.onShow = [this](const Box&) { end.endProgram(); };
    EXPECT_THROW(boxes.show({"x"}), ProgramEnded);
    EXPECT_EQ(realBoxes.shown.size(), 1U);
}

TEST_F(DeskSeamsTest, AnAnswerIsHandedOn) {
    realServer.on("x", "<R/>");
    EXPECT_EQ(server.get("http://s/?x").body, "<R/>");
    EXPECT_TRUE(server.load("http://s/?x", [](auto body) { return body == "<R/>"; }));
    EXPECT_FALSE(server.load("http://s/?x", [](auto) { return false; }));
    realBoxes.answers = {BoxAnswer::No};
    EXPECT_EQ(boxes.show({"x", BoxIcon::Question, "t", BoxButtons::YesNo}), BoxAnswer::No);
}

}  // namespace
}  // namespace tarn::test
