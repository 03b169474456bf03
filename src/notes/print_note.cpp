#include "notes/print_note.h"

#include "common/raw_channel.h"
#include "notes/draw_note.h"
#include "notes/layouts/layouts.h"
#include "notes/pipeline.h"
#include "platform/environment.h"
#include "runtime/runtime_error.h"

namespace tarn {
namespace {

// The issuing screen hands this layout a number that nothing ever set; the call
// fails before a byte is printed.
constexpr std::string_view onlyFromReprint = "ImprimeNF_2161_3383";

const notes::Layout& installed(std::string_view name) {
    const notes::Layout* layout = notes::layoutByName(name);
    if (layout == nullptr) {
        throw RuntimeError(RuntimeErrorCode::ObjectRequired,
                           std::string(name) +
                               ": este layout de nota não está instalado nesta versão. Quando "
                               "estiver, a nota pode ser impressa pela tela de reimpressão");
    }
    return *layout;
}

void print(const notes::Layout& layout, Environment& environment, const Sessao& session,
           const XmlDocument& document, const std::string& noteNumber, notes::LossLog* losses) {
    if (layout.drawn != nullptr) {
        return notes::drawNote(*layout.drawn, document, noteNumber, environment, losses);
    }
    RawChannel channel(environment.spooler, environment.codePage);
    notes::printNote(layout.formFor(session.ID_ETB_TARN), document, noteNumber, channel, losses);
}

}  // namespace

void printNote(Ladder ladder, Environment& environment, const Sessao& session,
               XmlDocument& document, const std::string& noteNumber, notes::LossLog* losses) {
    const std::string_view name = layoutFor(ladder, session.NCOMPANYCODE, session.ID_ETB_TARN);
    if (ladder == Ladder::Issuing && name == onlyFromReprint) {
        throw RuntimeError(RuntimeErrorCode::ObjectRequired,
                           std::string(name) +
                               ": as notas deste estabelecimento só saem pela tela de reimpressão");
    }
    if (!name.empty()) {
        print(installed(name), environment, session, document, noteNumber, losses);
    }
    document = XmlDocument();
}

}  // namespace tarn
