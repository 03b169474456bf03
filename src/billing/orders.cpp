#include "billing/orders.h"

#include <string>

#include "common/acts.h"
#include "common/boxes.h"
#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "platform/environment.h"
#include "platform/message_boxes.h"
#include "runtime/numbers.h"

namespace tarn {
namespace {

constexpr auto orderColumns = gridOf<OrderColumn>(
    {{OrderColumn::Order,
      {"ID_ORD_FAT", "Ord. Fat.", 10, Treatment::Text, "Número da ordem de faturamento"}},
     {OrderColumn::Customer, {"NM_PES_CPL", "Cliente", 40, Treatment::Text, "Cliente"}},
     {OrderColumn::Establishment,
      {"NM_RDU", "Estabelecimento", 16, Treatment::Text, "Estabelecimento"}},
     {OrderColumn::NoteKind,
      {"DC_TIP_NF", "Tipo de NF", 24, Treatment::Text, "Tipo de nota fiscal"}},
     {OrderColumn::Generated,
      {"DT_GER_OFT", "Dt. Emissão", 12, Treatment::Text, "Data em que a ordem foi gerada"}},
     {OrderColumn::LoadOrder,
      {"ID_ORD_CRG", "Ord. Carga", 11, Treatment::Text, "Número da ordem de carga"}},
     {OrderColumn::Carrier,
      {"TRANSPORTADORA", "Transportadora", 24, Treatment::Text, "Transportadora"}},
     {OrderColumn::Driver, {"NM_PES_MOT", "Motorista", 24, Treatment::Text, "Motorista"}},
     {OrderColumn::Observation, {"DC_OBS", "", 24, Treatment::Text, "Observação"}},
     {OrderColumn::Quantity, {"QT_ESP", "", 9, Treatment::Quantity, "Quantidade de volumes"}},
     {OrderColumn::GrossWeight, {"PESO_BRU", "", 12, Treatment::Quantity, "Peso bruto"}},
     {OrderColumn::NetWeight, {"PESO_LIQ", "", 12, Treatment::Quantity, "Peso líquido"}}});

// What is tested of one field, and the two refusals.
struct FieldTest {
    OrderField field;
    std::string commands::OrderData::*value;
    std::string_view empty;
    std::string_view negative;
};

constexpr std::array<FieldTest, 3> fieldTests{
    {{OrderField::Quantity, &commands::OrderData::quantity,
      "Quantidade Espécie é obrigatório!     ", "Quantidade Espécie inválido!     "},
     {OrderField::GrossWeight, &commands::OrderData::grossWeight, "Peso Bruto é obrigatório!     ",
      "Peso Bruto inválido!     "},
     {OrderField::NetWeight, &commands::OrderData::netWeight, "Peso Líquido é obrigatório!     ",
      "Peso Líquido inválido!     "}}};

bool confirm(Environment& environment, const std::string& order) {
    const BoxAnswer answer = environment.boxes.show(
        {.text = "Confirma o cancelamento da Ordem de Faturamento nº " + order + " ?     ",
         .icon = BoxIcon::Question,
         .title = std::string(box_title::notice),
         .buttons = BoxButtons::YesNo});
    return answer == BoxAnswer::Yes;
}

}  // namespace

std::span<const GridColumn> orderGrid() {
    return orderColumns;
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
    return gridRows(document, orderColumns);
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
             box_title::notice);
        return false;
    }
    const std::string problem =
        "Houve um problema no Cancelamento da Ordem de Faturamento nº " + number + ". ";
    if (!answerAccepted(environment, document, problem)) {
        return false;
    }
    tellDone(environment, "Ordem " + number + " cancelada");
    inform(environment, "Ordem de Faturamento cancelada.      ", "Aviso ");
    return true;
}

std::optional<Refusal<OrderField>> dataRefusal(const commands::OrderData& data) {
    for (const FieldTest& test : fieldTests) {
        const std::string_view value = data.*test.value;
        if (value.empty()) {
            return Refusal<OrderField>{test.field, std::string(test.empty)};
        }
        if (readComma(value) < 0) {
            return Refusal<OrderField>{test.field, std::string(test.negative)};
        }
    }
    return std::nullopt;
}

bool saveOrder(Environment& environment, const Sessao& session, const commands::OrderData& data) {
    XmlDocument document;
    if (!requestAnswer(environment, commands::MANUTENCAO_OFT(session, data), document,
                       failure::Tarn0013)) {
        warn(environment, "Favor verificar se os dados da Ordem de Faturamento foi gravado. ",
             box_title::notice);
        return true;
    }
    if (!answerAccepted(environment, document,
                        "Houve um problema para gravar a Ordem de Faturamento. ")) {
        return false;
    }
    tellDone(environment, "Ordem " + data.order + " gravada");
    return true;
}

}  // namespace tarn
