#include "tests/house/rooms.h"

#include <optional>
#include <sstream>

namespace tarn::test {
namespace {

std::optional<QtUse> qtUseOf(std::string_view word) {
    if (word == "no-qt") {
        return QtUse::Nowhere;
    }
    if (word == "screens") {
        return QtUse::Screens;
    }
    return word == "qt" ? std::optional(QtUse::Everywhere) : std::nullopt;
}

// The longest room whose name begins the path; nullptr if none does.
const Rooms::value_type* roomOf(const Rooms& rooms, std::string_view path) {
    for (std::size_t end = path.rfind('/'); end != std::string_view::npos && end > 0;
         end = path.rfind('/', end - 1)) {
        const auto room = rooms.find(path.substr(0, end));
        if (room != rooms.end()) {
            return &*room;
        }
    }
    return nullptr;
}

class CycleSearch {
public:
    explicit CycleSearch(const Rooms& rooms) : rooms_(rooms) {}

    Complaints search() {
        for (const auto& [name, room] : rooms_) {
            visit(name);
        }
        return std::move(complaints_);
    }

private:
    void visit(const std::string& name) {
        for (std::size_t i = 0; i < path_.size(); ++i) {
            if (path_[i] == name) {
                complain(i);
                return;
            }
        }
        const auto room = rooms_.find(name);
        if (room == rooms_.end() || !done_.insert(name).second) {
            return;
        }
        path_.push_back(name);
        for (const std::string& next : room->second.mayInclude) {
            visit(next);
        }
        path_.pop_back();
    }

    void complain(std::size_t from) {
        std::string cycle = "cycle of rooms:";
        for (std::size_t i = from; i < path_.size(); ++i) {
            cycle.append(" ").append(path_[i]).append(" ->");
        }
        complaints_.push_back(cycle.append(" ").append(path_[from]));
    }

    const Rooms& rooms_;
    std::vector<std::string> path_;
    std::set<std::string> done_;
    Complaints complaints_;
};

bool isScreen(std::string_view path) {
    return path.substr(path.rfind('/') + 1).starts_with("frm_");
}

// Qt's own headers are named Q... or Qt.../...; Designer's are ui_*.h.
bool isQtHeader(std::string_view header) {
    return header.starts_with("Qt") || header.starts_with("ui_") ||
           (header.size() > 1 && header[0] == 'Q' && header[1] >= 'A' && header[1] <= 'Z');
}

std::string place(std::string_view path, const SourcePiece& piece) {
    return std::string(path).append(":").append(std::to_string(piece.line)).append(": ");
}

}  // namespace

Rooms readRooms(std::string_view table, Complaints& complaints) {
    Rooms rooms;
    std::istringstream lines{std::string(table)};
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line.substr(0, line.find('#')));
        std::string name;
        std::string qt;
        if (!(words >> name)) {
            continue;
        }
        const bool colon = static_cast<bool>(words >> qt) && qt.ends_with(':');
        const auto use =
            colon ? qtUseOf(std::string_view(qt).substr(0, qt.size() - 1)) : std::nullopt;
        if (!use) {
            complaints.push_back("not a line of the table of rooms: " + line);
            continue;
        }
        Room room{.qt = *use, .mayInclude = {}};
        for (std::string other; words >> other;) {
            room.mayInclude.insert(other);
        }
        if (!rooms.emplace(name, std::move(room)).second) {
            complaints.push_back("a room twice in the table: " + name);
        }
    }
    return rooms;
}

Complaints faultsOfTable(const Rooms& rooms) {
    Complaints complaints = CycleSearch(rooms).search();
    for (const auto& [name, room] : rooms) {
        for (const std::string& other : room.mayInclude) {
            if (!rooms.contains(other)) {
                complaints.push_back(name + " may include " + other + ", which is no room");
            }
        }
    }
    return complaints;
}

Complaints faultsOfFile(const Rooms& rooms, std::string_view path, const SourceText& source) {
    const std::string_view inTable = path.starts_with("src/") ? path.substr(4) : path;
    const auto* room = roomOf(rooms, inTable);
    if (room == nullptr) {
        return {std::string(path) + ": its room isn't in the table"};
    }
    Complaints complaints;
    for (const SourcePiece& include : source.inQuotes) {
        if (include.text.find('/') == std::string::npos) {
            continue;  // of its own folder, or made by the build
        }
        const auto* other = roomOf(rooms, include.text);
        if (other == nullptr) {
            complaints.push_back(place(path, include) + include.text +
                                 " is in no room of the table");
        } else if (other != room && !room->second.mayInclude.contains(other->first)) {
            complaints.push_back(place(path, include) + room->first + " -> " + other->first + " (" +
                                 include.text + ")");
        }
    }
    const bool qtAllowed = room->second.qt == QtUse::Everywhere ||
                           (room->second.qt == QtUse::Screens && isScreen(path));
    for (const auto* list : {&source.inBrackets, &source.inQuotes}) {
        for (const SourcePiece& include : *list) {
            if (!qtAllowed && isQtHeader(include.text)) {
                complaints.push_back(place(path, include) + "no Qt here: " + include.text);
            }
        }
    }
    return complaints;
}

}  // namespace tarn::test
