#include "tests/notes/form_facts.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <stdexcept>

namespace tarn::test {

namespace {

std::vector<int> numbers(const std::string& text) {
    std::istringstream in(text);
    std::vector<int> all;
    for (int one = 0; in >> one;) {
        all.push_back(one);
    }
    return all;
}

int number(const std::string& text) {
    return numbers(text).at(0);
}

std::string behind(const std::string& text, char mark) {
    return text.substr(text.find(mark) + 1);
}

// "3 9 "message""
void readParcels(FormFacts& form, const std::string& text) {
    ParcelFacts facts;
    const std::vector<int> counts = numbers(text);
    facts.perRow = counts.at(0);
    facts.limit = counts.at(1);
    facts.message = behind(text, '"');
    facts.message.pop_back();
    form.parcels = facts;
}

TextShape shapeOf(const std::string& words) {
    const std::map<std::string, TextShape> shapes{{"none", TextShape::None},
                                                  {"fixed", TextShape::Fixed},
                                                  {"left column", TextShape::LeftColumn},
                                                  {"two", TextShape::TwoTexts},
                                                  {"one line", TextShape::OneLine}};
    return shapes.at(words);
}

// "1:62 63:62"
void readPieces(FormFacts& form, const std::string& text) {
    std::istringstream in(text);
    for (std::string piece; in >> piece;) {
        form.texts.pieces.push_back({std::stoul(piece), std::stoul(behind(piece, ':'))});
    }
}

void readBands(FormFacts& form, const std::string& text) {
    const std::vector<int> told = numbers(text);
    form.texts.shape = TextShape::Bands;
    form.texts.bandLines = told.at(0);
    form.texts.bandWidth = static_cast<std::size_t>(told.at(1));
    form.texts.oneLineUpTo = static_cast<std::size_t>(told.at(2));
}

// "QTDE pointless", "line total pointless"
void readWay(FormFacts& form, const std::string& text) {
    const std::size_t last = text.rfind(' ');
    form.ways[text.substr(0, last)] = text.substr(last + 1);
}

using Reader = std::function<void(FormFacts&, const std::string&)>;

// By the words that a line begins with; the longer ones first.
const std::vector<std::pair<std::string, Reader>>& readers() {
    using F = FormFacts;
    using S = const std::string;
    static const std::vector<std::pair<std::string, Reader>> all{
        {"company ", [](F& f, S& s) { f.company = number(s); }},
        {"establishment ", [](F& f, S& s) { f.establishment = number(s); }},
        {"ladder reprint", [](F& f, S&) { f.ladder = Ladder::Reprint; }},
        {"length ", [](F& f, S& s) { f.length = number(s); }},
        {"mark ",
         [](F& f, S& s) {
             f.exitColumn = numbers(s).at(0);
             f.entryColumn = numbers(s).at(1);
         }},
        {"job one", [](F& f, S&) { f.setupInOwnJob = false; }},
        {"items cut", [](F& f, S&) { f.pushes = false; }},
        {"services print", [](F& f, S&) { f.onlyProducts = false; }},
        {"item lines ", [](F& f, S& s) { f.itemConstant = number(s); }},
        {"below items ", [](F& f, S& s) { f.afterItems = number(s); }},
        {"parcels by call", [](F& f, S&) { f.parcels.value().oneCallEach = true; }},
        {"parcels ", readParcels},
        {"parcel ends ", [](F& f, S& s) { f.parcels.value().lastLineEnds = numbers(s); }},
        {"above ", [](F& f, S& s) { f.parcels.value().lineEndsAbove = number(s); }},
        {"row ends ", [](F& f, S& s) { f.parcels.value().rowLineEnds = number(s); }},
        {"texts ", [](F& f, S& s) { f.texts.shape = shapeOf(s); }},
        {"pieces ", readPieces},
        {"bands ", readBands},
        {"observation bare", [](F& f, S&) { f.texts.beforeObservation.clear(); }},
        {"observation separated", [](F& f, S&) { f.texts.separatorBeforeObservation = true; }},
        {"way ", readWay},
        {"cfop ", [](F& f, S& s) { f.cfop = s; }},
        {"repeated ", [](F& f, S& s) { f.repeatedLines = number(s); }},
    };
    return all;
}

FormFacts readForm(const std::filesystem::path& path) {
    FormFacts form;
    form.name = path.stem().string().substr(std::string("imprime_nf_").size());
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line[0] == '#') {
            continue;
        }
        if (line[0] >= '0' && line[0] <= '9') {
            form.rows.push_back(readRow(line));
            continue;
        }
        const auto reader =
            std::find_if(readers().begin(), readers().end(),
                         [&](const auto& known) { return line.starts_with(known.first); });
        if (reader == readers().end()) {
            throw std::runtime_error(form.name + ": unreadable line: " + line);
        }
        reader->second(form, line.substr(reader->first.size()));
    }
    return form;
}

std::vector<FormFacts> readForms() {
    std::vector<FormFacts> forms;
    for (const auto& entry : std::filesystem::directory_iterator(TARN_NOTE_MAPS)) {
        if (entry.path().extension() == ".map") {
            forms.push_back(readForm(entry.path()));
        }
    }
    if (forms.empty()) {
        throw std::runtime_error("no maps in " TARN_NOTE_MAPS);
    }
    std::sort(forms.begin(), forms.end(),
              [](const FormFacts& a, const FormFacts& b) { return a.name < b.name; });
    return forms;
}

}  // namespace

const std::vector<FormFacts>& allForms() {
    static const std::vector<FormFacts> forms = readForms();
    return forms;
}

const FormFacts& formNamed(const std::string& name) {
    const auto& forms = allForms();
    const auto found = std::find_if(forms.begin(), forms.end(),
                                    [&](const FormFacts& f) { return f.name == name; });
    if (found == forms.end()) {
        throw std::out_of_range("no form " + name);
    }
    return *found;
}

void PrintTo(const FormFacts& form, std::ostream* out) {
    *out << form.name;
}

}  // namespace tarn::test
