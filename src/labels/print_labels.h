// Prints a range of the label queue on the form of stationery that was chosen. Nothing
// is written to the server: labels stay in the queue and can be printed again.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "gateway/xml_document.h"
#include "labels/label.h"
#include "platform/progress.h"

namespace tarn {
struct Environment;
struct Sessao;
}  // namespace tarn

namespace tarn::labels {

struct ValoresEtiquetas;

enum class Formulario : int { Pimaco6280 = 1, Matricial = 2, A5 = 3, A4ComRemetente = 4 };

// A TipoFormulario is compared as a number; whatever is none of the first three is the
// fourth form.
Formulario formularioDe(std::string_view tipoFormulario);

// What the print screen calls the form.
std::string_view nomeDoFormulario(Formulario formulario);

// What a run prints.
struct Impressao {
    XmlDocument etiquetas;  // answer of sel_etiquetas
    Remetente remetente;
};

// Sequence numbers as they were typed.
struct Intervalo {
    std::string de;
    std::string ate;
};

// Fetches the labels of a range and their sender. Nothing, with the user told why, when
// the range is no pair of numbers, a request fails or the sender is unknown.
std::optional<Impressao> buscaIntervalo(Environment& ambiente, const Sessao& sessao,
                                        const ValoresEtiquetas& valores,
                                        const Intervalo& intervalo);

// Prints all labels. The last sheet of a drawn form goes to the printer after the user
// has been told that all is printed.
void imprimeEtiquetas(Environment& ambiente, Formulario formulario, const Impressao& impressao,
                      const Progress& andamento);

}  // namespace tarn::labels
