#include "practice/data/names.h"

#include <array>
#include <span>

#include "practice/data/places.h"

namespace tarn::practice {
namespace {

using Words = std::span<const char* const>;

constexpr std::array firstNames = {"ADÉLIA",   "BENEDITO", "CECÍLIA", "DORIVAL",  "EDUARDO",
                                   "FÁTIMA",   "GERALDO",  "HELOÍSA", "INÁCIO",   "JUSSARA",
                                   "LAÉRCIO",  "MÁRCIA",   "NÍLSON",  "OLÍVIA",   "PATRÍCIA",
                                   "QUITÉRIA", "RENATO",   "SÔNIA",   "TIBÚRCIO", "VALQUÍRIA"};
constexpr std::array middleNames = {"APARECIDA",   "DE ASSIS", "DAS GRAÇAS", "DE LOURDES",
                                    "EVANGELISTA", "DO CARMO", "CÂNDIDO",    "DE FREITAS"};
constexpr std::array lastNames = {"ABRANTES",  "BITTENCOURT", "CAMARGO", "DAMASCENO", "FONTOURA",
                                  "GUIMARÃES", "JUNQUEIRA",   "LACERDA", "MAGALHÃES", "NÓBREGA",
                                  "PAIXÃO",    "QUEIRÓS",     "REZENDE", "SEABRA",    "TEIXEIRA",
                                  "UCHÔA",     "VASCONCELOS", "XAVIER",  "ZAMPIERI",  "MUÑOZ"};
constexpr std::array trades = {"AUTO PEÇAS",   "BAZAR",       "CASA DE CARNES", "COMERCIAL",
                               "CONFECÇÕES",   "CONSTRUTORA", "DISTRIBUIDORA",  "DROGARIA",
                               "EMPÓRIO",      "FERRAGENS",   "GRÁFICA",        "LATICÍNIOS",
                               "LAVANDERIA",   "MARCENARIA",  "MERCEARIA",      "ÓTICA",
                               "PANIFICADORA", "PAPELARIA",   "SERRALHERIA",    "TRANSPORTES"};
constexpr std::array tradeNames = {"AURORA",      "BEM-TE-VI",   "CACHOEIRA",   "DOIS IRMÃOS",
                                   "ESPERANÇA",   "FLOR DE LIS", "GUARANÁ",     "HORIZONTE",
                                   "IPIRANGA",    "JACARANDÁ",   "LITORAL",     "MANTIQUEIRA",
                                   "NOVA ERA",    "OURO VERDE",  "PROGRESSO",   "QUATRO ESTAÇÕES",
                                   "RIACHO DOCE", "SÃO BENTO",   "TRÊS MARIAS", "VISTA ALEGRE"};
constexpr std::array forms = {"LTDA", "LTDA ME", "S/A", "LTDA EPP", "E CIA LTDA"};
constexpr std::array streets = {
    "RUA DAS ACÁCIAS",          "RUA BARÃO DE MAUÁ",      "AVENIDA BRASIL",
    "TRAVESSA DO COMÉRCIO",     "RUA QUINZE DE NOVEMBRO", "ALAMEDA DOS IPÊS",
    "RUA TIRADENTES",           "PRAÇA DA MATRIZ",        "AVENIDA GETÚLIO VARGAS",
    "RUA DOM PEDRO II",         "LADEIRA DO CARMO",       "RUA SETE DE SETEMBRO",
    "ESTRADA VELHA DA ESTAÇÃO", "RUA SÃO FRANCISCO",      "AVENIDA DOS EXPEDICIONÁRIOS"};
constexpr std::array districts = {"CENTRO",     "VILA NOVA",         "JARDIM AMÉRICA",
                                  "BELA VISTA", "SÃO CRISTÓVÃO",     "DISTRITO INDUSTRIAL",
                                  "BOA VISTA",  "PARQUE DAS NAÇÕES", "SANTO ANTÔNIO"};
constexpr std::array<const char*, 8> complements = {
    nullptr, nullptr, nullptr, nullptr, "SALA 2", "LOJA B", "FUNDOS", "APTO 41, BLOCO C"};

constexpr int postalDigits = 8;
constexpr int firstBrazilian = 1000000;  // postal codes abroad are below it

std::string word(Dice& dice, Words words) {
    return dice.oneOf(words);
}

std::string postalCodeText(int code) {
    std::string text = std::to_string(code);
    if (code >= firstBrazilian) {
        text.insert(0, postalDigits - text.size(), '0');
    }
    return text;
}

}  // namespace

std::string drawnPersonName(Dice& dice) {
    const std::string first = word(dice, firstNames);
    const std::string middle = dice.below(2) == 0 ? ' ' + word(dice, middleNames) : "";
    return first + middle + ' ' + word(dice, lastNames);
}

std::string drawnCompanyName(Dice& dice) {
    const std::string trade = word(dice, trades);
    if (dice.below(6) == 0) {
        const std::string one = word(dice, lastNames);
        return trade + ' ' + one + " & " + word(dice, lastNames) + " LTDA";
    }
    const std::string name = word(dice, tradeNames);
    return trade + ' ' + name + ' ' + word(dice, forms);
}

DrawnAddress drawnAddress(Dice& dice) {
    DrawnAddress address;
    address.street = word(dice, streets);
    address.number = dice.below(20) == 0 ? "0" : std::to_string(dice.between(1, 2999));
    if (const char* complement = dice.oneOf(std::span<const char* const>(complements))) {
        address.complement = complement;
    }
    address.district = word(dice, districts);
    const int row = dice.below(static_cast<int>(townRows().size()));
    const TownRow& town = townRows()[static_cast<std::size_t>(row)];
    const bool abroad = town.postalCode < firstBrazilian;
    address.postalCode = postalCodeText(town.postalCode + (abroad ? 0 : dice.below(980)));
    address.city = row + 1;
    return address;
}

std::string addressLine(const std::string& street, const std::string& number) {
    return number == "0" ? street : street + ", " + number;
}

}  // namespace tarn::practice
