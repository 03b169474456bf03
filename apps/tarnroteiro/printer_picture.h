// A picture of the virtual printer's window with jobs on its paper.
#pragma once

#include <string>

namespace tarn {

// The note of the walk, which paper_list.h names in the folder, on its form, saved as
// `impressora-virtual.png` in the same folder, and with the check of the paper open as
// `impressora-conferencia.png`. False, with a word on stderr, when a job or
// the form can't be read. Needs a QApplication.
bool pictureOfPrinter(const std::string& folder);

}  // namespace tarn
