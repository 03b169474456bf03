// Every call of both printing seams failing, at its first time, its last and always, under
// every document: nothing hangs, what the clerk is told anyhow stays as it is, and the status
// bar says what became of the paper.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

#include "tests/desk/printed_documents.h"

namespace tarn::test {
namespace {

using Call = RecordingSpooler::Call;

enum class When { First, Last, Always };
constexpr std::array moments{When::First, When::Last, When::Always};

bool comes(When when, std::size_t index, std::size_t count) {
    return when == When::Always || index == (when == When::First ? 0 : count - 1);
}

bool isSuccess(const Box& box) {
    return box.text.find("sucesso") != std::string::npos;
}

bool isFailure(const Box& box) {
    return box.text.find("impressora sem papel") != std::string::npos;
}

// Raw jobs

const std::map<Call, const char*> calls{
    {Call::Open, "openPrinter"},    {Call::StartDocument, "startDocument"},
    {Call::StartPage, "startPage"}, {Call::Write, "write"},
    {Call::EndPage, "endPage"},     {Call::EndDocument, "endDocument"},
    {Call::Close, "closePrinter"}};

// The document as it prints, with nothing wrong and with a fault.
class RawFault {
public:
    explicit RawFault(const PrintedDocument& document) : document_(document) {
        document.print(sound_);
        EXPECT_EQ(sound_.told().find("mas "), std::string::npos) << sound_.told();
        EXPECT_NE(sound_.told().find(" a Impressora de teste"), std::string::npos) << sound_.told();
    }

    std::size_t count(Call call) const {
        return static_cast<std::size_t>(std::ranges::count(sound_.machine.spooler.calls, call));
    }
    void expectTold(const std::string& obstacle) {
        document_.print(faulty_);
        EXPECT_EQ(faulty_.told(), document_.made + ", mas " + obstacle + ": " + document_.remedy);
        expectTheRestAsEver();
    }
    // The last call of all comes when the job has been handed over.
    void expectSent() {
        document_.print(faulty_);
        EXPECT_EQ(faulty_.told(), sound_.told());
        expectTheRestAsEver();
    }

    RecordingSpooler& spooler() { return faulty_.machine.spooler; }

private:
    // Nobody looks at a spooler's results: same calls, same requests, same boxes.
    void expectTheRestAsEver() const {
        EXPECT_EQ(faulty_.machine.spooler.calls, sound_.machine.spooler.calls);
        EXPECT_EQ(faulty_.machine.boxes.shown, sound_.machine.boxes.shown);
        EXPECT_EQ(faulty_.machine.loader.addresses, sound_.machine.loader.addresses);
        EXPECT_TRUE(faulty_.machine.printer.lines().empty() || document_.name.starts_with("label"));
    }

    const PrintedDocument& document_;
    PrintingDesk sound_;
    PrintingDesk faulty_;
};

constexpr char refused[] = "a impressora Impressora de teste recusou o trabalho";

TEST(PrinterFaults, OfRawJobsIn207Cases) {
    int cases = 0;
    for (const PrintedDocument& document : rawDocuments()) {
        for (const auto& [call, name] : calls) {
            for (const When when : moments) {
                SCOPED_TRACE(document.name + ", " + name + ", " +
                             std::to_string(static_cast<int>(when)));
                RawFault fault(document);
                const std::size_t count = fault.count(call);
                ASSERT_GT(count, 0U);
                fault.spooler().refuses = [=, &call = call](Call called, std::size_t index) {
                    return called == call && comes(when, index, count);
                };
                call == Call::Close ? fault.expectSent() : fault.expectTold(refused);
                ++cases;
            }
        }
        {
            SCOPED_TRACE(document.name + ", no default printer");
            RawFault fault(document);
            fault.spooler().printer.clear();
            fault.expectTold("esta máquina não tem impressora padrão");
        }
        {
            SCOPED_TRACE(document.name + ", a service that doesn't answer");
            RawFault fault(document);
            fault.spooler().silent = true;
            fault.expectTold("o serviço de impressão desta máquina não responde");
        }
        cases += 2;
    }
    EXPECT_EQ(cases, 207);
}

// Drawn pages

constexpr std::array<const char*, std::variant_size_v<PrintOperation>> operations{
    "scale", "orientation", "copies", "text", "line", "picture", "new page", "end of document"};
constexpr std::size_t firstThatFails = 3;  // what comes before only sets the page up
constexpr std::size_t text = 3;

class DrawnFault {
public:
    explicit DrawnFault(const PrintedDocument& document) : document_(document) {
        document.print(sound_);
        EXPECT_EQ(sound_.told().find("mas "), std::string::npos) << sound_.told();
    }

    std::size_t count(std::size_t kind) const {
        return static_cast<std::size_t>(
            std::ranges::count(sound_.machine.printer.operations, kind, &PrintOperation::index));
    }
    void refuse(std::function<bool(std::size_t kind, std::size_t index)> refuses) {
        faulty_.machine.printer.refuses =
            [this, refuses = std::move(refuses)](const PrintOperation& operation) {
                return refuses(operation.index(), seen_[operation.index()]++);
            };
    }
    void print() {
        document_.print(faulty_);
        EXPECT_EQ(faulty_.told(),
                  document_.made + ", mas impressora sem papel: " + document_.remedy);
        EXPECT_EQ(faulty_.machine.printer.lines(), sound_.machine.printer.lines())
            << "the run goes on";
        EXPECT_EQ(faulty_.machine.loader.addresses, sound_.machine.loader.addresses);
    }
    void expectBoxes(std::size_t failures) const {
        const std::vector<Box>& shown = faulty_.machine.boxes.shown;
        EXPECT_EQ(static_cast<std::size_t>(std::ranges::count_if(shown, isFailure)), failures)
            << testing::PrintToString(shown);
    }
    // Where the box of success stands: not at all, or before what is told of its failure.
    void expectNoSuccessAfterFailure() const {
        const std::vector<Box>& shown = faulty_.machine.boxes.shown;
        const auto failure = std::ranges::find_if(shown, isFailure);
        EXPECT_TRUE(std::none_of(failure, shown.end(), isSuccess)) << testing::PrintToString(shown);
        EXPECT_TRUE(document_.successFirst || std::ranges::none_of(shown, isSuccess));
    }
    void expectSuccessAsEver() const {
        EXPECT_EQ(std::ranges::count_if(faulty_.machine.boxes.shown, isSuccess),
                  std::ranges::count_if(sound_.machine.boxes.shown, isSuccess));
    }

private:
    const PrintedDocument& document_;
    PrintingDesk sound_;
    PrintingDesk faulty_;
    std::map<std::size_t, std::size_t> seen_;  // so many of each kind
};

void expectKind(const PrintedDocument& document, std::size_t kind, When when) {
    SCOPED_TRACE(document.name + ", " + operations[kind] + ", " +
                 std::to_string(static_cast<int>(when)));
    DrawnFault fault(document);
    const std::size_t count = fault.count(kind);
    fault.refuse([=](std::size_t called, std::size_t index) {
        return called == kind && comes(when, index, count);
    });
    fault.print();
    if (kind != text) {
        fault.expectNoSuccessAfterFailure();
    } else {
        fault.expectBoxes(!document.tellsTexts ? 0 : when == When::Always ? count : 1);
        if (when != When::Always) {
            fault.expectSuccessAsEver();  // one text less
        } else if (document.tellsTexts) {
            fault.expectNoSuccessAfterFailure();
        }
    }
}

TEST(PrinterFaults, OfDrawnPagesIn99Cases) {
    int cases = 0;
    for (const PrintedDocument& document : drawnDocuments()) {
        const DrawnFault sound(document);
        for (std::size_t kind = firstThatFails; kind < operations.size(); ++kind) {
            for (const When when : moments) {
                if (sound.count(kind) > 0) {
                    expectKind(document, kind, when);
                    ++cases;
                }
            }
        }
        SCOPED_TRACE(document.name + ", nothing at all is taken");
        DrawnFault fault(document);
        fault.refuse([](std::size_t kind, std::size_t) { return kind >= firstThatFails; });
        fault.print();
        fault.expectNoSuccessAfterFailure();
        ++cases;
    }
    EXPECT_EQ(cases, 99);
}

}  // namespace
}  // namespace tarn::test
