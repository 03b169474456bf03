#include "tests/notes/expected_note.h"

#include <algorithm>
#include <set>
#include <stdexcept>

namespace tarn::test {

namespace {

// Characters for which a form leaves room where a field without a width stands
// before another: a company's tax number, a postal code, "1)".
std::size_t roomOf(const MapField& field, const std::string& text) {
    if (field.source == "CGC_CPF" || field.source == "NR_CGC_CPL_TRP") {
        return 18;
    }
    if (field.source.starts_with("CEP")) {
        return 9;
    }
    if (field.source.starts_with("parcel number")) {
        return 2;
    }
    return text.size();
}

// The blank of the call's own column, and `count` of margin.
std::string margin(int count) {
    return std::string(static_cast<std::size_t>(std::max(count, 0)) + 1, ' ');
}

// A text behind the blank of the call's own column.
std::string led(const std::string& text) {
    std::string line = margin(0);
    line += text;
    return line;
}

class Builder {
public:
    Builder(const FormFacts& form, const NoteCase& note, const Sums& sums)
        : form_(form), map_(form.rows), note_(note), sums_(sums) {}

    ExpectedNote build() {
        noteJobs_.jobs.emplace_back();
        setUp();
        while (row_ < map_.size()) {
            block();
        }
        return std::move(noteJobs_);
    }

private:
    const MapRow& row() const { return map_[row_]; }
    // A form that cuts prints no more items than it has lines.
    int printedItems() const {
        return form_.pushes ? note_.items : std::min(note_.items, plainItemLines);
    }

    void call(const std::string& text, int lineEnds, int mapLine, const std::string& what,
              const std::vector<MapField>& fields = {}) {
        noteJobs_.jobs.back().push_back(
            {text, std::max(lineEnds, 0), line_, mapLine, what, fields});
        line_ += std::max(lineEnds, 0);
    }
    void emptyCall(int lineEnds, const std::string& what) { call(" ", lineEnds, 0, what); }

    // Control bytes never carry line ends: what the map shows behind them follows
    // as a line of its own.
    void control() {
        call(led(row().control), 0, row().line, "control bytes");
        if (row().advance > 0) {
            emptyCall(row().advance, "line ends behind control bytes");
        }
        ++row_;
    }

    void setUp() {
        if (!form_.setupInOwnJob) {
            return;
        }
        call(led(row().control), 0, 0, "set-up job");
        noteJobs_.jobs.emplace_back();
        if (row().advance > 0) {
            emptyCall(row().advance, "line ends behind the set-up");
        }
        ++row_;
    }

    void block() {
        if (!row().control.empty()) {
            control();
        } else if (row().shows("DT_VNC_DOC")) {
            parcels();
        } else if (row().shows("CD_PRO") || row().shows("DESCRICAO")) {
            items();
        } else if (row().shows("legend text")) {
            texts();
        } else if (row().shows("\"CL. FISCAL - \"")) {
            classLine();
        } else if (row().shows("tax credit")) {
            taxCredit();
        } else {
            plainRow();
        }
    }

    // A row of fields, each call built as if it began a line: the blank of the
    // call's own column, then every field at its printed column.
    std::string placed(const std::vector<MapField>& fields, int parcel, int item) const {
        std::string line = " ";
        std::size_t shift = 0;
        for (const MapField& field : fields) {
            const std::string text = valueOf(field.source, parcel, item);
            const std::size_t start = static_cast<std::size_t>(field.column) - 1 + shift;
            if (start < line.size()) {
                throw std::logic_error("fields overlap at " + field.source);
            }
            line.resize(start, ' ');
            if (field.width >= 0) {
                line += fitted(text, field.width, field.right);
            } else {
                line += text;
                shift += text.size() - roomOf(field, text);
            }
        }
        return line;
    }

    std::string valueOf(const std::string& source, int parcel, int item) const {
        if (source == "blank") {
            return "";
        }
        if (source == "\"X\"") {
            return "X";
        }
        if (source.front() == '"') {
            const std::size_t end = source.find('"', 1);
            const std::string literal = printerBytes(source.substr(1, end - 1));
            const std::size_t joined = source.find(" and ", end);
            return joined == std::string::npos
                       ? literal
                       : literal + valueOf(source.substr(joined + 5), parcel, item);
        }
        if (source == "note number") {
            return "004321";
        }
        if (source == "CFOP") {
            return note_.overflowing ? overflowOf("CFOP") : form_.cfop;
        }
        // The server's mark for a sale without an order of ours.
        if (source == "ID_VND_DIR") {
            return note_.directOrder == "0" ? "" : note_.directOrder;
        }
        if (source == "DC_OBS") {
            return printerBytes(note_.observation);
        }
        if (source == "ValorExtenso of VALOR_TOT_NF") {
            return printedField("words");
        }
        if (source == "quantity sum") {
            return sums_.quantity;
        }
        if (source == "weight sum") {
            return sums_.weight;
        }
        if (parcel > 0) {
            return printedParcel(source, parcel, note_.overflowing);
        }
        if (item >= 0) {
            return itemValue(source, item);
        }
        return printedField(source, note_.overflowing);
    }

    std::string itemValue(const std::string& source, int item) const {
        // This form's last box holds the item's `IPI`.
        const bool otherName = form_.name == "padrao" && source == "AQ_IPI";
        const std::string field = otherName ? "IPI" : source;
        const auto way = form_.ways.find(field);
        return printedItem(field, way == form_.ways.end() ? "" : way->second, item,
                           note_.overflowing);
    }

    void plainRow() {
        std::vector<MapField> fields = row().fields;
        int advance = row().advance;
        if (fields.front().source == "\"X\"" && note_.entry) {
            fields.front().column = form_.entryColumn;
        }
        // The band of the legal texts takes the last lines below the volumes.
        if (row().shows("QT_ESP") && form_.texts.shape == TextShape::Bands) {
            advance -= form_.texts.bandLines;
        }
        const auto lineEnd = std::find_if(fields.begin(), fields.end(), [](const MapField& f) {
            return f.source == "\"\\r\\n\"";
        });
        if (lineEnd != fields.end()) {
            // The variable of the line above comes again with its line end in it: four blanks, so
            // what follows begins in column 5 of the next line.
            const std::vector<MapField> first(fields.begin(), lineEnd);
            std::vector<MapField> second(lineEnd + 1, fields.end());
            for (MapField& field : second) {
                field.column -= 44;
            }
            call(placed(first, 0, -1) + "\r\n" + placed(second, 0, -1), advance, row().line,
                 "order references, twice");
            line_ += form_.repeatedLines;
        } else {
            call(placed(fields, 0, -1), advance, row().line, fields.front().source, fields);
        }
        ++row_;
    }

    void parcels();
    void parcelRows(const std::vector<MapField>& fields, int mapLine);
    void parcelCalls(const std::vector<MapRow>& rows);
    void items();
    void classLine();
    void texts();
    void pieceCalls();
    void leftColumn();
    void bands();
    std::string piece(const std::string& text, std::size_t index) const;
    void taxCredit();

    const FormFacts& form_;
    const std::vector<MapRow>& map_;
    const NoteCase& note_;
    const Sums& sums_;
    ExpectedNote noteJobs_;
    std::size_t row_ = 0;
    int line_ = 1;
};

void Builder::parcels() {
    std::vector<MapRow> rows;
    while (row().shows("DT_VNC_DOC")) {
        rows.push_back(map_[row_++]);
    }
    const ParcelFacts& facts = form_.parcels.value();
    if (note_.parcels == 0) {
        call(" ", facts.lastLineEnds[0], rows[0].line, "no parcels");
    } else if (note_.parcels > facts.limit) {
        call(led(printerBytes(facts.message)), facts.lineEndsAbove, rows[0].line,
             "too many parcels");
    } else if (facts.oneCallEach) {
        parcelCalls(rows);
    } else {
        parcelRows(rows[0].fields, rows[0].line);
    }
}

// Rows of several parcels. Every row begins with the same margin; the blanks
// between two places go out only with the parcel behind them.
void Builder::parcelRows(const std::vector<MapField>& first, int mapLine) {
    const ParcelFacts& facts = *form_.parcels;
    const auto places = std::count_if(first.begin(), first.end(),
                                      [](const MapField& f) { return f.source == "DT_VNC_DOC"; });
    const auto perPlace = first.size() / static_cast<std::size_t>(places);
    const int step = first[perPlace].column - first[0].column;
    const auto rest = static_cast<std::size_t>(note_.parcels);
    const std::string start = margin(first[0].column - 2);
    std::string line = start;
    std::size_t shift = 0;
    for (std::size_t n = 1; n <= rest; ++n) {
        const std::size_t place = (n - 1) % static_cast<std::size_t>(facts.perRow);
        for (std::size_t i = 0; i < perPlace; ++i) {
            // A fourth place goes on by the step of the others.
            MapField field = place < static_cast<std::size_t>(places)
                                 ? first[place * perPlace + i]
                                 : first[(place - 1) * perPlace + i];
            if (place >= static_cast<std::size_t>(places)) {
                field.column += step;
            }
            const std::string text = valueOf(field.source, static_cast<int>(n), -1);
            line.resize(static_cast<std::size_t>(field.column) - 1 + shift, ' ');
            line += field.width < 0 ? text : fitted(text, field.width, field.right);
            if (field.width < 0) {
                shift += text.size() - roomOf(field, text);
            }
        }
        if (n % static_cast<std::size_t>(facts.perRow) == 0) {
            call(line, facts.rowLineEnds, n <= static_cast<std::size_t>(facts.perRow) ? mapLine : 0,
                 "row of parcels");
            line = start;
            shift = 0;
        }
    }
    call(line, facts.lastLineEnds[static_cast<std::size_t>(note_.parcels)],
         note_.parcels < facts.perRow ? mapLine : 0, "rest of the parcels");
}

// Each parcel by its own call, three to a line, and an empty one after the last.
void Builder::parcelCalls(const std::vector<MapRow>& rows) {
    const ParcelFacts& facts = *form_.parcels;
    for (int n = 1; n <= note_.parcels; ++n) {
        const MapRow& own = rows[static_cast<std::size_t>(n - 1) % 3];
        call(placed(own.fields, n, -1), n % facts.perRow == 0 ? facts.rowLineEnds : 0,
             n <= 3 ? own.line : 0, "parcel " + std::to_string(n), own.fields);
    }
    emptyCall(facts.lastLineEnds[static_cast<std::size_t>(note_.parcels)], "below the parcels");
}

void Builder::items() {
    std::vector<MapRow> rows;
    while (row().shows("CD_PRO") || row().shows("DESCRICAO")) {
        rows.push_back(map_[row_++]);
    }
    const int printed = printedItems();
    for (int item = 0; item < printed; ++item) {
        for (const MapRow& own : rows) {
            // The last row of an item ends its line, whatever room the map shows below.
            const bool last = &own == &rows.back();
            call(placed(own.fields, 0, item), last ? 1 : 0, item == 0 ? own.line : 0,
                 "item " + std::to_string(item + 1), own.fields);
        }
    }
    if (!row().control.empty() && row().advance > 0) {
        // A change of pitch stands before the blank lines of this form.
        call(led(row().control), 0, row().line - 2 + printed, "control bytes below the items");
        ++row_;
    }
    // With no line left the call is still made and leaves its blank.
    if (form_.name != "padrao") {
        emptyCall(plainItemLines - printed + form_.itemConstant, "lines without an item");
    }
    if (form_.afterItems > 0) {
        emptyCall(form_.afterItems, "below the items");
    }
}

void Builder::classLine() {
    std::string line = " CL. FISCAL - ";
    const int printed = printedItems();
    for (int item = 0; item < printed; ++item) {
        line += printedItem("class", "", item, note_.overflowing);
    }
    call(line, row().advance, row().line, "classes");
    ++row_;
}

void Builder::texts() {
    const TextFacts& facts = form_.texts;
    const std::string legal = joinedTexts(facts, note_, printedItems(), false);
    const std::string observation = printerBytes(note_.observation);
    switch (facts.shape) {
        case TextShape::None:
            throw std::logic_error("a form without texts has a row of texts");
        case TextShape::Fixed:
            call(led(printerBytes("TEXTOS LEGAIS GRAVADOS NA TRIBUTAÇÃO")), row().advance,
                 row().line, "fixed text");
            ++row_;
            break;
        case TextShape::Pieces:
            pieceCalls();
            break;
        case TextShape::LeftColumn:
            leftColumn();
            break;
        case TextShape::Bands:
            bands();
            break;
        case TextShape::TwoTexts: {
            const std::string labelled =
                observation.empty() ? "" : (facts.beforeObservation + observation).substr(0, 155);
            call(margin(4) + labelled, 1, row().line, "observation");
            ++row_;
            call(margin(5) + piece(legal, 1), 1, row().line, "legal texts 1");
            // The map's room below the second row holds a third piece.
            call(margin(5) + piece(legal, 2), row().advance - 1, 0, "legal texts 2");
            ++row_;
            break;
        }
        case TextShape::OneLine:
            // Two blanks of margin don't count among the characters.
            call("   " + piece(legal, 0), row().advance, row().line, "legal texts");
            ++row_;
            break;
    }
}

std::string Builder::piece(const std::string& text, std::size_t index) const {
    const Piece& p = form_.texts.pieces[index];
    return text.size() < p.first ? "" : text.substr(p.first - 1, p.length);
}

void Builder::pieceCalls() {
    const std::string text = joinedTexts(form_.texts, note_, printedItems(), true);
    const int count = static_cast<int>(form_.texts.pieces.size());
    const std::string start = margin(row().fields.front().column - 2);
    for (int i = 0; i < count; ++i) {
        call(start + piece(text, static_cast<std::size_t>(i)),
             i + 1 < count ? 1 : row().advance - (count - 1), i == 0 ? row().line : 0,
             "text piece " + std::to_string(i + 1));
    }
    ++row_;
}

// Four pieces at column 28; the second and the fourth stand beside an order
// reference of 20 characters at column 6, behind two blanks.
void Builder::leftColumn() {
    const std::string text = joinedTexts(form_.texts, note_, printedItems(), true);
    const int before = row().fields.front().column - 2;
    const MapRow& customer = map_[row_ + 1];
    const MapRow& seller = map_[row_ + 2];
    call(margin(before) + piece(text, 0), row().advance, row().line, "text piece 1");
    call(placed(customer.fields, 0, -1) + "  " + piece(text, 1), 1, customer.line,
         "customer's order and text piece 2");
    call(margin(before) + piece(text, 2), customer.advance - 1, 0, "text piece 3");
    call(placed(seller.fields, 0, -1) + "  " + piece(text, 3), seller.advance, seller.line,
         "salesman and text piece 4");
    row_ += 3;
}

// The map's row of texts is the first line of the observation; the legal texts
// have the lines directly above.
void Builder::bands() {
    const TextFacts& facts = form_.texts;
    const std::string observation = printerBytes(note_.observation);
    const auto band = [&](const std::string& text, bool twoCalls, int lines, int mapLine,
                          const std::string& what) {
        std::vector<std::string> parts;
        for (std::size_t at = 0; at < text.size(); at += facts.bandWidth) {
            parts.push_back(text.substr(at, facts.bandWidth));
        }
        if (parts.empty()) {
            parts.emplace_back();
        }
        if (twoCalls && parts.size() == 1) {
            parts.emplace_back();
        }
        const int calls = std::min(static_cast<int>(parts.size()), facts.bandLines);
        for (int i = 0; i < calls; ++i) {
            call(led(parts[static_cast<std::size_t>(i)]), i + 1 < calls ? 1 : lines - (calls - 1),
                 i == 0 ? mapLine : 0, what + led(std::to_string(i + 1)));
        }
    };
    band(joinedTexts(facts, note_, printedItems(), false), false, facts.bandLines, 0,
         "legal texts");
    band(observation, observation.size() > facts.oneLineUpTo, row().advance, row().line,
         "observation");
    ++row_;
}

void Builder::taxCredit() {
    const MapRow& rate = map_[row_ + 1];
    if (note_.taxCredit == "1500") {
        call(margin(50) + fitted("27,90", 16, true), row().advance, row().line, "tax credit");
        call(margin(31) + "1,86", rate.advance, rate.line, "rate of the tax credit");
    } else {
        call(" ", row().advance + rate.advance, row().line, "no tax credit");
    }
    row_ += 2;
}

}  // namespace

std::string ExpectedCall::bytes() const {
    std::string out = text;
    for (int i = 0; i < lineEnds; ++i) {
        out += "\r\n";
    }
    return out;
}

std::string fitted(const std::string& text, int width, bool right) {
    const auto size = static_cast<std::size_t>(width);
    if (text.size() >= size) {
        return text.substr(0, size);
    }
    const std::string room(size - text.size(), ' ');
    return right ? room + text : text + room;
}

std::string joinedTexts(const TextFacts& facts, const NoteCase& note, int printedItems,
                        bool withObservation) {
    const std::string separator = " \\\\ ";
    std::string out;
    std::set<std::string> seen;
    for (int item = 0; item < printedItems; ++item) {
        const std::string& text =
            note.legalTexts[static_cast<std::size_t>(item) % note.legalTexts.size()];
        if (!seen.insert(text).second) {
            continue;
        }
        if (!out.empty()) {
            out += separator;
        }
        out += printerBytes(text);
    }
    if (withObservation && !note.observation.empty()) {
        if (facts.separatorBeforeObservation) {
            out += separator;
        }
        out += facts.beforeObservation + printerBytes(note.observation);
    }
    return out;
}

ExpectedNote expectedNote(const FormFacts& form, const NoteCase& note, const Sums& sums) {
    return Builder(form, note, sums).build();
}

}  // namespace tarn::test
