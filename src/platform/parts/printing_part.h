// The part that prints: the machine's print service and drawn pages.
#pragma once

#include <memory>

#include "platform/directory/job_files.h"
#include "platform/printer.h"
#include "platform/spooler.h"

namespace tarn {

// The spooler of the machine and the page printer, whose part is loaded when they are first
// asked for something. A part that is missing raises std::runtime_error already when they are
// made.

// Null where the program was built without a print service.
std::unique_ptr<Spooler> newLateSpooler();
// The machine's default printer, or without it PDF files among `files`.
std::unique_ptr<Printer> newLatePrinter(std::shared_ptr<JobFiles> files);

}  // namespace tarn

// What the part gives away.
extern "C" tarn::Spooler* tarnNewSystemSpooler();
extern "C" tarn::Printer* tarnNewPagePrinter(std::shared_ptr<tarn::JobFiles>* files);
