// A desk before one command under one fault: where it stands, what the clerk does, and what
// the clerk then reads.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "tests/e2e/note_faults.h"
#include "tests/support/loopback_server.h"

namespace tarn::test {

struct MatrixFault {
    const char* name;
    Left left;
    bool carriedOut;                // the command, by the server
    std::optional<FaultKind> kind;  // none: nobody listens
};

inline constexpr std::array matrixFaults{
    MatrixFault{"refused", Left::Nothing, false, std::nullopt},
    MatrixFault{"reset before", Left::Nothing, false, FaultKind::ResetBefore},
    MatrixFault{"reset within the head", Left::Nothing, true, FaultKind::ResetWithinHead},
    MatrixFault{"reset within the body", Left::Nothing, true, FaultKind::ResetWithinBody},
    MatrixFault{"404", Left::Nothing, false, FaultKind::NotFound},
    MatrixFault{"500", Left::Nothing, false, FaultKind::ServerError},
    MatrixFault{"206", Left::Nothing, true, FaultKind::Partial},
    MatrixFault{"empty", Left::Nothing, true, FaultKind::Empty},
    MatrixFault{"html", Left::Nothing, true, FaultKind::Html},
    MatrixFault{"cut", Left::Nothing, true, FaultKind::CutXml},
    MatrixFault{"larger than the limit", Left::Nothing, true, FaultKind::Huge},
    MatrixFault{"slow", Left::All, true, FaultKind::Slow},
    MatrixFault{"refusal", Left::Refusal, false, FaultKind::Refuse},
    MatrixFault{"no declaration", Left::NoDeclaration, true, FaultKind::NoDeclaration}};

// What the clerk reads, box by box; "%1" stands for the order, note or cheque at hand.
struct Told {
    std::vector<Box> boxes = {};
    bool ends = false;    // the program, by the run time's report
    bool quits = false;   // it ends in peace
    bool paper = false;   // comes, with an answer or without
    bool goesOn = false;  // to commands that write, and to paper
    bool shows = false;   // other values, in the fields that the row names
};

class MatrixDesk : public NoteFaults {
public:
    using Work = std::function<void(QWidget& screen)>;

    explicit MatrixDesk(bool loggedOn) : loggedOn_(loggedOn) {
        SetUp();
        network.detour.instead = [this](const std::string& address) { return wayOf(address); };
    }
    ~MatrixDesk() override {
        network.detour.instead = nullptr;
        TearDown();
    }

    // Of the requests for this command from now on; nothing is asked, shown, printed yet.
    void begin(const char* command, const MatrixFault* fault);
    void heal() { begin("", nullptr); }
    std::size_t requests() const { return requests_; }
    std::vector<Box> shown() const { return boxes.shown; }
    bool printed() const { return !spooler.jobs.empty() || !printer.operations.empty(); }
    bool hasEnded() const { return end.ended(); }
    int endStatus() const { return end.status(); }
    // Another as soon as the server has written.
    std::string databaseVersion() { return stored("PRAGMA data_version", 1).front(); }
    std::vector<Box> withNumber(std::vector<Box> told) const;
    // What the fields, lists, ticks and labels of a screen hold, by their names.
    static std::map<std::string, std::string> valuesOf(const QWidget& screen);

    // Places; the work is done there.
    void beforeLogon(const Work& work) { work(menu); }
    void atLogon(const Work& work);
    void atDesk(const Work& work) { work(menu); }
    void atOrders(const Work& work);
    void atReprint(const Work& work);
    void atCancellation(const Work& work);
    void inBills(const Work& work);
    void inCustomers(const Work& work);
    void inSlips(const Work& work);
    void inCheques(const Work& work);
    void inQueue(const Work& work);
    void inSelection(const Work& work);

    // What the clerk does there, once.
    void start(QWidget&);
    void logIn(QWidget& logon);
    void openOrderList(QWidget&);
    void refreshOrders(QWidget&);
    void cancelOrder(QWidget&);
    void makeNoteOfOrder(QWidget&);
    void correctOrder(QWidget&);
    void printOrder(QWidget&);
    void openCancellation(QWidget&);
    void searchNote(QWidget&);
    void reprintNote(QWidget&);
    void findNoteToCancel(QWidget&);
    void cancelNote(QWidget&);
    void openBills(QWidget&);
    void searchBills(QWidget& screen);
    void searchCustomers(QWidget& dialog);
    void openSlips(QWidget&);
    void searchSlips(QWidget& screen);
    void tickCollection(QWidget& screen) { tick(screen, "DOCTO_COBRANCA"); }
    void tickReceivable(QWidget& screen) { tick(screen, "DOCTO_RECEBER"); }
    void printSlip(QWidget& screen);
    void openCheques(QWidget&);
    void fillCheque(QWidget& screen);
    void printCheque(QWidget& screen);
    void openQueue(QWidget&);
    void chooseReason(QWidget& queue);
    void printLabels(QWidget& queue);
    void deleteLabel(QWidget& queue);
    void openSelection(QWidget&);
    void chooseCountry(QWidget& selection);
    void chooseState(QWidget& selection);
    void searchAddressees(QWidget& selection);

protected:
    void SetUp() override;
    void TestBody() override {}

private:
    std::string wayOf(const std::string& address);
    void tick(QWidget& screen, const char* table);
    void openAndLeave(const char* window, const char* button, const std::function<void()>& open);

    bool loggedOn_;
    std::string command_;
    bool refuses_ = false;
    bool logonOpens_ = true;  // behind the check of the version
    std::size_t requests_ = 0;
    std::string number_;
    int cheques_ = 500;
    int slips_ = 0;
    LoopbackServer nobody_;
};

// One command, where it is sent and what comes of it.
struct MatrixRow {
    const char* command;
    void (MatrixDesk::*place)(const MatrixDesk::Work&);
    void (MatrixDesk::*act)(QWidget&);
    Told lost = {};        // no document comes of the answer
    Told refused = {};     // it refuses, or has no rows
    Told undeclared = {};  // it lacks the XML declaration
    Told whole = {};
    std::vector<std::string> changes = {};            // fields that may show another value then
    bool writes = false;                              // the command, when it is carried out
    bool rereads = false;                             // the list: what was carried out shows there
    bool others = false;                              // commands sent with it write too
    bool anew = false;                                // each fault meets a desk of its own
    void (MatrixDesk::*prepare)(QWidget&) = nullptr;  // before each act, the server sound
};

void PrintTo(const MatrixRow& row, std::ostream* out);

std::vector<MatrixRow> startRows();
std::vector<MatrixRow> noteRows();
std::vector<MatrixRow> documentRows();
std::vector<MatrixRow> labelRows();

}  // namespace tarn::test
