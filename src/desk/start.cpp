#include "desk/start.h"

#include <exception>

#include "gateway/answer.h"
#include "gateway/carrega_xml.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "gateway/pega_valor.h"
#include "platform/environment.h"
#include "platform/machine.h"
#include "platform/message_boxes.h"
#include "runtime/dates.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "runtime/split.h"
#include "runtime/text.h"

namespace tarn {
namespace {

constexpr std::string_view siteDoFornecedor = TARN_VENDOR_SITE;

std::string textoDesatualizado(std::string_view versao) {
    std::string texto = "          TARNEMISSAO DESATUALIZADO ! \r";
    texto.append("       Data da Versão TarnEmissao = ").append(versao).append("\r\r");
    texto.append("       Por favor, faça a atualização no site: \r\r");
    texto.append(20, ' ').append(siteDoFornecedor).append(" \r\r");
    texto.append("      OPÇÃO -> CENTRAL DE ATUALIZAÇÃO                   \r\r");
    return texto;
}

constexpr std::string_view textoFormatoData =
    "Erro na Configuração do Formato de Data do Windows\r\r"
    "Para corrigir selecione no Windows:\r\r"
    "-> Iniciar -> Configurações -> Painel de Controle -> Opcoes Regionais ->\r"
    "-> Data   -> Em formato reduzido de data selecione:  dd/mm/aaaa     ";

// The version row's attribute, or nothing that can be taken for a status.
std::string atributoDaVersao(const XmlDocument& documento, std::size_t indice) {
    try {
        return std::string(documento.child(1).child(0).attributes().item(indice).text());
    } catch (const ErroExecucao&) {
        return {};
    }
}

std::string comoAnoMesDia(std::string_view texto) {
    const auto data = parseDate(texto);
    if (!data) {
        return std::string(texto);
    }
    const std::string escrita = dateText(*data);  // dd/mm/yyyy
    return escrita.substr(6) + "/" + escrita.substr(3, 2) + "/" + escrita.substr(0, 2);
}

bool preenchido(Environment& ambiente, const std::string& valor, const std::string& campo) {
    if (!valor.empty()) {
        return true;
    }
    exclama(ambiente, campo + " é um campo obrigatório     ", "Aviso");
    return false;
}

void preenche(Sessao& sessao, const XmlDocument& documento) {
    const XmlNode principal = documento.selectSingleNode("PRINCIPAL");
    sessao.NCOMPANYCODE = readInt32(pegaNumero(principal, 0, "NCOMPANYCODE"));
    sessao.COMPANYNAME = pegaNumero(principal, 0, "COMPANYNAME");
    sessao.SERVERNAME = pegaNumero(principal, 0, "SERVERNAME");
    sessao.ID_ETB_TARN = readInt32(pegaNumero(principal, 0, "ID_ETB_TARN"));
    sessao.UserCode = pegaNumero(principal, 0, "UserCode");
    sessao.DATA = inverteData(pegaNumero(principal, 0, "DATA"));
}

std::string comZero(std::string_view parte) {
    std::string texto(lengthOf(parte) == 1 ? "0" : "");
    texto += parte;
    return texto;
}

}  // namespace

bool VerVersao(Environment& ambiente, Sessao& sessao, std::string_view versao) {
    XmlDocument documento;
    try {
        pede(ambiente, comando::VERSAO_TARN_EMISSAO(versao), documento, falha::semVersao);
    } catch (const std::exception&) {  // no failure may close the gate
        documento = XmlDocument();
    }
    sessao.VersaoServidor.clear();
    if (documento.empty()) {
        return true;
    }
    if (atributoDaVersao(documento, 0) == "OK") {
        sessao.VersaoServidor = comoAnoMesDia(atributoDaVersao(documento, 1));
        return true;
    }
    ambiente.boxes.show({.text = textoDesatualizado(versao), .icon = BoxIcon::Information});
    return false;
}

bool impoeFormatoData(Environment& ambiente) {
    if (ambiente.machine.setShortDateFormat("dd/MM/yyyy")) {
        return true;
    }
    ambiente.boxes.show(
        {.text = std::string(textoFormatoData), .icon = BoxIcon::Information, .title = "TArn"});
    return false;
}

bool entra(Environment& ambiente, Sessao& sessao, const std::string& empresa,
           const std::string& usuario, const std::string& senha) {
    if (!preenchido(ambiente, empresa, "Empresa") || !preenchido(ambiente, usuario, "Usuário") ||
        !preenchido(ambiente, senha, "Senha")) {
        return false;
    }
    XmlDocument documento;
    CarregaXML(ambiente, ambiente.baseUrl + comando::LOGIN(empresa, usuario, senha), documento,
               false, "", -1, "", std::string(falha::Tarn0001));
    if (!respostaAceita(ambiente, documento, "Houve um problema para efetuar o Login.")) {
        return false;
    }
    preenche(sessao, documento);
    return true;
}

std::string inverteData(std::string_view data) {
    const auto mesDiaAno = split(data, '/');
    if (mesDiaAno.size() < 3) {
        throw ErroExecucao(ErroNumero::ForaDoIntervalo);
    }
    return comZero(mesDiaAno[1]) + "/" + comZero(mesDiaAno[0]) + "/" + std::string(mesDiaAno[2]);
}

bool VerificaDireitoAcesso(Environment& ambiente, const Sessao& sessao,
                           std::string_view transacao) {
    XmlDocument documento;
    const bool carregada = pede(ambiente, comando::verifica_direito_acesso(sessao, transacao),
                                documento, falha::Tarn0002);
    const std::string problema =
        "Houve um problema na verificação do Direito de Acesso do usuário na Transação " +
        std::string(transacao) + ". ";
    return respostaAceita(ambiente, documento, problema) && carregada;
}

std::string nomeFilial(Environment& ambiente, const Sessao& sessao) {
    XmlDocument documento;
    pede(ambiente, comando::sel_dados_empresa(sessao), documento, falha::Tarn0009);
    return pegaTexto(documento.selectSingleNode("xml/rs:data"), 0, "NM_FIL");
}

}  // namespace tarn
