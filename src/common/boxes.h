// Message boxes as the routines show them; their texts are at the routines.
#pragma once

#include <string>
#include <string_view>

namespace tarn {

class RuntimeError;
struct Environment;

namespace box_title {
inline constexpr std::string_view standard = "TarnEmissao";
inline constexpr std::string_view product = "TArn";
inline constexpr std::string_view notice = "Aviso";
inline constexpr std::string_view attention = "Atenção";
}  // namespace box_title

// Without an icon.
void tell(Environment& environment, const std::string& text,
          std::string_view title = box_title::standard);
// With the information icon.
void inform(Environment& environment, const std::string& text,
            std::string_view title = box_title::product);
// With the exclamation icon.
void warn(Environment& environment, const std::string& text,
          std::string_view title = box_title::standard);

// An error that ends nothing but the action (decision D32).
void reportError(Environment& environment, const RuntimeError& error);

}  // namespace tarn
