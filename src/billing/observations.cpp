#include "billing/observations.h"

#include "billing/alert.h"
#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "gateway/pega_valor.h"
#include "platform/environment.h"

namespace tarn {
namespace {

// Reads the answer's text into TextoMensagem. A failed load leaves the text of the
// order before and still goes on; false: the action ends here, the user has been told.
bool buscaTexto(Environment& ambiente, Sessao& sessao, const std::string& consulta) {
    XmlDocument documento;
    if (!pede(ambiente, consulta, documento, falha::Tarn0004)) {
        exclama(ambiente,
                "Aconteceu um erro na busca da observação da(s) venda(s). Cancele esta tela e "
                "tente novamente.",
                "Aviso");
        return true;
    }
    if (!respostaAceita(
            ambiente, documento,
            "Houve um problema para selecionar as mensagens de observação da(s) venda(s). ")) {
        return false;
    }
    sessao.TextoMensagem = pegaTexto(documento.documentElement(), 0, "OBSERVACAO");
    return true;
}

}  // namespace

void Seleciona_Obs_Vnd_X_Ord(Environment& ambiente, Sessao& sessao, AlertaDialogo& alerta,
                             const std::string& ordem, bool& continua) {
    continua = false;
    if (!buscaTexto(ambiente, sessao, comando::Seleciona_Obs_Vnd_X_Ord(sessao, ordem))) {
        return;
    }
    sessao.ConfirmaMensagem = "N";
    if (sessao.TextoMensagem.empty()) {
        continua = true;
    } else {
        alerta.mostra(ModoAlerta::Confirma);
    }
    if (sessao.ConfirmaMensagem == "S") {
        continua = true;
    }
}

void Seleciona_Obs_Ord_X_Est(Environment& ambiente, Sessao& sessao, AlertaDialogo& alerta,
                             const std::string& ordem, bool& continua) {
    continua = false;
    if (!buscaTexto(ambiente, sessao, comando::Seleciona_Obs_Ord_X_Est(sessao, ordem))) {
        return;
    }
    sessao.ConfirmaMensagem = "N";
    if (sessao.TextoMensagem.empty()) {
        continua = true;
    } else {
        alerta.mostra(ModoAlerta::SemSaldo);
    }
}

}  // namespace tarn
