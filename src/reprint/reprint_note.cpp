#include "reprint/reprint_note.h"

#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "gateway/pega_valor.h"
#include "notes/print_note.h"
#include "platform/environment.h"
#include "platform/message_boxes.h"
#include "runtime/dates.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn {
namespace {

constexpr std::size_t vaoDaSerie = 50;  // blanks

// Both jobs name the note in the box for an answer that can't be used.
constexpr const char* problemaDados =
    "Houve um problema na transferência dos dados da Nota Fiscal nº ";
constexpr const char* problemaCancelamento = "Houve um problema no Cancelamento da Nota Fiscal nº ";

void alerta(Environment& ambiente, const std::string& texto) {
    exclama(ambiente, texto, "Aviso");
}

// An attribute of a list's row; absent is empty.
std::string_view campo(const XmlNode& linha, std::string_view nome) {
    const XmlAttribute atributo = linha.attributes().getNamedItem(nome);
    return atributo ? atributo.text() : std::string_view();
}

template <typename Rotina>
void paraCadaLinha(const XmlDocument& documento, const Rotina& rotina) {
    const XmlNode linhas = documento.selectSingleNode("xml/rs:data");
    for (std::size_t i = 0; linhas && i < linhas.childCount(); ++i) {
        rotina(linhas.child(i));
    }
}

std::int32_t idDoMotivo(std::string_view texto) {
    try {
        return readInt32(trimBlanks(texto));
    } catch (const ErroExecucao&) {
        return 0;
    }
}

// An answer without a status to read is no more use than an empty one.
bool aceita(Environment& ambiente, const XmlDocument& documento, const std::string& problema) {
    std::string status;
    try {
        status = statusOf(documento);
    } catch (const ErroExecucao&) {
        alerta(ambiente, problema);
        return false;
    }
    if (status != "OK") {
        exclama(ambiente, status);
        return false;
    }
    return true;
}

}  // namespace

bool carregaSeries(Environment& ambiente, const Sessao& sessao, std::vector<std::string>& itens) {
    XmlDocument documento;
    if (!pede(ambiente, comando::SEL_SERIE_NF(sessao), documento, falha::Tarn0010)) {
        return true;
    }
    if (documento.empty()) {
        alerta(ambiente, "Houve um problema na transferência das Séries da Nota Fiscal. ");
        return false;
    }
    paraCadaLinha(documento, [&itens](const XmlNode& linha) {
        std::string item(campo(linha, "DC_SER_NF"));
        item.append(vaoDaSerie, ' ').append("|").append(trimBlanks(campo(linha, "CD_SER_NF")));
        itens.push_back(std::move(item));
    });
    return true;
}

std::string codigoDaSerie(std::string_view item) {
    const std::size_t inicio = item.find('|') + 1;
    return std::string(item.substr(inicio, item.find('|', inicio) - inicio));
}

std::vector<MotivoCancelamento> carregaMotivos(Environment& ambiente, const Sessao& sessao) {
    std::vector<MotivoCancelamento> motivos;
    XmlDocument documento;
    if (!pede(ambiente, comando::SEL_MOT_CAN(sessao), documento, falha::Tarn0011)) {
        return motivos;
    }
    if (documento.empty()) {
        alerta(ambiente, "Houve um problema na transferência dos Motivos de Cancelamento. ");
        return motivos;
    }
    paraCadaLinha(documento, [&motivos](const XmlNode& linha) {
        motivos.push_back(
            {std::string(campo(linha, "DC_MOT_CAN")), idDoMotivo(campo(linha, "ID_MOT_CAN"))});
    });
    return motivos;
}

std::optional<NotaEncontrada> pesquisaNota(Environment& ambiente, const Sessao& sessao,
                                           const CamposNota& campos) {
    if (!campos.serie) {
        alerta(ambiente, "Selecione a série da Nota.     ");
        return std::nullopt;
    }
    if (campos.numero.empty()) {
        alerta(ambiente, "Digite o Nº Nota !!!    ");
        return std::nullopt;
    }
    const std::string serie = codigoDaSerie(*campos.serie);
    XmlDocument documento;
    if (!pede(ambiente, comando::SEL_NF(sessao, campos.numero, serie), documento,
              falha::Tarn0007)) {
        alerta(ambiente, "Houve um problema na Pesquisa da Nota Fiscal !!!");
        return std::nullopt;
    }
    const XmlNode linhas = documento.selectSingleNode("xml/rs:data");
    if (!linhas || linhas.childCount() == 0) {
        alerta(ambiente, "Nota Fiscal não encontrada ou Cancelada !!!    ");
        return std::nullopt;
    }
    return NotaEncontrada{.numero = campos.numero,
                          .serie = serie,
                          .tipo = pegaTexto(linhas, 0, "IC_TIP_NF"),
                          .descricaoTipo = pegaTexto(linhas, 0, "DC_TIP_NF"),
                          .emissao = formatDateText(pegaTexto(linhas, 0, "DT_EMS_NF")),
                          .cliente = pegaTexto(linhas, 0, "NM_PES_CPL")};
}

bool notaSelecionada(Environment& ambiente, const CamposNota& campos,
                     std::string_view notaEncontrada) {
    if (!campos.serie) {
        alerta(ambiente, "Selecione a série da Nota ");
    } else if (campos.numero.empty()) {
        alerta(ambiente, "Digite o Nº Nota !!!");
    } else if (notaEncontrada.empty()) {
        alerta(ambiente, "Preencha o campo Nro da NF e a série e clique em pesquisar!!!");
    } else {
        return true;
    }
    return false;
}

void reimprimeNota(Environment& ambiente, const Sessao& sessao, const std::string& numero,
                   const std::string& serie) {
    XmlDocument documento;
    if (!pede(ambiente, comando::sel_gera_nf(sessao, numero, serie), documento, falha::Tarn0008)) {
        alerta(ambiente, "Houve um problema na transferência dos dados da Nota Fiscal !!!");
        return;
    }
    if (!aceita(ambiente, documento, problemaDados + numero + ". ")) {
        return;
    }
    try {
        imprimeNota(Escada::Reimpressao, ambiente, sessao, documento, numero);
    } catch (const ErroExecucao& erro) {
        throw ErroComNota(erro);
    }
}

bool cancelaNota(Environment& ambiente, const Sessao& sessao, const PedidoCancelamento& pedido) {
    if (!pedido.opcao) {
        alerta(ambiente, "Selecione o Tipo de Cancelamento !!!");
        return false;
    }
    if (!pedido.motivo) {
        alerta(ambiente, "Selecione o Motivo do Cancelamento !!!");
        return false;
    }
    const comando::Cancelamento dados{.tipoNota = pedido.tipoNota,
                                      .nota = pedido.numero,
                                      .serie = pedido.serie,
                                      .motivo = *pedido.motivo,
                                      .semNovoFaturamento = *pedido.opcao == NovoFaturamento::Sem};
    XmlDocument documento;
    if (!pede(ambiente, comando::sp_can_nf(sessao, dados), documento, falha::Tarn0009)) {
        alerta(ambiente, "Favor verificar se a Nota Fiscal foi cancelada. ");
        return false;
    }
    if (!aceita(ambiente, documento, problemaCancelamento + pedido.numero + ". ")) {
        return false;
    }
    ambiente.boxes.show({.text = "Nota fiscal cancelada com sucesso",
                         .icon = BoxIcon::Information,
                         .title = "Aviso"});
    return true;
}

}  // namespace tarn
