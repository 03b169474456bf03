#include "notes/fields.h"

#include "common/valor_extenso.h"
#include "notes/run.h"
#include "runtime/mask.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace tarn::notes {
namespace {

constexpr std::string_view companyMask = "@@.@@@.@@@/@@@@-@@";
constexpr std::string_view personMask = "@@@.@@@.@@@-@@";
constexpr NumberMask cfopMask = "#,#00";
constexpr NumberMask wholeMask = "#";

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
    return fillMask(formatText(run.document.text(Source::NR_CGC_CPL_TRP), wholeMask), companyMask);
}

void appendPostalCode(std::string& out, std::string_view code) {
    const std::string digits = zerosBefore(code, 8);
    out.append(leftOf(digits, 5)).append("-").append(rightOf(digits, 3));
}

// An amount that is only masked: empty stays empty.
void appendAmount(std::string& out, Source source, std::string_view amount,
                  const NumberMask& mask) {
    if (!amount.empty() && !appendText(out, amount, mask)) {
        refuseNumber(source, amount);
    }
}

void appendOriginTax(std::string& out, Run& run) {
    out.append(run.document.text(Source::IC_ORI_PRO));
    out.append(run.document.text(Source::SIT_TRI));
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

void appendComputed(std::string& out, const Field& field, Run& run) {
    switch (field.source) {
        case Source::LineTotal:
            return appendNumber(out, run.item.lineTotal, field.mask);
        case Source::Discount:
            return appendNumber(out, discountOf(run), field.mask);
        case Source::ProductTotal:
            return appendNumber(out, productTotal(run), field.mask);
        case Source::WeightSum:
            return appendNumber(out, run.weightSum, field.mask);
        case Source::TaxCredit:
            return appendNumber(out, taxCredit(run), field.mask);
        case Source::LastServiceRate:
            return appendNumber(out, run.services.lastRate, field.mask);
        case Source::ServiceTaxSum:
            return appendNumber(out, run.services.taxSum, field.mask);
        default:  // ServiceSum
            return appendNumber(out, run.services.sum, field.mask);
    }
}

// The value under its source's own rule, into `out` or straight from the document.
std::string_view usualValue(std::string& out, const Field& field, Run& run) {
    NoteDocument& document = run.document;
    switch (field.source) {
        case Source::Literal:
            break;
        case Source::Mark:
            return "X";
        case Source::EntryOrExit:
            return isEntry(run) ? "ENTRADA" : "SAÍDA";
        case Source::NoteNumber:
            return run.noteNumber;
        case Source::ParcelNumber:
            out += std::to_string(run.parcel);
            out += ')';
            break;
        case Source::NR_DOC:
            return document.text(ofParcel(Source::NR_DOC1, run.parcel));
        case Source::DT_VNC_DOC:
            return document.text(ofParcel(Source::DT_VNC_DOC1, run.parcel));
        case Source::VL_PRN_DOC: {
            const Source source = ofParcel(Source::VL_PRN_DOC1, run.parcel);
            appendAmount(out, source, document.amount(source), field.mask);
            break;
        }
        case Source::CFOP:
            out += formatText(document.text(Source::CFOP), cfopMask);
            break;
        case Source::CGC_CPF:
            out += taxNumber(run);
            break;
        case Source::NR_CGC_CPL_TRP:
            out += carrierTaxNumber(run);
            break;
        case Source::CEP:
        case Source::CEP_COB:
        case Source::CEP_ETG:
            appendPostalCode(out, document.text(field.source));
            break;
        case Source::ID_VND_DIR:
            return document.text(Source::ID_VND_DIR) == "0" ? ""
                                                            : document.text(Source::ID_VND_DIR);
        case Source::CFOP_ITEM:
            return document.text(Source::CFOP_ITEM) == "0" ? "0000"
                                                           : document.text(Source::CFOP_ITEM);
        case Source::OriginTax:
            appendOriginTax(out, run);
            break;
        case Source::QuantitySum:
            out += numberText(run.quantitySum);
            break;
        case Source::AmountInWords:
            out += ValorExtenso(document.number(Source::VALOR_TOT_NF));
            break;
        case Source::LegalText:
            return midOf(legalTextOf(run), field.start, field.length);
        case Source::Observation: {
            appendObservation(out, run);
            out = midOf(out, field.start, field.length);
            break;
        }
        case Source::ClassLine:
            return run.classes;
        case Source::TaxCreditRate:
            return hasCreditRate(run) ? "1,86" : "";
        case Source::LineTotal:
        case Source::Discount:
        case Source::ProductTotal:
        case Source::WeightSum:
        case Source::TaxCredit:
        case Source::LastServiceRate:
        case Source::ServiceTaxSum:
        case Source::ServiceSum:
            appendComputed(out, field, run);
            break;
        default:
            return document.text(field.source);
    }
    return out;
}

std::string_view valueOf(std::string& out, const Field& field, Run& run) {
    switch (field.rule) {
        case Rule::AsText:
            return run.document.text(field.source);
        case Rule::AsAmount:
            return run.document.amount(field.source);
        case Rule::General:
            out += numberText(run.item.quantity);
            return out;
        case Rule::Masked:
            if (field.source == Source::QTDE) {
                appendNumber(out, run.item.quantity, field.mask);
            } else {
                appendAmount(out, field.source, run.document.amount(field.source), field.mask);
            }
            return out;
        case Rule::Usual:
            break;
    }
    return usualValue(out, field, run);
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

void printRow(const Row& row, Run& run) {
    appendFields(run.line, firstColumn, row.fields(), run);
    run.send(row.advance);
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
