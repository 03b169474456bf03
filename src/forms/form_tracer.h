// Draws a form by printing on it: a document's own routine sends its bytes to a printer here,
// and wherever it places a field there is a box.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "common/field_watch.h"
#include "dotmatrix/continuous_paper.h"
#include "dotmatrix/escp_interpreter.h"
#include "dotmatrix/form_design.h"
#include "platform/no_paper.h"

namespace tarn::dotmatrix {

class FormTracer : public NoPaper, public FieldWatch {
public:
    explicit FormTracer(const FormPitch& pitch = {});

    // As far down as the document went.
    PaperUnits height() const { return paper_.y(); }
    // The first of several jobs, which sets the printer up.
    std::string setUp() const { return jobs_.size() > 1 ? jobs_.front() : std::string(); }
    // A box of one line that goes on with the one above, of its place and width, is part of it.
    std::vector<FormBox> boxes() const;

    void placed(std::span<const PlacedField> fields) override;

    bool startDocument(const JobDescription& job) override;
    std::size_t write(std::string_view bytes) override;

private:
    ContinuousPaper paper_;
    EscpInterpreter printer_;
    std::vector<FormBox> boxes_;
    std::vector<std::string> jobs_;
};

}  // namespace tarn::dotmatrix
