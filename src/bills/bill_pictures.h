// The three pictures of a page, read from files.
#pragma once

#include <optional>
#include <string>

#include "platform/print_operation.h"

namespace tarn {

// Without its file a picture is nothing, and the page has none there.
struct BillPictures {
    std::optional<Picture> picLogo;
    std::optional<Picture> picVert;
    std::optional<Picture> picAss;
};

// LOGODUPL.jpg, VERTDUPL.jpg and ASSEMITENTE.jpg of that folder. A file that can't be
// read is no failure.
BillPictures loadPictures(const std::string& folder);

}  // namespace tarn
