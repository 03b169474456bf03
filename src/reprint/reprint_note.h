// A fiscal note that exists on the server is printed again, or cancelled there. The
// number and the series are always those of the note that a search has found.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "gateway/sessao.h"

namespace tarn {

struct Environment;

// Adds an item for each series: its description, a gap that keeps the code out of
// sight, "|" and the code. False: the loading of the screen ends here.
bool loadSeries(Environment& environment, const Sessao& session, std::vector<std::string>& items);

// The code that an item carries: its second piece between bars.
std::string seriesCode(std::string_view item);

struct CancelReason {
    std::string description;
    std::optional<std::int32_t> id;  // without one it can't be chosen
};
std::vector<CancelReason> loadReasons(Environment& environment, const Sessao& session);

// What the user chose and typed.
struct NoteFields {
    std::optional<std::string> series;  // the chosen item, whole
    std::string number;
};

// What a search shows of a note.
struct FoundNote {
    std::string number;  // as it was typed
    std::string series;  // code
    std::string kind;    // code
    std::string kindText;
    std::string issued;  // dd/mm/yyyy
    std::string customer;
};

// Notes of this type are printed again, but never cancelled here.
inline constexpr std::string_view uncancellableKind = "D";

// Nothing: the user has been told.
std::optional<FoundNote> searchNote(Environment& environment, const Sessao& session,
                                    const NoteFields& fields);

// Before either job: true when series and number are there and a note has been found
// (`foundNote`, its number, isn't empty). Otherwise the user has been told.
bool noteSelected(Environment& environment, const NoteFields& fields, std::string_view foundNote);

// Fetches the note and prints it by the ladder of this screen. An error of the layout
// comes out as ErrorAfterNote (NoteState::Exists).
void reprintNote(Environment& environment, const Sessao& session, const std::string& number,
                 const std::string& series);

enum class Rebilling { With, Without };

struct CancelRequest {
    std::string number;
    std::string series;    // code
    std::string noteKind;  // code
    std::optional<Rebilling> option = std::nullopt;
    std::optional<std::int32_t> reason = std::nullopt;
};

// True: cancelled. The user has been told how it went in any case; nothing is asked
// before and nothing is sent twice.
bool cancelNote(Environment& environment, const Sessao& session, const CancelRequest& request);

}  // namespace tarn
