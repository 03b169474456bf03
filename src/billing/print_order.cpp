#include "billing/print_order.h"

#include "billing/order_sheet.h"
#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "platform/environment.h"

namespace tarn {

void imprimeOrdemSelecionada(Environment& ambiente, const Sessao& sessao,
                             const std::string& ordem) {
    const std::string problema =
        "Houve um problema na transferência dos dados da Ordem de Faturamento nº " + ordem + ".";
    XmlDocument documento;
    if (!pede(ambiente, comando::sel_impr_ordem_fatu(sessao, ordem), documento, falha::Tarn0012)) {
        exclama(ambiente, problema, "Aviso");
        return;
    }
    if (respostaAceita(ambiente, documento, problema + " ")) {
        imprimeOrdem(ambiente, sessao, documento);
    }
}

}  // namespace tarn
