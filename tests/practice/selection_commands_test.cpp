#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "tests/practice/practice_desk.h"

namespace tarn::practice::test {
namespace {

constexpr const char* allBranches = "&nIdEtbTarn=1361, 1362, 1363";

std::string addresseeQuery(const std::string& filters, const char* order = "NOME") {
    return "comando=sel_dados_etq" + filters + "&nIdOrd=" + order + "&ServerName=DADOS1361";
}

std::vector<std::string> column(Desk& desk, const std::string& query, const char* name) {
    std::vector<std::string> values;
    const XmlDocument document = desk.ask(query);
    for (const XmlNode& row : rowsOf(document)) {
        values.push_back(field(row, name));
    }
    return values;
}

std::size_t found(Desk& desk, const std::string& filters) {
    return column(desk, addresseeQuery(allBranches + filters), "CD_CEP").size();
}

// A list's texts with their numbers.
std::map<std::string, std::string> numbered(Desk& desk, const std::string& query, const char* text,
                                            const char* number) {
    std::map<std::string, std::string> items;
    const XmlDocument document = desk.ask(query + "&ServerName=DADOS1361");
    for (const XmlNode& row : rowsOf(document)) {
        items.emplace(field(row, text), field(row, number));
    }
    return items;
}

std::map<std::string, std::string> states(Desk& desk, const std::string& country) {
    return numbered(desk, "comando=sel_estado&Pais=" + country, "NM_UF", "ID_UF");
}
std::map<std::string, std::string> cities(Desk& desk, const std::string& state) {
    return numbered(desk, "comando=sel_cidade&Estado=" + state, "NM_MUN", "ID_MUN");
}

TEST(SelectionCommands, ListBranchesCountriesStatesAndCities) {
    Desk desk;
    EXPECT_EQ(
        column(desk, "comando=sel_filias&nId_Emp_Tarn=1361&nId_Pes_Usu=101&ServerName=DADOS1361",
               "ID_ETB"),
        (std::vector<std::string>{"1361", "1362", "1363"}));
    const auto countries = numbered(desk, "comando=sel_pais", "NM_PAIS", "ID_PAIS");
    EXPECT_EQ(countries.size(), 5U);
    EXPECT_EQ(countries.at("BRASIL"), "1058");
    EXPECT_TRUE(states(desk, "1058").contains("SÃO PAULO"));
    EXPECT_FALSE(states(desk, "639").contains("SÃO PAULO"));
    EXPECT_TRUE(cities(desk, states(desk, "1058").at("SÃO PAULO")).contains("SANTOS"));
    EXPECT_TRUE(states(desk, "6076").empty());
    EXPECT_TRUE(cities(desk, states(desk, "1058").at("TOCANTINS")).empty());
    EXPECT_TRUE(states(desk, "").empty());
    EXPECT_TRUE(states(desk, "-1").empty());
}

TEST(SelectionCommands, FindEveryCustomerWithoutAFilter) {
    Desk desk;
    EXPECT_EQ(found(desk,
                    "&nIdPais=&nIdMatPro=&nCepDe=&nCepAte=&dDtDe=&dDtAte=&nVlrDe=&nVlrAte="
                    "&nQtDe=&nQtAte="),
              912U);
    const XmlDocument document = desk.ask(addresseeQuery(allBranches));
    for (const XmlNode& row : rowsOf(document)) {
        for (const char* name :
             {"CD_CEP", "NM_PES_CPL", "DC_LG_CPL", "NM_BRR", "SG_UF", "NM_MUN"}) {
            ASSERT_NE(field(row, name), "-") << name;
        }
    }
}

TEST(SelectionCommands, NarrowBranchesAndPlaces) {
    Desk desk;
    const std::size_t one = column(desk, addresseeQuery("&nIdEtbTarn=1361"), "CD_CEP").size();
    EXPECT_GT(one, 0U);
    EXPECT_LT(one, 912U);
    EXPECT_TRUE(column(desk, addresseeQuery(""), "CD_CEP").empty());
    EXPECT_TRUE(column(desk, addresseeQuery("&nIdEtbTarn=142"), "CD_CEP").empty());
    EXPECT_LT(found(desk, "&nIdPais=1058"), 912U);
    const std::string state = states(desk, "1058").at("SÃO PAULO");
    const std::string city = cities(desk, state).at("SANTOS");
    for (const std::string& name :
         column(desk, addresseeQuery(allBranches + ("&nIdPais=1058&nIdUf=" + state)), "SG_UF")) {
        ASSERT_EQ(name, "SP");
    }
    const auto towns = column(
        desk, addresseeQuery(allBranches + ("&nIdPais=1058&nIdUf=" + state + "&nIdMun=" + city)),
        "NM_MUN");
    ASSERT_FALSE(towns.empty());
    EXPECT_EQ(static_cast<std::size_t>(std::ranges::count(towns, "SANTOS")), towns.size());
}

TEST(SelectionCommands, OrderByPostalCodeOrByName) {
    Desk desk;
    std::vector<int> codes;
    for (const std::string& code :
         column(desk,
                addresseeQuery(allBranches + std::string("&nCepDe=1000000&nCepAte=9999999"), "CEP"),
                "CD_CEP")) {
        codes.push_back(std::stoi(code));
    }
    ASSERT_GT(codes.size(), 10U);
    EXPECT_TRUE(std::ranges::is_sorted(codes));
    EXPECT_GE(codes.front(), 1000000);
    EXPECT_LE(codes.back(), 9999999);
    const auto names = column(desk, addresseeQuery(allBranches), "NM_PES_CPL");
    // Á stands with A, behind it only what begins with later letters.
    EXPECT_EQ(names.front().substr(0, 1), "A");
    EXPECT_EQ(names.back().substr(0, 1), "Z");
}

TEST(SelectionCommands, FindWhoBoughtAsTold) {
    Desk desk;
    const std::string year = "&dDtDe=06/09/2011&dDtAte=05/09/2012";
    const std::size_t buyers = found(desk, year);
    EXPECT_GT(buyers, 100U);
    EXPECT_LT(buyers, 912U);
    const std::size_t product = found(desk, year + "&nIdMatPro=1003");
    EXPECT_GT(product, 0U);
    EXPECT_LT(product, buyers);
    EXPECT_EQ(found(desk, year + "&nIdMatPro=NADA"), 0U);
    EXPECT_LT(found(desk, year + "&nQtDe=59"), buyers);
    EXPECT_GT(found(desk, year + "&nQtDe=59"), 0U);
    EXPECT_EQ(found(desk, year + "&nQtDe=61"), 0U);
    EXPECT_LT(found(desk, year + "&nVlrDe=1000,50&nVlrAte=2000"), buyers);
    EXPECT_EQ(found(desk, "&dDtDe=01/01/2013&dDtAte=31/12/2013"), 0U);
    EXPECT_EQ(found(desk, "&dDtDe=x&dDtAte=31/12/2013"), 0U);
    EXPECT_EQ(found(desk, year + "&nVlrDe=x"), 0U);
}

TEST(SelectionCommands, FindTheBuyerOfANoteJustMade) {
    Desk desk;
    const std::string today = "&dDtDe=05/09/2012&dDtAte=05/09/2012";
    const auto bought = [&] {
        const auto names = column(desk, addresseeQuery(allBranches + today), "NM_PES_CPL");
        return std::ranges::count(names, "LOJAS ARAÇÁ DE DEPARTAMENTOS LTDA") +
               std::ranges::count(names,
                                  "ASSOCIAÇÃO BENEFICENTE E CULTURAL DOS TRABALHADORES NAS "
                                  "INDÚSTRIAS DE CERÂMICAS DE SÃO BERNARDO DO CAMPO E "
                                  "REGIÃO DO GRANDE ABC");
    };
    ASSERT_EQ(bought(), 0);
    const Generated note = desk.generate("45014");
    EXPECT_EQ(bought(), 1);
    EXPECT_EQ(desk.status("comando=sp_can_nf&ID_ETB_TARN=1361&IC_TIP_NF=S&ID_NF_KESTO=" +
                          note.number + "&CD_SER_NF=" + note.series +
                          "&id_mot_can=1&id_pes_usu=101&Tipo_Can=C&ServerName=DADOS1361"),
              "OK");
    EXPECT_EQ(bought(), 0);
}

}  // namespace
}  // namespace tarn::practice::test
