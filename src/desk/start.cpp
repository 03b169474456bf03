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

constexpr std::string_view supplierSite = TARN_VENDOR_SITE;

std::string outdatedText(std::string_view versao) {
    std::string texto = "          TARNEMISSAO DESATUALIZADO ! \r";
    texto.append("       Data da Versão TarnEmissao = ").append(versao).append("\r\r");
    texto.append("       Por favor, faça a atualização no site: \r\r");
    texto.append(20, ' ').append(supplierSite).append(" \r\r");
    texto.append("      OPÇÃO -> CENTRAL DE ATUALIZAÇÃO                   \r\r");
    return texto;
}

constexpr std::string_view dateFormatText =
    "Erro na Configuração do Formato de Data do Windows\r\r"
    "Para corrigir selecione no Windows:\r\r"
    "-> Iniciar -> Configurações -> Painel de Controle -> Opcoes Regionais ->\r"
    "-> Data   -> Em formato reduzido de data selecione:  dd/mm/aaaa     ";

// The version row's attribute, or nothing that can be taken for a status.
std::string versionAttribute(const XmlDocument& documento, std::size_t indice) {
    try {
        return std::string(documento.child(1).child(0).attributes().item(indice).text());
    } catch (const RuntimeError&) {
        return {};
    }
}

std::string asYearMonthDay(std::string_view texto) {
    const auto data = parseDate(texto);
    if (!data) {
        return std::string(texto);
    }
    const std::string written = dateText(*data);  // dd/mm/yyyy
    return written.substr(6) + "/" + written.substr(3, 2) + "/" + written.substr(0, 2);
}

bool filledIn(Environment& environment, const std::string& valor, const std::string& field) {
    if (!valor.empty()) {
        return true;
    }
    warn(environment, field + " é um campo obrigatório     ", "Aviso");
    return false;
}

void fillIn(Sessao& session, const XmlDocument& documento) {
    const XmlNode principal = documento.selectSingleNode("PRINCIPAL");
    session.NCOMPANYCODE = readInt32(numberAttribute(principal, 0, "NCOMPANYCODE"));
    session.COMPANYNAME = numberAttribute(principal, 0, "COMPANYNAME");
    session.SERVERNAME = numberAttribute(principal, 0, "SERVERNAME");
    session.ID_ETB_TARN = readInt32(numberAttribute(principal, 0, "ID_ETB_TARN"));
    session.UserCode = numberAttribute(principal, 0, "UserCode");
    session.DATA = dayMonthYear(numberAttribute(principal, 0, "DATA"));
}

std::string withZero(std::string_view part) {
    std::string texto(lengthOf(part) == 1 ? "0" : "");
    texto += part;
    return texto;
}

}  // namespace

bool VerVersao(Environment& environment, Sessao& session, std::string_view versao) {
    XmlDocument documento;
    try {
        requestAnswer(environment, commands::VERSAO_TARN_EMISSAO(versao), documento,
                      failure::noVersion);
    } catch (const std::exception&) {  // no failure may close the gate
        documento = XmlDocument();
    }
    session.VersaoServidor.clear();
    if (documento.empty()) {
        return true;
    }
    if (versionAttribute(documento, 0) == "OK") {
        session.VersaoServidor = asYearMonthDay(versionAttribute(documento, 1));
        return true;
    }
    environment.boxes.show({.text = outdatedText(versao), .icon = BoxIcon::Information});
    return false;
}

bool imposeDateFormat(Environment& environment) {
    if (environment.machine.setShortDateFormat("dd/MM/yyyy")) {
        return true;
    }
    environment.boxes.show(
        {.text = std::string(dateFormatText), .icon = BoxIcon::Information, .title = "TArn"});
    return false;
}

bool logOn(Environment& environment, Sessao& session, const std::string& company,
           const std::string& user, const std::string& password) {
    if (!filledIn(environment, company, "Empresa") || !filledIn(environment, user, "Usuário") ||
        !filledIn(environment, password, "Senha")) {
        return false;
    }
    XmlDocument documento;
    CarregaXML(environment, environment.baseUrl + commands::LOGIN(company, user, password),
               documento, false, "", -1, "", std::string(failure::Tarn0001));
    if (!answerAccepted(environment, documento, "Houve um problema para efetuar o Login.")) {
        return false;
    }
    fillIn(session, documento);
    return true;
}

std::string dayMonthYear(std::string_view data) {
    const auto monthDayYear = split(data, '/');
    if (monthDayYear.size() < 3) {
        throw RuntimeError(RuntimeErrorCode::OutOfRange);
    }
    return withZero(monthDayYear[1]) + "/" + withZero(monthDayYear[0]) + "/" +
           std::string(monthDayYear[2]);
}

bool VerificaDireitoAcesso(Environment& environment, const Sessao& session,
                           std::string_view transacao) {
    XmlDocument documento;
    const bool loaded =
        requestAnswer(environment, commands::verifica_direito_acesso(session, transacao), documento,
                      failure::Tarn0002);
    const std::string problem =
        "Houve um problema na verificação do Direito de Acesso do usuário na Transação " +
        std::string(transacao) + ". ";
    return answerAccepted(environment, documento, problem) && loaded;
}

std::string branchName(Environment& environment, const Sessao& session) {
    XmlDocument documento;
    requestAnswer(environment, commands::sel_dados_empresa(session), documento, failure::Tarn0009);
    return textAttribute(documento.selectSingleNode("xml/rs:data"), 0, "NM_FIL");
}

}  // namespace tarn
