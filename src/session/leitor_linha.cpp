#include <libxml/tree.h>

#include <algorithm>
#include <bit>
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

char maiuscula(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// FNV-1a over the capitals, so that spellings of one name fall together.
std::size_t espalha(std::string_view nome) {
    std::uint64_t valor = 14695981039346656037U;
    for (const char c : nome) {
        valor = (valor ^ static_cast<unsigned char>(maiuscula(c))) * 1099511628211U;
    }
    return static_cast<std::size_t>(valor ^ (valor >> 32U));
}

bool iguaisSemCaixa(std::string_view nome, std::string_view maiusculo) {
    return nome.size() == maiusculo.size() &&
           std::equal(nome.begin(), nome.end(), maiusculo.begin(),
                      [](char a, char b) { return maiuscula(a) == b; });
}

std::size_t tabelaPara(std::size_t nomes) {
    return std::max(menorTabela, std::bit_ceil(2 * nomes + 1));
}

}  // namespace

NomesLinha::NomesLinha(std::span<const std::string_view> nomes)
    : tabela_(tabelaPara(nomes.size()), std::int16_t{-1}) {
    nomes_.reserve(nomes.size());
    for (const std::string_view nome : nomes) {
        std::size_t lugar = espalha(nome) & (tabela_.size() - 1);
        while (tabela_[lugar] >= 0) {
            lugar = (lugar + 1) & (tabela_.size() - 1);
        }
        tabela_[lugar] = static_cast<std::int16_t>(nomes_.size());
        nomes_.push_back({.nome = nome, .maiusculo = asciiUpper(nome)});
    }
}

int NomesLinha::campoDe(std::string_view nome) const {
    std::size_t lugar = espalha(nome) & (tabela_.size() - 1);
    while (tabela_[lugar] >= 0) {
        const std::int16_t campo = tabela_[lugar];
        if (iguaisSemCaixa(nome, nomes_[static_cast<std::size_t>(campo)].maiusculo)) {
            return campo;
        }
        lugar = (lugar + 1) & (tabela_.size() - 1);
    }
    return -1;
}

LeitorLinha::LeitorLinha(std::shared_ptr<const NomesLinha> nomes)
    : nomes_(std::move(nomes)),
      achados_(nomes_->quantos()),
      conhecidos_(tabelaPara(nomes_->quantos())) {}

void LeitorLinha::le(const XmlNode& linha) {
    if (!linha) {
        throw ErroExecucao(ErroNumero::VariavelObjeto);
    }
    linha_ = linha;
    ++vez_;
    const auto* elemento = static_cast<const xmlNode*>(linha.node_);
    if (elemento->type != XML_ELEMENT_NODE) {
        return;
    }
    const std::uint64_t documento = XmlDocument::serialOf(elemento);
    if (documento != documento_) {
        std::fill(conhecidos_.begin(), conhecidos_.end(), Conhecido{});
        ocupados_ = 0;
        documento_ = documento;
    }
    const bool semPrefixo = XmlDocument::undeclaredPrefixes(elemento);
    for (const xmlAttr* a = elemento->properties; a != nullptr; a = a->next) {
        const Conhecido& nome = conhecido(a->name, semPrefixo);
        if (nome.campo < 0) {
            continue;
        }
        Achado& achado = achados_[static_cast<std::size_t>(nome.campo)];
        if (achado.vez != vez_) {
            achado.atributo = a;
            achado.vez = vez_;
            achado.exato = nome.exato && a->ns == nullptr;
        }
    }
}

std::string_view LeitorLinha::texto(std::size_t campo) const {
    const Achado& achado = achados_[campo];
    if (achado.vez != vez_) {
        return {};
    }
    return achado.exato ? XmlAttribute(achado.atributo).text()
                        : consulta(achado, (*nomes_)[campo].nome);
}

std::string_view LeitorLinha::numero(std::size_t campo, std::string_view padrao) {
    Achado& achado = achados_[campo];
    if (achado.vez != vez_) {
        return padrao;
    }
    const NomesLinha::Nome& nome = (*nomes_)[campo];
    const std::string_view texto = achado.exato && nome.nome == nome.maiusculo
                                       ? XmlAttribute(achado.atributo).text()
                                       : consulta(achado, nome.maiusculo);
    if (texto.find('.') == std::string_view::npos) {
        return texto;
    }
    achado.trocado.assign(texto);
    std::replace(achado.trocado.begin(), achado.trocado.end(), '.', ',');
    return achado.trocado;
}

std::string_view LeitorLinha::consulta(const Achado& achado, std::string_view nome) const {
    const auto* atributo = static_cast<const xmlAttr*>(achado.atributo);
    if (atributo->ns == nullptr && comoTexto(atributo->name) == nome) {
        return XmlAttribute(atributo).text();
    }
    return linha_.attributes().getNamedItem(nome).text();
}

// A document holds each name once, so that its address tells it.
const LeitorLinha::Conhecido& LeitorLinha::conhecido(const void* nome, bool semPrefixo) {
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
        const int campo = nomes_->campoDe(escrito);
        const bool exato =
            campo >= 0 && (*nomes_)[static_cast<std::size_t>(campo)].nome == comoTexto(nome);
        *lugar = {nome, static_cast<std::int16_t>(campo), exato};
        ++ocupados_;
    }
    return *lugar;
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
