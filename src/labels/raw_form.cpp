#include <algorithm>
#include <array>

#include "common/raw_channel.h"
#include "labels/label.h"
#include "labels/label_forms.h"
#include "platform/environment.h"

namespace tarn::labels {
namespace {

constexpr int margem = 1;          // blanks ahead of every text
constexpr std::size_t lado = 4;    // labels across
constexpr std::size_t linhas = 5;  // of a label
constexpr int largura = 55;        // characters
constexpr int larguraEsquerda = 27;
constexpr int larguraDireita = 26;
constexpr char passoCondensado[] =
    "\x0F\x1B"
    "M";  // condensed, 12 characters an inch

// Blanks between a label and the one at its left, the margin not counted.
constexpr std::array<std::size_t, lado> vao{0, 7, 12, 12};

using Textos = std::array<std::string, linhas>;

void duplo(std::string& linha, std::string_view esquerda, std::string_view direita) {
    appendCampo(linha, esquerda, larguraEsquerda, false);
    linha += "  ";
    appendCampo(linha, direita, larguraDireita, false);
}

void monta(Textos& textos, const Etiqueta& etiqueta, std::size_t coluna) {
    for (std::string& texto : textos) {
        texto.assign(vao[coluna], ' ');
    }
    appendCampo(textos[0], etiqueta.NOME, largura, false);
    appendCampo(textos[1], etiqueta.ENDERECO, largura, false);
    duplo(textos[2], etiqueta.COMPLEMENTO, etiqueta.BAIRRO);
    duplo(textos[3], etiqueta.MUNICIPIO, etiqueta.UF);
    duplo(textos[4], etiqueta.CEP, etiqueta.CODIGO);
}

void imprimeGrupo(RawChannel& canal, std::array<Textos, lado>& grupo, std::size_t quantas) {
    std::string fim;
    for (std::size_t linha = 0; linha < linhas; ++linha) {
        for (std::size_t coluna = 0; coluna < quantas; ++coluna) {
            canal.ImprimeRaw(margem, grupo[coluna][linha], 0);
        }
        fim.clear();
        canal.ImprimeRaw(margem, fim, linha + 1 < linhas ? 1 : 2);
    }
}

}  // namespace

void imprimeMatricial(Environment& ambiente, Etiquetas& etiquetas, const Progress& andamento) {
    RawChannel canal(ambiente.spooler, ambiente.codePage);
    canal.abre();
    std::string preparo = passoCondensado;
    canal.ImprimeRaw(margem, preparo, 0);
    canal.fecha();
    canal.abre();
    std::array<Textos, lado> grupo;
    for (std::size_t i = 0; i < etiquetas.quantas();) {
        const std::size_t quantas = std::min(lado, etiquetas.quantas() - i);
        for (std::size_t coluna = 0; coluna < quantas; ++coluna, ++i) {
            monta(grupo[coluna], etiquetas.le(i), coluna);
        }
        imprimeGrupo(canal, grupo, quantas);
        avisa(andamento, i, etiquetas);
    }
    canal.fecha();
}

}  // namespace tarn::labels
