// The address of the server's one page, as it is given and as it is shown.
#pragma once

#include <string>
#include <string_view>

namespace tarn {

struct ServerAddress {
    std::string url;      // ends in "?" or "&", a query follows at once; empty: refused
    std::string refusal;  // why, Portuguese: what the address must be
};

// What was typed as requests need it. A bare server ("http://host:8610") or a folder of it
// gets the path of the one page, the address of a page its question mark.
ServerAddress serverAddress(const std::string& typed);

// The server as a clerk may see it: without a user's name and password, and without the
// page where it is the usual one.
std::string shownAddress(std::string_view url);

}  // namespace tarn
