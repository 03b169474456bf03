#include "tests/house/source_text.h"

#include <algorithm>
#include <array>

namespace tarn::test {
namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

bool isWordByte(char c) {
    return isLetter(c) || isDigit(c);
}

class Scanner {
public:
    explicit Scanner(std::string_view cpp) : cpp_(cpp) {}

    SourceText scan() {
        while (at_ < cpp_.size()) {
            step();
        }
        closeComment();
        return std::move(found_);
    }

private:
    bool startsWith(std::string_view text) const { return cpp_.substr(at_).starts_with(text); }

    void advanceTo(std::size_t end) {
        end = std::min(end, cpp_.size());
        line_ +=
            static_cast<int>(std::count(cpp_.begin() + static_cast<std::ptrdiff_t>(at_),
                                        cpp_.begin() + static_cast<std::ptrdiff_t>(end), '\n'));
        at_ = end;
    }

    void step() {
        const char c = cpp_[at_];
        if (startsWith("//")) {
            lineComment();
        } else if (c == ' ' || c == '\t' || c == '\n' || c == '\r') {
            advanceTo(at_ + 1);
        } else {
            closeComment();
            code(c);
        }
    }

    void code(char c) {
        if (startsWith("/*")) {
            const std::size_t end = cpp_.find("*/", at_);
            found_.comments.push_back({std::string(cpp_.substr(at_, end - at_)), line_});
            advanceTo(end == std::string_view::npos ? end : end + 2);
        } else if (c == '#') {
            directive();
        } else if (c == '"' || c == '\'') {
            advanceTo(endOfQuoted(c));
        } else if (isDigit(c)) {
            advanceTo(endOfNumber());
        } else if (isLetter(c)) {
            identifier();
        } else {
            advanceTo(at_ + 1);
        }
    }

    void lineComment() {
        const std::size_t end = std::min(cpp_.find('\n', at_), cpp_.size());
        if (lastCommentLine_ != line_ - 1 || comment_.text.empty()) {
            closeComment();
            comment_.line = line_;
        }
        comment_.text.append(cpp_.substr(at_ + 2, end - at_ - 2)).append("\n");
        lastCommentLine_ = line_;
        advanceTo(end);
    }

    void closeComment() {
        if (!comment_.text.empty()) {
            found_.comments.push_back(std::move(comment_));
            comment_ = {};
        }
    }

    // An #include is taken whole; of any other directive only the "#".
    void directive() {
        std::size_t word = cpp_.find_first_not_of(" \t", at_ + 1);
        if (word == std::string_view::npos || !cpp_.substr(word).starts_with("include")) {
            advanceTo(at_ + 1);
            return;
        }
        const std::size_t end = std::min(cpp_.find('\n', word), cpp_.size());
        const std::string_view rest = cpp_.substr(word, end - word);
        const std::size_t from = rest.find_first_of("\"<");
        const std::size_t to = rest.find_first_of("\">", std::min(from, rest.size() - 1) + 1);
        if (from != std::string_view::npos && to != std::string_view::npos) {
            auto& list = rest[from] == '"' ? found_.inQuotes : found_.inBrackets;
            list.push_back({std::string(rest.substr(from + 1, to - from - 1)), line_});
        }
        advanceTo(end);
    }

    std::size_t endOfQuoted(char quote) const {
        std::size_t end = at_ + 1;
        while (end < cpp_.size() && cpp_[end] != quote && cpp_[end] != '\n') {
            end += cpp_[end] == '\\' ? 2U : 1U;
        }
        return end + 1;
    }

    // Digits with their separators, letters and points: 0xFFU, 1'000'000, 1.5e3.
    std::size_t endOfNumber() const {
        std::size_t end = at_ + 1;
        while (end < cpp_.size() &&
               (isWordByte(cpp_[end]) || cpp_[end] == '.' ||
                (cpp_[end] == '\'' && end + 1 < cpp_.size() && isWordByte(cpp_[end + 1])))) {
            ++end;
        }
        return end;
    }

    void identifier() {
        std::size_t end = at_ + 1;
        while (end < cpp_.size() && isWordByte(cpp_[end])) {
            ++end;
        }
        const std::string_view name = cpp_.substr(at_, end - at_);
        const char next = end < cpp_.size() ? cpp_[end] : ' ';
        constexpr std::array<std::string_view, 5> rawPrefixes{"R", "u8R", "uR", "UR", "LR"};
        constexpr std::array<std::string_view, 4> prefixes{"u8", "u", "U", "L"};
        if (next == '"' && std::ranges::find(rawPrefixes, name) != rawPrefixes.end()) {
            rawText(end);
            return;
        }
        if ((next == '"' || next == '\'') && std::ranges::find(prefixes, name) != prefixes.end()) {
            advanceTo(end);
            return;
        }
        found_.identifiers.push_back({std::string(name), line_});
        advanceTo(end);
    }

    void rawText(std::size_t quote) {
        const std::size_t open = cpp_.find('(', quote);
        if (open == std::string_view::npos) {
            advanceTo(open);
            return;
        }
        std::string close(")");
        close.append(cpp_.substr(quote + 1, open - quote - 1)).append("\"");
        const std::size_t end = cpp_.find(close, open);
        advanceTo(end == std::string_view::npos ? end : end + close.size());
    }

    std::string_view cpp_;
    std::size_t at_ = 0;
    int line_ = 1;
    SourcePiece comment_;
    int lastCommentLine_ = 0;
    SourceText found_;
};

// The text without what stands between a pair of the quote; a single quote that
// nothing closes takes nothing away.
std::string withoutQuoted(std::string_view text, char quote) {
    std::string kept;
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t open = text.find(quote, at);
        const std::size_t close =
            open == std::string_view::npos ? open : text.find(quote, open + 1);
        if (close == std::string_view::npos) {
            break;
        }
        kept.append(text.substr(at, open - at)).append(" ");
        at = close + 1;
    }
    return kept.append(text.substr(std::min(at, text.size())));
}

}  // namespace

SourceText takeApart(std::string_view cpp) {
    return Scanner(cpp).scan();
}

std::vector<std::string> wordsOfComment(std::string_view comment) {
    const std::string text = withoutQuoted(withoutQuoted(comment, '"'), '`');
    const auto inWord = [](char c) { return isWordByte(c) || static_cast<signed char>(c) < 0; };
    std::vector<std::string> words;
    std::size_t at = 0;
    while (at < text.size()) {
        std::size_t end = at;
        while (end < text.size() && inWord(text[end])) {
            ++end;
        }
        if (end > at && !isDigit(text[at])) {
            words.push_back(text.substr(at, end - at));
        }
        at = std::max(end, at + 1);
    }
    return words;
}

}  // namespace tarn::test
