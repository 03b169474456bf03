#include <array>

#include "labels/imprime_linha.h"
#include "labels/label.h"
#include "labels/label_forms.h"
#include "platform/environment.h"
#include "platform/printer.h"
#include "runtime/text.h"

namespace tarn::labels {
namespace {

constexpr std::size_t corte = 24;  // characters of the fields that share a line

// A text of a label, centimetres from where its form begins each label.
struct Linha {
    std::string_view Etiqueta::*campo = nullptr;
    double x = 0;
    double y = 0;
    bool cortada = false;
};

struct Origem {
    double x = 0;
    double y = 0;
};

void escreveLinha(Environment& ambiente, const Linha& linha, const Etiqueta& etiqueta,
                  const Origem& origem, double tamanho) {
    const std::string_view texto = etiqueta.*linha.campo;
    escreve(ambiente, linha.cortada ? leftOf(texto, corte) : texto, origem.x + linha.x,
            origem.y + linha.y, tamanho);
}

// PIMACO 6280

constexpr double tamanhoPimaco = 6;
constexpr std::array<Linha, 8> linhasPimaco{{{&Etiqueta::NOME, 0, 0},
                                             {&Etiqueta::ENDERECO, 0, 0.3},
                                             {&Etiqueta::COMPLEMENTO, 0, 0.6, true},
                                             {&Etiqueta::BAIRRO, 3.4, 0.6, true},
                                             {&Etiqueta::MUNICIPIO, 0, 0.9, true},
                                             {&Etiqueta::UF, 3.4, 0.9},
                                             {&Etiqueta::CEP, 0, 1.2},
                                             {&Etiqueta::CODIGO, 0, 1.5}}};

// Where the next label goes on the sheet.
struct Lugar {
    static constexpr int colunas = 3;
    static constexpr int linhas = 10;
    static constexpr double esquerda = 1;
    static constexpr double topo = 1.7;
    static constexpr double passoDaColuna = 7;

    Origem origem{esquerda, topo};
    int coluna = 0;  // labels that the row holds
    int linha = 1;

    // False: the sheet is full.
    bool avanca() {
        if (++coluna < colunas) {
            origem.x += passoDaColuna;
            return true;
        }
        if (linha == linhas) {
            return false;
        }
        // The stationery's rows are 2.54 cm apart: now and then a shorter step.
        origem.y += linha == 1 || linha == 5 || linha == 8 ? 2.5 : 2.6;
        origem.x = esquerda;
        coluna = 0;
        ++linha;
        return true;
    }
};

// A5

constexpr double tamanhoA5 = 15;
constexpr std::size_t nomeLongo = 10;  // characters; a longer name is drawn twice, for weight
constexpr Linha nomeA5{&Etiqueta::NOME, 1, 1.7};
constexpr std::array<Linha, 7> linhasA5{{{&Etiqueta::ENDERECO, 1, 2.3},
                                         {&Etiqueta::BAIRRO, 1, 2.9, true},
                                         {&Etiqueta::COMPLEMENTO, 10.5, 2.9, true},
                                         {&Etiqueta::MUNICIPIO, 1, 3.5, true},
                                         {&Etiqueta::UF, 10.5, 3.5},
                                         {&Etiqueta::CEP, 1, 4.1},
                                         {&Etiqueta::CODIGO, 1, 4.7}}};

}  // namespace

void imprimePimaco6280(Environment& ambiente, Etiquetas& etiquetas, const Progress& andamento) {
    Lugar lugar;
    for (std::size_t i = 0; i < etiquetas.quantas(); ++i) {
        const Etiqueta etiqueta = etiquetas.le(i);
        for (const Linha& linha : linhasPimaco) {
            escreveLinha(ambiente, linha, etiqueta, lugar.origem, tamanhoPimaco);
        }
        if (!lugar.avanca()) {
            mostraFalha(ambiente, ambiente.printer.NewPage());
            mostraFalha(ambiente, ambiente.printer.EndDoc());
            lugar = {};
        }
        avisa(andamento, i + 1, etiquetas);
    }
}

void imprimeA5(Environment& ambiente, Etiquetas& etiquetas, const Progress& andamento) {
    for (std::size_t i = 0; i < etiquetas.quantas(); ++i) {
        const Etiqueta etiqueta = etiquetas.le(i);
        escreveLinha(ambiente, nomeA5, etiqueta, {}, tamanhoA5);
        if (lengthOf(etiqueta.NOME) > nomeLongo) {
            escreveLinha(ambiente, nomeA5, etiqueta, {}, tamanhoA5);
        }
        for (const Linha& linha : linhasA5) {
            escreveLinha(ambiente, linha, etiqueta, {}, tamanhoA5);
        }
        avisa(andamento, i + 1, etiquetas);
    }
}

}  // namespace tarn::labels
