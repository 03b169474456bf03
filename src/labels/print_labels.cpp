#include "labels/print_labels.h"

#include <utility>

#include "common/raw_channel.h"
#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "labels/imprime_linha.h"
#include "labels/label_boxes.h"
#include "labels/label_forms.h"
#include "labels/label_values.h"
#include "platform/environment.h"
#include "platform/printer.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"

namespace tarn::labels {
namespace {

constexpr const char* rangeNotANumber =
    "Nada foi impresso. Digite em De e Até os números da coluna Sequencial da lista e clique em "
    "OK de novo.";
constexpr const char* unreadableSender =
    "Nada foi impresso: o servidor não tem os dados da Filial Remetente. Cancele, escolha na lista "
    "o formulário com REMETENTE, uma Filial Remetente e de novo o formulário desejado, e imprima "
    "outra vez. Se continuar, avise o suporte.";

void draw(Environment& environment, LabelForm form, Labels& labels, const Sender& sender,
          const Progress& progress) {
    preparePage(environment);
    switch (form) {
        case LabelForm::Pimaco6280:
            return printPimaco6280(environment, labels, progress);
        case LabelForm::A5:
            return printA5(environment, labels, progress);
        default:
            return printA4WithSender(environment, labels, sender, progress);
    }
}

// A printer takes its time over a document of many pages, and tells of them.
void printDocument(Environment& environment, const Progress& progress) {
    std::size_t pages = 0;
    if (progress) {
        environment.printer.progress = [&progress, &pages](std::size_t done, std::size_t total) {
            pages = total;
            progress(done, total);
        };
    }
    const auto failure = environment.printer.EndDoc();
    environment.printer.progress = nullptr;
    if (pages > 0) {
        progress(pages, pages);
    }
    showFailure(environment, failure);
}

// The raw channel is closed along with the drawn document, open or not.
void endDocument(Environment& environment, LabelForm form, const Progress& progress) {
    if (form != LabelForm::A4WithSender) {
        showFailure(environment, environment.printer.NewPage());
    }
    printDocument(environment, progress);
    RawChannel(environment.spooler, environment.codePage).close();
}

// The range's query; nothing, with the user told, when an end of it is no number.
std::optional<std::string> queryOf(const Range& range, Environment& environment,
                                   const Sessao& session, const std::string& reason) {
    try {
        return commands::sel_etiquetas(session, reason, range.from, range.to);
    } catch (const RuntimeError& error) {
        reportError(environment, error, rangeNotANumber);
        return std::nullopt;
    }
}

std::optional<Sender> senderFrom(const XmlDocument& answer, Environment& environment) {
    try {
        return readSender(answer);
    } catch (const RuntimeError& error) {
        reportError(environment, error, unreadableSender);
        return std::nullopt;
    }
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

void printLabels(Environment& environment, LabelForm form, const PrintRun& run,
                 const Progress& progress) {
    Labels labels(run.labels);
    if (form == LabelForm::DotMatrix) {
        return printDotMatrix(environment, labels, progress);
    }
    draw(environment, form, labels, run.sender, progress);
    if (labels.count() == 0) {
        return inform(environment, " Não há Etiquetas nesse intervalo!   ");
    }
    inform(environment, " Etiquetas impressas com sucesso!   ");
    endDocument(environment, form, progress);
}

}  // namespace tarn::labels
