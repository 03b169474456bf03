#include "cheques/quebra_texto.h"

#include <utility>

#include "runtime/split.h"
#include "runtime/text.h"

namespace tarn {
namespace {

constexpr char lineEnd = 13;

class Lines {
public:
    explicit Lines(std::size_t largura) : largura_(largura) {}

    void join(std::string_view piece) {
        if (lengthOf(piece) + lengthOf(linha_) > largura_) {
            closeLine();
        } else if (!linha_.empty()) {
            linha_ += ' ';
        }
        linha_ += piece;
    }
    std::string finish() {
        closeLine();
        return std::move(result_);
    }

private:
    void closeLine() {
        if (!result_.empty()) {
            result_ += lineEnd;
        }
        result_ += linha_;
        linha_.clear();
    }

    std::size_t largura_;
    std::string linha_;
    std::string result_;
};

}  // namespace

std::string QuebraTexto(std::string_view texto, std::size_t largura) {
    Lines linhas(largura);
    for (const std::string_view piece : split(texto, ' ')) {
        linhas.join(piece);
    }
    return linhas.finish();
}

}  // namespace tarn
