#include "practice/data/places.h"

#include <array>

namespace tarn::practice {
namespace {

constexpr std::array countries = {
    CountryRow{1058, "BRASIL"},   CountryRow{639, "ARGENTINA"}, CountryRow{5860, "PARAGUAI"},
    CountryRow{6076, "PORTUGAL"}, CountryRow{8451, "URUGUAI"},
};

// Portugal has no states in the table, Tocantins no towns: their lists stay empty.
constexpr std::array states = {
    StateRow{1058, "AM", "AMAZONAS"},
    StateRow{1058, "BA", "BAHIA"},
    StateRow{1058, "CE", "CEARÁ"},
    StateRow{1058, "DF", "DISTRITO FEDERAL"},
    StateRow{1058, "ES", "ESPÍRITO SANTO"},
    StateRow{1058, "GO", "GOIÁS"},
    StateRow{1058, "MG", "MINAS GERAIS"},
    StateRow{1058, "PA", "PARÁ"},
    StateRow{1058, "PR", "PARANÁ"},
    StateRow{1058, "PE", "PERNAMBUCO"},
    StateRow{1058, "RJ", "RIO DE JANEIRO"},
    StateRow{1058, "RN", "RIO GRANDE DO NORTE"},
    StateRow{1058, "RS", "RIO GRANDE DO SUL"},
    StateRow{1058, "SC", "SANTA CATARINA"},
    StateRow{1058, "SP", "SÃO PAULO"},
    StateRow{1058, "TO", "TOCANTINS"},
    StateRow{639, "EX", "BUENOS AIRES"},
    StateRow{639, "EX", "CÓRDOBA"},
    StateRow{5860, "EX", "CENTRAL"},
    StateRow{8451, "EX", "MONTEVIDÉU"},
};

constexpr std::array towns = {
    TownRow{15, "SÃO PAULO", 1001000},
    TownRow{15, "JUNDIAÍ", 13201000},
    TownRow{15, "SÃO BERNARDO DO CAMPO", 9710000},
    TownRow{15, "SANTOS", 11010000},
    TownRow{15, "CAMPINAS", 13010000},
    TownRow{15, "RIBEIRÃO PRETO", 14010000},
    TownRow{15, "SÃO JOSÉ DOS CAMPOS", 12210000},
    TownRow{7, "BELO HORIZONTE", 30110000},
    TownRow{7, "ITAJUBÁ", 37500000},
    TownRow{7, "CAXAMBU", 37440000},
    TownRow{7, "CONTAGEM", 32010000},
    TownRow{7, "POÇOS DE CALDAS", 37701000},
    TownRow{14, "FLORIANÓPOLIS", 88010000},
    TownRow{14, "RIO DO SUL", 89160000},
    TownRow{14, "JOINVILLE", 89201000},
    TownRow{14, "BLUMENAU", 89010000},
    TownRow{14, "CHAPECÓ", 89801000},
    TownRow{1, "MANAUS", 69010000},
    TownRow{13, "PORTO ALEGRE", 90010000},
    TownRow{13, "CAXIAS DO SUL", 95010000},
    TownRow{13, "SANTA MARIA", 97010000},
    TownRow{9, "CURITIBA", 80010000},
    TownRow{9, "LONDRINA", 86010000},
    TownRow{9, "FOZ DO IGUAÇU", 85851000},
    TownRow{11, "RIO DE JANEIRO", 20010000},
    TownRow{11, "NITERÓI", 24020000},
    TownRow{11, "PETRÓPOLIS", 25610000},
    TownRow{5, "VITÓRIA", 29010000},
    TownRow{2, "SALVADOR", 40010000},
    TownRow{2, "ILHÉUS", 45653000},
    TownRow{10, "RECIFE", 50010000},
    TownRow{10, "JABOATÃO DOS GUARARAPES", 54110000},
    TownRow{3, "FORTALEZA", 60010000},
    TownRow{12, "NATAL", 59010000},
    TownRow{8, "BELÉM", 66010000},
    TownRow{6, "GOIÂNIA", 74010000},
    TownRow{4, "BRASÍLIA", 70040000},
    TownRow{17, "LA PLATA", 1900},
    TownRow{17, "MAR DEL PLATA", 7600},
    TownRow{18, "VILLA MARÍA", 5900},
    TownRow{19, "SAN LORENZO", 2160},
    TownRow{20, "MONTEVIDÉU", 11000},
};

}  // namespace

std::span<const CountryRow> countryRows() {
    return countries;
}
std::span<const TownRow> townRows() {
    return towns;
}

const StateRow& stateOf(const TownRow& town) {
    return states[static_cast<std::size_t>(town.state) - 1];
}

int cityId(std::string_view town, std::string_view stateCode) {
    int id = 0;
    for (const TownRow& row : towns) {
        ++id;
        if (row.name == town && stateOf(row).code == stateCode) {
            return id;
        }
    }
    return 0;
}

void insertPlaces(Database& database) {
    for (const CountryRow& row : countries) {
        database.insert("country", "id, name", {row.id, row.name});
    }
    int state = 0;
    for (const StateRow& row : states) {
        database.insert("state", "id, country_id, code, name",
                        {++state, row.country, row.code, row.name});
    }
    int town = 0;
    for (const TownRow& row : towns) {
        database.insert("city", "id, state_id, name", {++town, row.state, row.name});
    }
}

}  // namespace tarn::practice
