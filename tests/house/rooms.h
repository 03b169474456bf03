// The table of rooms (src/rooms.txt) and what breaks it.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tests/house/source_text.h"

namespace tarn::test {

enum class QtUse { Nowhere, Screens, Everywhere };

struct Room {
    QtUse qt = QtUse::Nowhere;
    std::set<std::string, std::less<>> mayInclude;
};

// By name: the folder below src/ ("notes", "platform/qt"), or "apps/NAME",
// "practice/NAME". A file belongs to the room with the longest fitting name.
using Rooms = std::map<std::string, Room, std::less<>>;

using Complaints = std::vector<std::string>;

// One room a line: name, "qt", "screens" or "no-qt", ":", the rooms it may
// include; "#" begins a comment. What can't be read is a complaint.
Rooms readRooms(std::string_view table, Complaints& complaints);

// Unknown rooms among the arrows, and rooms that reach themselves.
Complaints faultsOfTable(const Rooms& rooms);

// What one source file breaks: a room that isn't in the table, an arrow that
// isn't, a Qt header where there is none to be.
Complaints faultsOfFile(const Rooms& rooms, std::string_view path, const SourceText& source);

}  // namespace tarn::test
