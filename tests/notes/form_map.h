// The lines of the forms, as tests/notes/maps writes them.
#pragma once

#include <string>
#include <vector>

namespace tarn::test {

struct MapField {
    std::string source;  // "RAZAO", "line total", a quoted text, "blank"
    int column = 0;
    int width = -1;  // -1: the room of its text
    bool right = false;
};

struct MapRow {
    int line = 0;
    int advance = 0;
    std::string control;  // bytes of a row that only commands the printer
    std::vector<MapField> fields;

    // Whether a field shows `source`, alone or joined with others.
    bool shows(const std::string& source) const;
};

// Throws std::runtime_error for a line that it can't read.
MapRow readRow(const std::string& line);

}  // namespace tarn::test
