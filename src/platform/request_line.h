// From the text of an address to what is in an HTTP request line.
#pragma once

#include <string>
#include <string_view>

namespace tarn {

// The text in windows-1252 ("?" for a character that it lacks), and each byte that
// may not be in a request line as %XX: blanks, control characters, quotes,
// <>#\^`{|} and all from 128 up. Everything else stays, "%", "&" and "+" included:
// whatever was typed, one line leaves with the whole text in it (decision D19).
std::string requestLine(std::string_view address);

}  // namespace tarn
