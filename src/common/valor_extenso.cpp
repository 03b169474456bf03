#include "common/valor_extenso.h"

#include <array>
#include <cmath>

#include "runtime/mask.h"

namespace tarn {

namespace {

constexpr std::array<std::string_view, 20> units = {
    "",         "UM",     "DOIS",      "TRES",      "QUATRO",  "CINCO",   "SEIS",
    "SETE",     "OITO",   "NOVE",      "DEZ",       "ONZE",    "DOZE",    "TREZE",
    "QUATORZE", "QUINZE", "DEZESSEIS", "DEZESSETE", "DEZOITO", "DEZENOVE"};
constexpr std::array<std::string_view, 10> tens = {"",         "",          "VINTE",    "TRINTA",
                                                   "QUARENTA", "CINQUENTA", "SESSENTA", "SETENTA",
                                                   "OITENTA",  "NOVENTA"};
constexpr std::array<std::string_view, 10> hundreds = {
    "",           "CENTO",      "DUZENTOS",   "TREZENTOS",  "QUATROCENTOS",
    "QUINHENTOS", "SEISCENTOS", "SETECENTOS", "OITOCENTOS", "NOVECENTOS"};
constexpr std::array<std::string_view, 6> groupSingular = {"",        " MIL",     " MILHAO",
                                                           " BILHAO", " TRILHAO", " QUATRILHAO"};
constexpr std::array<std::string_view, 6> groupPlural = {"",         " MIL",      " MILHOES",
                                                         " BILHOES", " TRILHOES", " QUATRILHOES"};

constexpr std::size_t wholeDigits = 18;
constexpr NumberMask wholeMask("000000000000000000.000");

// The words of a group of three digits, 1 to 999, with its name. 100 takes the
// singular name, as 1 does (decision D43).
std::string groupWords(std::size_t group, std::size_t name) {
    if (group == 1 || group == 100) {
        return std::string(group == 1 ? "UM" : "CEM").append(groupSingular[name]);
    }
    std::string words(hundreds[group / 100]);
    std::size_t rest = group % 100;
    const auto join = [&words, &rest] {
        if (!words.empty() && rest != 0) {
            words += " E ";
        }
    };
    join();
    if (rest >= 20) {
        words += tens[rest / 10];
        rest %= 10;
        join();
    }
    words += units[rest];
    return words.append(groupPlural[name]);
}

std::string_view separatorBefore(std::size_t group, bool last) {
    return last && (group < 100 || group % 100 == 0) ? " E " : ", ";
}

// The words of the whole part, `digits` being its 18 digits.
std::string wholeWords(std::string_view digits) {
    std::string words;
    for (std::size_t position = 0; position < wholeDigits; position += 3) {
        std::size_t group = 0;
        for (const char digit : digits.substr(position, 3)) {
            group = group * 10 + static_cast<std::size_t>(digit - '0');
        }
        if (group == 0) {
            continue;
        }
        const std::size_t name = (wholeDigits - 3 - position) / 3;
        if (!words.empty()) {
            words += separatorBefore(group, name == 0);
        }
        words += groupWords(group, name);
    }
    return words;
}

}  // namespace

std::string ValorExtenso(double value, std::string_view plural, std::string_view singular) {
    const bool negative = value < 0;
    const double amount = std::fabs(value);
    if (amount == 0) {
        return {};
    }
    const double whole = std::trunc(amount);
    std::string words =
        wholeWords(std::string_view(formatNumber(amount, wholeMask)).substr(0, wholeDigits));
    if (!words.empty()) {
        words.insert(0, negative ? "MENOS " : "");
        words.append(" ").append(whole == 1 ? singular : plural);
    }
    // The tenth guards against a binary fraction that falls just under its cent.
    const double hundredths = (amount - whole) * 100;
    const double cents = std::trunc(hundredths + 0.1);
    if (cents != 0) {
        words.append(words.empty() ? "" : " E ").append(ValorExtenso(cents, "CENTAVOS", "CENTAVO"));
    }
    return words;
}

}  // namespace tarn
