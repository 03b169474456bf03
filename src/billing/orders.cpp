#include "billing/orders.h"

#include <string_view>

#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "platform/environment.h"
#include "platform/message_boxes.h"
#include "runtime/mask.h"
#include "runtime/numbers.h"

namespace tarn {
namespace {

constexpr std::array<std::string_view, 12> fields{
    "ID_ORD_FAT",     "NM_PES_CPL", "NM_RDU", "DC_TIP_NF", "DT_GER_OFT", "ID_ORD_CRG",
    "TRANSPORTADORA", "NM_PES_MOT", "DC_OBS", "QT_ESP",    "PESO_BRU",   "PESO_LIQ"};
constexpr std::size_t firstNumber = 9;  // quantity and the two weights
constexpr NumberMask mask{"###,###,###,##0.000"};

BillingOrder orderOf(const XmlNode& line) {
    BillingOrder order;
    const XmlAttributes attributes = line.attributes();
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const XmlAttribute attribute = attributes.getNamedItem(fields[i]);
        if (!attribute) {
            continue;
        }
        order.cells[i] = i < firstNumber ? std::string(attribute.text())
                                         : formatNumber(readPoint(attribute.text()), mask);
    }
    return order;
}

bool confirm(Environment& environment, const std::string& order) {
    const BoxAnswer answer = environment.boxes.show(
        {.text = "Confirma o cancelamento da Ordem de Faturamento nº " + order + " ?     ",
         .icon = BoxIcon::Question,
         .title = "Aviso",
         .buttons = BoxButtons::YesNo});
    return answer == BoxAnswer::Yes;
}

}  // namespace

std::vector<BillingOrder> loadOrders(Environment& environment, const Sessao& session) {
    std::vector<BillingOrder> orders;
    XmlDocument document;
    if (!requestAnswer(environment, commands::sel_ordem_fatu(session), document,
                       failure::Tarn0006)) {
        return orders;
    }
    if (document.empty()) {
        warn(environment, "Houve um problema na transferência das Ordens de Faturamento.");
        return orders;
    }
    const XmlNode lines = document.selectSingleNode("xml/rs:data");
    if (!lines) {
        return orders;
    }
    const std::size_t count = lines.childCount();
    orders.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        orders.push_back(orderOf(lines.child(i)));
    }
    return orders;
}

bool cancelOrder(Environment& environment, const Sessao& session, const BillingOrder& order) {
    const std::string& number = order.order();
    if (!confirm(environment, number)) {
        return false;
    }
    XmlDocument document;
    if (!requestAnswer(environment, commands::sp_can_oft(session, number, order.loadOrder()),
                       document, failure::Tarn0003)) {
        warn(environment,
             "Favor verificar se a Ordem de Faturamento nº " + number + " foi cancelada. ",
             "Aviso");
        return false;
    }
    const std::string problem =
        "Houve um problema no Cancelamento da Ordem de Faturamento nº " + number + ". ";
    if (!answerAccepted(environment, document, problem)) {
        return false;
    }
    environment.boxes.show({.text = "Ordem de Faturamento cancelada.      ",
                            .icon = BoxIcon::Information,
                            .title = "Aviso "});
    return true;
}

}  // namespace tarn
