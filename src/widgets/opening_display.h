// The moment in which a program with windows opens its display.
#pragma once

namespace tarn {

// To be there while the application object is made: where the display can't be opened, the
// program says `sentence` on stderr and ends with status 1. Qt by itself would abort.
class OpeningDisplay {
public:
    explicit OpeningDisplay(const char* sentence);
    ~OpeningDisplay();
    OpeningDisplay(const OpeningDisplay&) = delete;
    OpeningDisplay& operator=(const OpeningDisplay&) = delete;
};

}  // namespace tarn
