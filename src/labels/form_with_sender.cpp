#include "labels/imprime_linha.h"
#include "labels/label.h"
#include "labels/label_forms.h"
#include "platform/environment.h"
#include "platform/printer.h"
#include "runtime/text.h"

namespace tarn::labels {
namespace {

constexpr double tamanhoTitulo = 13;
constexpr double tamanhoTraco = 10;
constexpr double tamanhoTexto = 20;
constexpr double esquerda = 1;
constexpr double passo = 0.8;
constexpr std::size_t corte = 24;       // characters of the addressee's shorter fields
constexpr std::size_t linhaCheia = 45;  // characters

// What stands of a block where on the page; centimetres.
struct Bloco {
    std::string_view titulo;
    double yTitulo = 0;
    double yTraco = 0;
    double yTexto = 0;
    double direita = 0;  // of the second text of a line
};
constexpr Bloco blocoDestinatario{"DESTINATÁRIO", 1, 1.5, 2, 12};
constexpr Bloco blocoRemetente{"REMETENTE", 16, 16.5, 17, 13};

struct Endereco {
    std::string_view nome;
    std::string_view rua;
    std::string_view numero;
    std::string_view complemento;
    std::string_view bairro;
    std::string_view municipio;
    std::string_view uf;
    std::string_view cep;
};

Endereco enderecoDe(const Etiqueta& etiqueta) {
    return {.nome = etiqueta.NOME,
            .rua = etiqueta.SOMENTE_ENDERECO,
            .numero = semZero(etiqueta.NUMERO),
            .complemento = leftOf(etiqueta.COMPLEMENTO, corte),
            .bairro = leftOf(etiqueta.BAIRRO, corte),
            .municipio = leftOf(etiqueta.MUNICIPIO, corte),
            .uf = etiqueta.UF,
            .cep = etiqueta.CEP};
}

Endereco enderecoDe(const Remetente& remetente) {
    return {.nome = remetente.NOME,
            .rua = remetente.ENDERECO,
            .numero = remetente.NUMERO,
            .complemento = remetente.DESCRICAO,
            .bairro = remetente.BAIRRO,
            .municipio = remetente.MUNICIPIO,
            .uf = remetente.UF,
            .cep = remetente.CEP};
}

// Texts of one block, downwards.
class Coluna {
public:
    Coluna(Environment& ambiente, double y) : ambiente_(ambiente), y_(y) {}

    void texto(std::string_view texto, double x) { escreve(ambiente_, texto, x, y_, tamanhoTexto); }
    void desce() { y_ += passo; }
    // A text too long for the line goes on in the next one, whatever is left of it.
    void longo(std::string_view inteiro) {
        const std::string_view primeira = leftOf(inteiro, linhaCheia);
        texto(primeira, esquerda);
        if (primeira.size() < inteiro.size()) {
            desce();
            texto(inteiro.substr(primeira.size()), esquerda);
        }
        desce();
    }

private:
    Environment& ambiente_;
    double y_;
};

// Down to the postal code, in whose line the column then stands.
Coluna imprimeBloco(Environment& ambiente, const Bloco& bloco, const Endereco& endereco) {
    escreve(ambiente, bloco.titulo, esquerda, bloco.yTitulo, tamanhoTitulo);
    escreve(ambiente, "=====================", esquerda, bloco.yTraco, tamanhoTraco);
    Coluna coluna(ambiente, bloco.yTexto);
    coluna.longo(endereco.nome);
    coluna.longo(endereco.rua);
    coluna.texto("Nº ", esquerda);
    coluna.texto(endereco.numero, 2);
    coluna.texto(endereco.complemento, bloco.direita);
    coluna.desce();
    coluna.texto(endereco.bairro, esquerda);
    coluna.desce();
    coluna.texto(endereco.municipio, esquerda);
    coluna.texto(endereco.uf, bloco.direita);
    coluna.desce();
    coluna.texto("CEP: ", esquerda);
    coluna.texto(endereco.cep, 3);
    return coluna;
}

}  // namespace

void imprimeA4ComRemetente(Environment& ambiente, Etiquetas& etiquetas, const Remetente& remetente,
                           const Progress& andamento) {
    for (std::size_t i = 0; i < etiquetas.quantas(); ++i) {
        const Etiqueta etiqueta = etiquetas.le(i);
        Coluna coluna = imprimeBloco(ambiente, blocoDestinatario, enderecoDe(etiqueta));
        coluna.desce();
        coluna.texto(etiqueta.CODIGO, esquerda);
        imprimeBloco(ambiente, blocoRemetente, enderecoDe(remetente));
        mostraFalha(ambiente, ambiente.printer.NewPage());
        avisa(andamento, i + 1, etiquetas);
    }
}

}  // namespace tarn::labels
