// Seam: the few things asked of the machine itself.
#pragma once

#include <string>

namespace tarn {

class Machine {
public:
    virtual ~Machine() = default;
    // Imposes a short date format ("dd/MM/yyyy") on the machine; false: refused.
    virtual bool setShortDateFormat(const std::string& format) = 0;
    virtual std::string systemDirectory() = 0;
    virtual void beep() = 0;
};

}  // namespace tarn
