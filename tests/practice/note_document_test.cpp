#include <gtest/gtest.h>

#include <array>
#include <set>

#include "tests/practice/practice_desk.h"

namespace tarn::practice::test {
namespace {

constexpr std::array lackingOrders = {"45007", "45008"};  // no note is made of these

// Every note of the practice data at establishment 1361.
class EveryNote : public testing::Test {
protected:
    void SetUp() override {
        for (const std::string& order : desk_.orders()) {
            if (order != lackingOrders[0] && order != lackingOrders[1]) {
                documents_.push_back(desk_.note(desk_.generate(order)));
            }
        }
        ASSERT_EQ(documents_.size(), 21U);
    }

    static XmlNode root(const XmlDocument& document) {
        return document.selectSingleNode("PRINCIPAL");
    }

    Desk desk_;
    std::vector<XmlDocument> documents_;
};

struct Sums {
    std::int64_t gross = 0;
    std::int64_t discounts = 0;
    std::int64_t ipi = 0;
};

Sums sumsOf(const XmlNode& root) {
    Sums sums;
    for (std::size_t i = 3; i < root.childCount(); ++i) {
        const XmlNode item = root.child(i);
        const std::int64_t product = cents(item, "VALOR_UN") * thousandths(item, "QTDE");
        EXPECT_EQ(product % 1000, 0) << "no whole cents: " << field(item, "DESCRICAO");
        sums.gross += product / 1000;
        sums.discounts += cents(item, "VL_DSC");
        sums.ipi += cents(item, "VL_IPI");
    }
    return sums;
}

TEST_F(EveryNote, AddsUpFromItsItems) {
    for (const XmlDocument& document : documents_) {
        const XmlNode totals = root(document).child(1);
        const Sums sums = sumsOf(root(document));
        EXPECT_EQ(cents(totals, "VALOR_TOTAL"), sums.gross);
        EXPECT_EQ(cents(totals, "VALOR_TOTAL_DESC"), sums.discounts);
        EXPECT_EQ(cents(totals, "VALOR_TOT_IPI"), sums.ipi);
        EXPECT_EQ(cents(totals, "VALOR_TOT_NF"),
                  sums.gross - sums.discounts + sums.ipi + cents(totals, "VALOR_ICMS_RTD") +
                      cents(totals, "VALOR_FRETE") + cents(totals, "VALOR_SEGURO") +
                      cents(totals, "VALOR_DES_ASC"));
    }
}

TEST_F(EveryNote, ItsParcelsAddUpToTheNote) {
    std::set<int> counts;
    for (const XmlDocument& document : documents_) {
        const XmlNode head = root(document).child(0);
        const int count = std::stoi(field(head, "QTDE_PARC"));
        counts.insert(count);
        std::int64_t sum = 0;
        for (int n = 1; n <= count; ++n) {
            const std::string place = std::to_string(n);
            sum += cents(head, "VL_PRN_DOC" + place);
            EXPECT_NE(field(head, "NR_DOC" + place), "-");
            EXPECT_EQ(field(head, "DT_VNC_DOC" + place).size(), 10U);
        }
        EXPECT_EQ(field(head, "VL_PRN_DOC" + std::to_string(count + 1)), "-");
        if (count > 0) {
            EXPECT_EQ(sum, cents(root(document).child(1), "VALOR_TOT_NF"));
        }
    }
    EXPECT_EQ(counts, (std::set<int>{0, 1, 3, 9, 10}));
}

TEST_F(EveryNote, HasTheFieldsThatAreNeverNull) {
    for (const XmlDocument& document : documents_) {
        const XmlNode head = root(document).child(0);
        for (const char* name :
             {"Ent_Sai", "NatOper", "CFOP", "RAZAO", "IC_TIP_PES", "CGC_CPF", "DT_EMS_NF",
              "ENDERECO", "BAIRRO", "CEP", "MUNICIPIO", "UF", "QTDE_PARC", "QT_ESP", "PESO_BRU",
              "PESO_LIQ", "ID_VND_DIR", "VENDEDOR", "ID_EMP_TARN"}) {
            EXPECT_NE(field(head, name), "-") << name;
        }
        const XmlNode totals = root(document).child(1);
        for (const char* name : {"VALOR_BASE_ICMS", "VALOR_ICMS", "VALOR_BAS_ICMS_RTD",
                                 "VALOR_ICMS_RTD", "VL_IMPOSTO_CREDITAR"}) {
            EXPECT_NE(field(totals, name), "-") << name;
        }
        for (const char* name : {"CD_PRO", "DESCRICAO", "POS_NF", "CL_FISCAL", "CFOP_ITEM",
                                 "IC_ORI_PRO", "SIT_TRI", "IC_TP_CAD", "UNIDADE", "QTDE",
                                 "VALOR_UN", "VL_DSC", "ICMS", "AQ_IPI", "IPI", "VL_IPI", "PESO"}) {
            EXPECT_NE(field(root(document).child(3), name), "-") << name;
        }
    }
}

TEST_F(EveryNote, GroupsTheClassesOfItemsThatPayIpi) {
    std::set<bool> seen;
    for (const XmlDocument& document : documents_) {
        for (std::size_t i = 3; i < root(document).childCount(); ++i) {
            const XmlNode item = root(document).child(i);
            const bool pays = cents(item, "AQ_IPI") > 0;
            seen.insert(pays);
            EXPECT_EQ(field(item, "GF_AGRUP"), pays ? field(item, "POS_NF") : "-");
            EXPECT_EQ(field(item, "ID_CLA_FIS"), pays ? field(item, "CL_FISCAL") : "-");
        }
    }
    EXPECT_EQ(seen.size(), 2U);
}

TEST_F(EveryNote, ShowsEachCaseThatAClerkShouldHaveSeen) {
    std::set<std::string> legalTexts;
    std::size_t most = 0;
    int naturalPersons = 0;
    int entries = 0;
    int withoutCarrier = 0;
    int leadingZero = 0;
    int delivered = 0;
    int discounted = 0;
    int longNames = 0;
    int longTexts = 0;
    int ownOrderZero = 0;
    for (const XmlDocument& document : documents_) {
        const XmlNode head = root(document).child(0);
        most = std::max(most, root(document).childCount() - 3);
        naturalPersons += field(head, "IC_TIP_PES") == "F" ? 1 : 0;
        entries += field(head, "Ent_Sai") == "E" ? 1 : 0;
        withoutCarrier += field(head, "DC_TRP") == "-" ? 1 : 0;
        leadingZero += field(head, "NR_CGC_CPL_TRP").starts_with('0') ? 1 : 0;
        delivered += field(head, "ENDERECO_ETG") != "-" && field(head, "ENDERECO_COB") != "-";
        discounted += cents(root(document).child(1), "VALOR_TOTAL_DESC") > 0 ? 1 : 0;
        longNames += field(head, "RAZAO").size() > 90 ? 1 : 0;
        longTexts += field(head, "DC_OBS").size() > 400 ? 1 : 0;
        ownOrderZero += field(head, "ID_VND_DIR") == "0" ? 1 : 0;
        std::set<std::string> ofThisNote;
        for (std::size_t i = 3; i < root(document).childCount(); ++i) {
            ofThisNote.insert(field(root(document).child(i), "DC_TXT_LEG_NF"));
        }
        legalTexts = ofThisNote.size() > legalTexts.size() ? ofThisNote : legalTexts;
    }
    EXPECT_EQ(most, 17U);  // four above QT_MAX_IT
    EXPECT_GE(legalTexts.size(), 5U);
    EXPECT_GE(naturalPersons, 2);
    EXPECT_EQ(entries, 1);
    EXPECT_GE(withoutCarrier, 1);
    EXPECT_GE(leadingZero, 1);
    EXPECT_GE(delivered, 1);
    EXPECT_EQ(discounted, 2);
    EXPECT_GE(longNames, 1);
    EXPECT_GE(longTexts, 1);
    EXPECT_EQ(ownOrderZero, 2);
}

TEST_F(EveryNote, TakesTheRateFromTheBase) {
    for (const XmlDocument& document : documents_) {
        std::int64_t base = 0;
        double icms = 0;
        for (std::size_t i = 3; i < root(document).childCount(); ++i) {
            const XmlNode item = root(document).child(i);
            const std::int64_t net =
                cents(item, "VALOR_UN") * thousandths(item, "QTDE") / 1000 - cents(item, "VL_DSC");
            base += cents(item, "ICMS") > 0 ? net : 0;
            icms += static_cast<double>(net * cents(item, "ICMS")) / 10000;
        }
        const XmlNode totals = root(document).child(1);
        EXPECT_EQ(cents(totals, "VALOR_BASE_ICMS"), base);
        // Each item is rounded to whole cents before it is added.
        const auto items = static_cast<double>(root(document).childCount() - 3);
        EXPECT_NEAR(static_cast<double>(cents(totals, "VALOR_ICMS")), icms, items / 2);
    }
}

}  // namespace
}  // namespace tarn::practice::test
