// Which printer an installation is meant to use: only a notice on the status bar.
#pragma once

#include <cstdint>
#include <string_view>

namespace tarn {

// Text of the notice; empty where there is none (the panel then keeps what it had).
std::string_view printerNotice(std::int32_t company, std::int32_t establishment);

}  // namespace tarn
