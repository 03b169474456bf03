#include "notes/fields.h"

#include "common/valor_extenso.h"
#include "notes/run.h"
#include "runtime/mask.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

// A rule without a case must not compile, whatever the build makes of warnings.
#pragma GCC diagnostic error "-Wswitch"

namespace tarn::notes {
namespace {

constexpr std::string_view companyMask = "@@.@@@.@@@/@@@@-@@";
constexpr std::string_view personMask = "@@@.@@@.@@@-@@";
constexpr NumberMask digitsMask = "#";

bool isEntry(Run& run) {
    return leftOf(run.document.text(Source::Ent_Sai), 1) == "E";
}

// The last `digits` characters, zeros in front.
std::string zerosBefore(std::string_view text, std::size_t digits) {
    std::string padded(digits, '0');
    padded += text;
    return std::string(rightOf(padded, digits));
}

std::string taxNumber(Run& run) {
    const bool person = run.document.text(Source::IC_TIP_PES) == "F";
    const std::string_view number = run.document.text(Source::CGC_CPF);
    return person ? fillMask(zerosBefore(number, 11), personMask)
                  : fillMask(zerosBefore(number, 14), companyMask);
}

// Leading zeros drop out before the mask, so they leave blanks.
std::string carrierTaxNumber(Run& run) {
    return fillMask(formatText(run.document.text(Source::NR_CGC_CPL_TRP), digitsMask), companyMask);
}

std::string_view appendPostalCode(std::string& out, std::string_view code) {
    const std::string digits = zerosBefore(code, 8);
    return out.append(leftOf(digits, 5)).append("-").append(rightOf(digits, 3));
}

// An amount that is only masked: empty stays empty.
void appendAmount(std::string& out, Source source, NoteDocument& document, const NumberMask& mask) {
    const std::string_view amount = document.amount(source);
    if (!amount.empty() && !appendText(out, amount, mask)) {
        refuseNumber(source, document.text(source));
    }
}

// VL_DSC in per cent of the line total; it isn't looked at when there is no total.
double discountOf(Run& run) {
    const double total = run.item.lineTotal;
    return total > 0 ? run.document.number(Source::VL_DSC) * 100 / total : 0.0;
}

double productTotal(Run& run) {
    return run.document.number(Source::VALOR_TOTAL) - run.document.number(Source::VALOR_TOTAL_DESC);
}

// The rate of the tax credit stands in the form's preprinted sentence; it belongs
// to two companies of the server.
constexpr double creditRate = 1.86;

bool hasCreditRate(Run& run) {
    const std::string_view company = trimBlanks(run.document.text(Source::ID_EMP_TARN));
    return company == "3681" || company == "541";
}

double taxCredit(Run& run) {
    const double rate = hasCreditRate(run) ? creditRate : 0.0;
    return run.document.number(Source::VL_IMPOSTO_CREDITAR) * rate / 100;
}

void appendObservation(std::string& out, Run& run) {
    const std::string_view observation = run.document.text(Source::DC_OBS);
    if (!observation.empty()) {
        out.append(observationLabel).append(observation);
    }
}

// From `out` when it had to be made there, else straight from the document.
std::string_view valueOf(std::string& out, const Field& field, Run& run) {
    NoteDocument& document = run.document;
    const auto masked = [&](double number) -> std::string_view {
        appendNumber(out, number, field.mask);
        return out;
    };
    const auto maskedAmount = [&](Source source) -> std::string_view {
        appendAmount(out, source, document, field.mask);
        return out;
    };
    const auto insteadOfZero = [&](std::string_view other) {
        const std::string_view text = document.text(field.source);
        return text == "0" ? other : text;
    };
    switch (field.rule) {
        case Rule::AsText:
            return document.text(field.source);
        case Rule::AsAmount:
            return document.amount(field.source);
        case Rule::Masked:
            return maskedAmount(field.source);
        case Rule::MaskedText:
            return out += formatText(document.text(field.source), field.mask);
        case Rule::PostalCode:
            return appendPostalCode(out, document.text(field.source));
        case Rule::BlankZero:
            return insteadOfZero("");
        case Rule::FourZeros:
            return insteadOfZero("0000");
        case Rule::TaxNumber:
            return out += taxNumber(run);
        case Rule::CarrierTaxNumber:
            return out += carrierTaxNumber(run);
        case Rule::Quantity:
            return masked(run.item.quantity);
        case Rule::General:
            return out += numberText(run.item.quantity);
        case Rule::OriginTax:
            out += document.text(Source::IC_ORI_PRO);
            return out += document.text(Source::SIT_TRI);
        case Rule::LineTotal:
            return masked(run.item.lineTotal);
        case Rule::Discount:
            return masked(discountOf(run));
        case Rule::ParcelDocument:
            return document.text(ofParcel(Source::NR_DOC1, run.parcel));
        case Rule::ParcelAmount:
            return maskedAmount(ofParcel(Source::VL_PRN_DOC1, run.parcel));
        case Rule::ParcelDue:
            return document.text(ofParcel(Source::DT_VNC_DOC1, run.parcel));
        case Rule::ParcelNumber:
            return out.append(std::to_string(run.parcel)).append(")");
        case Rule::FormText:
            return {};
        case Rule::Mark:
            return "X";
        case Rule::EntryOrExit:
            return isEntry(run) ? "ENTRADA" : "SAÍDA";
        case Rule::NoteNumber:
            return run.noteNumber;
        case Rule::ProductTotal:
            return masked(productTotal(run));
        case Rule::QuantitySum:
            return out += numberText(run.quantitySum);
        case Rule::WeightSum:
            return masked(run.weightSum);
        case Rule::AmountInWords:
            return out += ValorExtenso(document.number(Source::VALOR_TOT_NF));
        case Rule::LegalText:
            return midOf(legalTextOf(run), field.start, field.length);
        case Rule::Observation:
            appendObservation(out, run);
            return out = midOf(out, field.start, field.length);
        case Rule::ClassLine:
            return run.classes;
        case Rule::TaxCredit:
            return masked(taxCredit(run));
        case Rule::TaxCreditRate:
            return hasCreditRate(run) ? "1,86" : "";
        case Rule::LastServiceRate:
            return masked(run.services.lastRate);
        case Rule::ServiceTaxSum:
            return masked(run.services.taxSum);
        case Rule::ServiceSum:
            return masked(run.services.sum);
    }
    return {};
}

void appendFormField(std::string& line, const Field& field, int column, Run& run) {
    run.value.clear();
    if (field.width == 0) {
        if (run.losses != nullptr && field.length > 0) {
            run.losses->piece(field, column);
        }
        line += field.label;  // the form's own text goes as it is
        appendBlankingControls(line, valueOf(run.value, field, run));
        return;
    }
    std::string_view value = field.label;
    if (field.label.empty()) {
        value = valueOf(run.value, field, run);
    } else if (field.source != Source::Literal) {
        std::string scratch;
        const std::string_view behind = valueOf(scratch, field, run);
        run.value.append(field.label).append(behind);
        value = run.value;
    }
    if (run.losses != nullptr) {
        run.losses->field(field, column, run.parcel, value);
    }
    appendField(line, value, field.width, field.right);
}

}  // namespace

int appendFields(std::string& line, int column, std::span<const Field> fields, Run& run) {
    for (const Field& field : fields) {
        const bool entry = field.source == Source::Mark && isEntry(run);
        const int start = entry ? field.entryColumn : field.column;
        line.append(static_cast<std::size_t>(start - column), ' ');
        appendFormField(line, field, start, run);
        column = start + (field.width > 0 ? field.width : field.room);
    }
    return column;
}

void closeTexts(Run& run) {
    if (run.losses == nullptr) {
        return;
    }
    run.losses->item(0);
    run.losses->pieces(Source::LegalText, legalTextOf(run));
    std::string observation;
    appendObservation(observation, run);
    run.losses->pieces(Source::Observation, observation);
}

const std::string& legalTextOf(Run& run) {
    if (run.legalTextJoined) {
        return run.legalText;
    }
    run.legalText = run.legalTexts.joined();
    const std::string_view observation =
        run.observation == Joined::Nothing ? "" : run.document.text(Source::DC_OBS);
    if (!observation.empty()) {
        if (run.observation == Joined::SeparatedLabelled) {
            run.legalText += legalSeparator;
        }
        if (run.observation != Joined::Bare) {
            run.legalText += observationLabel;
        }
        run.legalText += observation;
    }
    run.legalTextJoined = true;
    return run.legalText;
}

}  // namespace tarn::notes
