#include "billing/print_order.h"

#include "billing/order_sheet.h"
#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "platform/environment.h"

namespace tarn {

void printSelectedOrder(Environment& environment, const Sessao& session, const std::string& order) {
    const std::string problem =
        "Houve um problema na transferência dos dados da Ordem de Faturamento nº " + order + ".";
    XmlDocument document;
    if (!requestAnswer(environment, commands::sel_impr_ordem_fatu(session, order), document,
                       failure::Tarn0012)) {
        warn(environment, problem, "Aviso");
        return;
    }
    if (answerAccepted(environment, document, problem + " ")) {
        printOrder(environment, session, document);
    }
}

}  // namespace tarn
