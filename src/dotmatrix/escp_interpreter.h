// A printer of the ESC/P family: takes the bytes of raw jobs, in pieces of any size,
// and prints on continuous paper. There is no invalid input: every byte string gives some paper.
//
// State outlives a job, as it does in a printer that is not switched off between two:
// a set-up job that selects condensed print holds for the job after it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "dotmatrix/continuous_paper.h"
#include "dotmatrix/dialect.h"
#include "dotmatrix/escp_tables.h"
#include "dotmatrix/print_head.h"
#include "dotmatrix/print_notice.h"

namespace tarn::dotmatrix {

// Everything that the bytes so far have set in the printer, but for the paper.
struct PrinterState : HeadState {
    enum class Waiting { Text, Escape, Parameters, ListEnd, Data };

    Waiting waiting = Waiting::Text;
    CommandShape shape;
    std::string command;  // the bytes of the command so far, ESC first
    std::size_t missing = 0;
};

class EscpInterpreter {
public:
    // The paper must have been made with the dialect's form height and outlive this.
    EscpInterpreter(ContinuousPaper& paper, const Dialect& dialect);
    // Goes on with a printer in that state; the paper must be where it was then.
    EscpInterpreter(ContinuousPaper& paper, const Dialect& dialect, PrinterState state);

    EscpInterpreter(const EscpInterpreter&) = delete;
    EscpInterpreter& operator=(const EscpInterpreter&) = delete;

    // A new job goes on where the head is, also in the middle of a line.
    void startJob();
    void feed(std::string_view bytes);

    // What whoever stands at the printer does between two jobs: the paper is let through to
    // the next perforation, unless it is there; or another paper is laid in there, and the
    // panel set for it. A printer that is switched off and on meanwhile forgets what the jobs
    // before have set.
    void feedToTop();
    void changePaper(const Dialect& panel, bool switchedOn);

    const PrinterState& state() const { return state_; }
    const NoticeLog& notices() const { return notices_; }

private:
    using Waiting = PrinterState::Waiting;

    void take(std::uint8_t byte);
    void takeText(std::uint8_t byte);
    void takeControl(std::uint8_t code, std::uint8_t byte);
    void takeEscape(std::uint8_t byte);
    void takeParameter(std::uint8_t byte);
    void finishCommand();
    void execute();
    void executeFeed(std::uint8_t parameter);
    void setFormLines(std::uint8_t lines);
    void setFormInches(std::uint8_t inches);
    void reset();

    ContinuousPaper& paper_;
    Dialect dialect_;
    NoticeLog notices_;
    PrinterState state_;
    PrintHead head_;
};

}  // namespace tarn::dotmatrix
