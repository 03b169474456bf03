#include "tests/fuzz/words_reader.h"

#include <map>
#include <string>

namespace tarn::fuzz {

namespace {

const std::map<std::string_view, std::int64_t> values{
    {"UM", 1},           {"DOIS", 2},         {"TRES", 3},         {"QUATRO", 4},
    {"CINCO", 5},        {"SEIS", 6},         {"SETE", 7},         {"OITO", 8},
    {"NOVE", 9},         {"DEZ", 10},         {"ONZE", 11},        {"DOZE", 12},
    {"TREZE", 13},       {"QUATORZE", 14},    {"QUINZE", 15},      {"DEZESSEIS", 16},
    {"DEZESSETE", 17},   {"DEZOITO", 18},     {"DEZENOVE", 19},    {"VINTE", 20},
    {"TRINTA", 30},      {"QUARENTA", 40},    {"CINQUENTA", 50},   {"SESSENTA", 60},
    {"SETENTA", 70},     {"OITENTA", 80},     {"NOVENTA", 90},     {"CEM", 100},
    {"CENTO", 100},      {"DUZENTOS", 200},   {"TREZENTOS", 300},  {"QUATROCENTOS", 400},
    {"QUINHENTOS", 500}, {"SEISCENTOS", 600}, {"SETECENTOS", 700}, {"OITOCENTOS", 800},
    {"NOVECENTOS", 900}};

const std::map<std::string_view, std::int64_t> groups{{"MIL", 1'000},
                                                      {"MILHAO", 1'000'000},
                                                      {"MILHOES", 1'000'000},
                                                      {"BILHAO", 1'000'000'000},
                                                      {"BILHOES", 1'000'000'000},
                                                      {"TRILHAO", 1'000'000'000'000},
                                                      {"TRILHOES", 1'000'000'000'000}};

struct Amount {
    std::int64_t whole = 0;  // or, behind them, cents
    std::int64_t group = 0;
    std::int64_t cents = 0;
    bool negative = false;
    bool ended = false;

    bool take(std::string_view word) {
        if (const auto value = values.find(word); value != values.end()) {
            group += value->second;
        } else if (const auto size = groups.find(word); size != groups.end()) {
            whole += group * size->second;
            group = 0;
        } else if (word == "REAL" || word == "REAIS") {
            whole += group;
            group = 0;
        } else if (word == "CENTAVO" || word == "CENTAVOS") {
            cents = group;
            group = 0;
        } else if (word == "MENOS") {
            negative = true;
        } else if (word != "E") {
            return false;
        }
        ended = group == 0;
        return true;
    }
};

}  // namespace

std::optional<std::int64_t> readWords(std::string_view words) {
    Amount amount;
    while (!words.empty()) {
        const std::size_t end = std::min(words.find_first_of(" ,"), words.size());
        const std::string_view word = words.substr(0, end);
        if (!word.empty() && !amount.take(word)) {
            return std::nullopt;
        }
        words.remove_prefix(std::min(end + 1, words.size()));
    }
    constexpr std::int64_t centsOfReal = 100;
    const std::int64_t sum = amount.whole * centsOfReal + amount.cents;
    return amount.ended || sum == 0 ? std::optional(amount.negative ? -sum : sum) : std::nullopt;
}

}  // namespace tarn::fuzz
