#include "labels/deletion.h"

#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "labels/label_boxes.h"
#include "runtime/runtime_error.h"

namespace tarn::labels {
namespace {

constexpr const char* rangeNotANumber =
    "Nada foi excluído. Digite em De e Até os números da coluna Sequencial da lista e clique em "
    "OK de novo.";

}  // namespace

Deletion deleteLabels(Environment& environment, const Sessao& session, const std::string& reason,
                      const std::string& from, const std::string& to) {
    if (from.empty()) {
        inform(environment, "De é um campo obrigatório!  ");
        return Deletion::MissingFrom;
    }
    if (to.empty()) {
        inform(environment, "Até é um campo obrigatório!  ");
        return Deletion::MissingTo;
    }
    std::string query;
    try {
        query = commands::exclui_etiquetas(session, reason, from, to);
    } catch (const RuntimeError& error) {
        reportError(environment, error, rangeNotANumber);
        return Deletion::NotANumber;
    }
    XmlDocument answer;
    // Success whatever became of it: decision D96.
    requestAnswer(environment, query, answer, failure::Tarn0009);
    inform(environment, "Etiquetas excluídas com sucesso!     ");
    return Deletion::Sent;
}

}  // namespace tarn::labels
