// The machine under a window system.
#pragma once

#include "platform/machine.h"

namespace tarn {

class QtMachine : public Machine {
public:
    // On Windows a setting of the whole machine; elsewhere there is none to impose,
    // every date is written dd/mm/yyyy anyway, and the request is always granted.
    bool setShortDateFormat(const std::string& format) override;
    // The Windows system directory without blanks around; empty elsewhere.
    std::string systemDirectory() override;
    void beep() override;
};

}  // namespace tarn
