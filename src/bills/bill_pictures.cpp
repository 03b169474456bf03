#include "bills/bill_pictures.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace tarn {
namespace {

std::optional<Picture> pictureOf(const std::string& folder, const char* file, const char* name) {
    const std::filesystem::path path = std::filesystem::path(folder) / file;
    std::error_code failure;
    if (!std::filesystem::is_regular_file(path, failure)) {
        return std::nullopt;
    }
    std::ifstream input(path, std::ios::binary);
    std::string bytes((std::istreambuf_iterator<char>(input)), std::istreambuf_iterator<char>());
    if (!input || bytes.empty()) {
        return std::nullopt;
    }
    return Picture(name, std::move(bytes));
}

}  // namespace

BillPictures loadPictures(const std::string& folder) {
    return {.picLogo = pictureOf(folder, "LOGODUPL.jpg", "picLogo"),
            .picVert = pictureOf(folder, "VERTDUPL.jpg", "picVert"),
            .picAss = pictureOf(folder, "ASSEMITENTE.jpg", "picAss")};
}

}  // namespace tarn
