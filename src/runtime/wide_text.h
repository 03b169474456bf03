// Texts as the interfaces of Windows take them.
#pragma once

#include <string>
#include <string_view>

namespace tarn {

std::wstring wideOf(std::string_view utf8);
std::string utf8Of(std::wstring_view wide);

}  // namespace tarn
