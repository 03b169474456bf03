// The paper of a printer that runs all day: the bytes of its jobs lie in a file that
// nobody else sees, and a form is printed again from them when it is looked at. What is
// held in memory is the last form, the forms looked at lately, and a mark every few
// pages from which printing can go on.
#pragma once

#include <QTemporaryFile>
#include <algorithm>
#include <cstddef>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dotmatrix/continuous_paper.h"
#include "dotmatrix/dialect.h"
#include "dotmatrix/escp_interpreter.h"
#include "dotmatrix/roll_printing.h"

namespace tarn::dotmatrix {

class PaperRoll {
public:
    explicit PaperRoll(const Dialect& dialect);

    // A job goes on where the paper is, or, where the paper that it is known to go on is
    // another, at the top of that. Bytes before the first job make one without a name.
    void startJob(std::string name, JobPaper paper = {});
    // Prints the bytes; nothing, or why they could not be kept (they are then not
    // printed either), in the words of the operating system.
    std::optional<QString> feed(std::string_view bytes);

    const Dialect& dialect() const { return dialect_; }
    // All jobs again, on a printer that is set up otherwise, and all on one paper.
    void setDialect(const Dialect& dialect);
    // All jobs again, each on the paper that it is known to go on; `dialect` is the panel
    // until the first of them.
    void followJobs(const Dialect& dialect);
    bool followsJobs() const { return follows_; }
    // What is pre-printed on a form; null where no job has said.
    std::shared_ptr<const FormDesign> designOf(std::size_t form) const;
    // The paper so far is taken away, up to the next perforation. The printer stays as
    // it is; an unfinished job goes on, under its name, on the new paper.
    void tearOff(bool jobGoesOn);

    const FormTable& forms() const { return paper_->forms(); }
    std::size_t printedForms() const { return paper_->printedForms(); }
    // Of the print and of what is pre-printed on the widest paper, or on that of one form.
    PaperUnits contentWidth() const { return std::max(paper_->contentWidth(), widest_); }
    PaperUnits contentWidth(std::size_t form) const;
    PaperUnits headY() const { return paper_->y(); }
    const std::vector<RollJob>& jobs() const { return jobs_; }
    // Those that print or feed: a note, with the job that sets its printer up, is one.
    std::size_t shownJobs() const;
    const NoticeLog& notices() const { return printer_->notices(); }
    // Bytes of jobs that the paper is kept by.
    qint64 length() const { return length_; }
    // Changes when the paper does, also on the form that was there before.
    std::size_t version() const { return version_; }

    // Empty where the bytes can't be read again. Forms asked for in their order cost the
    // printing of their bytes, each other one up to a mark's distance.
    std::shared_ptr<const FormPage> page(std::size_t form);
    // For files; `this` must outlive the result.
    PaperPages pages();

private:
    // The paper from one form on.
    struct Laid {
        std::size_t form = 0;
        std::shared_ptr<const FormDesign> design;
        PaperUnits width = 0;  // of its content; of the last one, of what is pre-printed
    };

    void begin(const PaperPosition& position, PrinterState state);
    void printAllAgain(const Dialect& dialect);
    void feedForJob(RollJob& job);
    void lay(std::shared_ptr<const FormDesign> design);
    const Laid& laidUnder(std::size_t form) const;
    std::optional<QString> keep(std::string_view bytes);
    void printLive(std::string_view bytes);
    void markHere();
    bool canMarkHere() const;
    RollBytes kept() const { return {*bytes_, jobs_, length_}; }
    const RollMark& markBefore(std::size_t form) const;
    FormPage printAgain(std::size_t form);

    Dialect dialect_;  // the panel without a form
    Dialect panel_;    // as it is now
    bool follows_ = true;
    std::shared_ptr<const FormDesign> present_;
    std::shared_ptr<const FormDesign> first_;  // that the paper begins with
    std::vector<Laid> laid_;                   // in the order of the forms, from 0 on
    PaperUnits widest_ = 0;                    // of `laid_`
    std::unique_ptr<QTemporaryFile> bytes_;
    qint64 length_ = 0;  // bytes taken in
    qint64 printed_ = 0;
    std::unique_ptr<ContinuousPaper> paper_;
    std::unique_ptr<EscpInterpreter> printer_;
    std::vector<RollJob> jobs_;
    std::vector<RollMark> marks_;
    std::list<std::shared_ptr<const FormPage>> seen_;  // the latest first
    std::optional<RollPrinting> again_;
    std::size_t version_ = 0;
};

}  // namespace tarn::dotmatrix
