#include <array>
#include <string>
#include <utility>

#include "gateway/xml_document.h"
#include "notes/print_note.h"
#include "platform/environment.h"
#include "runtime/runtime_error.h"
#include "tests/fuzz/byte_source.h"
#include "tests/fuzz/checking_spooler.h"
#include "tests/fuzz/fuzz_entries.h"
#include "tests/fuzz/wild_values.h"
#include "tests/notes/plain_note.h"
#include "tests/support/fixed_machine.h"
#include "tests/support/recording_printer.h"
#include "tests/support/scripted_boxes.h"
#include "tests/support/scripted_loader.h"

namespace tarn::fuzz {

namespace {

using namespace std::string_view_literals;

constexpr std::array noteNumbers{"4321"sv, "0"sv,   "1234567"sv,
                                 ""sv,     "12a"sv, "99999999999999999999"sv};

std::string madeNote(ByteSource& source) {
    test::NoteCase note;
    note.parcels = static_cast<int>(source.below(16));
    note.items = static_cast<int>(1 + source.below(source.oneIn(16) ? 40 : 5));
    note.entry = source.oneIn(2);
    test::NoteDraft draft = test::draftOf(note);
    draft.form["QT_MAX_IT"] = std::to_string(source.below(20));
    if (source.oneIn(2)) {
        draft.form["QT_MAX_IT_NF_SRV"] = std::to_string(source.below(12));
    }
    const std::size_t rarity = std::array<std::size_t, 4>{251, 60, 20, 6}[source.below(4)];
    mutate(draft.head, source, rarity);
    mutate(draft.totals, source, rarity);
    mutate(draft.form, source, rarity * 4);
    for (test::Attributes& item : draft.items) {
        if (source.oneIn(4)) {
            item.erase("IC_TP_CAD");
            item.emplace("IC_TP_CAD", "S");
            item.emplace("VL_LIQ_IT", wildNumber(source));
            item.emplace("VL_ISS", "1.5");
        }
        mutate(item, source, rarity);
    }
    std::string xml = draft.xml();
    constexpr std::array<std::pair<std::string_view, std::string_view>, 8> turns{
        {{"<TOTAIS", "<!-- x --><TOTAIS"},
         {"<ITEM", "  texto <![CDATA[y]]> <?p q?><ITEM"},
         {"<ITEM", "<OUTRO A=\"1\"/><ITEM"},
         {"PRINCIPAL", "principal"},
         {"<FORMULARIO", "<!--"},
         {"NatOper", "p:NatOper"},
         {"UTF-8", "ISO-8859-1"},
         {"<ITEM", "<item"}}};
    if (source.oneIn(8)) {
        const auto& [from, to] = turns[source.below(turns.size())];
        if (const std::size_t at = xml.find(from); at != std::string::npos) {
            xml = xml.substr(0, at).append(to).append(xml, at + from.size());
        }
    }
    return xml;
}

constexpr std::array<std::pair<int, int>, 28> sessions{
    {{7, 1},    {1361, 1},    {141, 1},  {761, 1},     {2161, 3385}, {2161, 3341}, {2161, 3383},
     {2161, 9}, {2041, 1},    {2321, 1}, {1581, 1},    {2801, 1},    {2421, 3621}, {2421, 1},
     {1521, 1}, {821, 1},     {3301, 1}, {3881, 1},    {3881, 6001}, {3081, 1},    {1, 5282},
     {3601, 1}, {2541, 6001}, {3681, 1}, {4621, 7321}, {4621, 1},    {541, 1},     {-1, 0}}};

void printOn(Ladder ladder, const std::pair<int, int>& key, const std::string& xml,
             const std::string& number) {
    XmlDocument document;
    if (!document.loadXML(xml)) {
        return;
    }
    CheckingSpooler spooler;
    test::RecordingPrinter printer;
    test::ScriptedLoader http;
    test::ScriptedBoxes boxes;
    test::FixedClock clock;
    test::FixedMachine machine;
    Environment environment{http, spooler, printer, boxes, clock, machine, "", CodePage::Page1252};
    Sessao session;
    session.NCOMPANYCODE = key.first;
    session.ID_ETB_TARN = key.second;
    try {
        printNote(ladder, environment, session, document, number);
    } catch (const RuntimeError&) {
        return;
    }
    if (!spooler.closed()) {
        broken("a note printed to its end left its job open");
    }
    if (!printer.operations.empty() && !printer.ended()) {
        broken("a drawn note was not ended");
    }
    if (!document.empty()) {
        broken("the document was kept");
    }
}

}  // namespace

void printNotes(std::span<const std::uint8_t> bytes) {
    ByteSource source(bytes);
    const auto& key = sessions[source.below(sessions.size())];
    const std::string number(source.of(noteNumbers));
    const bool raw = source.oneIn(16);
    const std::string xml = raw ? std::string(source.rest()) : madeNote(source);
    printOn(source.oneIn(2) ? Ladder::Issuing : Ladder::Reprint, key, xml, number);
}

}  // namespace tarn::fuzz
