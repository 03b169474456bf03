// Takes a range of labels out of the queue of one reason.
#pragma once

#include <string>

namespace tarn {
struct Environment;
struct Sessao;
}  // namespace tarn

namespace tarn::labels {

// Sent: the request was made and success shown, whatever became of it; the queue, read
// anew, shows the truth. Otherwise nothing was sent and the user has been told why.
enum class Deletion { Sent, MissingFrom, MissingTo, NotANumber };

// The ends of the range are sequence numbers as they were typed.
Deletion deleteLabels(Environment& environment, const Sessao& session, const std::string& reason,
                      const std::string& from, const std::string& to);

}  // namespace tarn::labels
