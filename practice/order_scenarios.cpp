#include "practice/order_scenarios.h"

#include <array>

namespace tarn::practice {
namespace {

constexpr const char* kLongObservation =
    "ENTREGAR SOMENTE DE SEGUNDA A SEXTA-FEIRA, DAS 8:00 ÀS 11:30 E DAS 13:00 ÀS 16:30, COM "
    "AGENDAMENTO PRÉVIO PELO TELEFONE DA RECEPÇÃO. A DESCARGA É POR CONTA DO DESTINATÁRIO, QUE "
    "DISPÕE DE EMPILHADEIRA. CONFERIR OS VOLUMES NA PRESENÇA DO MOTORISTA E ANOTAR NO CANHOTO "
    "QUALQUER DIVERGÊNCIA. MERCADORIA SUJEITA A INSPEÇÃO DE QUALIDADE; DEVOLUÇÕES SOMENTE COM "
    "NOTA FISCAL E NO PRAZO DE SETE DIAS. EMBALAGENS RETORNÁVEIS DEVEM SEGUIR COM O VEÍCULO.";

constexpr std::array kScenarios = {
    Scenario{.customer = 0,
             .carrier = 0,
             .driver = "ANTÔNIO CARLOS",
             .parcels = 3,
             .paymentCondition = "30/60/90 DIAS",
             .items = 4,
             .customerOrder = "PED-4471",
             .controlNumber = "CTRL 000871-A"},
    Scenario{.customer = 1, .carrier = 3, .items = 2, .controlNumber = "0"},
    Scenario{.customer = 2,
             .carrier = 1,
             .driver = "JOÃO BATISTA",
             .parcels = 0,
             .paymentCondition = "À VISTA",
             .observation = "PAGAMENTO À VISTA NA ENTREGA"},
    Scenario{.customer = 5,
             .carrier = 0,
             .parcels = 9,
             .stepDays = 15,
             .paymentCondition = "9 PARCELAS QUINZENAIS",
             .items = 5,
             .customerOrder = "OC 99/2012"},
    Scenario{
        .customer = 8, .carrier = 0, .parcels = 10, .paymentCondition = "10 X 30 DIAS", .items = 3},
    Scenario{.customer = 0,
             .carrier = 0,
             .driver = "ANTÔNIO CARLOS",
             .saleObservation = "Cliente pediu entrega após as 14:00.\nConfirmar o endereço por "
                                "telefone.\n\nDesconto de 5% já concedido nos preços & no frete."},
    Scenario{.customer = 2, .carrier = 1, .items = 3, .lacksStock = true},
    Scenario{.customer = 6, .carrier = 2, .items = 2},
    Scenario{.customer = 8,
             .carrier = 0,
             .parcels = 3,
             .paymentCondition = "28/42/56 DIAS",
             .items = kOverFullForm},
    Scenario{.customer = 8, .carrier = 0, .items = 6, .choice = Choice::EveryLegalText},
    Scenario{.customer = 7, .carrier = 1, .items = 2, .observation = kLongObservation},
    Scenario{.customer = 5,
             .carrier = 0,
             .parcels = 3,
             .items = 4,
             .discountRate = 750,
             .customerOrder = "4500012345"},
    Scenario{.customer = 2, .carrier = 1, .driver = "SEBASTIÃO", .items = 2},
    Scenario{.customer = 3,
             .carrier = 1,
             .parcels = 3,
             .items = 3,
             .observation = "A/C DEPARTAMENTO DE COMPRAS",
             .customerOrder = "REQ. 2012/000.457-CPD"},
    Scenario{.customer = 4,
             .parcels = 0,
             .paymentCondition = nullptr,
             .items = 1,
             .ownOrder = false,
             .loadOrder = false},
    Scenario{.customer = 11,
             .carrier = 3,
             .parcels = 0,
             .paymentCondition = nullptr,
             .items = 2,
             .observation = "DEVOLUÇÃO PARCIAL DE VENDA",
             .entry = true},
    Scenario{.customer = 8,
             .carrier = 0,
             .parcels = 3,
             .items = 4,
             .freight = 12550,
             .insurance = 1833,
             .expenses = 707},
    Scenario{.customer = 11, .carrier = 0, .items = 4, .choice = Choice::Withheld},
    Scenario{.customer = 4, .carrier = 2, .items = 3, .choice = Choice::ByWeight},
    Scenario{.customer = 7,
             .carrier = 1,
             .driver = "WÁLTER",
             .parcels = 3,
             .items = 3,
             .observation = "ENTREGAR NO PORTÃO DE SERVIÇO",
             .customerOrder = "HTL-0031"},
    Scenario{.customer = 5, .carrier = 0, .parcels = 1, .items = kFullForm},
    Scenario{.customer = 9,
             .carrier = 0,
             .parcels = 3,
             .items = 3,
             .observation = "INSCRIÇÃO SUFRAMA 20.0123.45-6",
             .icmsDiscountRate = 700,
             .ownOrder = false},
    Scenario{.customer = 10,
             .carrier = 2,
             .items = 2,
             .observation = "PREÇO EM € CONVERTIDO – 100% \"LÍQUIDO\" <SEM IPI> & S/ FRETE"},
};

}  // namespace

std::span<const Scenario> orderScenarios() {
    return kScenarios;
}

}  // namespace tarn::practice
