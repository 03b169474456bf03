#include "common/list_items.h"

#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "platform/environment.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"

namespace tarn {
namespace {

std::string_view textoDe(const XmlAttributes& atributos, std::string_view campo) {
    const XmlAttribute atributo = atributos.getNamedItem(campo);
    return atributo ? atributo.text() : std::string_view();
}

std::int32_t dadoDe(std::string_view texto) {
    try {
        return readInt32(texto);
    } catch (const ErroExecucao&) {
        return 0;
    }
}

}  // namespace

std::vector<ItemLista> itensDaResposta(const XmlDocument& resposta, std::string_view campoTexto,
                                       std::string_view campoDado) {
    std::vector<ItemLista> itens;
    const XmlNode linhas = resposta.selectSingleNode("xml/rs:data");
    const std::size_t quantas = linhas ? linhas.childCount() : 0;
    itens.reserve(quantas);
    for (std::size_t i = 0; i < quantas; ++i) {
        const XmlAttributes atributos = linhas.child(i).attributes();
        itens.push_back(
            {std::string(textoDe(atributos, campoTexto)), dadoDe(textoDe(atributos, campoDado))});
    }
    return itens;
}

std::vector<ItemLista> filiaisParaFiltro(Environment& ambiente, const Sessao& sessao) {
    std::vector<ItemLista> filiais{{"<-TODAS->", 0}};
    XmlDocument resposta;
    if (pede(ambiente, comando::sel_filiais(sessao), resposta, falha::Tarn0009Largo)) {
        const std::vector<ItemLista> lidas = itensDaResposta(resposta, "SG_FIL", "ID_ETB_TARN");
        filiais.insert(filiais.end(), lidas.begin(), lidas.end());
    }
    return filiais;
}

}  // namespace tarn
