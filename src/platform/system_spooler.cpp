#include "platform/system_spooler.h"

#if defined(TARN_WITH_WINSPOOL)
#include "platform/winspool/winspool_spooler.h"
#elif defined(TARN_WITH_CUPS)
#include "platform/cups/cups_spooler.h"
#endif

namespace tarn {

std::unique_ptr<Spooler> makeSystemSpooler() {
#if defined(TARN_WITH_WINSPOOL)
    return std::make_unique<WinspoolSpooler>();
#elif defined(TARN_WITH_CUPS)
    return std::make_unique<CupsSpooler>();
#else
    return nullptr;
#endif
}

bool systemSpoolerAnswers() {
    const std::unique_ptr<Spooler> spooler = makeSystemSpooler();
    if (!spooler) {
        return true;
    }
    spooler->defaultPrinter();
    return spooler->answers();
}

}  // namespace tarn
