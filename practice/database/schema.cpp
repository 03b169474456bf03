#include "practice/database/schema.h"

#include "practice/database/schema_tables.h"

namespace tarn::practice {

void createSchema(Database& database) {
    for (const auto& tables : {companyTables(), orderTables(), financeTables(), labelTables()}) {
        for (const char* table : tables) {
            database.execute(table);
        }
    }
    database.execute("INSERT INTO schema_version (version) VALUES (?)", {schemaVersion});
}

SchemaState checkSchema(Database& database, const std::string& name) {
    if (database.isEmpty()) {
        return SchemaState::Empty;
    }
    const std::string advice =
        database.isServer()
            ? " Escolha outro com --banco, ou apague as tabelas deste para que sejam criadas de "
              "novo."
            : " Escolha outro arquivo com --banco, ou apague este para que seja criado de novo.";
    if (!database.hasTable("schema_version")) {
        throw DatabaseError("O banco de dados \"" + name +
                            "\" não é um banco do servidor de prática." + advice);
    }
    Rows rows = database.select("SELECT version FROM schema_version");
    const std::int64_t version = rows.next() ? rows.integer(0) : 0;
    if (version != schemaVersion) {
        throw DatabaseError("O banco de dados \"" + name + "\" é da versão " +
                            std::to_string(version) + "; este servidor usa a versão " +
                            std::to_string(schemaVersion) + "." + advice);
    }
    return SchemaState::Ready;
}

}  // namespace tarn::practice
