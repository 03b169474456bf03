#include "labels/label.h"

#include <array>

#include "runtime/numbers.h"
#include "runtime/text.h"

namespace tarn::labels {
namespace {

enum Campo : std::size_t {
    NOME,
    ENDERECO,
    SOMENTE_ENDERECO,
    NUMERO,
    COMPLEMENTO,
    BAIRRO,
    MUNICIPIO,
    UF,
    CEP,
    CODIGO
};

constexpr std::array<std::string_view, 10> campos{
    "NOME", "ENDERECO", "SOMENTE_ENDERECO", "NUMERO", "COMPLEMENTO", "BAIRRO", "MUNICIPIO", "UF",
    "CEP",  "CODIGO"};

XmlNode linhasDe(const XmlDocument& resposta) {
    return resposta.selectSingleNode("xml/rs:data");
}

}  // namespace

Etiquetas::Etiquetas(const XmlDocument& resposta)
    : linhas_(linhasDe(resposta)), quantas_(linhas_ ? linhas_.childCount() : 0), leitor_(campos) {}

Etiqueta Etiquetas::le(std::size_t indice) {
    leitor_.le(linhas_, indice);
    return {.NOME = leitor_.texto(NOME),
            .ENDERECO = leitor_.texto(ENDERECO),
            .SOMENTE_ENDERECO = leitor_.texto(SOMENTE_ENDERECO),
            .NUMERO = leitor_.texto(NUMERO),
            .COMPLEMENTO = leitor_.texto(COMPLEMENTO),
            .BAIRRO = leitor_.texto(BAIRRO),
            .MUNICIPIO = leitor_.texto(MUNICIPIO),
            .UF = leitor_.texto(UF),
            .CEP = leitor_.texto(CEP),
            .CODIGO = leitor_.texto(CODIGO)};
}

void avisa(const Progress& andamento, std::size_t feitas, const Etiquetas& etiquetas) {
    if (andamento) {
        andamento(feitas, etiquetas.quantas());
    }
}

Remetente leRemetente(const XmlDocument& resposta) {
    const XmlNode linhas = linhasDe(resposta);
    Remetente remetente{.NOME = pegaTexto(linhas, 0, "NOME"),
                        .ENDERECO = pegaTexto(linhas, 0, "ENDERECO"),
                        .BAIRRO = pegaTexto(linhas, 0, "BAIRRO"),
                        .MUNICIPIO = pegaTexto(linhas, 0, "MUNICIPIO"),
                        .UF = pegaTexto(linhas, 0, "UF"),
                        .CEP = pegaTexto(linhas, 0, "CEP"),
                        .DESCRICAO = pegaTexto(linhas, 0, "DESCRICAO"),
                        .NUMERO = {}};
    if (trimBlanks(remetente.DESCRICAO).empty()) {
        remetente.DESCRICAO.clear();
    }
    remetente.NUMERO = semZero(pegaTexto(linhas, 0, "NUMERO"));
    return remetente;
}

std::string_view semZero(std::string_view numero) {
    return readPoint(numero) == 0 ? std::string_view() : numero;
}

}  // namespace tarn::labels
