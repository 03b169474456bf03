#include "customers/procura_cliente.h"

#include <array>
#include <utility>

#include "common/grid_rows.h"
#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "platform/environment.h"
#include "platform/message_boxes.h"
#include "runtime/text.h"

namespace tarn {
namespace {

constexpr std::size_t menorNome = 3;

constexpr std::array<CampoGrade, 3> campos{
    {{.nome = "NM_PES_CPL"}, {.nome = "DC_TIP_EMP"}, {.nome = "ID_PES_CLI"}}};

void informa(Environment& ambiente, const std::string& texto) {
    ambiente.boxes.show({.text = texto, .icon = BoxIcon::Information, .title = "Aviso"});
}

}  // namespace

bool ProcuraCliente(Environment& ambiente, const Sessao& sessao, XmlDocument& resposta,
                    const std::optional<std::string>& texto) {
    return pede(ambiente, comando::Sel_Cliente(sessao, texto.value_or("")), resposta,
                falha::Tarn0024);
}

std::vector<LinhaGrade> linhasDeClientes(const XmlDocument& resposta) {
    return linhasDaResposta(resposta, campos);
}

bool pesquisaCliente(Environment& ambiente, const Sessao& sessao, const std::string& texto,
                     const MostraClientes& mostra) {
    if (lengthOf(trimBlanks(texto)) < menorNome) {
        informa(ambiente, "Nome do cliente deve ter no mínimo 3 letras.    ");
        return false;
    }
    XmlDocument resposta;
    if (!ProcuraCliente(ambiente, sessao, resposta, texto)) {
        return true;
    }
    std::vector<LinhaGrade> linhas = linhasDeClientes(resposta);
    const bool nenhuma = linhas.empty();
    mostra(std::move(linhas));
    if (nenhuma) {
        informa(ambiente, "Pesquisa nao encontrou nenhum registro.     ");
    }
    return true;
}

}  // namespace tarn
