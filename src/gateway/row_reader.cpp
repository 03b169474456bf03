#include <libxml/tree.h>

#include <algorithm>
#include <bit>
#include <cstdint>

#include "gateway/pega_valor.h"
#include "runtime/ascii.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn {
namespace {

constexpr std::size_t menorTabela = 64;
// How many names of the row before may be missing in a row without losing its order.
constexpr std::size_t maiorSalto = 4;

std::string_view comoTexto(const void* nome) {
    return static_cast<const char*>(nome);
}

char maiuscula(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// Of the length and both ends of the name. The bit that parts small letters from
// capitals doesn't count, so that spellings of one name fall together.
std::size_t espalha(std::string_view nome) {
    constexpr std::uint64_t semCaixa = 0xDFDFDFDFDFDFDFDFU;
    constexpr std::uint64_t primo = 0x9E3779B97F4A7C15U;
    using Meio = std::uint32_t;
    std::uint64_t comeco = 0;
    std::uint64_t fim = 0;
    if (nome.size() >= sizeof comeco) {
        comeco = ascii::load<std::uint64_t>(nome.data());
        fim = ascii::load<std::uint64_t>(nome.data() + nome.size() - sizeof fim);
    } else if (nome.size() >= sizeof(Meio)) {
        comeco = ascii::load<Meio>(nome.data());
        fim = ascii::load<Meio>(nome.data() + nome.size() - sizeof(Meio));
    } else {
        for (const char c : nome) {
            comeco = comeco << 8U | static_cast<unsigned char>(c);
        }
    }
    const std::uint64_t misto =
        ((comeco & semCaixa) * primo ^ (fim & semCaixa)) * primo + nome.size();
    return static_cast<std::size_t>(misto ^ (misto >> 32U));
}

bool iguaisSemCaixa(std::string_view nome, std::string_view maiusculo) {
    return nome.size() == maiusculo.size() &&
           std::equal(nome.begin(), nome.end(), maiusculo.begin(),
                      [](char a, char b) { return maiuscula(a) == b; });
}

// The value of an attribute is one text node, or none.
std::string_view conteudo(const void* atributo) {
    const xmlNode* texto = static_cast<const xmlAttr*>(atributo)->children;
    return texto == nullptr || texto->content == nullptr ? std::string_view{}
                                                         : comoTexto(texto->content);
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

NomesLinha::Encontro NomesLinha::encontra(std::string_view nome) const {
    std::size_t lugar = espalha(nome) & (tabela_.size() - 1);
    while (tabela_[lugar] >= 0) {
        const std::int16_t campo = tabela_[lugar];
        const Nome& candidato = nomes_[static_cast<std::size_t>(campo)];
        if (nome == candidato.nome) {
            return {campo, true};
        }
        if (iguaisSemCaixa(nome, candidato.maiusculo)) {
            return {campo, false};
        }
        lugar = (lugar + 1) & (tabela_.size() - 1);
    }
    return {};
}

LeitorLinha::LeitorLinha(std::shared_ptr<const NomesLinha> nomes)
    : nomes_(std::move(nomes)), achados_(nomes_->quantos()) {
    sequencia_.reserve(nomes_->quantos());
}

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
    comeca(elemento);
    std::size_t lugar = 0;
    for (const xmlAttr* a = elemento->properties; a != nullptr; a = a->next) {
        if (lugar >= sequencia_.size() || sequencia_[lugar].nome != a->name) {
            lugar = lugarDe(a->name, lugar);
        }
        const Conhecido& nome = sequencia_[lugar++];
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
    return achado.exato ? conteudo(achado.atributo) : consulta(achado, (*nomes_)[campo].nome);
}

std::string_view LeitorLinha::numero(std::size_t campo, std::string_view padrao) {
    Achado& achado = achados_[campo];
    if (achado.vez != vez_) {
        return padrao;
    }
    const NomesLinha::Nome& nome = (*nomes_)[campo];
    const std::string_view texto = achado.exato && nome.nome == nome.maiusculo
                                       ? conteudo(achado.atributo)
                                       : consulta(achado, nome.maiusculo);
    const auto ponto = std::find(texto.begin(), texto.end(), '.');
    if (ponto == texto.end()) {
        return texto;
    }
    achado.trocado.assign(texto);
    std::replace(achado.trocado.begin() + (ponto - texto.begin()), achado.trocado.end(), '.', ',');
    return achado.trocado;
}

std::string_view LeitorLinha::consulta(const Achado& achado, std::string_view nome) const {
    const auto* atributo = static_cast<const xmlAttr*>(achado.atributo);
    if (atributo->ns == nullptr && comoTexto(atributo->name) == nome) {
        return conteudo(atributo);
    }
    return linha_.attributes().getNamedItem(nome).text();
}

// What is known of names belongs to one document.
void LeitorLinha::comeca(const void* elemento) {
    const std::uint64_t documento = XmlDocument::serialOf(elemento);
    if (documento != documento_) {
        sequencia_.clear();
        documento_ = documento;
        semPrefixo_ = XmlDocument::undeclaredPrefixes(elemento);
    }
}

// Where the name stands in the sequence from `desde` on. A document holds each name
// once, so that its address tells it. A name that isn't near takes the place.
std::size_t LeitorLinha::lugarDe(const void* nome, std::size_t desde) {
    const std::size_t ate = std::min(desde + 1 + maiorSalto, sequencia_.size());
    for (std::size_t lugar = desde; lugar < ate; ++lugar) {
        if (sequencia_[lugar].nome == nome) {
            return lugar;
        }
    }
    if (desde == sequencia_.size()) {
        sequencia_.push_back(reconhece(nome));
    } else {
        sequencia_[desde] = reconhece(nome);
    }
    return desde;
}

LeitorLinha::Conhecido LeitorLinha::reconhece(const void* nome) const {
    const std::string_view inteiro = comoTexto(nome);
    const std::string_view base = semPrefixo_ ? inteiro.substr(inteiro.find(':') + 1) : inteiro;
    const NomesLinha::Encontro achado = nomes_->encontra(base);
    return {nome, static_cast<std::int16_t>(achado.campo),
            achado.exato && base.size() == inteiro.size()};
}

}  // namespace tarn
