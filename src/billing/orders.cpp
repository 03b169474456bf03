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

constexpr std::array<std::string_view, 12> campos{
    "ID_ORD_FAT",     "NM_PES_CPL", "NM_RDU", "DC_TIP_NF", "DT_GER_OFT", "ID_ORD_CRG",
    "TRANSPORTADORA", "NM_PES_MOT", "DC_OBS", "QT_ESP",    "PESO_BRU",   "PESO_LIQ"};
constexpr std::size_t primeiroNumero = 9;  // quantity and the two weights
constexpr NumberMask mascara{"###,###,###,##0.000"};

OrdemFaturamento ordemDe(const XmlNode& linha) {
    OrdemFaturamento ordem;
    const XmlAttributes atributos = linha.attributes();
    for (std::size_t i = 0; i < campos.size(); ++i) {
        const XmlAttribute atributo = atributos.getNamedItem(campos[i]);
        if (!atributo) {
            continue;
        }
        ordem.celulas[i] = i < primeiroNumero ? std::string(atributo.text())
                                              : formatNumber(readPoint(atributo.text()), mascara);
    }
    return ordem;
}

bool confirma(Environment& ambiente, const std::string& ordem) {
    const BoxAnswer resposta = ambiente.boxes.show(
        {.text = "Confirma o cancelamento da Ordem de Faturamento nº " + ordem + " ?     ",
         .icon = BoxIcon::Question,
         .title = "Aviso",
         .buttons = BoxButtons::YesNo});
    return resposta == BoxAnswer::Yes;
}

}  // namespace

std::vector<OrdemFaturamento> carregaOrdens(Environment& ambiente, const Sessao& sessao) {
    std::vector<OrdemFaturamento> ordens;
    XmlDocument documento;
    if (!pede(ambiente, comando::sel_ordem_fatu(sessao), documento, falha::Tarn0006)) {
        return ordens;
    }
    if (documento.empty()) {
        exclama(ambiente, "Houve um problema na transferência das Ordens de Faturamento.");
        return ordens;
    }
    const XmlNode linhas = documento.selectSingleNode("xml/rs:data");
    if (!linhas) {
        return ordens;
    }
    const std::size_t quantas = linhas.childCount();
    ordens.reserve(quantas);
    for (std::size_t i = 0; i < quantas; ++i) {
        ordens.push_back(ordemDe(linhas.child(i)));
    }
    return ordens;
}

bool cancelaOrdem(Environment& ambiente, const Sessao& sessao, const OrdemFaturamento& ordem) {
    const std::string& numero = ordem.ordem();
    if (!confirma(ambiente, numero)) {
        return false;
    }
    XmlDocument documento;
    if (!pede(ambiente, comando::sp_can_oft(sessao, numero, ordem.ordemCarga()), documento,
              falha::Tarn0003)) {
        exclama(ambiente,
                "Favor verificar se a Ordem de Faturamento nº " + numero + " foi cancelada. ",
                "Aviso");
        return false;
    }
    const std::string problema =
        "Houve um problema no Cancelamento da Ordem de Faturamento nº " + numero + ". ";
    if (!respostaAceita(ambiente, documento, problema)) {
        return false;
    }
    ambiente.boxes.show({.text = "Ordem de Faturamento cancelada.      ",
                         .icon = BoxIcon::Information,
                         .title = "Aviso "});
    return true;
}

}  // namespace tarn
