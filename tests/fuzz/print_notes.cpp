#include <algorithm>
#include <array>
#include <cctype>
#include <string>
#include <utility>

#include "gateway/xml_document.h"
#include "notes/print_note.h"
#include "platform/environment.h"
#include "runtime/runtime_error.h"
#include "tests/fuzz/byte_source.h"
#include "tests/fuzz/checking_spooler.h"
#include "tests/fuzz/fuzz_entries.h"
#include "tests/notes/plain_note.h"
#include "tests/support/fixed_machine.h"
#include "tests/support/recording_printer.h"
#include "tests/support/scripted_boxes.h"
#include "tests/support/scripted_loader.h"

namespace tarn::fuzz {

namespace {

using namespace std::string_view_literals;

constexpr std::array numbers{"0"sv,
                             "1"sv,
                             "-1"sv,
                             ""sv,
                             " "sv,
                             "0.00"sv,
                             "-0.005"sv,
                             "1.005"sv,
                             "12.500"sv,
                             "1234567.891"sv,
                             "99999999999999999999.99"sv,
                             "1e308"sv,
                             "1E5"sv,
                             "-1e-9"sv,
                             "NaN"sv,
                             "inf"sv,
                             "0x10"sv,
                             "1,5"sv,
                             "1.234,56"sv,
                             "1.2.3"sv,
                             "1,2,3"sv,
                             ".5"sv,
                             "5."sv,
                             ","sv,
                             "."sv,
                             "-"sv,
                             "+7"sv,
                             " 7 "sv,
                             "007"sv,
                             "32767"sv,
                             "32768"sv,
                             "-32768"sv,
                             "65536"sv,
                             "2147483648"sv,
                             "9"sv,
                             "4"sv,
                             "6"sv,
                             "12"sv,
                             "13"sv,
                             "2.5"sv,
                             "9.99"sv,
                             "0000000000000000000000000000000000000001"sv,
                             "12345678901234567890123456789"sv,
                             "\xD9\xA3"sv,
                             "1\xC2\xA0"
                             "000"sv,
                             "P"sv,
                             "S"sv,
                             "E"sv,
                             "F"sv,
                             "p"sv};

// Control characters that XML can carry, the block that printers take for
// commands, characters off every page, and malformed ends of words.
constexpr std::array pieces{"A"sv,
                            " "sv,
                            "\n"sv,
                            "\r"sv,
                            "\t"sv,
                            "\x7F"sv,
                            "\xC2\x80"sv,
                            "\xC2\x9B"sv,
                            "\xC2\x92"sv,
                            "\xC2\xA0"sv,
                            "\xC2\xAD"sv,
                            "\xE2\x80\x99"sv,
                            "\xE2\x82\xAC"sv,
                            "\xE2\x80\xA8"sv,
                            "\xF0\x9F\x98\x80"sv,
                            "\xC3\x87"sv,
                            "e\xCC\x81"sv,
                            "\\"sv,
                            " \\\\ "sv,
                            "&"sv,
                            "<"sv,
                            "\""sv,
                            "'"sv,
                            "|"sv,
                            "0"sv,
                            "\xEF\xBB\xBF"sv,
                            "\xEF\xBF\xBD"sv,
                            "OBS.: "sv,
                            "abcdefghijklmnopqrstuvwxyz0123456789"sv};

std::string wildText(ByteSource& source) {
    std::string text;
    const std::size_t count = source.below(40);
    for (std::size_t i = 0; i < count; ++i) {
        text += source.of(pieces);
    }
    if (source.oneIn(8) && !text.empty()) {
        while (text.size() < 700) {
            text += text;
        }
    }
    return text;
}

std::string recased(std::string name, ByteSource& source) {
    const bool upper = source.oneIn(2);
    std::transform(name.begin(), name.end(), name.begin(), [&](unsigned char c) {
        return static_cast<char>(upper ? std::toupper(c) : std::tolower(c));
    });
    return name;
}

constexpr std::array noteNumbers{"4321"sv, "0"sv,   "1234567"sv,
                                 ""sv,     "12a"sv, "99999999999999999999"sv};

// Leaves most attributes alone, so that most notes reach their foot.
void mutate(test::Attributes& row, ByteSource& source, std::size_t rarity) {
    test::Attributes changed;
    for (auto& [name, value] : row) {
        if (!source.oneIn(rarity)) {
            changed.emplace(name, value);
            continue;
        }
        switch (source.below(6)) {
            case 0:
                changed.emplace(name, source.of(numbers));
                break;
            case 1:
                changed.emplace(name, wildText(source));
                break;
            case 2:
                break;
            case 3:
                changed.emplace(name, "");
                break;
            case 4:
                changed.emplace(recased(name, source), value);
                break;
            default:
                changed.emplace(name, std::string(value).append(source.of(numbers)));
                break;
        }
    }
    row = std::move(changed);
}

std::string madeNote(ByteSource& source) {
    test::NoteCase note;
    note.parcels = static_cast<int>(source.below(16));
    note.items = static_cast<int>(1 + source.below(source.oneIn(4) ? 40 : 9));
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
            item.emplace("VL_LIQ_IT", source.of(numbers));
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
    for (const Ladder ladder : {Ladder::Issuing, Ladder::Reprint}) {
        printOn(ladder, key, xml, number);
    }
}

}  // namespace tarn::fuzz
