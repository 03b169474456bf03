#include "cheques/quebra_texto.h"

#include <utility>

#include "runtime/split.h"
#include "runtime/text.h"

namespace tarn {
namespace {

constexpr char fimDeLinha = 13;

class Linhas {
public:
    explicit Linhas(std::size_t largura) : largura_(largura) {}

    void junta(std::string_view pedaco) {
        if (lengthOf(pedaco) + lengthOf(linha_) > largura_) {
            fechaLinha();
        } else if (!linha_.empty()) {
            linha_ += ' ';
        }
        linha_ += pedaco;
    }
    std::string termina() {
        fechaLinha();
        return std::move(resultado_);
    }

private:
    void fechaLinha() {
        if (!resultado_.empty()) {
            resultado_ += fimDeLinha;
        }
        resultado_ += linha_;
        linha_.clear();
    }

    std::size_t largura_;
    std::string linha_;
    std::string resultado_;
};

}  // namespace

std::string QuebraTexto(std::string_view texto, std::size_t largura) {
    Linhas linhas(largura);
    for (const std::string_view pedaco : split(texto, ' ')) {
        linhas.junta(pedaco);
    }
    return linhas.termina();
}

}  // namespace tarn
