// Cleaning of typed texts from quotes. No screen of this program calls these two.
#pragma once

#include <optional>
#include <string>

namespace tarn {

// Each of ' " ‘ ’ turned into ´; no text comes back as none.
std::optional<std::string> TrocaAspas(const std::optional<std::string>& value);

// Puts `value` in capitals, in place, and returns it with its quotes turned and trimmed.
std::string LimpaTexto(std::string& value);

}  // namespace tarn
