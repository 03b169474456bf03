// Every practice logon has orders that fill its pre-printed form, and that don't
// fit it.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>
#include <string>
#include <vector>

#include "practice/data/companies.h"
#include "practice/data/practice_data.h"
#include "tests/practice/practice_desk.h"

namespace tarn::practice::test {
namespace {

// What the notes of one establishment show.
struct Shown {
    std::set<int> itemLines;  // QT_MAX_IT
    std::set<std::string> serviceLines;
    std::set<int> products;
    std::set<int> services;
    std::set<int> parcels;
    int refused = 0;
    int entries = 0;
    int naturalPersons = 0;
    int addressed = 0;  // with billing and delivery address and their complements
    int withoutCreditBase = 0;
};

std::string numbersOf(const PracticeLogon& logon) {
    return "&ID_ETB_TARN=" + std::to_string(logon.establishment) + "&ServerName=DADOS" +
           std::to_string(logon.company);
}

void countItems(const XmlNode& root, Shown& shown) {
    int products = 0;
    int services = 0;
    std::int64_t servicesNet = 0;
    for (std::size_t i = 3; i < root.childCount(); ++i) {
        const XmlNode item = root.child(i);
        const bool service = field(item, "IC_TP_CAD") != "P";
        ++(service ? services : products);
        for (const char* name : {"AQ_ISS", "VL_ISS", "VL_LIQ_IT"}) {
            EXPECT_EQ(field(item, name) != "-", service) << name;
        }
        if (service) {
            servicesNet += cents(item, "VL_LIQ_IT");
            EXPECT_NEAR(
                static_cast<double>(cents(item, "VL_ISS")),
                static_cast<double>(cents(item, "VL_LIQ_IT") * cents(item, "AQ_ISS")) / 10000, 0.5);
        }
    }
    shown.products.insert(products);
    shown.services.insert(services);
    const XmlNode totals = root.child(1);
    EXPECT_EQ(cents(totals, "VALOR_TOT_NF"),
              cents(totals, "VALOR_TOTAL") - cents(totals, "VALOR_TOTAL_DESC") + servicesNet +
                  cents(totals, "VALOR_TOT_IPI") + cents(totals, "VALOR_ICMS_RTD") +
                  cents(totals, "VALOR_FRETE") + cents(totals, "VALOR_SEGURO") +
                  cents(totals, "VALOR_DES_ASC"));
}

void countNote(const XmlNode& root, const PracticeLogon& logon, Shown& shown) {
    const XmlNode head = root.child(0);
    const auto stands = [&head](const char* name) { return field(head, name) != "-"; };
    EXPECT_EQ(field(head, "ID_EMP_TARN"), std::to_string(logon.company));
    shown.itemLines.insert(std::stoi(field(root.child(2), "QT_MAX_IT")));
    shown.serviceLines.insert(field(root.child(2), "QT_MAX_IT_NF_SRV"));
    shown.parcels.insert(std::stoi(field(head, "QTDE_PARC")));
    shown.entries += field(head, "Ent_Sai") == "E" ? 1 : 0;
    shown.naturalPersons += field(head, "IC_TIP_PES") == "F" ? 1 : 0;
    shown.addressed += stands("ENDERECO_COB") && stands("COMPLEMENTO_COB") &&
                               stands("ENDERECO_ETG") && stands("COMPLEMENTO_ETG")
                           ? 1
                           : 0;
    shown.withoutCreditBase += cents(root.child(1), "VL_IMPOSTO_CREDITAR") == 0 ? 1 : 0;
    countItems(root, shown);
}

std::string userOf(Desk& desk, const PracticeLogon& logon) {
    const XmlDocument document =
        desk.ask("comando=LOGIN&EMPRESA=" + std::to_string(logon.company) +
                 "&USUARIO=" + std::string(logon.user) + "&SENHA=" + std::string(logon.password));
    EXPECT_EQ(statusOf(document), "OK");
    const XmlNode row = document.selectSingleNode("PRINCIPAL").child(0);
    EXPECT_EQ(field(row, "ID_ETB_TARN"), std::to_string(logon.establishment));
    return field(row, "USERCODE");
}

// Makes a note of every order on the establishment's list.
Shown issueAll(Desk& desk, const PracticeLogon& logon) {
    Shown shown;
    const std::string place = numbersOf(logon);
    const std::string user = userOf(desk, logon);
    const XmlDocument list = desk.ask("comando=sel_ordem_fatu" + place);
    const std::string generate = "COMANDO=SP_GERA_NF" + place + "&ID_PES=" + user + "&ID_ORD_FAT=";
    for (const XmlNode& row : rowsOf(list)) {
        const XmlDocument made = desk.ask(generate + field(row, "ID_ORD_FAT"));
        if (statusOf(made) != "OK") {
            ++shown.refused;
            continue;
        }
        const XmlNode answer = made.documentElement();
        const XmlDocument document =
            desk.ask("comando=sel_gera_nf" + place +
                     "&ID_NF_KESTO=" + std::string(answer.child(0).attributes().item(0).text()) +
                     "&CD_SER_NF=" + std::string(answer.child(1).attributes().item(0).text()));
        countNote(document.selectSingleNode("PRINCIPAL"), logon, shown);
    }
    return shown;
}

const CompanyRow& companyOf(const EstablishmentRow& establishment) {
    return *std::ranges::find(companyRows(), establishment.company, &CompanyRow::id);
}

const PracticeLogon* logonOf(const EstablishmentRow& row) {
    const auto logons = practiceLogons();
    const auto found = std::ranges::find_if(logons, [&row](const PracticeLogon& logon) {
        return logon.company == row.company && logon.establishment == row.code && logon.mayIssue;
    });
    return found == logons.end() ? nullptr : &*found;
}

TEST(PracticeForms, EveryEstablishmentShowsItsFormFullAndOverFull) {
    Desk desk;
    for (const EstablishmentRow& row : establishmentRows()) {
        SCOPED_TRACE(std::to_string(row.company) + " " + std::to_string(row.code));
        const PracticeLogon* logon = logonOf(row);
        ASSERT_NE(logon, nullptr);
        const Shown shown = issueAll(desk, *logon);
        const Form& form = row.form;
        EXPECT_EQ(shown.itemLines, std::set<int>{form.itemLines});
        EXPECT_EQ(
            shown.serviceLines,
            std::set<std::string>{form.serviceLines > 0 ? std::to_string(form.serviceLines) : "-"});
        EXPECT_TRUE(shown.products.contains(form.itemLines));
        EXPECT_TRUE(shown.products.contains(form.itemLines + 4));
        EXPECT_TRUE(shown.parcels.contains(0));
        EXPECT_TRUE(shown.parcels.contains(form.parcelLimit > 0 ? form.parcelLimit : 9));
        EXPECT_TRUE(shown.parcels.contains(form.parcelLimit > 0 ? form.parcelLimit + 1 : 10));
        EXPECT_EQ(shown.parcels.contains(2), form.parcelsInPairs);
        EXPECT_EQ(shown.services.contains(form.serviceLines + 2), companyOf(row).sellsServices);
        EXPECT_EQ(shown.products.contains(0), companyOf(row).sellsServices);
        EXPECT_EQ(shown.refused, 2);
        EXPECT_EQ(shown.entries, 1);
        EXPECT_GE(shown.naturalPersons, 3);
        EXPECT_GE(shown.addressed, 2);
        EXPECT_TRUE(shown.withoutCreditBase > 0 || !form.taxCredit);
    }
}

// One code in several companies is several establishments.
TEST(PracticeForms, TheSameCodeInAnotherCompanyIsAnotherEstablishment) {
    Desk desk;
    std::set<std::string> names;
    for (const char* company : {"3881", "2541", "4901"}) {
        const XmlDocument document = desk.ask(
            std::string("comando=sel_dados_empresa&ID_ETB_TARN=6001&ServerName=DADOS") + company);
        const std::vector<XmlNode> rows = rowsOf(document);
        ASSERT_EQ(rows.size(), 1U);
        EXPECT_EQ(field(rows[0], "ID_ETB_TARN"), "6001");
        names.insert(field(rows[0], "NM_FIL"));
    }
    EXPECT_EQ(names.size(), 3U);
    EXPECT_EQ(desk.status("comando=sp_can_oft&ID_ETB_TARN=6001&ServerName=DADOS1361"),
              "O estabelecimento \"6001\" não existe nesta empresa. Saia do sistema e entre de "
              "novo.");
}

// The row's line in the manual of the practice data, but for its layout.
struct ToldLine {
    std::string begin;
    std::string end;
};

ToldLine toldLine(const EstablishmentRow& row, int firstOrder) {
    std::string also = companyOf(row).sellsServices ? "services" : "";
    also += row.form.parcelsInPairs ? "pairs" : "";
    also += row.form.taxCredit ? "credit" : "";
    const std::string parcels =
        row.form.parcelLimit > 0 ? std::to_string(row.form.parcelLimit) : "–";
    return {"| " + std::to_string(row.company) + " | " + std::to_string(row.code) + " | " +
                std::string(logonOf(row)->user) + " | " + row.name + " | ",
            " | " + std::to_string(row.form.itemLines) + " | " + parcels + " | " +
                std::to_string(firstOrder) + " | " + also + " |"};
}

TEST(PracticeForms, StandInTheManualAsTheyAre) {
    std::ifstream file(TARN_PRACTICE_MANUAL);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) {
        lines.push_back(line);
    }
    int firstOrder = 45001;
    for (const EstablishmentRow& row : establishmentRows()) {
        const ToldLine wanted = toldLine(row, firstOrder);
        const auto told = [&wanted](const std::string& line) {
            return line.starts_with(wanted.begin) && line.ends_with(wanted.end);
        };
        EXPECT_EQ(std::ranges::count_if(lines, told), 1) << wanted.begin << "..." << wanted.end;
        firstOrder += 100;
    }
}

// The places of the note's ladder, company and establishment.
TEST(PracticeForms, HaveAPlaceForEveryRowOfTheLadder) {
    std::set<std::pair<int, int>> places;
    std::set<int> companies;
    for (const PracticeLogon& logon : practiceLogons()) {
        places.emplace(logon.company, logon.establishment);
        companies.insert(logon.company);
    }
    for (const int company : {7,   1361, 141,  761,  2161, 2041, 2321, 1581, 2801, 2421, 1521,
                              821, 3301, 3881, 3081, 3141, 3601, 2541, 3681, 4621, 541,  4901}) {
        EXPECT_TRUE(companies.contains(company)) << company;
    }
    for (const auto& place : std::set<std::pair<int, int>>{{2161, 3381},
                                                           {2161, 3382},
                                                           {2161, 3384},
                                                           {2161, 3385},
                                                           {2161, 3341},
                                                           {2161, 3383},
                                                           {2161, 3386},
                                                           {2421, 3621},
                                                           {2421, 2422},
                                                           {3881, 6001},
                                                           {3881, 3882},
                                                           {4901, 6001},
                                                           {4901, 5282},
                                                           {4901, 5281},
                                                           {4901, 4902},
                                                           {4621, 7321},
                                                           {4621, 4622}}) {
        EXPECT_TRUE(places.contains(place)) << place.first << ' ' << place.second;
    }
}

}  // namespace
}  // namespace tarn::practice::test
