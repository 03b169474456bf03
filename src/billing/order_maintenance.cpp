#include "billing/order_maintenance.h"

#include <array>

#include "gateway/answer.h"
#include "gateway/failure_texts.h"
#include "platform/environment.h"
#include "runtime/numbers.h"

namespace tarn {
namespace {

struct Test {
    OrderField field;
    std::string commands::OrderData::*value;
    std::string_view empty;
    std::string_view negative;
};

constexpr std::array<Test, 3> tests{
    {{OrderField::Quantity, &commands::OrderData::quantity,
      "Quantidade Espécie é obrigatório!     ", "Quantidade Espécie inválido!     "},
     {OrderField::GrossWeight, &commands::OrderData::grossWeight, "Peso Bruto é obrigatório!     ",
      "Peso Bruto inválido!     "},
     {OrderField::NetWeight, &commands::OrderData::netWeight, "Peso Líquido é obrigatório!     ",
      "Peso Líquido inválido!     "}}};

}  // namespace

std::optional<OrderRefusal> dataRefusal(const commands::OrderData& data) {
    for (const Test& test : tests) {
        const std::string& value = data.*test.value;
        if (value.empty()) {
            return OrderRefusal{test.field, test.empty};
        }
        if (readComma(value) < 0) {
            return OrderRefusal{test.field, test.negative};
        }
    }
    return std::nullopt;
}

bool saveOrder(Environment& environment, const Sessao& session, const commands::OrderData& data) {
    XmlDocument document;
    if (!requestAnswer(environment, commands::MANUTENCAO_OFT(session, data), document,
                       failure::Tarn0013)) {
        warn(environment, "Favor verificar se os dados da Ordem de Faturamento foi gravado. ",
             "Aviso");
        return true;
    }
    return answerAccepted(environment, document,
                          "Houve um problema para gravar a Ordem de Faturamento. ");
}

}  // namespace tarn
