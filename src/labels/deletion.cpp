#include "labels/deletion.h"

#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "labels/label_boxes.h"
#include "runtime/runtime_error.h"

namespace tarn::labels {
namespace {

constexpr const char* intervaloSemNumero =
    "Nada foi excluído. Digite em De e Até os números da coluna Sequencial da lista e clique em "
    "OK de novo.";

}  // namespace

Exclusao excluiEtiquetas(Environment& ambiente, const Sessao& sessao, const std::string& motivo,
                         const std::string& de, const std::string& ate) {
    if (de.empty()) {
        informa(ambiente, "De é um campo obrigatório!  ");
        return Exclusao::FaltaDe;
    }
    if (ate.empty()) {
        informa(ambiente, "Até é um campo obrigatório!  ");
        return Exclusao::FaltaAte;
    }
    std::string consulta;
    try {
        consulta = comando::exclui_etiquetas(sessao, motivo, de, ate);
    } catch (const ErroExecucao& erro) {
        relata(ambiente, erro, intervaloSemNumero);
        return Exclusao::SemNumero;
    }
    XmlDocument resposta;
    pede(ambiente, consulta, resposta, falha::Tarn0009);
    informa(ambiente, "Etiquetas excluídas com sucesso!     ");
    return Exclusao::Enviada;
}

}  // namespace tarn::labels
