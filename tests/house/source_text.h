// C++ sources taken apart for the checks of the house: identifiers and comments,
// without the texts in quotes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarn::test {

struct SourcePiece {
    std::string text;
    int line = 0;  // where it begins, from 1
};

struct SourceText {
    std::vector<SourcePiece> identifiers;  // in the code, in order
    std::vector<SourcePiece> comments;     // neighbouring "//" lines are one piece
    std::vector<SourcePiece> inQuotes;     // paths of #include "..."
    std::vector<SourcePiece> inBrackets;   // paths of #include <...>
};

SourceText takeApart(std::string_view cpp);

// What looks like an identifier in a comment; what stands between quotes or
// backticks is left out. Accented letters stay in the word, as UTF-8.
std::vector<std::string> wordsOfComment(std::string_view comment);

}  // namespace tarn::test
