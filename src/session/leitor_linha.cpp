#include <libxml/tree.h>

#include <algorithm>
#include <cstdint>

#include "runtime/erro_execucao.h"
#include "runtime/text.h"
#include "session/pega_valor.h"

namespace tarn {
namespace {

constexpr std::size_t menorTabela = 64;

std::string_view comoTexto(const void* nome) {
    return static_cast<const char*>(nome);
}

}  // namespace

LeitorLinha::LeitorLinha(std::span<const std::string_view> nomes) : conhecidos_(menorTabela) {
    campos_.reserve(nomes.size());
    for (const std::string_view nome : nomes) {
        campos_.push_back({.nome = nome, .maiusculo = asciiUpper(nome), .trocado = {}});
    }
}

void LeitorLinha::le(const XmlNode& linha) {
    if (!linha) {
        throw ErroExecucao(ErroNumero::VariavelObjeto);
    }
    linha_ = linha;
    for (Campo& campo : campos_) {
        campo.achado = nullptr;
    }
    const auto* elemento = static_cast<const xmlNode*>(linha.node_);
    if (elemento->type != XML_ELEMENT_NODE) {
        return;
    }
    const std::uint64_t documento = XmlDocument::serialOf(elemento);
    if (documento != documento_) {
        conhecidos_.assign(menorTabela, {});
        ocupados_ = 0;
        documento_ = documento;
    }
    const bool semPrefixo = XmlDocument::undeclaredPrefixes(elemento);
    for (const xmlAttr* a = elemento->properties; a != nullptr; a = a->next) {
        const int campo = campoDe(a->name, semPrefixo);
        if (campo >= 0 && campos_[static_cast<std::size_t>(campo)].achado == nullptr) {
            campos_[static_cast<std::size_t>(campo)].achado = a;
        }
    }
}

std::string_view LeitorLinha::texto(std::size_t campo) const {
    const Campo& c = campos_[campo];
    return c.achado == nullptr ? std::string_view{} : consulta(c, c.nome);
}

std::string_view LeitorLinha::numero(std::size_t campo, std::string_view padrao) {
    Campo& c = campos_[campo];
    if (c.achado == nullptr) {
        return padrao;
    }
    const std::string_view texto = consulta(c, c.maiusculo);
    if (texto.find('.') == std::string_view::npos) {
        return texto;
    }
    c.trocado.assign(texto);
    std::replace(c.trocado.begin(), c.trocado.end(), '.', ',');
    return c.trocado;
}

std::string_view LeitorLinha::consulta(const Campo& campo, std::string_view nome) const {
    const auto* atributo = static_cast<const xmlAttr*>(campo.achado);
    if (atributo->ns == nullptr && comoTexto(atributo->name) == nome) {
        return XmlAttribute(atributo).text();
    }
    return linha_.attributes().getNamedItem(nome).text();
}

// A document holds each name once, so that its address tells it.
int LeitorLinha::campoDe(const void* nome, bool semPrefixo) {
    Conhecido* lugar = &lugarDe(nome);
    if (lugar->nome == nullptr) {
        if (2 * (ocupados_ + 1) > conhecidos_.size()) {
            cresce();
            lugar = &lugarDe(nome);
        }
        std::string_view escrito = comoTexto(nome);
        if (semPrefixo) {
            escrito = escrito.substr(escrito.find(':') + 1);
        }
        *lugar = {nome, procura(escrito)};
        ++ocupados_;
    }
    return lugar->campo;
}

int LeitorLinha::procura(std::string_view nome) const {
    const std::string maiusculo = asciiUpper(nome);
    for (std::size_t i = 0; i < campos_.size(); ++i) {
        if (campos_[i].maiusculo == maiusculo) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

LeitorLinha::Conhecido& LeitorLinha::lugarDe(const void* nome) {
    const std::size_t mascara = conhecidos_.size() - 1;
    const auto endereco = reinterpret_cast<std::uintptr_t>(nome);
    std::size_t lugar = (endereco ^ (endereco >> 9)) & mascara;
    while (conhecidos_[lugar].nome != nullptr && conhecidos_[lugar].nome != nome) {
        lugar = (lugar + 1) & mascara;
    }
    return conhecidos_[lugar];
}

void LeitorLinha::cresce() {
    std::vector<Conhecido> antes(conhecidos_.size() * 2);
    antes.swap(conhecidos_);
    for (const Conhecido& conhecido : antes) {
        if (conhecido.nome != nullptr) {
            lugarDe(conhecido.nome) = conhecido;
        }
    }
}

}  // namespace tarn
