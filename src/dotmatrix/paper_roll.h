// The paper of a printer that runs all day: the bytes of its jobs lie in a file that
// nobody else sees, and a form is printed again from them when it is looked at. What is
// held in memory is the last form, the forms looked at lately, and a mark every few
// pages from which printing can go on.
#pragma once

#include <QTemporaryFile>
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

    // A job goes on where the paper is. Bytes before the first job make one
    // without a name.
    void startJob(std::string name);
    // Prints the bytes; nothing, or why they could not be kept (they are then not
    // printed either), in the words of the operating system.
    std::optional<QString> feed(std::string_view bytes);

    const Dialect& dialect() const { return dialect_; }
    // All jobs again, on a printer that is set up otherwise.
    void setDialect(const Dialect& dialect);
    // The paper so far is taken away, up to the next perforation. The printer stays as
    // it is; an unfinished job goes on, under its name, on the new paper.
    void tearOff(bool jobGoesOn);

    const FormTable& forms() const { return paper_->forms(); }
    std::size_t printedForms() const { return paper_->printedForms(); }
    PaperUnits contentWidth() const { return paper_->contentWidth(); }
    PaperUnits headY() const { return paper_->y(); }
    const std::vector<RollJob>& jobs() const { return jobs_; }
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
    void begin(const PaperPosition& position, PrinterState state);
    std::optional<QString> keep(std::string_view bytes);
    void printLive(std::string_view bytes);
    void markHere();
    bool canMarkHere() const;
    RollBytes kept() const { return {*bytes_, jobs_, length_}; }
    const RollMark& markBefore(std::size_t form) const;
    FormPage printAgain(std::size_t form);

    Dialect dialect_;
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
