// The database over its life: the same data for the same seed, a file that
// outlives the server, versions, and desks that ask at the same moment.
#include <gtest/gtest.h>

#include <QDate>
#include <QTemporaryDir>
#include <fstream>

#include "practice/database/database.h"
#include "practice/database/schema.h"
#include "tests/practice/at_once.h"
#include "tests/practice/practice_desk.h"
#include "tests/support/files.h"

namespace tarn::practice::test {
namespace {

constexpr const char* orderListQuery =
    "comando=sel_ordem_fatu&ID_ETB_TARN=1361&ServerName=DADOS1361";

class PracticeFile : public testing::Test {
protected:
    std::string file(const char* name = "pratica.db") const {
        return directory_.filePath(name).toStdString();
    }

    static std::string errorOf(const std::string& file) {
        try {
            const PracticeServer server(optionsOf(file));
            return "no error";
        } catch (const DatabaseError& error) {
            return error.what();
        }
    }

    QTemporaryDir directory_;
};

TEST(PracticeSeed, TheSameSeedGivesTheSameAnswers) {
    Desk one(optionsOf(":memory:", 7));
    Desk other(optionsOf(":memory:", 7));
    for (const std::string& order : one.orders()) {
        const std::string query =
            "comando=sel_impr_ordem_fatu&ID_ETB_TARN=1361&ID_ORD_FAT=" + order +
            "&ServerName=DADOS1361";
        EXPECT_EQ(one.server().answer(query), other.server().answer(query));
    }
    EXPECT_EQ(one.server().answer(orderListQuery), other.server().answer(orderListQuery));
    EXPECT_EQ(one.generate("45001").number, other.generate("45001").number);
}

TEST(PracticeSeed, AnotherSeedGivesOtherData) {
    Desk one(optionsOf(":memory:", 7));
    Desk other(optionsOf(":memory:", 8));
    EXPECT_NE(one.server().answer(orderListQuery), other.server().answer(orderListQuery));
    EXPECT_EQ(one.orders(), other.orders());
}

TEST(PracticeSeed, TwoServersInMemoryAreTwoDatabases) {
    Desk one;
    Desk other;
    one.generate("45001");
    EXPECT_EQ(one.orders().size(), 22U);
    EXPECT_EQ(other.orders().size(), 23U);
}

TEST_F(PracticeFile, OutlivesTheServer) {
    Generated note;
    {
        Desk desk(optionsOf(file()));
        note = desk.generate("45001");
    }
    Desk desk(optionsOf(file(), 99));  // the seed of a database that exists isn't looked at
    EXPECT_EQ(desk.orders().size(), 22U);
    EXPECT_EQ(statusOf(desk.note(note)), "OK");
    EXPECT_EQ(std::stoi(desk.generate("45002").number), std::stoi(note.number) + 1);
}

TEST_F(PracticeFile, OfAnotherVersionIsRefused) {
    { const PracticeServer server(optionsOf(file())); }
    {
        Database database(file());
        database.execute("UPDATE schema_version SET version = ?", {schemaVersion + 1});
    }
    EXPECT_EQ(errorOf(file()), "O banco de dados \"" + file() + "\" é da versão " +
                                   std::to_string(schemaVersion + 1) +
                                   "; este servidor usa a versão " + std::to_string(schemaVersion) +
                                   ". Escolha outro arquivo com --banco, ou apague este para que "
                                   "seja criado de novo.");
}

TEST_F(PracticeFile, OfAnotherProgramIsRefusedAndLeftAlone) {
    {
        Database database(file());
        database.execute("CREATE TABLE other (id INTEGER)");
    }
    EXPECT_NE(errorOf(file()).find("não é um banco do servidor de prática"), std::string::npos);
    const Database database(file());
    EXPECT_FALSE(database.hasTable("company"));
    EXPECT_TRUE(database.hasTable("other"));
}

TEST_F(PracticeFile, ThatIsNoDatabaseIsRefusedAndLeftAlone) {
    const std::string text = "Isto não é um banco de dados.\n";
    std::ofstream(file(), std::ios::binary) << text;
    EXPECT_NE(errorOf(file()).find("não pôde ser preparado"), std::string::npos);
    EXPECT_EQ(tarn::test::contentOf(file()), text);
}

TEST_F(PracticeFile, InAFolderThatIsNotThereIsRefused) {
    EXPECT_NE(errorOf(file("nao/ha/pratica.db")).find("Não foi possível abrir o banco de dados"),
              std::string::npos);
}

TEST_F(PracticeFile, KeepsNoPasswordInClear) {
    { const PracticeServer server(optionsOf(file())); }
    const std::string bytes = tarn::test::contentOf(file());
    ASSERT_NE(bytes.find("CLARA"), std::string::npos);
    EXPECT_EQ(bytes.find("pratica"), std::string::npos);
}

TEST_F(PracticeFile, AStatementThatFailsUndoesItsTransaction) {
    Database database(file());
    database.execute("CREATE TABLE t (id INTEGER NOT NULL PRIMARY KEY)");
    EXPECT_THROW(
        {
            Transaction transaction(database);
            database.insert("t", "id", {1});
            database.insert("t", "id", {1});
        },
        DatabaseError);
    Rows rows = database.select("SELECT COUNT(*) FROM t");
    ASSERT_TRUE(rows.next());
    EXPECT_EQ(rows.integer(0), 0);
}

TEST_F(PracticeFile, TellsTheEmptyTextFromNull) {
    Database database(file());
    database.execute("CREATE TABLE t (a VARCHAR(5), b VARCHAR(5), d DATE)");
    database.insert("t", "a, b, d", {"", nullptr, QDate(2012, 9, 5)});
    Rows rows = database.select("SELECT a, b, d FROM t");
    ASSERT_TRUE(rows.next());
    EXPECT_EQ(rows.nullableText(0), "");
    EXPECT_EQ(rows.nullableText(1), std::nullopt);
    EXPECT_EQ(rows.date(2), QDate(2012, 9, 5));
}

TEST(PracticeConcurrency, EightDesksGetNoOrderAndNoNumberTwice) {
    Desk desk;
    const std::vector<std::string> orders = desk.orders();
    Outcome outcome;
    generateAtOnce({&desk.server()}, orders, outcome);
    expectEachOnce(outcome);
    EXPECT_EQ(desk.orders(), (std::vector<std::string>{"45007", "45008"}));
}

TEST_F(PracticeFile, TwoServersOverOneFileGiveNoNumberTwice) {
    Desk one(optionsOf(file()));
    Desk other(optionsOf(file()));
    const std::vector<std::string> orders = one.orders();
    Outcome outcome;
    generateAtOnce({&one.server(), &other.server()}, orders, outcome);
    expectEachOnce(outcome);
}

}  // namespace
}  // namespace tarn::practice::test
