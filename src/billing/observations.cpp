#include "billing/observations.h"

#include "billing/alert.h"
#include "common/boxes.h"
#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "gateway/pega_valor.h"
#include "platform/environment.h"

namespace tarn {
namespace {

// Reads the answer's text into TextoMensagem. A failed load leaves the text of the
// order before and still goes on; false: the action ends here, the user has been told.
bool textSearch(Environment& environment, Sessao& session, const std::string& query) {
    XmlDocument document;
    if (!requestAnswer(environment, query, document, failure::Tarn0004)) {
        warn(environment,
             "Aconteceu um erro na busca da observação da(s) venda(s). Cancele esta tela e "
             "tente novamente.",
             box_title::notice);
        return true;
    }
    if (!answerAccepted(
            environment, document,
            "Houve um problema para selecionar as mensagens de observação da(s) venda(s). ")) {
        return false;
    }
    session.TextoMensagem = PegaValor(document.documentElement(), 0, "OBSERVACAO");
    return true;
}

}  // namespace

Next Seleciona_Obs_Vnd_X_Ord(Environment& environment, Sessao& session, AlertDialog& alert,
                             const std::string& order) {
    if (!textSearch(environment, session, commands::Seleciona_Obs_Vnd_X_Ord(session, order))) {
        return Next::Stop;
    }
    session.ConfirmaMensagem = "N";
    if (session.TextoMensagem.empty()) {
        return Next::GoOn;
    }
    alert.show(AlertMode::Confirm);
    return session.ConfirmaMensagem == "S" ? Next::GoOn : Next::Stop;
}

Next Seleciona_Obs_Ord_X_Est(Environment& environment, Sessao& session, AlertDialog& alert,
                             const std::string& order) {
    if (!textSearch(environment, session, commands::Seleciona_Obs_Ord_X_Est(session, order))) {
        return Next::Stop;
    }
    session.ConfirmaMensagem = "N";
    if (session.TextoMensagem.empty()) {
        return Next::GoOn;
    }
    alert.show(AlertMode::OutOfStock);
    return Next::Stop;
}

}  // namespace tarn
