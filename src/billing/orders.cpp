#include "billing/orders.h"

#include <string>

#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "platform/environment.h"
#include "platform/message_boxes.h"

namespace tarn {
namespace {

constexpr auto grid = gridOf<OrderColumn>(
    {{OrderColumn::Order,
      {"ID_ORD_FAT", "Ord. Fat.", 12, Treatment::Text, "Número da ordem de faturamento"}},
     {OrderColumn::Customer, {"NM_PES_CPL", "Cliente", 34, Treatment::Text, "Cliente"}},
     {OrderColumn::Establishment,
      {"NM_RDU", "Estabelecimento", 19, Treatment::Text, "Estabelecimento"}},
     {OrderColumn::NoteKind,
      {"DC_TIP_NF", "Tipo de NF", 18, Treatment::Text, "Tipo de nota fiscal"}},
     {OrderColumn::Generated,
      {"DT_GER_OFT", "Dt. Emissão", 14, Treatment::Text, "Data em que a ordem foi gerada"}},
     {OrderColumn::LoadOrder,
      {"ID_ORD_CRG", "Ord. Carga", 13, Treatment::Text, "Número da ordem de carga"}},
     {OrderColumn::Carrier,
      {"TRANSPORTADORA", "Transportadora", 24, Treatment::Text, "Transportadora"}},
     {OrderColumn::Driver, {"NM_PES_MOT", "Motorista", 24, Treatment::Text, "Motorista"}},
     {OrderColumn::Observation, {"DC_OBS", "", 26, Treatment::Text, "Observação"}},
     {OrderColumn::Quantity, {"QT_ESP", "", 17, Treatment::Quantity, "Quantidade de volumes"}},
     {OrderColumn::GrossWeight, {"PESO_BRU", "", 17, Treatment::Quantity, "Peso bruto"}},
     {OrderColumn::NetWeight, {"PESO_LIQ", "", 17, Treatment::Quantity, "Peso líquido"}}});

bool confirm(Environment& environment, const std::string& order) {
    const BoxAnswer answer = environment.boxes.show(
        {.text = "Confirma o cancelamento da Ordem de Faturamento nº " + order + " ?     ",
         .icon = BoxIcon::Question,
         .title = "Aviso",
         .buttons = BoxButtons::YesNo});
    return answer == BoxAnswer::Yes;
}

}  // namespace

std::span<const GridColumn> orderGrid() {
    return grid;
}

std::vector<GridRow> loadOrders(Environment& environment, const Sessao& session) {
    XmlDocument document;
    if (!requestAnswer(environment, commands::sel_ordem_fatu(session), document,
                       failure::Tarn0006)) {
        return {};
    }
    if (document.empty()) {
        warn(environment, "Houve um problema na transferência das Ordens de Faturamento.");
        return {};
    }
    return gridRows(document, grid);
}

bool cancelOrder(Environment& environment, const Sessao& session, const GridRow& order) {
    const std::string& number = order.text(OrderColumn::Order);
    if (!confirm(environment, number)) {
        return false;
    }
    XmlDocument document;
    if (!requestAnswer(environment,
                       commands::sp_can_oft(session, number, order.text(OrderColumn::LoadOrder)),
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
