#include "gateway/carrega_xml.h"

#include <exception>
#include <filesystem>
#include <stdexcept>
#include <system_error>

#include "gateway/failure_texts.h"
#include "platform/environment.h"
#include "platform/http_loader.h"
#include "platform/message_boxes.h"

namespace tarn {
namespace {

// No prefix is ever set: the copy lands in the current directory.
std::string nomeDaCopia(const std::string& nomeArquivo) {
    return nomeArquivo + ".XML";
}

void apaga(const std::string& arquivo) {
    std::error_code ignorado;
    std::filesystem::remove(arquivo, ignorado);
}

bool carrega(Environment& ambiente, const std::string& url, XmlDocument& documento,
             const std::string& copia, const std::string& mensagemFalha) {
    const HttpAnswer resposta = ambiente.http.get(url);
    if (resposta.loaded && documento.loadXML(resposta.body)) {
        if (!copia.empty() && !documento.save(copia)) {
            throw std::runtime_error("Não foi possível gravar o arquivo " + copia + ".");
        }
        return true;
    }
    documento = XmlDocument();
    if (!mensagemFalha.empty()) {
        ambiente.boxes.show({.text = mensagemFalha,
                             .icon = BoxIcon::Critical,
                             .title = std::string(falha::tituloTransporte)});
    }
    if (!copia.empty()) {
        apaga(copia);
    }
    return false;
}

}  // namespace

bool CarregaXML(Environment& ambiente, const std::string& url, XmlDocument& documento,
                bool /*assincrono*/, const std::string& nomeArquivo, int gravarArquivo,
                const std::string& /*reservado*/, const std::string& mensagemFalha) {
    const bool querCopia = !nomeArquivo.empty() && gravarArquivo > 0;
    try {
        return carrega(ambiente, url, documento, querCopia ? nomeDaCopia(nomeArquivo) : "",
                       mensagemFalha);
    } catch (const std::exception& erro) {
        ambiente.boxes.show({.text = erro.what(), .icon = BoxIcon::Critical, .title = "Aviso"});
        return false;
    }
}

}  // namespace tarn
