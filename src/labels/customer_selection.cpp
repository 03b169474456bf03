#include "labels/customer_selection.h"

#include <algorithm>
#include <array>

#include "common/grid_rows.h"
#include "gateway/answer.h"
#include "gateway/failure_texts.h"
#include "platform/environment.h"
#include "platform/message_boxes.h"

namespace tarn::labels {
namespace {

// The tick is the user's own.
constexpr std::array<CampoGrade, 7> campos{
    {{}, {"CD_CEP"}, {"NM_PES_CPL"}, {"DC_LG_CPL"}, {"NM_BRR"}, {"SG_UF"}, {"NM_MUN"}}};

std::vector<ItemLista> carrega(Environment& ambiente, const std::string& consulta,
                               std::string_view campoTexto, std::string_view campoDado) {
    XmlDocument resposta;
    if (!pede(ambiente, consulta, resposta, falha::Tarn0009Largo)) {
        return {};
    }
    std::vector<ItemLista> itens = itensDaResposta(resposta, campoTexto, campoDado);
    itens.insert(itens.begin(), ItemLista{"<-TODAS->", dadoTodas});
    return itens;
}

}  // namespace

std::vector<ItemLista> carregaFiliais(Environment& ambiente, const Sessao& sessao) {
    return carrega(ambiente, comando::sel_filias(sessao), "FILIAL", "ID_ETB");
}

std::vector<ItemLista> carregaPaises(Environment& ambiente, const Sessao& sessao) {
    return carrega(ambiente, comando::sel_pais(sessao), "NM_PAIS", "ID_PAIS");
}

std::vector<ItemLista> carregaEstados(Environment& ambiente, const Sessao& sessao,
                                      std::int32_t pais) {
    return carrega(ambiente, comando::sel_estado(sessao, pais), "NM_UF", "ID_UF");
}

std::vector<ItemLista> carregaCidades(Environment& ambiente, const Sessao& sessao,
                                      std::int32_t estado) {
    return carrega(ambiente, comando::sel_cidade(sessao, estado), "NM_MUN", "ID_MUN");
}

std::string MontaURL(std::span<const std::int32_t> dados, int posicao) {
    if (posicao > 0) {
        return std::to_string(dados[static_cast<std::size_t>(posicao)]);
    }
    std::string texto;
    for (std::size_t i = 1; i < dados.size(); ++i) {
        texto.append(texto.empty() ? "" : ", ").append(std::to_string(dados[i]));
    }
    return texto;
}

FaltaData verificaDatas(Environment& ambiente, const comando::FiltroEtiquetas& filtro) {
    const auto vendas = {filtro.produto, filtro.valorDe, filtro.valorAte, filtro.quantidadeDe,
                         filtro.quantidadeAte};
    const bool precisa = std::any_of(vendas.begin(), vendas.end(),
                                     [](std::string_view texto) { return !texto.empty(); });
    if (!precisa || (!filtro.vendaDe.empty() && !filtro.vendaAte.empty())) {
        return FaltaData::Nenhuma;
    }
    ambiente.boxes.show({.text = "Data de Venda obrigatoria nesta ocasião!", .title = "Alert"});
    return filtro.vendaDe.empty() ? FaltaData::De : FaltaData::Ate;
}

std::vector<LinhaGrade> clientesDa(const XmlDocument& resposta) {
    return linhasDaResposta(resposta, campos);
}

std::vector<LinhaGrade> pesquisaClientes(Environment& ambiente, const Sessao& sessao,
                                         const comando::FiltroEtiquetas& filtro) {
    const std::string consulta = comando::sel_dados_etq(sessao, filtro);
    ambiente.boxes.show({.text = consulta});
    XmlDocument resposta;
    if (!pede(ambiente, consulta, resposta, falha::Tarn0009Largo)) {
        return {};
    }
    return clientesDa(resposta);
}

}  // namespace tarn::labels
