// The raw spooler of the system this was built for.
#pragma once

#include <memory>

#include "platform/spooler.h"

namespace tarn {

// CUPS, or the spooler of Windows; null where it was built with neither.
std::unique_ptr<Spooler> makeSystemSpooler();

// Asks the system's print service something; whether it answers.
bool systemSpoolerAnswers();

}  // namespace tarn
