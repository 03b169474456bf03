#include "platform/job_kind.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <span>
#include <utility>

#include "runtime/text.h"

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
// More cuts than anybody reads are left out, and so is what is beyond the begin of a long one.
constexpr std::size_t mostCuts = 100;
constexpr std::size_t mostCharacters = 300;
// No file of a kind comes near it; what is longer is another's.
constexpr std::size_t longestText = std::size_t{256} * 1024;

std::optional<int> itemLinesOf(std::string_view word) {
    int lines = 0;
    const char* end = word.data() + word.size();
    const auto read = std::from_chars(word.data(), end, lines);
    const bool sound =
        read.ec == std::errc() && read.ptr == end && lines >= 0 && lines <= mostItemLines;
    return sound ? std::optional(lines) : std::nullopt;
}

// "12 4 words" of a cut; nothing where it is none.
std::optional<JobCut> cutOf(std::string_view value) {
    JobCut cut;
    for (int* number : {&cut.line, &cut.column}) {
        const char* end = value.data() + value.size();
        const auto read = std::from_chars(value.data(), end, *number);
        if (read.ec != std::errc() || read.ptr == end || *read.ptr != ' ' || *number < 0) {
            return std::nullopt;
        }
        value = {read.ptr + 1, end};
    }
    cut.what = value;
    return cut;
}

std::string textOf(const JobCut& cut) {
    return "corta " + std::to_string(cut.line) + " " + std::to_string(cut.column) + " " +
           blankControls(leftOf(cut.what, mostCharacters)) + "\n";
}

void take(std::string_view name, std::string_view value, JobKind& kind) {
    if (name == "documento") {
        const auto* known = std::ranges::find(documentWords, value, &DocumentWord::word);
        kind.document = known == documentWords.end() ? JobDocument::Untold : known->document;
    } else if (name == "formulario") {
        kind.form = value;
    } else if (name == "itens") {
        kind.itemLines = itemLinesOf(value);
    } else if (name == "cortes") {
        kind.cuts.emplace();
    } else if (name == "corta" && kind.cuts && kind.cuts->size() < mostCuts) {
        if (auto cut = cutOf(value)) {
            kind.cuts->push_back(std::move(*cut));
        }
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
    if (kind.cuts) {
        text += "cortes " + std::to_string(kind.cuts->size()) + "\n";
        const std::size_t count = std::min(kind.cuts->size(), mostCuts);
        for (const JobCut& cut : std::span(*kind.cuts).first(count)) {
            text += textOf(cut);
        }
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
