// A billing order becomes a fiscal note: generated on the server first, printed
// after, with no transaction between the two.
#pragma once

#include <functional>
#include <string>

#include "gateway/sessao.h"
#include "gateway/xml_document.h"
#include "notes/print_note.h"

namespace tarn {

class AlertaDialogo;
struct Environment;

// How a generation ended for the screen: stopped (the timer stays off), or ran
// its way (the list is to be read again and the timer switched on).
enum class FimDaGeracao { Parada, Completa };

// Brings a generated note to paper: its document and its number.
using PassoImpressao =
    std::function<void(Environment&, const Sessao&, XmlDocument&, const std::string& nota)>;

// Everything from the observations to the printed note. The caller has switched
// its timer off. The two cases in which the note stands on the server and can't be
// printed here, and every error of a layout, come out as ErroComNota.
FimDaGeracao geraNota(Environment& ambiente, Sessao& sessao, AlertaDialogo& alerta,
                      const std::string& ordem, const PassoImpressao& imprime);

// The same, printed by the issuing screen's ladder.
inline FimDaGeracao geraNota(Environment& ambiente, Sessao& sessao, AlertaDialogo& alerta,
                             const std::string& ordem) {
    return geraNota(
        ambiente, sessao, alerta, ordem,
        [](Environment& onde, const Sessao& quem, XmlDocument& documento, const std::string& nota) {
            imprimeNota(Escada::Emissao, onde, quem, documento, nota);
        });
}

}  // namespace tarn
