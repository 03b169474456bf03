// Answers are written in windows-1252, which libxml2 alone doesn't read: it knows
// ISO-8859-1, and asks iconv for any other page, where it was built with it.
#pragma once

namespace tarn {

// Makes libxml2 read and write windows-1252 by this system's own table, everywhere alike. To be
// called before anything is parsed; more than once does no harm.
void teachWindows1252();

}  // namespace tarn
