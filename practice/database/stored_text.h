// Texts as the database keeps them, so that what a clerk types finds them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarn::practice {

std::string storedLogin(std::string_view typed);  // blanks off, in capitals

// What is kept of a password, in hexadecimal.
std::string passwordHash(std::int64_t company, std::string_view login, std::string_view password);

// A name in capitals without its accents, by which it is searched.
std::string searchName(std::string_view name);

}  // namespace tarn::practice
