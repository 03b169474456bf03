#include "notes/print_note.h"

#include <utility>
#include <vector>

#include "common/raw_channel.h"
#include "notes/draw_note.h"
#include "notes/items.h"
#include "notes/layouts/layouts.h"
#include "notes/losses.h"
#include "notes/pipeline.h"
#include "platform/environment.h"
#include "platform/no_paper.h"
#include "runtime/runtime_error.h"

namespace tarn {
namespace {

// A run without paper: an error of the run time is the printing run's to raise.
std::vector<JobCut> cutsOf(const notes::Form& form, const XmlDocument& document,
                           const std::string& noteNumber, CodePage page) {
    NoPaper paper;
    RawChannel channel(paper, page);
    notes::LossLog losses;
    try {
        notes::printNote(form, document, noteNumber, channel, &losses);
    } catch (const RuntimeError&) {
        // what was cut up to there is told
    }
    std::vector<JobCut> cuts;
    for (const notes::Loss& loss : losses.losses()) {
        cuts.push_back({loss.line, loss.column, describeInPlace(loss)});
    }
    return cuts;
}

void print(const notes::Layout& layout, Environment& environment, const Sessao& session,
           const XmlDocument& document, const std::string& noteNumber, notes::LossLog* losses) {
    if (layout.drawn != nullptr) {
        return notes::drawNote(*layout.drawn, document, noteNumber, environment, losses);
    }
    const notes::Form& form = layout.formFor(session.ID_ETB_TARN);
    RawChannel channel(environment.spooler, environment.codePage);
    JobKind kind{.document = JobDocument::Note,
                 .form = layout.formName(session.ID_ETB_TARN),
                 .itemLines = notes::itemLinesOf(form, document)};
    if (environment.spooler.tellsKinds()) {
        kind.cuts = cutsOf(form, document, noteNumber, environment.codePage);
    }
    channel.announce(std::move(kind));
    notes::printNote(form, document, noteNumber, channel, losses);
}

}  // namespace

void printNote(Ladder ladder, Environment& environment, const Sessao& session,
               XmlDocument& document, const std::string& noteNumber, notes::LossLog* losses) {
    const notes::Layout* layout = layoutFor(ladder, session.NCOMPANYCODE, session.ID_ETB_TARN);
    // The issuing screen hands this layout a number that nothing ever set; the call
    // fails before a byte is printed.
    if (ladder == Ladder::Issuing && layout == &notes::imprimeNF_2161_3383) {
        throw RuntimeError(RuntimeErrorCode::ObjectRequired,
                           std::string(layout->name) +
                               ": as notas deste estabelecimento só saem pela tela de reimpressão");
    }
    if (layout != nullptr) {
        print(*layout, environment, session, document, noteNumber, losses);
    }
    document = XmlDocument();
}

}  // namespace tarn
