// The held jobs of the program: where they lie, and that what is held is on the paper again
// after a start.
#pragma once

#include <QString>

#include "apps/tarnimpressora/options.h"
#include "printer/held/hold_desk.h"
#include "printer/intake/job_intake.h"

namespace tarn::printer {

// Passes jobs on to the queues of this machine.
dotmatrix::HoldDesk::MakeSpooler systemQueues();
QString holdFolderOf(const Options& options);
// Opens the folder and holds what comes in from now on, with all that is still held on the
// paper; what is wrong, a whole sentence, empty for nothing.
QString startHolding(const Options& options, dotmatrix::HoldDesk& desk,
                     dotmatrix::JobIntake& intake);

}  // namespace tarn::printer
