#include "practice/data/names.h"

#include <QString>
#include <array>

#include "practice/data/places.h"

namespace tarn::practice {
namespace {

using Words = std::span<const char* const>;

constexpr std::array kFirstNames = {"ADÉLIA",   "BENEDITO", "CECÍLIA", "DORIVAL",  "EDUARDO",
                                    "FÁTIMA",   "GERALDO",  "HELOÍSA", "INÁCIO",   "JUSSARA",
                                    "LAÉRCIO",  "MÁRCIA",   "NÍLSON",  "OLÍVIA",   "PATRÍCIA",
                                    "QUITÉRIA", "RENATO",   "SÔNIA",   "TIBÚRCIO", "VALQUÍRIA"};
constexpr std::array kMiddleNames = {"APARECIDA",   "DE ASSIS", "DAS GRAÇAS", "DE LOURDES",
                                     "EVANGELISTA", "DO CARMO", "CÂNDIDO",    "DE FREITAS"};
constexpr std::array kLastNames = {"ABRANTES",  "BITTENCOURT", "CAMARGO", "DAMASCENO", "FONTOURA",
                                   "GUIMARÃES", "JUNQUEIRA",   "LACERDA", "MAGALHÃES", "NÓBREGA",
                                   "PAIXÃO",    "QUEIRÓS",     "REZENDE", "SEABRA",    "TEIXEIRA",
                                   "UCHÔA",     "VASCONCELOS", "XAVIER",  "ZAMPIERI",  "MUÑOZ"};
constexpr std::array kTrades = {"AUTO PEÇAS",   "BAZAR",       "CASA DE CARNES", "COMERCIAL",
                                "CONFECÇÕES",   "CONSTRUTORA", "DISTRIBUIDORA",  "DROGARIA",
                                "EMPÓRIO",      "FERRAGENS",   "GRÁFICA",        "LATICÍNIOS",
                                "LAVANDERIA",   "MARCENARIA",  "MERCEARIA",      "ÓTICA",
                                "PANIFICADORA", "PAPELARIA",   "SERRALHERIA",    "TRANSPORTES"};
constexpr std::array kTradeNames = {"AURORA",      "BEM-TE-VI",   "CACHOEIRA",   "DOIS IRMÃOS",
                                    "ESPERANÇA",   "FLOR DE LIS", "GUARANÁ",     "HORIZONTE",
                                    "IPIRANGA",    "JACARANDÁ",   "LITORAL",     "MANTIQUEIRA",
                                    "NOVA ERA",    "OURO VERDE",  "PROGRESSO",   "QUATRO ESTAÇÕES",
                                    "RIACHO DOCE", "SÃO BENTO",   "TRÊS MARIAS", "VISTA ALEGRE"};
constexpr std::array kForms = {"LTDA", "LTDA ME", "S/A", "LTDA EPP", "E CIA LTDA"};
constexpr std::array kStreets = {
    "RUA DAS ACÁCIAS",          "RUA BARÃO DE MAUÁ",      "AVENIDA BRASIL",
    "TRAVESSA DO COMÉRCIO",     "RUA QUINZE DE NOVEMBRO", "ALAMEDA DOS IPÊS",
    "RUA TIRADENTES",           "PRAÇA DA MATRIZ",        "AVENIDA GETÚLIO VARGAS",
    "RUA DOM PEDRO II",         "LADEIRA DO CARMO",       "RUA SETE DE SETEMBRO",
    "ESTRADA VELHA DA ESTAÇÃO", "RUA SÃO FRANCISCO",      "AVENIDA DOS EXPEDICIONÁRIOS"};
constexpr std::array kDistricts = {"CENTRO",     "VILA NOVA",         "JARDIM AMÉRICA",
                                   "BELA VISTA", "SÃO CRISTÓVÃO",     "DISTRITO INDUSTRIAL",
                                   "BOA VISTA",  "PARQUE DAS NAÇÕES", "SANTO ANTÔNIO"};
constexpr std::array<const char*, 8> kComplements = {
    nullptr, nullptr, nullptr, nullptr, "SALA 2", "LOJA B", "FUNDOS", "APTO 41, BLOCO C"};

constexpr int kPostalDigits = 8;
constexpr int kFirstBrazilian = 1000000;  // postal codes abroad are below it

std::string word(Dice& dice, Words words) {
    return dice.oneOf(words);
}

std::string postalCodeText(int code) {
    std::string text = std::to_string(code);
    if (code >= kFirstBrazilian) {
        text.insert(0, kPostalDigits - text.size(), '0');
    }
    return text;
}

}  // namespace

std::string drawnPersonName(Dice& dice) {
    const std::string first = word(dice, kFirstNames);
    const std::string middle = dice.below(2) == 0 ? ' ' + word(dice, kMiddleNames) : "";
    return first + middle + ' ' + word(dice, kLastNames);
}

std::string drawnCompanyName(Dice& dice) {
    const std::string trade = word(dice, kTrades);
    if (dice.below(6) == 0) {
        const std::string one = word(dice, kLastNames);
        return trade + ' ' + one + " & " + word(dice, kLastNames) + " LTDA";
    }
    const std::string name = word(dice, kTradeNames);
    return trade + ' ' + name + ' ' + word(dice, kForms);
}

DrawnAddress drawnAddress(Dice& dice) {
    DrawnAddress address;
    address.street = word(dice, kStreets);
    address.number = dice.below(20) == 0 ? "0" : std::to_string(dice.between(1, 2999));
    if (const char* complement = dice.oneOf(std::span<const char* const>(kComplements))) {
        address.complement = complement;
    }
    address.district = word(dice, kDistricts);
    const int row = dice.below(static_cast<int>(townRows().size()));
    const TownRow& town = townRows()[static_cast<std::size_t>(row)];
    const bool abroad = town.postalCode < kFirstBrazilian;
    address.postalCode = postalCodeText(town.postalCode + (abroad ? 0 : dice.below(980)));
    address.city = row + 1;
    return address;
}

std::string addressLine(const std::string& street, const std::string& number) {
    return number == "0" ? street : street + ", " + number;
}

std::string searchName(std::string_view name) {
    const QString parted = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()))
                               .normalized(QString::NormalizationForm_D)
                               .toUpper();
    QString letters;
    for (const QChar c : parted) {
        if (!c.isMark()) {
            letters.append(c);
        }
    }
    return letters.toStdString();
}

}  // namespace tarn::practice
