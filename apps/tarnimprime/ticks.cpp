#include "apps/tarnimprime/ticks.h"

#include <charconv>
#include <string_view>
#include <system_error>

#include "runtime/text.h"

namespace tarn::imprime {
namespace {

std::size_t linhaDe(std::string_view texto, std::size_t quantas) {
    const std::string_view numero = trimBlanks(texto);
    std::size_t linha = 0;
    const char* const fim = numero.data() + numero.size();
    const auto lido = std::from_chars(numero.data(), fim, linha);
    if (lido.ec != std::errc() || lido.ptr != fim || linha < 1 || linha > quantas) {
        throw FalhaDeUso("--marca pede números de linha de 1 a " + std::to_string(quantas) +
                         ", separados por vírgula: \"" + std::string(texto) + "\" não é um deles.");
    }
    return linha;
}

}  // namespace

void declaraMarca(CLI::App& comando, Marca& marca) {
    comando.add_option("--marca", marca,
                       "Linhas que imprimem, a partir de 1 (1,3); sem ela, todas; vazia, nenhuma");
}

void marcaLinhas(std::vector<LinhaGrade>& linhas, const Marca& marca) {
    for (LinhaGrade& linha : linhas) {
        linha.marcada = !marca;
    }
    if (!marca || trimBlanks(*marca).empty()) {
        return;
    }
    std::string_view resto = *marca;
    for (std::size_t virgula = 0; virgula != std::string_view::npos;) {
        virgula = resto.find(',');
        linhas[linhaDe(resto.substr(0, virgula), linhas.size()) - 1].marcada = true;
        resto = virgula == std::string_view::npos ? "" : resto.substr(virgula + 1);
    }
}

}  // namespace tarn::imprime
