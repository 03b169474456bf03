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
enum class Deletion { Sent, MissingFrom, MissingTo, NotANumber };

// The ends of the range are sequence numbers as they were typed.
Deletion deleteLabels(Environment& environment, const Sessao& session, const std::string& reason,
                      const std::string& de, const std::string& to);

}  // namespace tarn::labels
