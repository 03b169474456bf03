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

// Without a prefix the copy lands in the current directory.
std::string copyName(const std::string& prefix, const std::string& fileName) {
    return prefix + fileName + ".XML";
}

void erase(const std::string& file) {
    std::error_code ignored;
    std::filesystem::remove(file, ignored);
}

bool load(Environment& environment, const std::string& url, XmlDocument& document,
          const std::string& copy, const std::string& failureMessage) {
    const auto read = [&document](std::string_view body) { return document.loadXML(body); };
    if (environment.http.load(url, read)) {
        if (!copy.empty() && !document.save(copy)) {
            throw std::runtime_error("Não foi possível gravar o arquivo " + copy + ".");
        }
        return true;
    }
    document = XmlDocument();
    if (!failureMessage.empty()) {
        environment.boxes.show({.text = failureMessage,
                                .icon = BoxIcon::Critical,
                                .title = std::string(failure::transportTitle)});
    }
    if (!copy.empty()) {
        erase(copy);
    }
    return false;
}

}  // namespace

bool CarregaXML(Environment& environment, const std::string& url, XmlDocument& document,
                bool /*asynchronous*/, const std::string& fileName, int writesFile,
                const std::string& /*reserved*/, const std::string& failureMessage,
                const std::string& PrefixoArquivo) {
    const bool wantsCopy = !fileName.empty() && writesFile > 0;
    try {
        return load(environment, url, document, wantsCopy ? copyName(PrefixoArquivo, fileName) : "",
                    failureMessage);
    } catch (const std::exception& error) {
        environment.boxes.show({.text = error.what(), .icon = BoxIcon::Critical, .title = "Aviso"});
        return false;
    }
}

}  // namespace tarn
