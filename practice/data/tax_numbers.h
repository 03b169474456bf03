// Tax numbers with their check digits, so that invented ones look like real ones.
#pragma once

#include <string>
#include <string_view>

namespace tarn::practice {

std::string companyTaxNumber(std::string_view twelveDigits);  // 14 digits
std::string personTaxNumber(std::string_view nineDigits);     // 11 digits

}  // namespace tarn::practice
