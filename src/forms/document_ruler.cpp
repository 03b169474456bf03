#include "forms/document_ruler.h"

#include <algorithm>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "billing/order_sheet.h"
#include "cheques/imprime_cheque.h"
#include "common/field_watch.h"
#include "common/raw_channel.h"
#include "common/ruler_marks.h"
#include "dotmatrix/control_codes.h"
#include "forms/document_forms.h"
#include "forms/document_samples.h"
#include "labels/raw_form.h"
#include "platform/no_paper.h"
#include "slips/slip_layouts.h"

namespace tarn::dotmatrix {

namespace {

constexpr std::string_view lineEnd = "\r\n";
constexpr int plainColumns = 80;
constexpr int plainLines = 65;  // a sheet's but the last, so that it doesn't go on to the next

bool commands(std::string_view body) {
    return std::ranges::any_of(body, [](char c) { return static_cast<unsigned char>(c) < ' '; });
}

// "ESC A n", "ESC 0" and the like: the rows are no longer a sixth of an inch apart.
bool setsSpacing(std::string_view body) {
    const std::size_t at = body.find(static_cast<char>(escape));
    return at != std::string_view::npos && at + 1 < body.size() &&
           std::string_view("0A3").find(body[at + 1]) != std::string_view::npos;
}

// Takes a document's calls and keeps them with marks instead of its texts. Each call is a write.
class RulerTracer : public NoPaper, public FieldWatch {
public:
    // Without a reach it only looks how far the fields go.
    explicit RulerTracer(int reach) : reach_(reach) {}

    int reach() const { return reach_; }
    const std::vector<std::vector<std::string>>& jobs() const { return jobs_; }

    void placed(std::span<const PlacedField> fields) override {
        fields_.assign(fields.begin(), fields.end());
    }
    bool startDocument(const JobDescription& /*job*/) override {
        jobs_.emplace_back();
        line_ = 1;
        column_ = 1;
        return true;
    }
    std::size_t write(std::string_view bytes) override {
        std::size_t ends = 0;
        std::string_view body = bytes;
        for (; body.ends_with(lineEnd); ++ends) {
            body.remove_suffix(lineEnd.size());
        }
        std::string call = commands(body) ? std::string(body) : marked(body, ends > 0);
        spacing_ = spacing_ || setsSpacing(body);
        column_ += commands(body) ? 1 : static_cast<int>(body.size());
        for (; ends > 0; --ends) {
            call += lineEnd;
            ++line_;
            column_ = 1;
            if (ends > 1 && !spacing_) {
                call += ' ' + rulerLine(line_, reach_);
            }
        }
        jobs_.back().push_back(std::move(call));
        return bytes.size();
    }

private:
    // Blanks as long as the call's text, with corners in them; a line without any is the ruler's.
    std::string marked(std::string_view body, bool endsLine) {
        if (fields_.empty() && column_ == 1 && endsLine && !spacing_) {
            return ' ' + rulerLine(line_, reach_);
        }
        std::string call(body.size(), ' ');
        for (const PlacedField& field : fields_) {
            const auto from = static_cast<std::size_t>(field.column);
            const auto width = static_cast<std::size_t>(field.width);
            call.resize(std::max(call.size(), from + width), ' ');
            call.replace(from, width, boxCorners(line_, column_ + field.column, field.width));
            reach_ = std::max(reach_, column_ + field.column + field.width - 1);
        }
        fields_.clear();
        // What goes beyond the text would push the next call of the line away.
        return endsLine ? call : call.substr(0, body.size());
    }

    int reach_;
    std::vector<std::vector<std::string>> jobs_;
    std::vector<PlacedField> fields_;  // of the next call
    int line_ = 1;
    int column_ = 1;  // of the next call, its blank
    bool spacing_ = false;
};

using Print = std::function<void(RawChannel&)>;

// Nothing where it isn't one of these.
Print sampleOf(std::string_view form) {
    for (const std::int32_t bank : slipBanks) {
        if (form == slipFormName(bank, true)) {
            return printSampleOfWallet57;
        }
        if (form == slipFormName(bank, false)) {
            return printSampleOfOtherWallets;
        }
    }
    for (const std::int16_t bank : {chequeBank33, std::int16_t{0}}) {
        if (form == chequeFormName(bank)) {
            return [bank](RawChannel& channel) { printSampleCheque(channel, bank); };
        }
    }
    if (form == orderFormName(priceSheetCompany)) {
        return printSamplePriceSheet;
    }
    return form == labels::labelFormOnPaper ? printSampleLabels : Print();
}

RulerTracer ruled(const Print& print, int reach) {
    RulerTracer tracer(reach);
    RawChannel channel(tracer, CodePage::Page1252);
    channel.watch(tracer);
    print(channel);
    return tracer;
}

std::vector<std::vector<std::string>> rulerJobs(std::string_view form) {
    if (const Print print = sampleOf(form)) {
        return ruled(print, ruled(print, 0).reach()).jobs();
    }
    std::vector<std::string> sheet;
    for (int line = 1; line <= plainLines; ++line) {
        sheet.push_back(' ' + rulerLine(line, plainColumns) + std::string(lineEnd));
    }
    return {sheet};
}

}  // namespace

bool printDocumentRuler(std::string_view form, RawChannel& channel) {
    const std::vector<NamedDocumentForm> forms = documentForms();
    const auto known = std::ranges::find(forms, form, &NamedDocumentForm::name);
    if (known == forms.end()) {
        return false;
    }
    channel.announce({.document = known->document, .form = known->name, .itemLines = {}});
    for (const std::vector<std::string>& job : rulerJobs(form)) {
        channel.open();
        for (std::string call : job) {
            channel.ImprimeRaw(0, call, 0);
        }
        channel.close();
    }
    return true;
}

}  // namespace tarn::dotmatrix
