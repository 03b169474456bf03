// The bytes of a paper roll printed a second time, form after form, from a place where the
// state of the printer is known.
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dotmatrix/continuous_paper.h"
#include "dotmatrix/dialect.h"
#include "dotmatrix/escp_interpreter.h"
#include "dotmatrix/form_design.h"

namespace tarn::dotmatrix {

// A text that the document cut before it printed, by the word of the job's sender.
struct CutText {
    int line = 0;    // from the job's first, from 1; 0 where it has none
    int column = 0;  // printed, from 1; 0 where it has none
    std::string what{};
};

// The paper that a job is known to go on; no form: it isn't known.
struct JobPaper {
    std::shared_ptr<const FormDesign> form{};
    // The job's sender says so; else its bytes do, and what its set-up job has done to the
    // printer holds.
    bool told = true;
    std::optional<std::vector<CutText>> cuts{};  // nothing where the sender doesn't tell
};

// What is done at the printer ahead of a job.
struct JobFeed {
    enum class Way { GoesOn, ToTop, OtherPaper };

    Way way = Way::GoesOn;
    Dialect panel{};  // for the other paper
    bool switchedOn = false;
};

void feedFor(const JobFeed& feed, EscpInterpreter& printer);

struct RollJob {
    std::string name;
    std::size_t form = 0;  // where it begins, from 0
    PaperUnits y = 0;
    qint64 offset = 0;  // of its first byte among all bytes
    JobPaper paper{};
    JobFeed feed{};
    bool shows = false;  // it prints or feeds; one that doesn\'t is there for the job behind it
};

// What a roll has taken in. All must outlive those who read it.
struct RollBytes {
    QIODevice& device;
    const std::vector<RollJob>& jobs;
    const qint64& length;  // bytes behind it in the device count for nothing
};

// A place from which printing can go on; nothing is printed yet in the row it is in.
struct RollMark {
    qint64 offset = 0;
    PaperPosition position;
    Dialect panel;
    bool atEmptyForm = true;  // else only the forms behind the present one can be had whole
    PrinterState state;

    std::size_t firstWholeForm() const { return position.form + (atEmptyForm ? 0 : 1); }
};

// Reads the bytes in order, in pieces that end where a job begins.
class RollReader {
public:
    RollReader(const RollBytes& bytes, qint64 from);

    // The next piece, good until the next call; empty at the end, or where the device fails.
    // `startJob` is told before it of each job, by its index, that begins there.
    std::string_view next(const std::function<void(std::size_t)>& startJob);
    qint64 offset() const { return at_; }  // of what comes next

private:
    RollBytes bytes_;
    qint64 at_;
    std::size_t job_;  // the next to begin
    QByteArray piece_;
};

class RollPrinting {
public:
    RollPrinting(const RollBytes& bytes, const RollMark& from);

    // The forms that can still be had: those from this one on.
    std::size_t firstForm() const { return firstForm_; }
    qint64 offset() const { return reader_.offset() - static_cast<qint64>(piece_.size()); }
    // `form` is not below firstForm(). Empty where the bytes can't be read again.
    FormPage page(std::size_t form);

private:
    bool printByte();  // false at the end
    void printUntilBehind(std::size_t form);

    std::size_t firstForm_;
    ContinuousPaper paper_;
    EscpInterpreter printer_;
    const std::vector<RollJob>& jobs_;
    RollReader reader_;
    std::string_view piece_;  // not yet printed
};

}  // namespace tarn::dotmatrix
