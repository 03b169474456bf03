#include "labels/print_labels.h"

#include <utility>

#include "common/boxes.h"
#include "common/drawn_run.h"
#include "common/raw_channel.h"
#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "labels/drawn_forms.h"
#include "labels/raw_form.h"
#include "platform/environment.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"

namespace tarn::labels {
namespace {

void draw(DrawnRun& run, LabelForm form, Labels& labels, const Sender& sender,
          const Progress& progress) {
    switch (form) {
        case LabelForm::Pimaco6280:
            return printPimaco6280(run, labels, progress);
        case LabelForm::A5:
            return printA5(run, labels, progress);
        default:
            return printA4WithSender(run, labels, sender, progress);
    }
}

// The raw channel is closed along with the drawn document, open or not.
void endRun(DrawnRun& run, LabelForm form, const Progress& progress) {
    if (form != LabelForm::A4WithSender) {
        run.newPage();
    }
    run.endDocument(progress);
    RawChannel(run.environment().spooler, run.environment().codePage).close();
}

bool printDrawn(Environment& environment, LabelForm form, Labels& labels, const Sender& sender,
                const Progress& progress) {
    DrawnRun run(environment);
    draw(run, form, labels, sender, progress);
    if (labels.count() == 0) {
        inform(environment, " Não há Etiquetas nesse intervalo!   ");
        return true;
    }
    if (!run.failed()) {
        inform(environment, " Etiquetas impressas com sucesso!   ");
    }
    endRun(run, form, progress);
    return !run.failed();
}

// The range's query; nothing, with the user told, when an end of it is no number.
std::optional<std::string> queryOf(const Range& range, Environment& environment,
                                   const Sessao& session, const std::string& reason) {
    try {
        return commands::sel_etiquetas(session, reason, range.from, range.to);
    } catch (const RuntimeError& error) {
        reportError(environment, error);
        return std::nullopt;
    }
}

// Nothing, with the user told, where the answer has no sender; anything else that is wrong
// with it ends the program (decisions D15 and D94).
std::optional<Sender> senderFrom(const XmlDocument& answer, Environment& environment) {
    if (rowsOf(answer).length() == 0) {
        reportError(environment, RuntimeError(RuntimeErrorCode::ObjectVariable,
                                              "o servidor não tem os dados da Filial Remetente"));
        return std::nullopt;
    }
    return readSender(answer);
}

}  // namespace

LabelForm labelFormOf(std::string_view formKind) {
    const std::optional<double> number = parseComma(formKind);
    for (const LabelForm form : {LabelForm::Pimaco6280, LabelForm::DotMatrix, LabelForm::A5}) {
        if (number == static_cast<double>(form)) {
            return form;
        }
    }
    return LabelForm::A4WithSender;
}

std::string_view labelFormName(LabelForm form) {
    switch (form) {
        case LabelForm::Pimaco6280:
            return "PIMACO 6280 - LASER";
        case LabelForm::DotMatrix:
            return "PIMACO - XXX - MATRICIAL";
        case LabelForm::A5:
            return "PDF - A5 - LASER";
        case LabelForm::A4WithSender:
            break;
    }
    return "PDF - A4 - DESTINATÁRIO - REMETENTE - LASER";
}

std::optional<PrintRun> fetchRange(Environment& environment, const Sessao& session,
                                   const LabelValues& values, const Range& range) {
    const auto query = queryOf(range, environment, session, values.MotivoImpressao);
    XmlDocument labels;
    XmlDocument answer;
    if (!query || !requestAnswer(environment, *query, labels, failure::Tarn0009) ||
        !requestAnswer(environment, commands::sel_dados_remetente(session, values.FilialRemetente),
                       answer, failure::Tarn0009)) {
        return std::nullopt;
    }
    auto sender = senderFrom(answer, environment);
    if (!sender) {
        return std::nullopt;
    }
    return PrintRun{std::move(labels), std::move(*sender)};
}

bool printLabels(Environment& environment, LabelForm form, const PrintRun& run,
                 const Progress& progress) {
    Labels labels(run.labels);
    bool printed = true;
    if (form == LabelForm::DotMatrix) {
        printDotMatrix(environment, labels, progress);
    } else {
        printed = printDrawn(environment, form, labels, run.sender, progress);
    }
    tellLabels(environment, labels.count());
    return printed;
}

}  // namespace tarn::labels
