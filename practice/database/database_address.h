// Where a database is: a file, memory, or a PostgreSQL server.
#pragma once

#include <string>

namespace tarn::practice {

struct ServerAddress {
    std::string host;  // empty: this machine; with a "/" at its begin a socket's folder
    int port = -1;     // -1: the server's usual one
    std::string database;
    std::string user;
    std::string password;
    std::string options;  // what else the address asks for, as the driver takes it
};

// What begins with "postgresql:" or "postgres:", in any case; all else is a file's name.
bool isServerAddress(const std::string& address);

// Throws DatabaseError, with a text for the user, for an address that can't be read
// or names no database.
ServerAddress serverAddress(const std::string& address);

// As a message may show it: without the password.
std::string shownAddress(const std::string& address);

}  // namespace tarn::practice
