#include "billing/generate_note.h"

#include "billing/observations.h"
#include "common/acts.h"
#include "common/boxes.h"
#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "platform/environment.h"
#include "runtime/runtime_error.h"

namespace tarn {
namespace {

// The one customer whose notes come out of the reprint screen alone: decision N58.
constexpr std::int32_t companyOfReprint = 2161;
constexpr std::int32_t establishmentOfReprint = 3383;

bool acceptedNotices(Environment& environment, Sessao& session, AlertDialog& alert,
                     const std::string& order) {
    return Seleciona_Obs_Vnd_X_Ord(environment, session, alert, order) == Next::GoOn &&
           Seleciona_Obs_Ord_X_Est(environment, session, alert, order) == Next::GoOn;
}

// The value of a child of the root, found by its place alone.
std::string valueByPosition(const XmlDocument& document, std::size_t index) {
    return std::string(document.documentElement().child(index).attributes().item(0).text());
}

struct GeneratedNote {
    std::string order;
    std::string number;
    std::string series;

    std::string name() const { return noteName(number); }
};

// The note exists on the server; its paper is up to the reprint screen.
GenerationEnd notPrinted(const Environment& environment, const GeneratedNote& note,
                         GenerationEnd end) {
    tellDone(environment, note.name() + " da ordem " + note.order +
                              " gerada, mas não impressa: use ReImpressão de NF");
    return end;
}

GenerationEnd printGenerated(Environment& environment, const Sessao& session,
                             const GeneratedNote& note, const PrintStep& print) {
    XmlDocument document;
    if (!requestAnswer(environment, commands::sel_gera_nf(session, note.number, note.series),
                       document, failure::Tarn0005)) {
        warn(environment,
             "Houve um problema na transferência dos dados da Nota Fiscal nº " + note.number +
                 ". Utilize a tela de Reimpressão de Nota Fiscal.",
             box_title::notice);
        return notPrinted(environment, note, GenerationEnd::Finished);
    }
    if (document.empty()) {  // the note may exist: decision D50
        throw RuntimeError(RuntimeErrorCode::ObjectRequired);
    }
    if (!answerAccepted(environment, document, "")) {
        return notPrinted(environment, note, GenerationEnd::Stopped);
    }
    if (session.NCOMPANYCODE == companyOfReprint && session.ID_ETB_TARN == establishmentOfReprint) {
        throw RuntimeError(RuntimeErrorCode::ObjectRequired);
    }
    print(environment, session, document, note.number);
    tellPrinted(environment, {.sent = note.name() + " da ordem " + note.order + " enviada",
                              .made = note.name() + " gerada",
                              .remedy = "use ReImpressão de NF"});
    return GenerationEnd::Finished;
}

GenerationEnd requestNote(Environment& environment, const Sessao& session, const std::string& order,
                          const PrintStep& print) {
    XmlDocument document;
    if (!requestAnswer(environment, commands::SP_GERA_NF(session, order), document,
                       failure::Tarn0004)) {
        warn(environment,
             "Favor verificar se a Nota Fiscal foi gerada. Caso tenha sido gerada, utilize a "
             "tela de Reimpressão de Nota Fiscal. ",
             box_title::notice);
        return GenerationEnd::Finished;
    }
    if (!answerAccepted(environment, document, "Houve um problema para gerar a Nota Fiscal. ")) {
        return GenerationEnd::Stopped;
    }
    const GeneratedNote note{.order = order,
                             .number = valueByPosition(document, 0),
                             .series = valueByPosition(document, 1)};
    return printGenerated(environment, session, note, print);
}

}  // namespace

GenerationEnd generateNote(Environment& environment, Sessao& session, AlertDialog& alert,
                           const std::string& order, const PrintStep& print) {
    if (!acceptedNotices(environment, session, alert, order)) {
        return GenerationEnd::Stopped;
    }
    return afterNote([&] { return requestNote(environment, session, order, print); });
}

}  // namespace tarn
