#include "tests/fuzz/made_notes.h"

#include <array>
#include <utility>

#include "tests/fuzz/wild_values.h"
#include "tests/notes/plain_note.h"

namespace tarn::fuzz {

namespace {

constexpr std::size_t parcelCounts = 16;

// The rows of the plain note before a change, made once.
struct PlainRows {
    std::array<std::array<Row, 2>, parcelCounts> heads;  // by parcels and by whether goods come in
    Row totals;
    std::array<Row, 2> items;
    std::array<Row, 2> services;  // without their amount

    PlainRows();
};

PlainRows::PlainRows() {
    for (std::size_t parcels = 0; parcels < parcelCounts; ++parcels) {
        for (const bool entry : {false, true}) {
            test::NoteCase note;
            note.parcels = static_cast<int>(parcels);
            note.entry = entry;
            heads.at(parcels).at(entry ? 1 : 0) = rowOf(test::draftOf(note).head);
        }
    }
    const test::NoteDraft draft = test::draftOf({});
    totals = rowOf(draft.totals);
    for (std::size_t i = 0; i < items.size(); ++i) {
        test::Attributes item = draft.items.at(i);
        items.at(i) = rowOf(item);
        item["IC_TP_CAD"] = "S";
        item.emplace("VL_ISS", "1.5");
        services.at(i) = rowOf(item);
    }
}

const PlainRows& plain() {
    static const PlainRows rows;
    return rows;
}

void appendItem(std::string& xml, std::size_t turn, ByteSource& source, std::size_t rarity) {
    if (!source.oneIn(4)) {
        appendChanged(xml, "ITEM", plain().items.at(turn), source, rarity);
        return;
    }
    xml += "<ITEM";
    appendChanged(xml, Field("VL_LIQ_IT", wildNumber(source)), source, rarity);
    for (const Field& field : plain().services.at(turn)) {
        appendChanged(xml, field, source, rarity);
    }
    xml += "/>";
}

// Most notes are short: what happens to one item happens to each, and a run takes as long as
// its items.
std::size_t madeItemCount(ByteSource& source) {
    constexpr std::array<std::size_t, 8> few{1, 2, 1, 3, 1, 2, 1, 5};
    return source.oneIn(64) ? 1 + source.below(40) : few[source.below(few.size())];
}

// A place of the note's text turned into something else, in one note of eight.
void turnText(std::string& xml, ByteSource& source) {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 8> turns{
        {{"<TOTAIS", "<!-- x --><TOTAIS"},
         {"<ITEM", "  texto <![CDATA[y]]> <?p q?><ITEM"},
         {"<ITEM", "<OUTRO A=\"1\"/><ITEM"},
         {"PRINCIPAL", "principal"},
         {"<FORMULARIO", "<!--"},
         {"NatOper", "p:NatOper"},
         {"UTF-8", "ISO-8859-1"},
         {"<ITEM", "<item"}}};
    if (!source.oneIn(8)) {
        return;
    }
    const auto& [from, to] = turns[source.below(turns.size())];
    if (const std::size_t at = xml.find(from); at != std::string::npos) {
        xml.replace(at, from.size(), to);
    }
}

}  // namespace

std::string madeNote(ByteSource& source) {
    constexpr std::size_t usualLength = 8192;
    const std::size_t parcels = source.below(parcelCounts);
    const std::size_t items = madeItemCount(source);
    const std::size_t entry = source.oneIn(2) ? 1 : 0;
    Row form{{"QT_MAX_IT", std::to_string(source.below(20))}};
    if (source.oneIn(2)) {
        form.emplace_back("QT_MAX_IT_NF_SRV", std::to_string(source.below(12)));
    }
    const std::size_t rarity = std::array<std::size_t, 4>{251, 60, 20, 6}[source.below(4)];
    std::string xml;
    xml.reserve(usualLength);
    xml += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<PRINCIPAL CODIGO=\"0\" STATUS=\"OK\">\n";
    appendChanged(xml, "NOTA", plain().heads.at(parcels).at(entry), source, rarity);
    appendChanged(xml, "TOTAIS", plain().totals, source, rarity);
    appendChanged(xml, "FORMULARIO", form, source, rarity * 4);
    for (std::size_t i = 0; i < items; ++i) {
        appendItem(xml, i % 2, source, rarity);
    }
    xml += "</PRINCIPAL>\n";
    turnText(xml, source);
    return xml;
}

}  // namespace tarn::fuzz
