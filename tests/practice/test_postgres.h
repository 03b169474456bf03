// The PostgreSQL server that all tests share; tests/practice/postgres starts and stops it.
#pragma once

#include <string>

namespace tarn::practice::test {

// The address of an empty database, made by this call. Throws where no server runs.
std::string newPostgresDatabase();

}  // namespace tarn::practice::test
