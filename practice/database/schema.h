// The tables of the practice server and their version.
#pragma once

#include "practice/database/database.h"

namespace tarn::practice {

// Raised when a table changes: a database of another version is refused.
constexpr int schemaVersion = 3;

// Makes the tables in an empty database. The caller holds the transaction.
void createSchema(Database& database);

enum class SchemaState { Empty, Ready };

// Throws DatabaseError, which names the database as given, for one of another version
// or of another program.
SchemaState checkSchema(Database& database, const std::string& name);

}  // namespace tarn::practice
