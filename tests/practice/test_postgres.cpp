#include "tests/practice/test_postgres.h"

#include <unistd.h>

#include <fstream>
#include <stdexcept>

#include "practice/database/database.h"

namespace tarn::practice::test {
namespace {

std::string addressOf(const std::string& database) {
    std::string socket;
    if (!std::getline(std::ifstream(TARN_POSTGRES "/socket"), socket)) {
        throw std::runtime_error(
            "no PostgreSQL server for the tests; ctest starts one, by hand: "
            "tests/practice/postgres start " TARN_POSTGRES);
    }
    return "postgresql:///" + database + "?user=pratica&host=" + socket;
}

}  // namespace

// Under ctest each case is a process of its own.
std::string newPostgresDatabase() {
    static int made = 0;
    const std::string name = "d" + std::to_string(getpid()) + "_" + std::to_string(++made);
    Database database(addressOf("postgres"));
    database.execute("CREATE DATABASE " + name);
    return addressOf(name);
}

}  // namespace tarn::practice::test
