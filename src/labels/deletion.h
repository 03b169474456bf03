// Takes a range of labels out of the queue of one reason.
#pragma once

#include <string>

namespace tarn {
struct Environment;
struct Sessao;
}  // namespace tarn

namespace tarn::labels {

// Enviada: the request was made and success told, whatever became of it; the queue, read
// anew, tells the truth. Otherwise nothing was sent and the user told why.
enum class Exclusao { Enviada, FaltaDe, FaltaAte, SemNumero };

// The ends of the range are sequence numbers as they were typed.
Exclusao excluiEtiquetas(Environment& ambiente, const Sessao& sessao, const std::string& motivo,
                         const std::string& de, const std::string& ate);

}  // namespace tarn::labels
