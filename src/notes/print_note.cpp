#include "notes/print_note.h"

#include "common/raw_channel.h"
#include "notes/draw_note.h"
#include "notes/items.h"
#include "notes/layouts/layouts.h"
#include "notes/pipeline.h"
#include "platform/environment.h"
#include "runtime/runtime_error.h"

namespace tarn {
namespace {

void print(const notes::Layout& layout, Environment& environment, const Sessao& session,
           const XmlDocument& document, const std::string& noteNumber, notes::LossLog* losses) {
    if (layout.drawn != nullptr) {
        return notes::drawNote(*layout.drawn, document, noteNumber, environment, losses);
    }
    const notes::Form& form = layout.formFor(session.ID_ETB_TARN);
    RawChannel channel(environment.spooler, environment.codePage);
    channel.announce({.document = JobDocument::Note,
                      .form = layout.formName(session.ID_ETB_TARN),
                      .itemLines = notes::itemLinesOf(form, document)});
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
