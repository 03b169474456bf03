#include <array>
#include <string>
#include <utility>

#include "gateway/xml_document.h"
#include "notes/print_note.h"
#include "runtime/runtime_error.h"
#include "tests/fuzz/byte_source.h"
#include "tests/fuzz/checked_press.h"
#include "tests/fuzz/fuzz_entries.h"
#include "tests/fuzz/made_notes.h"

namespace tarn::fuzz {

namespace {

using namespace std::string_view_literals;

constexpr std::array noteNumbers{"4321"sv, "0"sv,   "1234567"sv,
                                 ""sv,     "12a"sv, "99999999999999999999"sv};

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
    CheckedPress press;
    Sessao session;
    session.NCOMPANYCODE = key.first;
    session.ID_ETB_TARN = key.second;
    try {
        printNote(ladder, press.environment, session, document, number);
    } catch (const RuntimeError&) {
        return;
    }
    if (!press.spooler.closed()) {
        broken("a note printed to its end left its job open");
    }
    if (press.printer.used() && !press.printer.ended()) {
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
