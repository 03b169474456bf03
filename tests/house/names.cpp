#include "tests/house/names.h"

#include <array>

namespace tarn::test {
namespace {

bool isSmall(char c) {
    return c >= 'a' && c <= 'z';
}
bool isCapital(char c) {
    return c >= 'A' && c <= 'Z';
}
char small(char c) {
    return isCapital(c) ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr std::size_t shortestWord = 3;

// U+00C0 to U+00FF without their accents; "." for what is no letter.
constexpr std::string_view latin1Letters =
    "aaaaaaaceeeeiiiidnooooo.ouuuuy.saaaaaaaceeeeiiiidnooooo.ouuuuy.y";

std::string joined(std::string_view name) {
    std::string text;
    for (const std::string& word : wordsOfName(name)) {
        text += word;
    }
    return text;
}

std::string_view withoutComment(std::string_view line) {
    line = line.substr(0, line.find('#'));
    while (!line.empty() && (line.back() == ' ' || line.back() == '\r')) {
        line.remove_suffix(1);
    }
    return line;
}

}  // namespace

std::string folded(std::string_view text) {
    std::string plain;
    plain.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte < 0x80) {
            plain += small(text[i]);
        } else if (byte == 0xC3 && i + 1 < text.size()) {
            const auto low = static_cast<unsigned char>(text[++i]);
            plain += latin1Letters[(low - 0x80U) % latin1Letters.size()];
        }
    }
    return plain;
}

std::vector<std::string> wordsOfName(std::string_view name) {
    std::vector<std::string> words;
    std::string word;
    const auto close = [&] {
        if (!word.empty()) {
            words.push_back(std::move(word));
        }
        word.clear();
    };
    char before = ' ';
    for (std::size_t i = 0; i < name.size(); ++i) {
        const char c = name[i];
        const char next = i + 1 < name.size() ? name[i + 1] : ' ';
        const bool begins =
            isCapital(c) && (isSmall(before) || (isCapital(before) && isSmall(next)));
        if (begins) {
            close();
        }
        if (isCapital(c) || isSmall(c)) {
            word += small(c);
        } else if (static_cast<signed char>(c) < 0) {
            word += folded(name.substr(i, 2));
            ++i;
        } else {
            close();
        }
        before = c;
    }
    close();
    return words;
}

GivenNames::GivenNames(std::istream& list) {
    for (const std::string& name : readWords(list)) {
        names_.insert(name);
        if (wordsOfName(name).size() > 1) {
            runs_.insert(joined(name));
        }
        if (name.starts_with("txt") || name.starts_with("cbo")) {
            names_.insert("lbl" + name.substr(3));
        }
    }
}

bool GivenNames::contains(std::string_view name) const {
    return names_.contains(name) ||
           (name.ends_with('_') && names_.contains(name.substr(0, name.size() - 1)));
}

WordSet readWords(std::istream& list) {
    WordSet words;
    for (std::string line; std::getline(list, line);) {
        const std::string_view word = withoutComment(line);
        if (!word.empty()) {
            words.emplace(word);
        }
    }
    return words;
}

WordSet portugueseAmong(const WordSet& words, Dictionaries& dictionaries) {
    WordSet portuguese;
    for (std::string line; std::getline(dictionaries.brazilian, line);) {
        const auto word = words.find(folded(line));
        if (word != words.end() && word->size() >= shortestWord) {
            portuguese.insert(*word);
        }
    }
    for (std::string line; std::getline(dictionaries.english, line);) {
        portuguese.erase(folded(line));
    }
    for (const std::string& word : dictionaries.technical) {
        portuguese.erase(word);
    }
    for (const std::string& word : dictionaries.alsoPortuguese) {
        if (words.contains(word)) {
            portuguese.insert(word);
        }
    }
    return portuguese;
}

std::vector<std::string> suspectsOf(std::string_view name, const GivenNames& given,
                                    const WordSet& portuguese) {
    if (given.contains(name)) {
        return {};
    }
    const std::vector<std::string> words = wordsOfName(name);
    // Digits join the words around them: imprimeNF_2161_3341 has two words.
    std::vector<bool> excused(words.size(), false);
    for (std::size_t from = 0; from < words.size(); ++from) {
        std::string run = words[from];
        for (std::size_t to = from + 1; to < words.size(); ++to) {
            run += words[to];
            if (given.containsRun(run)) {
                for (std::size_t i = from; i <= to; ++i) {
                    excused[i] = true;
                }
            }
        }
    }
    std::vector<std::string> suspects;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (!excused[i] && portuguese.contains(words[i])) {
            suspects.push_back(words[i]);
        }
    }
    return suspects;
}

}  // namespace tarn::test
