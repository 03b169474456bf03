#include "dotmatrix/form_file.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <optional>
#include <utility>
#include <vector>

namespace tarn::dotmatrix {

namespace {

// How far beside the sheet something may stand, and how wide it may be, in units: what one
// pitch can tell, each other one can.
constexpr PaperUnits farthestLeft = -216;
constexpr PaperUnits highest = -lineHeight;
constexpr PaperUnits widest = PaperUnits{1000} * 216;
constexpr PaperUnits longest = 22 * unitsPerInch;
// The edge of the widest paper, 14.875 inches with strips of half an inch, from the first
// print position.
constexpr PaperUnits sheetEdge = unitsPerInch * 14375 / 1000;
// What decimals in a form text may lose.
constexpr PaperUnits slack = 4;
constexpr double mostFigures = 10'000;  // of any number
constexpr std::string_view blanks = " \t\r";

struct PitchName {
    std::string_view name;
    FormPitch pitch;
    double column;  // units
};
constexpr PitchName pitches[] = {{"10", {false, false}, 216},
                                 {"12", {true, false}, 180},
                                 {"17", {false, true}, 126},
                                 {"20", {true, true}, 108}};

const PitchName* pitchNamed(std::string_view name) {
    for (const PitchName& pitch : pitches) {
        if (pitch.name == name) {
            return &pitch;
        }
    }
    return nullptr;
}

// The words of one line, taken off from the left.
class Words {
public:
    explicit Words(std::string_view line) : rest_(line) {}

    std::string_view next() {
        skipBlanks();
        const std::string_view word = rest_.substr(0, rest_.find_first_of(blanks));
        rest_.remove_prefix(word.size());
        return word;
    }
    // A number with a decimal comma or point.
    std::optional<double> number() {
        std::string text(next());
        for (char& c : text) {
            c = c == ',' ? '.' : c;
        }
        double value = 0;
        const char* end = text.data() + text.size();
        const auto read = std::from_chars(text.data(), end, value, std::chars_format::fixed);
        const bool sound =
            read.ec == std::errc() && read.ptr == end && std::fabs(value) <= mostFigures;
        return sound ? std::optional(value) : std::nullopt;
    }
    // A number of things of `size`, from `first` on, where what it comes to lies in these bounds.
    std::optional<PaperUnits> units(double size, double first, PaperUnits least, PaperUnits most) {
        const auto count = number();
        const PaperUnits length = count ? std::llround((*count - first) * size) : least - 1;
        return length >= least && length <= most ? std::optional(length) : std::nullopt;
    }
    std::string rest() {
        skipBlanks();
        const std::size_t last = rest_.find_last_not_of(blanks);
        return std::string(rest_.substr(0, last == std::string_view::npos ? 0 : last + 1));
    }

private:
    void skipBlanks() {
        rest_.remove_prefix(std::min(rest_.size(), rest_.find_first_not_of(blanks)));
    }
    std::string_view rest_;
};

// With a decimal comma, and no more decimals than it has.
std::string decimal(double value);

class Reader {
public:
    // What is wrong with the line; empty for nothing.
    std::string read(std::string_view line) {
        ++line_;
        Words words(line);
        const std::string_view word = words.next();
        if (word.empty() || word.front() == '#') {
            return {};
        }
        if (word == "nome") {
            form.name = words.rest();
            return {};
        }
        if (word == "figura") {
            form.picture = words.rest();
            return form.picture.empty() ? "\"figura\" pede o nome de um arquivo." : "";
        }
        if (word == "altura") {
            return readHeight(words);
        }
        if (word == "ligar" || word == "passo") {
            return readPitch(word, words);
        }
        if (word == "caixa") {
            return readBox(words);
        }
        if (word == "texto") {
            return readText(words);
        }
        return "\"" + std::string(word) +
               "\" não é palavra de formulário; use nome, altura, ligar, passo, caixa, texto ou "
               "figura.";
    }

    // The first box or text that isn't on the sheet; its height is known at the end only.
    std::optional<FormTextError> outsideTheSheet() const {
        for (const Place& place : places_) {
            // What prints behind the form's last line end is a line below it.
            if (place.bottom > form.height + lineHeight + slack) {
                return FormTextError{
                    place.line,
                    "termina na linha " + decimal(linesOf(place.bottom)) + ", e a folha tem " +
                        decimal(linesOf(form.height)) +
                        ". Confira linha e altura, ou aumente a \"altura\" do formulário."};
            }
            if (place.right > sheetEdge + slack) {
                return FormTextError{
                    place.line,
                    "termina na coluna " + decimal(std::floor(columnsOf(place.right, place))) +
                        ", e a folha mais larga tem " +
                        decimal(std::floor(columnsOf(sheetEdge, place))) +
                        ". Confira coluna e largura, e o \"passo\" em que são contadas."};
            }
        }
        return std::nullopt;
    }

    FormDesign form;

private:
    // Lower right corner of what a line of the text puts on the sheet.
    struct Place {
        std::size_t line = 0;
        PaperUnits right = 0;
        PaperUnits bottom = 0;
        double column = 0;  // width of the columns in which it was told
    };

    static double linesOf(PaperUnits y) { return static_cast<double>(y) / oneLine; }
    static double columnsOf(PaperUnits x, const Place& place) {
        return static_cast<double>(x) / place.column;
    }

    std::string readHeight(Words& words) {
        const auto height = words.units(oneLine, 0, 3 * lineHeight, longest);
        if (!height) {
            return "\"altura\" pede um número de linhas de 3 a 132.";
        }
        form.height = *height;
        return {};
    }

    std::string readPitch(std::string_view word, Words& words) {
        const PitchName* pitch = pitchNamed(words.next());
        if (pitch == nullptr) {
            return "\"" + std::string(word) + "\" pede 10, 12, 17 ou 20.";
        }
        if (word == "ligar") {
            form.pitch = pitch->pitch;
        }
        column_ = pitch->column;
        return {};
    }

    std::string readBox(Words& words) {
        const auto y = words.units(oneLine, 1, highest, longest);
        const auto x = words.units(column_, 1, farthestLeft, widest);
        const auto width = words.units(column_, 0, 1, widest);
        const auto height = words.units(oneLine, 0, 1, longest);
        if (!y || !x || !width || !height) {
            return "\"caixa\" pede linha, coluna, largura e altura em números, e depois o "
                   "rótulo.";
        }
        places_.push_back({line_, *x + *width, *y + *height, column_});
        form.boxes.push_back({*x, *y, *width, *height, words.rest()});
        return {};
    }

    std::string readText(Words& words) {
        const auto y = words.units(oneLine, 1, highest, longest);
        const auto x = words.units(column_, 1, farthestLeft, widest);
        std::string text = words.rest();
        if (!y || !x || text.empty()) {
            return "\"texto\" pede linha e coluna em números, e depois o texto.";
        }
        places_.push_back({line_, *x, *y + lineHeight, column_});
        form.texts.push_back({*x, *y, std::move(text)});
        return {};
    }

    static constexpr double oneLine = static_cast<double>(lineHeight);
    double column_ = 216;
    std::size_t line_ = 0;
    std::vector<Place> places_;
};

std::string decimal(double value) {
    char digits[32];
    std::snprintf(digits, sizeof digits, "%.4f", value);
    std::string text = digits;
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') {
        text.pop_back();
    }
    const std::size_t point = text.find('.');
    if (point != std::string::npos) {
        text[point] = ',';
    }
    return text;
}

const PitchName& nameOf(const FormPitch& wanted) {
    for (const PitchName& pitch : pitches) {
        if (pitch.pitch.elite == wanted.elite && pitch.pitch.condensed == wanted.condensed) {
            return pitch;
        }
    }
    return pitches[0];
}

std::string lineOf(PaperUnits y) {
    return decimal(static_cast<double>(y) / static_cast<double>(lineHeight) + 1);
}

}  // namespace

const FormBox* boxAt(const std::vector<FormBox>& boxes, PaperUnits x, PaperUnits y) {
    const auto box = std::ranges::find_if(boxes, [x, y](const FormBox& one) {
        return one.x <= x && x < one.x + one.width && one.y <= y && y < one.y + one.height;
    });
    return box == boxes.end() ? nullptr : &*box;
}

Dialect panelFor(const FormDesign& form, Dialect dialect) {
    dialect.formHeight = form.height;
    dialect.elite = form.pitch.elite;
    dialect.condensed = form.pitch.condensed;
    return dialect;
}

std::variant<FormDesign, FormTextError> readForm(std::string_view text) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (text.starts_with(mark)) {
        text.remove_prefix(mark.size());
    }
    Reader reader;
    for (std::size_t number = 1; !text.empty(); ++number) {
        const std::size_t end = std::min(text.size(), text.find('\n'));
        if (std::string what = reader.read(text.substr(0, end)); !what.empty()) {
            return FormTextError{number, std::move(what)};
        }
        text.remove_prefix(std::min(text.size(), end + 1));
    }
    if (auto outside = reader.outsideTheSheet()) {
        return std::move(*outside);
    }
    return std::move(reader.form);
}

std::string writeForm(const FormDesign& form) {
    const PitchName& pitch = nameOf(form.pitch);
    // Columns are counted condensed, as most fields of these forms are printed.
    constexpr double counted = 126;
    const auto columns = [](PaperUnits x) { return decimal(static_cast<double>(x) / counted); };
    const auto columnOf = [](PaperUnits x) {
        return decimal(static_cast<double>(x) / counted + 1);
    };
    const auto lines = [](PaperUnits y) {
        return decimal(static_cast<double>(y) / static_cast<double>(lineHeight));
    };
    std::string out = "nome " + form.name + "\naltura " + lines(form.height) + "\nligar " +
                      std::string(pitch.name) + "\npasso 17\n";
    if (!form.picture.empty()) {
        out += "figura " + form.picture + "\n";
    }
    for (const FormBox& box : form.boxes) {
        out += "caixa " + lineOf(box.y) + " " + columnOf(box.x) + " " + columns(box.width) + " " +
               lines(box.height) + (box.label.empty() ? "" : " " + box.label) + "\n";
    }
    for (const FormText& text : form.texts) {
        out += "texto " + lineOf(text.y) + " " + columnOf(text.x) + " " + text.text + "\n";
    }
    return out;
}

}  // namespace tarn::dotmatrix
