#include "slips/slip_number.h"

#include <array>
#include <cstddef>
#include <utility>

#include "runtime/mask.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn {
namespace {

constexpr std::size_t caracteresDoModulo10 = 23;
constexpr std::array<int, 7> pesosDoModulo11{8, 7, 6, 5, 4, 3, 2};

int valorDoDigito(char caractere) {
    if (caractere < '0' || caractere > '9') {
        throw ErroExecucao(ErroNumero::TipoIncompativel,
                           "número do boleto, agência ou conta da carteira");
    }
    return caractere - '0';
}

void exigeTamanho(std::string_view texto, std::size_t minimo, std::string_view detalhe) {
    if (lengthOf(texto) < minimo) {
        throw ErroExecucao(ErroNumero::ArgumentoInvalido, detalhe);
    }
}

}  // namespace

int DigitoModulo10(std::string_view digitos, std::string_view agencia, std::string_view conta) {
    std::string juntos(digitos);
    juntos.append(agencia).append(conta);
    juntos = replaceAll(juntos, "-", "");
    exigeTamanho(juntos, caracteresDoModulo10,
                 "número do boleto, agência e conta da carteira têm menos de 23 algarismos");
    int soma = 0;
    for (std::size_t i = 0; i < caracteresDoModulo10; ++i) {
        const int produto = valorDoDigito(juntos[i]) * (i % 2 == 0 ? 1 : 2);
        soma += produto / 10 + produto % 10;
    }
    return (10 - soma % 10) % 10;
}

int DigitoModulo11(std::string_view digitos) {
    exigeTamanho(digitos, pesosDoModulo11.size(), "número do boleto com menos de 7 algarismos");
    int soma = 0;
    for (std::size_t i = 0; i < pesosDoModulo11.size(); ++i) {
        soma += valorDoDigito(digitos[i]) * pesosDoModulo11[i];
    }
    const int resto = soma % 11;
    if (resto == 10) {
        return 1;
    }
    return resto <= 1 ? 0 : 11 - resto;
}

std::string trezeDigitos(double numero) {
    return formatNumber(numero, "0000000000000");
}

std::string seteDigitos(double numero) {
    return formatNumber(numero, "0000000");
}

NumeroCorrente::NumeroCorrente(const CarteiraCobranca& carteira, std::string_view digitado)
    : carteira_(carteira) {
    if (!isNumeric(digitado)) {
        throw ErroExecucao(ErroNumero::TipoIncompativel, "número do próximo boleto");
    }
    const double numero = readComma(digitado);
    texto_ = carteira.carteira57() ? numberText(numero) : seteDigitos(numero);
}

NossoNumero NumeroCorrente::nossoNumero() const {
    if (carteira_.carteira57()) {
        std::string digitos = trezeDigitos(readComma(texto_));
        const int digito =
            DigitoModulo10(digitos, carteira_.CD_AGE_BAN_CNAB, carteira_.NR_CCOR_CNAB);
        return {.digitos = std::move(digitos), .digito = digito, .NR_BOL_BANC = texto_};
    }
    const int digito = DigitoModulo11(texto_);
    return {.digitos = texto_, .digito = digito, .NR_BOL_BANC = texto_ + std::to_string(digito)};
}

void NumeroCorrente::avanca() {
    texto_ = numberText(readComma(texto_) + 1);
    if (carteira_.carteira57()) {
        return;
    }
    constexpr std::size_t algarismos = pesosDoModulo11.size();
    if (texto_.size() > algarismos) {
        throw ErroExecucao(ErroNumero::ArgumentoInvalido,
                           "o número do próximo boleto tem mais de 7 algarismos");
    }
    texto_.insert(0, algarismos - texto_.size(), '0');
}

}  // namespace tarn
