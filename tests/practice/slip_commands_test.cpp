#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "tests/practice/practice_desk.h"

namespace tarn::practice::test {
namespace {

// Portfolios of company 1361, the first of the table.
constexpr const char* wallet57 = "101";
constexpr const char* santander = "102";

std::string slipQuery(const std::string& portfolio, const char* enter,
                      const std::string& filters = {}) {
    return "comando=sel_boleto&ID_EMP_TARN=1361" + filters + "&ID_CRT_COB=" + portfolio +
           "&ID_PES_USU=101&IC_INC_CAR=" + enter + "&ServerName=DADOS1361";
}

std::string portfolioQuery(const std::string& portfolio) {
    return "comando=sel_carteira_cob&ID_EMP_TARN=1361&ID_CRT_COB=" + portfolio +
           "&ServerName=DADOS1361";
}

// What the four writes name a document by.
struct Slip {
    std::string branch;
    std::string kind;
    std::string number;
    std::string control;
    std::string bank;
};

Slip slipOf(const XmlNode& row) {
    return {field(row, "ID_ETB_TARN"), field(row, "ID_TIP_DOC"), field(row, "NR_DOC"),
            field(row, "ID_NR_CTL"), field(row, "ID_PES_BAN")};
}

Slip firstOf(Desk& desk, const std::string& query, const char* table) {
    const XmlDocument document = desk.ask(query);
    for (const XmlNode& row : rowsOf(document)) {
        if (field(row, "TIPO_DOCTO") == table) {
            return slipOf(row);
        }
    }
    ADD_FAILURE() << "no " << table;
    return {};
}

bool holds(Desk& desk, const std::string& query, const Slip& slip) {
    const XmlDocument document = desk.ask(query);
    const std::vector<XmlNode> rows = rowsOf(document);
    return std::ranges::any_of(rows, [&slip](const XmlNode& row) {
        const Slip other = slipOf(row);
        return other.branch == slip.branch && other.kind == slip.kind &&
               other.number == slip.number;
    });
}

std::string numberCollection(const Slip& slip, const std::string& number) {
    return "comando=altera_docto_cob&ID_ETB=" + slip.branch + "&ID_TIP_DOC=" + slip.kind +
           "&NR_DOC=" + slip.number + "&NR_BOL_BANC=" + number + "&ServerName=DADOS1361";
}

std::string numberReceivable(const Slip& slip, const char* key, const std::string& number) {
    return "comando=altera_docto_rec&ID_ETB=" + slip.branch + '&' + key + '=' + slip.control +
           "&ServerName=DADOS1361&NR_BOL_BANC=" + number;
}

std::string enterCollection(const Slip& slip, const std::string& portfolio) {
    return "comando=insere_car_cob&ID_EMP_TARN=1361&ID_ETB=" + slip.branch +
           "&ID_TIP_DOC=" + slip.kind + "&NR_DOC=" + slip.number + "&ID_CRT_COB=" + portfolio +
           "&NR_BOL_BANC=1234&ID_PES_USU=101&ServerName=DADOS1361";
}

std::string enterReceivable(const Slip& slip, const std::string& portfolio) {
    return "comando=insere_car_rec&ID_EMP_TARN=1361&ID_ETB=" + slip.branch +
           "&ID_NR_CTL=" + slip.control + "&ID_CRT_COB=" + portfolio +
           "&NR_BOL_BANC=1234&ID_PES_USU=101&ServerName=DADOS1361";
}

TEST(SlipCommands, ListThePortfoliosAndTheirRecords) {
    Desk desk;
    const XmlDocument list = desk.ask("comando=sel_carteira&ID_EMP_TARN=1361&ServerName=DADOS1361");
    ASSERT_EQ(rowsOf(list).size(), 5U);
    EXPECT_EQ(field(rowsOf(list)[0], "DC_CRT_COB"), "VALE DO IPÊ - CARTEIRA 57");
    EXPECT_EQ(field(rowsOf(list)[0], "ID_CRT_COB"), wallet57);
    std::set<std::string> banks;
    std::set<std::string> wallets;
    for (const XmlNode& row : rowsOf(list)) {
        const XmlDocument record = desk.ask(portfolioQuery(field(row, "ID_CRT_COB")));
        ASSERT_EQ(rowsOf(record).size(), 1U);
        const XmlNode only = rowsOf(record)[0];
        EXPECT_EQ(field(only, "ID_CRT_COB"), field(row, "ID_CRT_COB"));
        banks.insert(field(only, "ID_PES_BAN"));
        wallets.insert(field(only, "NR_CRT_CNAB"));
        EXPECT_NE(field(only, "CD_AGE_BAN_CNAB"), "-");
        EXPECT_NE(field(only, "NR_CCOR_CNAB"), "-");
    }
    EXPECT_EQ(banks, (std::set<std::string>{"1016", "1084", "1095", "2033"}));
    EXPECT_EQ(wallets, (std::set<std::string>{"57", "057", "101", "112"}));
    EXPECT_TRUE(rowsOf(desk.ask(portfolioQuery(""))).empty());
    EXPECT_TRUE(rowsOf(desk.ask(portfolioQuery("201"))).empty());  // another company's
}

TEST(SlipCommands, FindWhatIsInThePortfolioOrInNone) {
    Desk desk;
    const XmlDocument in = desk.ask(slipQuery(wallet57, "N"));
    ASSERT_GT(rowsOf(in).size(), 50U);
    std::set<std::string> banks;
    for (const XmlNode& row : rowsOf(in)) {
        banks.insert(field(row, "ID_PES_BAN"));
        EXPECT_NE(field(row, "ID_TIP_DOC"), "12");
    }
    EXPECT_EQ(banks, (std::set<std::string>{"1016", "2033"}));
    const XmlDocument out = desk.ask(slipQuery(wallet57, "S"));
    ASSERT_GT(rowsOf(out).size(), 50U);
    for (const XmlNode& row : rowsOf(out)) {
        EXPECT_EQ(field(row, "ID_PES_BAN"), "-");
        EXPECT_EQ(field(row, "CD_AGE_BAN"), "-");
    }
    EXPECT_TRUE(rowsOf(desk.ask(slipQuery("", "N"))).empty());
}

TEST(SlipCommands, GiveEveryFieldOfADocument) {
    Desk desk;
    std::set<std::pair<std::string, std::string>> charges;
    std::set<std::size_t> lengths;
    const XmlDocument document = desk.ask(slipQuery(santander, "N"));
    for (const XmlNode& row : rowsOf(document)) {
        for (const char* name :
             {"SG_FIL",     "DT_VNC_DOC_FMA", "DC_TIP_DOC",  "NR_DOC",     "NM_CLI_ETB",
              "DT_EMS_DOC", "DC_LG_CPL",      "VL_PRN_DOC",  "CD_CEP",     "NM_MUN",
              "SG_UF",      "PES_JUR",        "NR_CGC_CPL",  "TIPO_DOCTO", "TX_JUR_DIA",
              "PC_MULTA",   "JUROS_AO_DIA",   "ID_ETB_TARN", "ID_TIP_DOC", "CD_AGE_BAN",
              "ID_PES_BAN"}) {
            ASSERT_NE(field(row, name), "-") << name;
        }
        EXPECT_EQ(field(row, "ID_NR_CTL") != "-", field(row, "TIPO_DOCTO") == "DOCTO_RECEBER");
        charges.emplace(cents(row, "PC_MULTA") == 0 ? "" : "fine",
                        cents(row, "JUROS_AO_DIA") == 0 ? "" : "interest");
        lengths.insert(field(row, "DC_REF_REC").size());
    }
    EXPECT_EQ(charges.size(), 4U);
    EXPECT_GT(*lengths.rbegin(), 316U);
    EXPECT_TRUE(lengths.contains(1));  // "-", for none
}

TEST(SlipCommands, KeepTheNumberOfACollectionDocument) {
    Desk desk;
    const Slip slip = firstOf(desk, slipQuery(wallet57, "N"), "DOCTO_COBRANCA");
    EXPECT_EQ(desk.status(numberCollection(slip, "1234")), "OK");
    EXPECT_EQ(desk.status(numberCollection(slip, "")),
              "O número do boleto bancário \"\" não é válido. Digite só algarismos.");
    EXPECT_EQ(desk.status(numberCollection(slip, "12,5")), "OK");
    EXPECT_NE(desk.status(numberCollection(slip, "12a")), "OK");
    EXPECT_NE(desk.status(numberCollection(slip, std::string(21, '1'))), "OK");
    Slip none = slip;
    none.number = "nada";
    EXPECT_EQ(desk.status(numberCollection(none, "1")),
              "O documento não existe mais. Pesquise de novo.");
}

TEST(SlipCommands, TakeTheControlNumberUnderBothSpellings) {
    Desk desk;
    const Slip slip = firstOf(desk, slipQuery(wallet57, "N"), "DOCTO_RECEBER");
    EXPECT_EQ(desk.status(numberReceivable(slip, "ID_NR_CTL", "77")), "OK");
    EXPECT_EQ(desk.status(numberReceivable(slip, "ID_NR_CLT", "12345679")), "OK");
    EXPECT_NE(desk.status(numberReceivable(slip, "ID_NR", "1")), "OK");
    // A document of the collection table isn't found among the receivables.
    EXPECT_NE(desk.status(numberCollection(slip, "1")), "OK");
}

TEST(SlipCommands, EnterADocumentInAPortfolio) {
    for (const bool receivable : {false, true}) {
        Desk desk;
        const Slip slip = firstOf(desk, slipQuery(wallet57, "S"),
                                  receivable ? "DOCTO_RECEBER" : "DOCTO_COBRANCA");
        const auto entering = [&](const char* portfolio) {
            return receivable ? enterReceivable(slip, portfolio) : enterCollection(slip, portfolio);
        };
        EXPECT_FALSE(holds(desk, slipQuery(wallet57, "N"), slip));
        EXPECT_EQ(desk.status(entering("201")),
                  "A carteira de cobrança não existe. Escolha a carteira na lista.");
        EXPECT_EQ(desk.status(entering(wallet57)), "OK");
        EXPECT_TRUE(holds(desk, slipQuery(wallet57, "N"), slip));
        EXPECT_FALSE(holds(desk, slipQuery(wallet57, "S"), slip));
        EXPECT_EQ(desk.status(entering(wallet57)), "OK");
        EXPECT_EQ(desk.status(entering(santander)),
                  "O documento não existe mais ou já está em outra carteira. Pesquise de novo.");
        EXPECT_TRUE(holds(desk, slipQuery(wallet57, "N"), slip));
    }
}

}  // namespace
}  // namespace tarn::practice::test
