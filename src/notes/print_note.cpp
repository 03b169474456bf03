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
        throw ErroExecucao(ErroNumero::ObjetoObrigatorio,
                           std::string(name) +
                               ": este layout de nota não está instalado nesta versão. Quando "
                               "estiver, a nota pode ser impressa pela tela de reimpressão");
    }
    return *layout;
}

void print(const notes::Layout& layout, Environment& ambiente, const Sessao& sessao,
           const XmlDocument& documento, const std::string& numeroNota, notes::LossLog* perdas) {
    if (layout.drawn != nullptr) {
        return notes::drawNote(*layout.drawn, documento, numeroNota, ambiente, perdas);
    }
    RawChannel channel(ambiente.spooler, ambiente.codePage);
    notes::printNote(layout.formFor(sessao.ID_ETB_TARN), documento, numeroNota, channel, perdas);
}

}  // namespace

void imprimeNota(Escada escada, Environment& ambiente, const Sessao& sessao, XmlDocument& documento,
                 const std::string& numeroNota, notes::LossLog* perdas) {
    const std::string_view name = layoutFor(escada, sessao.NCOMPANYCODE, sessao.ID_ETB_TARN);
    if (escada == Escada::Emissao && name == onlyFromReprint) {
        throw ErroExecucao(ErroNumero::ObjetoObrigatorio,
                           std::string(name) +
                               ": as notas deste estabelecimento só saem pela tela de reimpressão");
    }
    if (!name.empty()) {
        print(installed(name), ambiente, sessao, documento, numeroNota, perdas);
    }
    documento = XmlDocument();
}

}  // namespace tarn
