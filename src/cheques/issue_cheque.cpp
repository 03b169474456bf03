#include "cheques/issue_cheque.h"

#include "cheques/imprime_cheque.h"
#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "gateway/pega_valor.h"
#include "platform/environment.h"
#include "platform/message_boxes.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn {
namespace {

constexpr double maiorValorSemFavorecido = 100;

bool emBranco(std::string_view texto) {
    return trimBlanks(texto).empty();
}

std::string emMaiusculas(std::string_view texto) {
    return upperCase(trimBlanks(texto));
}

std::int32_t dadoDoItem(std::string_view texto) {
    try {
        return readInt32(trimBlanks(texto));
    } catch (const ErroExecucao&) {
        return 0;
    }
}

ContaBancaria contaDe(const XmlNode& linhas, std::size_t indice) {
    ContaBancaria conta{.descricao = pegaTexto(linhas, indice, "BANCO"),
                        .ID_PES_BAN = dadoDoItem(pegaTexto(linhas, indice, "ID_PES_BAN")),
                        .CD_AGE_BAN = pegaTexto(linhas, indice, "CD_AGE_BAN"),
                        .NR_CCOR = pegaTexto(linhas, indice, "NR_CCOR"),
                        .NR_OFI_BAN = pegaTexto(linhas, indice, "NR_OFI_BAN")};
    conta.descricao.append(" - ").append(conta.CD_AGE_BAN).append(" - ").append(conta.NR_CCOR);
    if (const XmlAttribute nome = linhas.child(indice).attributes().getNamedItem("DC_CCOR")) {
        conta.descricao.append(" - ").append(nome.text());
    }
    return conta;
}

// The texts live as long as `campos`.
comando::Cheque chequeDe(const CamposCheque& campos) {
    comando::Cheque cheque{.numero = campos.numero,
                           .serie = campos.serie,
                           .valor = campos.valor,
                           .favorecido = campos.favorecido,
                           .dataDeposito = campos.dataDeposito,
                           .observacao = campos.observacao};
    if (campos.conta) {
        cheque.banco = campos.conta->ID_PES_BAN;
        cheque.agencia = campos.conta->CD_AGE_BAN;
        cheque.conta = campos.conta->NR_CCOR;
    }
    return cheque;
}

void imprime(Environment& ambiente, const CamposCheque& campos, const std::string& municipio) {
    const std::string favorecido = emMaiusculas(campos.favorecido);
    ImprimeCheque(ambiente,
                  {.nNr_Ofi_Ban = codigoDoBanco(campos.conta ? campos.conta->NR_OFI_BAN : ""),
                   .sValor = trimBlanks(campos.valor),
                   .sFavorecido = favorecido,
                   .sDataDeposito = trimBlanks(campos.dataDeposito),
                   .sNmMun = municipio});
}

}  // namespace

std::optional<std::vector<ContaBancaria>> carregaContas(Environment& ambiente,
                                                        const Sessao& sessao) {
    XmlDocument documento;
    if (!pede(ambiente, comando::sel_banco_agencia_conta(sessao), documento,
              falha::Tarn0009Largo)) {
        return std::nullopt;
    }
    std::vector<ContaBancaria> contas{{.descricao = "------------"}};
    const XmlNode linhas = documento.selectSingleNode("xml/rs:data");
    for (std::size_t i = 0; linhas && i < linhas.childCount(); ++i) {
        contas.push_back(contaDe(linhas, i));
    }
    return contas;
}

std::optional<RecusaDoCheque> recusaDosCampos(const CamposCheque& campos) {
    if (!campos.conta) {
        return RecusaDoCheque{CampoDoCheque::Conta, "Banco/Ag./Conta é um campo obrigatório. "};
    }
    if (emBranco(campos.numero)) {
        return RecusaDoCheque{CampoDoCheque::Numero, "Nº Cheque é um campo obrigatório. "};
    }
    if (emBranco(campos.serie)) {
        return RecusaDoCheque{CampoDoCheque::Serie, "Série é um campo obrigatório. "};
    }
    if (emBranco(campos.valor)) {
        return RecusaDoCheque{CampoDoCheque::Valor, "Valor é um campo obrigatório. "};
    }
    const double valor = readComma(campos.valor);
    if (valor == 0) {
        return RecusaDoCheque{CampoDoCheque::Valor, "Valor deve ser maior que R$ 0,00. "};
    }
    if (valor > maiorValorSemFavorecido && emBranco(campos.favorecido)) {
        return RecusaDoCheque{CampoDoCheque::Favorecido,
                              "Favorecido é um campo obrigatório para cheques com valores maiores "
                              "que R$ 100,00. "};
    }
    if (emBranco(campos.dataDeposito)) {
        return RecusaDoCheque{CampoDoCheque::DataDeposito,
                              "Data para Depósito é um campo obrigatório. "};
    }
    return std::nullopt;
}

bool ValidaCheque(Environment& ambiente, const Sessao& sessao, const CamposCheque& campos) {
    XmlDocument documento;
    pede(ambiente, comando::seleciona_um_controle_cheque_emitido(sessao, chequeDe(campos)),
         documento, falha::Tarn0009Largo);
    const XmlNode linhas = documento.selectSingleNode("xml/rs:data");
    return !linhas || linhas.childCount() == 0;
}

std::optional<RecusaDoCheque> recusaDoNumero(Environment& ambiente, const Sessao& sessao,
                                             const CamposCheque& campos) {
    if (emBranco(campos.numero) || emBranco(campos.serie) ||
        ValidaCheque(ambiente, sessao, campos)) {
        return std::nullopt;
    }
    std::string texto = "Cheque com este número e série já foi emitido já emitido. ";
    texto.append("\rNúmero: ").append(trimBlanks(campos.numero));
    texto.append("\rSérie: ").append(emMaiusculas(campos.serie));
    return RecusaDoCheque{CampoDoCheque::Numero, std::move(texto)};
}

// The paper comes first: a record that fails leaves a real cheque without one, and the
// fields that tell which it was.
bool emiteCheque(Environment& ambiente, const Sessao& sessao, const CamposCheque& campos) {
    XmlDocument empresa;
    if (!pede(ambiente, comando::sel_dados_empresa(sessao), empresa, falha::Tarn0009)) {
        return false;
    }
    imprime(ambiente, campos, pegaTexto(empresa.selectSingleNode("xml/rs:data"), 0, "NM_MUN"));
    XmlDocument resposta;
    if (!pede(ambiente, comando::adiciona_controle_cheque_emitido(sessao, chequeDe(campos)),
              resposta, falha::Tarn0009)) {
        return false;
    }
    try {
        return chequeGravado(ambiente, resposta);
    } catch (const ErroExecucao& erro) {
        throw ErroExecucao(erro.numero(),
                           "o cheque nº " + std::string(trimBlanks(campos.numero)) +
                               " foi impresso e talvez não esteja gravado no servidor; confira-o "
                               "pelo número e série antes de imprimir outro");
    }
}

bool chequeGravado(Environment& ambiente, const XmlDocument& resposta) {
    if (!respostaAceita(ambiente, resposta,
                        "Houve um problema para gravar cheque no banco de dados. ")) {
        return false;
    }
    ambiente.boxes.show({.text = "Cheque emitido com sucesso!     ",
                         .icon = BoxIcon::Information,
                         .title = "TArn"});
    return true;
}

}  // namespace tarn
