#include "desk/start.h"

#include <exception>

#include "common/boxes.h"
#include "gateway/answer.h"
#include "gateway/carrega_xml.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "gateway/pega_valor.h"
#include "platform/environment.h"
#include "platform/machine.h"
#include "runtime/dates.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn {
namespace {

constexpr std::string_view supplierSite = TARN_VENDOR_SITE;

std::string outdatedText(std::string_view version) {
    std::string text = "          TARNEMISSAO DESATUALIZADO ! \r";
    text.append("       Data da Versão TarnEmissao = ").append(version).append("\r\r");
    text.append("       Por favor, faça a atualização no site: \r\r");
    text.append(20, ' ').append(supplierSite).append(" \r\r");
    text.append("      OPÇÃO -> CENTRAL DE ATUALIZAÇÃO                   \r\r");
    return text;
}

constexpr std::string_view dateFormatText =
    "Erro na Configuração do Formato de Data do Windows\r\r"
    "Para corrigir selecione no Windows:\r\r"
    "-> Iniciar -> Configurações -> Painel de Controle -> Opcoes Regionais ->\r"
    "-> Data   -> Em formato reduzido de data selecione:  dd/mm/aaaa     ";

// The version row's attribute, or nothing that can be taken for a status.
std::string versionAttribute(const XmlDocument& document, std::size_t index) {
    try {
        return std::string(document.child(1).child(0).attributes().item(index).text());
    } catch (const RuntimeError&) {
        return {};
    }
}

std::string asYearMonthDay(std::string_view text) {
    const auto data = parseDate(text);
    if (!data) {
        return std::string(text);
    }
    const std::string written = dateText(*data);  // dd/mm/yyyy
    return written.substr(6) + "/" + written.substr(3, 2) + "/" + written.substr(0, 2);
}

bool filledIn(Environment& environment, const std::string& value, const std::string& field) {
    if (!value.empty()) {
        return true;
    }
    warn(environment, field + " é um campo obrigatório     ", box_title::notice);
    return false;
}

// Looked up in upper case; what is absent is the number 0: decision D99.
void fillIn(Sessao& session, const XmlDocument& document) {
    const XmlNode principal = document.selectSingleNode("PRINCIPAL");
    session.NCOMPANYCODE = readInt32(PegaValor(principal, 0, "NCOMPANYCODE", 0));
    session.COMPANYNAME = PegaValor(principal, 0, "COMPANYNAME", 0);
    session.SERVERNAME = PegaValor(principal, 0, "SERVERNAME", 0);
    session.ID_ETB_TARN = readInt32(PegaValor(principal, 0, "ID_ETB_TARN", 0));
    session.UserCode = PegaValor(principal, 0, "UserCode", 0);
    session.DATA = dayMonthYear(PegaValor(principal, 0, "DATA", 0));
}

std::string withZero(std::string_view part) {
    std::string text(lengthOf(part) == 1 ? "0" : "");
    text += part;
    return text;
}

}  // namespace

bool VerVersao(Environment& environment, Sessao& session, std::string_view version) {
    XmlDocument document;
    try {
        requestAnswer(environment, commands::VERSAO_TARN_EMISSAO(version), document,
                      failure::noVersion);
    } catch (const std::exception&) {  // no failure may close the gate
        document = XmlDocument();
    }
    session.VersaoServidor.clear();
    if (document.empty()) {
        return true;
    }
    // Loaded but unreadable isn't "OK": decision D100.
    if (versionAttribute(document, 0) == "OK") {
        session.VersaoServidor = asYearMonthDay(versionAttribute(document, 1));
        return true;
    }
    inform(environment, outdatedText(version), box_title::standard);
    return false;
}

bool imposeDateFormat(Environment& environment) {
    if (environment.machine.setShortDateFormat("dd/MM/yyyy")) {
        return true;
    }
    inform(environment, std::string(dateFormatText));
    return false;
}

bool canLogOn(Environment& environment, const std::string& company, const std::string& user,
              const std::string& password) {
    return filledIn(environment, company, "Empresa") && filledIn(environment, user, "Usuário") &&
           filledIn(environment, password, "Senha");
}

bool logOn(Environment& environment, Sessao& session, const std::string& company,
           const std::string& user, const std::string& password) {
    XmlDocument document;
    CarregaXML(environment, environment.baseUrl + commands::LOGIN(company, user, password),
               document, false, "", -1, "", std::string(failure::Tarn0001), session.PrefixoArquivo);
    if (!answerAccepted(environment, document, "Houve um problema para efetuar o Login.")) {
        return false;
    }
    fillIn(session, document);
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
                           std::string_view transaction) {
    XmlDocument document;
    const bool loaded =
        requestAnswer(environment, commands::verifica_direito_acesso(session, transaction),
                      document, failure::Tarn0002);
    const std::string problem =
        "Houve um problema na verificação do Direito de Acesso do usuário na Transação " +
        std::string(transaction) + ". ";
    return answerAccepted(environment, document, problem) && loaded;
}

std::string branchName(Environment& environment, const Sessao& session) {
    XmlDocument document;
    requestAnswer(environment, commands::sel_dados_empresa(session), document, failure::Tarn0009);
    return PegaValor(rowsetOf(document), 0, "NM_FIL");
}

}  // namespace tarn
