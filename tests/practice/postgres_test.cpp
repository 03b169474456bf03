// The practice server over PostgreSQL: the same schema, data and answers as over a
// file.
#include <gtest/gtest.h>

#include <thread>

#include "practice/database/database.h"
#include "practice/database/schema.h"
#include "tests/practice/at_once.h"
#include "tests/practice/every_command.h"
#include "tests/practice/practice_desk.h"
#include "tests/practice/test_postgres.h"

namespace tarn::practice::test {
namespace {

std::string errorOf(const std::string& address) {
    try {
        const PracticeServer server(optionsOf(address));
        return "no error";
    } catch (const DatabaseError& error) {
        return error.what();
    }
}

TEST(Postgres, AnswersEveryCommand) {
    expectEveryCommandAnswered(newPostgresDatabase());
}

TEST(Postgres, HoldsTheSameDataAsAFile) {
    Desk server(optionsOf(newPostgresDatabase(), 7));
    Desk memory(optionsOf(":memory:", 7));
    const std::string place = "&ID_EMP_TARN=1361&ID_PES_USU=101&ServerName=DADOS1361";
    for (const std::string& query :
         {"comando=sel_ordem_fatu&ID_ETB_TARN=1363" + place,
          "comando=sel_dados_empresa&Id_Etb_Tarn=1362" + place,
          "comando=sel_duplicata&ID_TIP_DOC=1,201,202,203,262,341,342,361" + place,
          "comando=sel_boleto&ID_CRT_COB=102&IC_INC_CAR=N" + place,
          "comando=Sel_Cliente&Filtro=LTDA" + place,
          "comando=sel_etiquetas&sDc_Mot_Imp=MALA DIRETA DE NATAL" + place,
          "comando=sel_banco_agencia_conta&ID_ETB_TARN=1361&UserCode=101&IC_ATV_INA=A" + place,
          "comando=sel_dados_etq&nIdEtbTarn=1361, 1362&dDtDe=01/01/2012&nVlrDe=100&nIdOrd=CEP" +
              place,
          "comando=sel_impr_ordem_fatu&ID_ETB_TARN=1361&ID_ORD_FAT=45017" + place,
          "comando=Seleciona_Obs_Ord_X_Est&ID_ETB_TARN=1361&ID_ORD_FAT=45007" + place}) {
        EXPECT_EQ(server.server().answer(query), memory.server().answer(query)) << query;
    }
    EXPECT_EQ(server.generate("45001").number, memory.generate("45001").number);
}

// Numbers beyond any column's width, quotes and backslashes reach the database as
// values.
TEST(Postgres, TakesWhateverARequestCarries) {
    Desk desk(optionsOf(newPostgresDatabase()));
    EXPECT_EQ(desk.status(desk.generateQuery("9223372036854775807")),
              "A Ordem de Faturamento nº 9223372036854775807 não existe neste estabelecimento. "
              "Atualize a lista.");
    EXPECT_EQ(desk.status("comando=LOGIN&EMPRESA=4294967296&USUARIO=clara&SENHA=pratica"),
              "Empresa não cadastrada. Confira o código da empresa.");
    EXPECT_EQ(desk.status("COMANDO=MANUTENCAO_OFT&ID_ETB_TARN=1361&ID_ORD_FAT=45001"
                          "&ServerName=DADOS1361&DC_OBS=it's \\ %5C' $1 %00 %80%93"
                          "&QT_ESP=1&PESO_BRU=1&PESO_LIQ=1"),
              "OK");
    const XmlDocument list =
        desk.ask("comando=sel_ordem_fatu&ID_ETB_TARN=1361&ServerName=DADOS1361");
    EXPECT_EQ(field(rowsOf(list).front(), "DC_OBS"), "it's \\ \\' $1   €“");
}

TEST(Postgres, OutlivesTheServer) {
    const std::string address = newPostgresDatabase();
    Generated note;
    {
        Desk desk(optionsOf(address));
        note = desk.generate("45001");
    }
    Desk desk(optionsOf(address, 99));
    EXPECT_EQ(desk.orders().size(), 22U);
    EXPECT_EQ(statusOf(desk.note(note)), "OK");
}

TEST(Postgres, OfAnotherVersionOrProgramIsRefused) {
    const std::string old = newPostgresDatabase();
    { const PracticeServer server(optionsOf(old)); }
    {
        Database database(old);
        database.execute("UPDATE schema_version SET version = ?", {schemaVersion + 1});
    }
    EXPECT_NE(errorOf(old).find("é da versão " + std::to_string(schemaVersion + 1) +
                                "; este servidor usa a versão " + std::to_string(schemaVersion) +
                                ". Escolha outro com --banco, ou apague as tabelas deste para que "
                                "sejam criadas de novo."),
              std::string::npos)
        << errorOf(old);
    const std::string other = newPostgresDatabase();
    {
        Database database(other);
        database.execute("CREATE TABLE other (id BIGINT)");
    }
    EXPECT_NE(errorOf(other).find("não é um banco do servidor de prática"), std::string::npos);
}

TEST(Postgres, ABatchInsertsWhatItsTablesReferToFirst) {
    constexpr int rowCount = 1000;
    Database database(newPostgresDatabase());
    database.execute("CREATE TABLE t (id BIGINT NOT NULL PRIMARY KEY)");
    database.execute("CREATE TABLE u (t_id BIGINT NOT NULL REFERENCES t (id), text VARCHAR(5))");
    const auto rows = [&database](const char* table) {
        Rows count = database.select(std::string("SELECT COUNT(*) FROM ") + table);
        return count.next() ? count.integer(0) : -1;
    };
    {
        InsertBatch batch(database);
        for (int i = 0; i < rowCount; ++i) {
            database.insert("t", "id", {i});
            database.insert("u", "t_id, text", {i, nullptr});
            database.insert("u", "t_id, text", {i, ""});
        }
        batch.finish();
    }
    EXPECT_EQ(rows("t"), rowCount);
    EXPECT_EQ(rows("u WHERE text IS NULL"), rowCount);
    EXPECT_EQ(rows("u WHERE text = ''"), rowCount);
    {
        InsertBatch dropped(database);
        database.insert("t", "id", {rowCount});
    }
    database.insert("t", "id", {rowCount});
    EXPECT_EQ(rows("t"), rowCount + 1);
}

TEST(Postgres, TwoServersMakeOneDatabaseOnce) {
    const std::string address = newPostgresDatabase();
    std::vector<std::string> errors(2);
    std::vector<std::thread> threads;
    threads.reserve(errors.size());
    for (std::string& error : errors) {
        threads.emplace_back([&error, &address] { error = errorOf(address); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(errors, (std::vector<std::string>{"no error", "no error"}));
}

TEST(Postgres, TwoServersGiveNoNumberTwice) {
    const std::string address = newPostgresDatabase();
    Desk one(optionsOf(address));
    Desk other(optionsOf(address));
    Outcome outcome;
    generateAtOnce({&one.server(), &other.server()}, one.orders(), outcome);
    expectEachOnce(outcome);
    EXPECT_EQ(one.orders(), (std::vector<std::string>{"45007", "45008"}));
}

TEST(Postgres, ConnectsAgainAfterTheConnectionWasEnded) {
    const std::string address = newPostgresDatabase();
    Desk desk(optionsOf(address));
    {
        Database database(address);
        database.select(
            "SELECT pg_terminate_backend(pid) FROM pg_stat_activity"
            " WHERE datname = current_database() AND pid <> pg_backend_pid()");
    }
    EXPECT_THROW(desk.server().answer(desk.generateQuery("45001")), DatabaseError);
    EXPECT_EQ(desk.orders().size(), 23U);
    desk.generate("45001");
}

}  // namespace
}  // namespace tarn::practice::test
