// The run-time error: what a routine raises when it meets a value or an object
// that it can't work with. Nothing catches it but the event loop and main, which
// show the report and end the program with exit status 3.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace tarn {

enum class ErroNumero : int {
    ArgumentoInvalido = 5,
    Estouro = 6,
    ForaDoIntervalo = 9,
    TipoIncompativel = 13,
    VariavelObjeto = 91,
    ObjetoObrigatorio = 424,
};

class ErroExecucao : public std::runtime_error {
public:
    // Describes itself in Portuguese by its number.
    explicit ErroExecucao(ErroNumero numero);
    // `detalhe` (Portuguese, UTF-8) follows the number's own description after ": ".
    ErroExecucao(ErroNumero numero, std::string_view detalhe);

    ErroNumero numero() const noexcept { return numero_; }
    std::string descricao() const { return what(); }

private:
    ErroNumero numero_;
};

// The same after a fiscal note was asked of the server: it may exist there, unprinted.
class ErroComNota : public ErroExecucao {
public:
    explicit ErroComNota(const ErroExecucao& erro) : ErroExecucao(erro) {}
};

inline constexpr int statusErroExecucao = 3;  // exit status of a program that such an error ended

// "Erro em tempo de execução 'N':", two line ends (character 13), the description and a
// full stop: what every report of such an error begins with.
std::string textoDaFalha(const ErroExecucao& erro);

// Text of the box that ends the program: textoDaFalha, that it ends, and, when a fiscal
// note may already exist on the server, how to print it.
std::string textoDoRelatorio(const ErroExecucao& erro, bool notaPodeExistir);

}  // namespace tarn
