#include "common/tax_number.h"

#include "runtime/mask.h"
#include "runtime/text.h"

namespace tarn {
namespace {

constexpr std::size_t digitosCpf = 11;
constexpr std::size_t digitosCnpj = 14;

}  // namespace

bool pessoaFisica(std::string_view pesJur) {
    return pesJur == "0";
}

std::string cpfCnpj(bool fisica, std::string_view numero) {
    const std::size_t digitos = fisica ? digitosCpf : digitosCnpj;
    const std::string comZeros = std::string(digitos, '0').append(numero);
    return fillMask(rightOf(comZeros, digitos), fisica ? "@@@.@@@.@@@-@@" : "@@.@@@.@@@/@@@@-@@");
}

}  // namespace tarn
