#include "labels/queue.h"

#include "common/grid_rows.h"
#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "labels/label_boxes.h"
#include "labels/label_values.h"

namespace tarn::labels {
namespace {

constexpr std::array<CampoGrade, 10> campos{{{"SEQUENCIAL"},
                                             {"CEP"},
                                             {"NOME"},
                                             {"CODIGO"},
                                             {"ENDERECO"},
                                             {"COMPLEMENTO"},
                                             {"BAIRRO"},
                                             {"MUNICIPIO"},
                                             {"UF"},
                                             {"PAIS"}}};

std::vector<ItemLista> comNenhum(std::vector<ItemLista> itens) {
    itens.insert(itens.begin(), ItemLista{std::string(semEscolha), 0});
    return itens;
}

}  // namespace

std::vector<ItemLista> carregaMotivos(Environment& ambiente, const Sessao& sessao) {
    XmlDocument resposta;
    if (!pede(ambiente, comando::sel_motivos(sessao), resposta, falha::Tarn0009Largo)) {
        return comNenhum({});
    }
    return comNenhum(itensDaResposta(resposta, "DC_MOT_IMP", {}));
}

std::optional<std::vector<ItemLista>> carregaFiliaisRemetente(Environment& ambiente,
                                                              const Sessao& sessao) {
    XmlDocument resposta;
    if (!pede(ambiente, comando::sel_filiais_remetente(sessao), resposta, falha::Tarn0009)) {
        return std::nullopt;
    }
    return comNenhum(itensDaResposta(resposta, "FILIAL", "ID_ETB"));
}

std::optional<std::vector<LinhaGrade>> leFila(Environment& ambiente, const Sessao& sessao,
                                              const std::string& motivo,
                                              ValoresEtiquetas& valores) {
    valores.MotivoImpressao = motivo;
    XmlDocument resposta;
    if (!pede(ambiente, comando::sel_etiquetas(sessao, motivo), resposta, falha::Tarn0009)) {
        return std::nullopt;
    }
    std::vector<LinhaGrade> fila = linhasDaResposta(resposta, campos);
    valores.quantidade = fila.size();
    return fila;
}

FaltaEscolher verificaEscolhas(Environment& ambiente, const ValoresEtiquetas& valores,
                               int posicaoDoFormulario) {
    if (valores.quantidade == 0) {
        informa(ambiente, "É necessário escolher o Motivo de Impressão.     ");
        return FaltaEscolher::Motivo;
    }
    if (posicaoDoFormulario == 0) {
        informa(ambiente, "Tipo de formulário é um campo obrigatório.     ");
        return FaltaEscolher::Formulario;
    }
    return FaltaEscolher::Nada;
}

}  // namespace tarn::labels
