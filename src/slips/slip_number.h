// The number that a slip bears: the running number of a run and its check digit.
#pragma once

#include <string>
#include <string_view>

#include "slips/portfolio.h"

namespace tarn {

// Check digits, 0 to 9. Both raise ArgumentoInvalido for too few characters and
// TipoIncompativel for one that is no digit.
// Of the 13 digits of wallet 57, joined with agency and account; "-" doesn't count, the
// first 23 characters do.
int DigitoModulo10(std::string_view digitos, std::string_view agencia, std::string_view conta);
// Of the first seven digits.
int DigitoModulo11(std::string_view digitos);

// A number as each layout has it: under its mask of thirteen or of seven zeros.
std::string trezeDigitos(double numero);
std::string seteDigitos(double numero);

struct NossoNumero {
    std::string digitos;  // as printed
    int digito = 0;       // check digit
    std::string NR_BOL_BANC;
};

// The running number of one run. Wallet 57 counts with the number as typed; the others
// with a text of seven digits.
class NumeroCorrente {
public:
    // TipoIncompativel when what was typed is no number.
    NumeroCorrente(const CarteiraCobranca& carteira, std::string_view digitado);

    NossoNumero nossoNumero() const;
    // ArgumentoInvalido when seven digits no longer hold it.
    void avanca();

private:
    const CarteiraCobranca& carteira_;
    std::string texto_;
};

}  // namespace tarn
