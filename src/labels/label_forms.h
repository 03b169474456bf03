// The four forms of stationery that labels are printed on, one routine each: it prints
// all labels of an answer in its order and tells how far it is.
#pragma once

#include "platform/progress.h"

namespace tarn {
struct Environment;
}

namespace tarn::labels {

class Etiquetas;
struct Remetente;

// Drawn, three across and ten down. A full page is printed at once; the last, partly
// filled one is left for whoever ends the run.
void imprimePimaco6280(Environment& ambiente, Etiquetas& etiquetas, const Progress& andamento);

// Raw text, four across on continuous stationery: a job that sets the pitch, then one
// with all labels.
void imprimeMatricial(Environment& ambiente, Etiquetas& etiquetas, const Progress& andamento);

// Drawn, one place on one page: each label falls on the one before.
void imprimeA5(Environment& ambiente, Etiquetas& etiquetas, const Progress& andamento);

// Drawn, a page each, the sender below the addressee.
void imprimeA4ComRemetente(Environment& ambiente, Etiquetas& etiquetas, const Remetente& remetente,
                           const Progress& andamento);

}  // namespace tarn::labels
