// What stands on each form, read from its file in tests/notes/maps: who prints on it,
// marks, heights, parcels, the shape of the texts at the foot, and its lines.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "notes/ladder.h"
#include "tests/notes/form_map.h"

namespace tarn::test {

struct ParcelFacts {
    int perRow = 3;
    int limit = 9;
    std::string message;
    // Line ends of the block's last call, by number of parcels from 0 to the limit;
    // a full row above it has ended its own line.
    std::vector<int> lastLineEnds;
    int lineEndsAbove = 0;  // the same with the message of too many
    int rowLineEnds = 1;    // of a full row
    bool oneCallEach = false;
};

enum class TextShape {
    None,
    Fixed,       // a text of the form in their place
    Pieces,      // one text in pieces on lines of their own
    LeftColumn,  // pieces beside a column of order references
    Bands,       // a band of lines for the legal texts, then one for the observation
    TwoTexts,    // the labelled observation on its own line, then the legal texts
    OneLine,     // the start of the legal texts, then the observation in a box
};

struct Piece {
    std::size_t first;  // character of the text, from 1
    std::size_t length;
};

struct TextFacts {
    TextShape shape = TextShape::Pieces;
    std::vector<Piece> pieces;
    std::string beforeObservation = " OBS.: ";
    // When the observation alone is present its label may still stand behind a separator.
    bool separatorBeforeObservation = false;
    int bandLines = 0;            // Bands
    std::size_t bandWidth = 0;    // Bands: length of a piece
    std::size_t oneLineUpTo = 0;  // Bands: a longer observation always takes two calls
};

struct FormFacts {
    std::string name{};  // "1361" of imprime_nf_1361.map
    std::int32_t company = 0;
    std::int32_t establishment = 1;
    int length = 0;      // line ends beside the item lines
    int exitColumn = 0;  // of the "X"
    int entryColumn = 0;
    bool setupInOwnJob = true;
    bool pushes = true;  // more items than lines: pushed down, or cut
    bool onlyProducts = true;
    int itemConstant = 0;  // added to the blank lines below the items
    int afterItems = 0;    // fixed line ends below them; 0: no call of its own
    std::optional<ParcelFacts> parcels{};
    TextFacts texts{};
    std::map<std::string, std::string> ways{};  // of the item fields, see printedItem
    std::string cfop = "5.102";
    int repeatedLines = 0;  // lines that the form prints once more than its map counts
    Ladder ladder = Ladder::Issuing;
    std::vector<MapRow> rows{};
};

const std::vector<FormFacts>& allForms();
const FormFacts& formNamed(const std::string& name);

// How a test's name shows the form.
void PrintTo(const FormFacts& form, std::ostream* out);

}  // namespace tarn::test
