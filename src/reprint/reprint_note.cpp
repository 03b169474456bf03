#include "reprint/reprint_note.h"

#include "common/acts.h"
#include "common/boxes.h"
#include "common/list_items.h"
#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "gateway/pega_valor.h"
#include "notes/print_note.h"
#include "platform/environment.h"
#include "runtime/dates.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn {
namespace {

constexpr std::size_t seriesGap = 50;  // blanks

// Both jobs name the note in the box for an answer that can't be used.
constexpr const char* dataProblem =
    "Houve um problema na transferência dos dados da Nota Fiscal nº ";
constexpr const char* cancellationProblem = "Houve um problema no Cancelamento da Nota Fiscal nº ";

void alert(Environment& environment, const std::string& text) {
    warn(environment, text, box_title::notice);
}

// An answer whose status can't be read counts as an empty one: decision D51.
bool accept(Environment& environment, const XmlDocument& document, const std::string& problem) {
    const std::optional<std::string> status = statusIfAny(document);
    if (!status) {
        alert(environment, problem);
    } else if (*status != "OK") {
        warn(environment, *status);
    }
    return status == "OK";
}

}  // namespace

bool loadSeries(Environment& environment, const Sessao& session, std::vector<std::string>& items) {
    XmlDocument document;
    if (!requestAnswer(environment, commands::SEL_SERIE_NF(session), document, failure::Tarn0010)) {
        return true;
    }
    if (document.empty()) {
        alert(environment, "Houve um problema na transferência das Séries da Nota Fiscal. ");
        return false;
    }
    for (const XmlNode row : rowsOf(document)) {
        const XmlAttributes fields = row.attributes();
        std::string item(fields.textOf("DC_SER_NF"));
        item.append(seriesGap, ' ').append("|").append(trimBlanks(fields.textOf("CD_SER_NF")));
        items.push_back(std::move(item));
    }
    return true;
}

std::string seriesCode(std::string_view item) {
    const std::size_t start = item.find('|') + 1;
    return std::string(item.substr(start, item.find('|', start) - start));
}

std::vector<CancelReason> loadReasons(Environment& environment, const Sessao& session) {
    XmlDocument document;
    if (!requestAnswer(environment, commands::SEL_MOT_CAN(session), document, failure::Tarn0011)) {
        return {};
    }
    if (document.empty()) {
        alert(environment, "Houve um problema na transferência dos Motivos de Cancelamento. ");
        return {};
    }
    std::vector<CancelReason> reasons;
    for (const XmlNode row : rowsOf(document)) {
        const XmlAttributes fields = row.attributes();
        reasons.push_back(
            {std::string(fields.textOf("DC_MOT_CAN")), itemNumber(fields.textOf("ID_MOT_CAN"))});
    }
    return reasons;
}

std::optional<FoundNote> searchNote(Environment& environment, const Sessao& session,
                                    const NoteFields& fields) {
    if (!fields.series) {
        alert(environment, "Selecione a série da Nota.     ");
        return std::nullopt;
    }
    if (fields.number.empty()) {
        alert(environment, "Digite o Nº Nota !!!    ");
        return std::nullopt;
    }
    const std::string series = seriesCode(*fields.series);
    XmlDocument document;
    if (!requestAnswer(environment, commands::SEL_NF(session, fields.number, series), document,
                       failure::Tarn0007)) {
        alert(environment, "Houve um problema na Pesquisa da Nota Fiscal !!!");
        return std::nullopt;
    }
    if (rowsOf(document).length() == 0) {
        alert(environment, "Nota Fiscal não encontrada ou Cancelada !!!    ");
        return std::nullopt;
    }
    const XmlNode rowset = rowsetOf(document);
    return FoundNote{.number = fields.number,
                     .series = series,
                     .kind = PegaValor(rowset, 0, "IC_TIP_NF"),
                     .kindText = PegaValor(rowset, 0, "DC_TIP_NF"),
                     .issued = formatDateText(PegaValor(rowset, 0, "DT_EMS_NF")),
                     .customer = PegaValor(rowset, 0, "NM_PES_CPL")};
}

bool noteSelected(Environment& environment, const NoteFields& fields, std::string_view foundNote) {
    if (!fields.series) {
        alert(environment, "Selecione a série da Nota ");
    } else if (fields.number.empty()) {
        alert(environment, "Digite o Nº Nota !!!");
    } else if (foundNote.empty()) {
        alert(environment, "Preencha o campo Nro da NF e a série e clique em pesquisar!!!");
    } else {
        return true;
    }
    return false;
}

void reprintNote(Environment& environment, const Sessao& session, const std::string& number,
                 const std::string& series) {
    XmlDocument document;
    if (!requestAnswer(environment, commands::sel_gera_nf(session, number, series), document,
                       failure::Tarn0008)) {
        alert(environment, "Houve um problema na transferência dos dados da Nota Fiscal !!!");
        return;
    }
    if (!accept(environment, document, dataProblem + number + ". ")) {
        return;
    }
    afterNote([&] { printNote(Ladder::Reprint, environment, session, document, number); },
              NoteState::Exists);
    tellPrinted(environment, {.sent = noteName(number) + " enviada de novo",
                              .made = noteName(number) + " lida do servidor",
                              .remedy = "imprima de novo"});
}

bool cancelNote(Environment& environment, const Sessao& session, const CancelRequest& request) {
    if (!request.option) {
        alert(environment, "Selecione o Tipo de Cancelamento !!!");
        return false;
    }
    if (!request.reason) {
        alert(environment, "Selecione o Motivo do Cancelamento !!!");
        return false;
    }
    const commands::Cancellation data{.noteKind = request.noteKind,
                                      .note = request.number,
                                      .series = request.series,
                                      .reason = *request.reason,
                                      .withoutRebilling = *request.option == Rebilling::Without};
    XmlDocument document;
    if (!requestAnswer(environment, commands::sp_can_nf(session, data), document,
                       failure::Tarn0009)) {
        alert(environment, "Favor verificar se a Nota Fiscal foi cancelada. ");
        return false;
    }
    if (!accept(environment, document, cancellationProblem + request.number + ". ")) {
        return false;
    }
    tellDone(environment, noteName(request.number) + " cancelada");
    inform(environment, "Nota fiscal cancelada com sucesso", box_title::notice);
    return true;
}

}  // namespace tarn
