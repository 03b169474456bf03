// The shortest raw document.
#pragma once

#include <string>

#include "common/raw_channel.h"

namespace tarn::test {

// A job of one line, as documents send theirs.
inline void printLine(Spooler& spooler, std::string text) {
    RawChannel channel(spooler, CodePage::Page1252);
    channel.open();
    channel.ImprimeRaw(1, text, 1);
    channel.close();
}

}  // namespace tarn::test
