#include "billing/order_maintenance.h"

#include <array>

#include "gateway/answer.h"
#include "gateway/failure_texts.h"
#include "platform/environment.h"
#include "runtime/numbers.h"

namespace tarn {
namespace {

struct Teste {
    CampoDaOrdem campo;
    std::string_view comando::DadosOrdem::*valor;
    std::string_view vazio;
    std::string_view negativo;
};

constexpr std::array<Teste, 3> testes{
    {{CampoDaOrdem::Quantidade, &comando::DadosOrdem::quantidade,
      "Quantidade Espécie é obrigatório!     ", "Quantidade Espécie inválido!     "},
     {CampoDaOrdem::PesoBruto, &comando::DadosOrdem::pesoBruto, "Peso Bruto é obrigatório!     ",
      "Peso Bruto inválido!     "},
     {CampoDaOrdem::PesoLiquido, &comando::DadosOrdem::pesoLiquido,
      "Peso Líquido é obrigatório!     ", "Peso Líquido inválido!     "}}};

}  // namespace

std::optional<RecusaDeCampo> recusaDosDados(const comando::DadosOrdem& dados) {
    for (const Teste& teste : testes) {
        const std::string_view valor = dados.*teste.valor;
        if (valor.empty()) {
            return RecusaDeCampo{teste.campo, teste.vazio};
        }
        if (readComma(valor) < 0) {
            return RecusaDeCampo{teste.campo, teste.negativo};
        }
    }
    return std::nullopt;
}

bool gravaOrdem(Environment& ambiente, const Sessao& sessao, const comando::DadosOrdem& dados) {
    XmlDocument documento;
    if (!pede(ambiente, comando::MANUTENCAO_OFT(sessao, dados), documento, falha::Tarn0013)) {
        exclama(ambiente, "Favor verificar se os dados da Ordem de Faturamento foi gravado. ",
                "Aviso");
        return true;
    }
    return respostaAceita(ambiente, documento,
                          "Houve um problema para gravar a Ordem de Faturamento. ");
}

}  // namespace tarn
