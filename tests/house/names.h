// Whether a name of the house is English or one of those that are given.
#pragma once

#include <istream>
#include <map>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace tarn::test {

struct HashText {
    using is_transparent = void;  // NOLINT(readability-identifier-naming)
    std::size_t operator()(std::string_view text) const {
        return std::hash<std::string_view>{}(text);
    }
};

using WordSet = std::unordered_set<std::string, HashText, std::equal_to<>>;

// Small letters without accents; UTF-8 in, ASCII out, what is neither is dropped.
std::string folded(std::string_view text);

// The words of an identifier or a file name, folded: parted at capitals, "_",
// digits and everything that is no letter. "FrmOFTTest" is frm, oft, test.
std::vector<std::string> wordsOfName(std::string_view name);

// Names that keep their spelling. A name is given when it
//  - is one of the list, letter by letter, or that and a final "_";
//  - has one of the list in it that is made of two words or more, the case of the
//    letters and "_" left aside (cmdSelecionar_Click, FrmChequeTest, imprime_nf_1361);
//    the other words then are judged as usual;
//  - is "lbl" and what follows the "txt" or "cbo" of one of the list: the label
//    of that field (lblSenha of txtSenha).
class GivenNames {
public:
    explicit GivenNames(std::istream& list);

    bool contains(std::string_view name) const;
    // A run of two words or more of a name, as wordsOfName parts it.
    bool containsRun(std::string_view joined) const { return runs_.contains(joined); }
    std::size_t size() const { return names_.size(); }

private:
    WordSet names_;
    WordSet runs_;
};

// The words of the lists, one a line; "#" begins a comment.
WordSet readWords(std::istream& list);

// Of these words those that are Portuguese: in the Brazilian dictionary and not in
// the English one, nor among the technical words; or among `alsoPortuguese`, words
// that both dictionaries have, or neither.
struct Dictionaries {
    std::istream& brazilian;
    std::istream& english;
    WordSet technical;
    WordSet alsoPortuguese;
};
WordSet portugueseAmong(const WordSet& words, Dictionaries& dictionaries);

// The Portuguese words of a name that no given name excuses.
std::vector<std::string> suspectsOf(std::string_view name, const GivenNames& given,
                                    const WordSet& portuguese);

}  // namespace tarn::test
