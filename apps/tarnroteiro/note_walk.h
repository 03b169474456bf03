// The main job: logon, list, an order that is refused, one without stock, and one that
// becomes a note; that note is printed again and cancelled.
#pragma once

#include <string>

#include "apps/tarnroteiro/walk.h"

namespace tarn {

struct WalkLogon {
    std::string server;
    std::string folder;  // of the pictures and of the printed jobs
    std::string company = "1361";
    std::string user = "clara";
    std::string password = "pratica";
};

// Each begins and ends at the main window. `input` must outlive the walk.
void walkLogon(Walk& walk, const WalkLogon& input);
void walkIssuing(Walk& walk);
void walkReprint(Walk& walk, const WalkLogon& input);
void walkCancellation(Walk& walk, const WalkLogon& input);

}  // namespace tarn
