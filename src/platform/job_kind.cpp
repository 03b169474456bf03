#include "platform/job_kind.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>

namespace tarn {
namespace {

struct DocumentWord {
    std::string_view word;
    JobDocument document;
};
constexpr std::array documentWords{
    DocumentWord{"nota", JobDocument::Note}, DocumentWord{"ordem", JobDocument::OrderSheet},
    DocumentWord{"boleto", JobDocument::Slip}, DocumentWord{"cheque", JobDocument::Cheque},
    DocumentWord{"etiquetas", JobDocument::Labels}};

// As many as a printer has room for on its longest form; beyond, a number means nothing.
constexpr int mostItemLines = 132;
// No file of a kind comes near it; what is longer is another's.
constexpr std::size_t longestText = 1024;

std::optional<int> itemLinesOf(std::string_view word) {
    int lines = 0;
    const char* end = word.data() + word.size();
    const auto read = std::from_chars(word.data(), end, lines);
    const bool sound =
        read.ec == std::errc() && read.ptr == end && lines >= 0 && lines <= mostItemLines;
    return sound ? std::optional(lines) : std::nullopt;
}

void take(std::string_view name, std::string_view value, JobKind& kind) {
    if (name == "documento") {
        const auto* known = std::ranges::find(documentWords, value, &DocumentWord::word);
        kind.document = known == documentWords.end() ? JobDocument::Untold : known->document;
    } else if (name == "formulario") {
        kind.form = value;
    } else if (name == "itens") {
        kind.itemLines = itemLinesOf(value);
    }
}

}  // namespace

std::string writeJobKind(const JobKind& kind) {
    const auto* word = std::ranges::find(documentWords, kind.document, &DocumentWord::document);
    if (word == documentWords.end()) {
        return {};
    }
    std::string text = "documento " + std::string(word->word) + "\n";
    if (!kind.form.empty()) {
        text += "formulario " + kind.form + "\n";
    }
    if (kind.itemLines) {
        text += "itens " + std::to_string(*kind.itemLines) + "\n";
    }
    return text;
}

JobKind readJobKind(std::string_view text) {
    JobKind kind;
    while (!text.empty()) {
        const std::size_t end = std::min(text.size(), text.find('\n'));
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(text.size(), end + 1));
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        const std::size_t blank = std::min(line.size(), line.find(' '));
        take(line.substr(0, blank), line.substr(std::min(line.size(), blank + 1)), kind);
    }
    return kind.told() ? kind : JobKind{};
}

std::filesystem::path jobKindFile(const std::filesystem::path& job) {
    return std::filesystem::path(job).replace_extension("kind");
}

JobKind jobKindBeside(const std::filesystem::path& job) {
    std::ifstream file(jobKindFile(job), std::ios::binary);
    std::string text(longestText + 1, '\0');
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(file.gcount()));
    return text.size() > longestText ? JobKind{} : readJobKind(text);
}

}  // namespace tarn
