#include <gtest/gtest.h>

#include <set>

#include "tests/practice/practice_desk.h"

namespace tarn::practice::test {
namespace {

struct Typed {
    std::string number = "850";
    std::string series = "AA";
    std::string value = "1.234,56";
    std::string payee = "JO%C3O";
    std::string day = "05/09/2012";
    std::string purpose = {};
    std::string account = "1300221-7";
};

std::string addQuery(const Typed& typed) {
    return "comando=adiciona_controle_cheque_emitido&ID_EMP_TARN=1361&ID_ETB_TARN=1361"
           "&UserCode=101&ID_PES_BAN=1084&CD_AGE_BAN=0384&NR_CCOR=" +
           typed.account + "&NR_CHE=" + typed.number + "&NR_SER=" + typed.series +
           "&VL_CH=" + typed.value + "&DC_FAV=" + typed.payee + "&DT_DEP=" + typed.day +
           "&DC_OBS=" + typed.purpose + "&ServerName=DADOS1361";
}

std::string findQuery(const std::string& number, const std::string& series,
                      const std::string& account = "1300221-7") {
    return "comando=seleciona_um_controle_cheque_emitido&ID_EMP_TARN=1361&ID_ETB_TARN=1361"
           "&Id_Pes_Ban=1084&Cd_Age_Ban=0384&Nr_Ccor=" +
           account + "&Nr_Che=" + number + "&Nr_Ser=" + series + "&ServerName=DADOS1361";
}

std::string accountQuery(const std::string& establishment, const std::string& user) {
    return "comando=sel_banco_agencia_conta&ID_EMP_TARN=1361&ID_ETB_TARN=" + establishment +
           "&UserCode=" + user + "&IC_ATV_INA=A&ServerName=DADOS1361";
}

TEST(ChequeCommands, ListTheActiveAccounts) {
    Desk desk;
    const XmlDocument document = desk.ask(accountQuery("1361", "101"));
    ASSERT_EQ(rowsOf(document).size(), 5U);
    std::set<std::string> banks;
    int described = 0;
    for (const XmlNode& row : rowsOf(document)) {
        for (const char* name : {"ID_PES_BAN", "BANCO", "CD_AGE_BAN", "NR_CCOR", "NR_OFI_BAN"}) {
            ASSERT_NE(field(row, name), "-") << name;
        }
        EXPECT_NE(field(row, "DC_CCOR"), "CONTA ENCERRADA");
        banks.insert(field(row, "NR_OFI_BAN"));
        described += field(row, "DC_CCOR") == "-" ? 0 : 1;
    }
    EXPECT_EQ(banks, (std::set<std::string>{"33", "151", "341", "745"}));
    EXPECT_EQ(described, 3);
    EXPECT_EQ(rowsOf(desk.ask(accountQuery("1362", "102"))).size(), 4U);
}

TEST(ChequeCommands, RecordAChequeAndFindIt) {
    Desk desk;
    EXPECT_TRUE(rowsOf(desk.ask(findQuery("850", "AA"))).empty());
    EXPECT_EQ(desk.status(addQuery({})), "OK");
    const XmlDocument document = desk.ask(findQuery("850", "AA"));
    ASSERT_EQ(rowsOf(document).size(), 1U);
    const XmlNode row = rowsOf(document)[0];
    EXPECT_EQ(field(row, "NR_CHE"), "850");
    EXPECT_EQ(field(row, "NR_SER"), "AA");
    EXPECT_EQ(field(row, "VL_CH"), "1234.56");
    EXPECT_EQ(field(row, "DC_FAV"), "JOÃO");
    EXPECT_EQ(field(row, "DT_DEP"), "05/09/2012");
    EXPECT_EQ(field(row, "DC_OBS"), "-");
    EXPECT_TRUE(rowsOf(desk.ask(findQuery("850", "AB"))).empty());
    EXPECT_TRUE(rowsOf(desk.ask(findQuery("851", "AA"))).empty());
    EXPECT_TRUE(rowsOf(desk.ask(findQuery("850", "AA", "0004410-1"))).empty());
}

TEST(ChequeCommands, RecordANumberOnce) {
    Desk desk;
    EXPECT_EQ(desk.status(addQuery({})), "OK");
    EXPECT_EQ(desk.status(addQuery({.value = "1,00"})),
              "O cheque nº 850 da série AA já está registrado nesta conta. Confira o número do "
              "cheque.");
    EXPECT_NE(desk.status(addQuery({.number = "000850"})), "OK");
    EXPECT_EQ(rowsOf(desk.ask(findQuery("000850", "aa"))).size(), 1U);
    EXPECT_EQ(field(rowsOf(desk.ask(findQuery("850", "AA")))[0], "VL_CH"), "1234.56");
    EXPECT_EQ(desk.status(addQuery({.series = "AB"})), "OK");
}

TEST(ChequeCommands, RefuseWhatCannotBeRecorded) {
    Desk desk;
    const char* number = "O número do cheque \"12A\" não é válido. Digite até 15 algarismos.";
    EXPECT_EQ(desk.status(addQuery({.number = "12A"})), number);
    EXPECT_NE(desk.status(addQuery({.number = std::string(16, '1')})), "OK");
    EXPECT_EQ(desk.status(addQuery({.number = std::string(15, '9')})), "OK");
    EXPECT_NE(desk.status(addQuery({.series = ""})), "OK");
    EXPECT_NE(desk.status(addQuery({.series = "1234567890123456"})), "OK");
    for (const char* value : {"", "0,00", "abc", "1,005", "-1,00"}) {
        EXPECT_EQ(desk.status(addQuery({.value = value})),
                  "O valor do cheque não é válido. Digite um valor maior que 0,00.")
            << value;
    }
    EXPECT_EQ(desk.status(addQuery({.day = "31/02/2012"})),
              "A data para depósito não é válida. Digite a data como dd/mm/aaaa.");
    EXPECT_NE(desk.status(addQuery({.payee = std::string(51, 'A')})), "OK");
    EXPECT_NE(desk.status(addQuery({.purpose = std::string(251, 'A')})), "OK");
    EXPECT_EQ(desk.status(addQuery({.account = "0004410-1"})),
              "A conta 0384 - 0004410-1 está encerrada. Escolha outra conta.");
    EXPECT_EQ(desk.status(addQuery({.account = "1"})),
              "A conta 0384 - 1 não está cadastrada. Escolha a conta na lista.");
    EXPECT_TRUE(rowsOf(desk.ask(findQuery("850", "AA"))).empty());
}

TEST(ChequeCommands, TakeTheLargestValueOfTheScreen) {
    Desk desk;
    EXPECT_EQ(desk.status(addQuery({.value = "9.999.999.999.999,99"})), "OK");
    EXPECT_EQ(field(rowsOf(desk.ask(findQuery("850", "AA")))[0], "VL_CH"), "9999999999999.99");
}

}  // namespace
}  // namespace tarn::practice::test
