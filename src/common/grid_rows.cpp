#include "common/grid_rows.h"

#include "common/tax_number.h"
#include "gateway/xml_document.h"
#include "runtime/mask.h"
#include "runtime/numbers.h"

namespace tarn {
namespace {

constexpr NumberMask mascaraValor{"###,##0.00"};

std::string_view textoDe(const XmlAttributes& atributos, std::string_view nome) {
    const XmlAttribute atributo = atributos.getNamedItem(nome);
    return atributo ? atributo.text() : std::string_view();
}

// What a row's treatments look at.
struct LinhaLida {
    XmlAttributes atributos;
    bool fisica;
    bool receber;
};

std::string celula(const LinhaLida& linha, const CampoGrade& campo) {
    if (campo.tratamento == Tratamento::TipoPessoa) {
        return linha.fisica ? "F" : "J";
    }
    const XmlAttribute atributo = linha.atributos.getNamedItem(campo.nome);
    if (!atributo) {
        return {};
    }
    const std::string_view texto = atributo.text();
    switch (campo.tratamento) {
        case Tratamento::Valor:
            return formatNumber(readPoint(texto), mascaraValor);
        case Tratamento::CpfCnpj:
            return cpfCnpj(linha.fisica, texto);
        case Tratamento::SoReceber:
            return std::string(linha.receber ? texto : std::string_view());
        case Tratamento::SoNaoReceber:
            return std::string(linha.receber ? std::string_view() : texto);
        case Tratamento::TipoPessoa:
        case Tratamento::Texto:
            break;
    }
    return std::string(texto);
}

LinhaGrade linhaDe(const XmlNode& no, std::span<const CampoGrade> campos) {
    const XmlAttributes atributos = no.attributes();
    const LinhaLida lida{.atributos = atributos,
                         .fisica = pessoaFisica(textoDe(atributos, "PES_JUR")),
                         .receber = textoDe(atributos, "TIPO_DOCTO") == "DOCTO_RECEBER"};
    LinhaGrade linha;
    linha.celulas.reserve(campos.size());
    for (const CampoGrade& campo : campos) {
        linha.celulas.push_back(celula(lida, campo));
    }
    return linha;
}

}  // namespace

std::vector<LinhaGrade> linhasDaResposta(const XmlDocument& resposta,
                                         std::span<const CampoGrade> campos) {
    std::vector<LinhaGrade> linhas;
    const XmlNode dados = resposta.selectSingleNode("xml/rs:data");
    const std::size_t quantas = dados ? dados.childCount() : 0;
    linhas.reserve(quantas);
    for (std::size_t i = 0; i < quantas; ++i) {
        linhas.push_back(linhaDe(dados.child(i), campos));
    }
    return linhas;
}

}  // namespace tarn
