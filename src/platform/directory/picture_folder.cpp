#include "platform/directory/picture_folder.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace tarn {
namespace {

constexpr char below[] = "/tarnemissao/figuras";

// A relative path there is to be ignored, by the rules of such folders.
std::string usersData(const std::function<std::string(const char*)>& variable) {
    const std::string named = variable("XDG_DATA_HOME");
    return named.starts_with('/') ? named : variable("HOME") + "/.local/share";
}

}  // namespace

std::string pictureFolderBy(const std::function<std::string(const char*)>& variable,
                            const std::function<bool(const std::string&)>& isFolder) {
    const std::string users = usersData(variable) + below;
    const std::string machines = std::string("/usr/share") + below;
    return !isFolder(users) && isFolder(machines) ? machines : users;
}

#ifdef _WIN32

std::string usualPictureFolder() {
    return "C:/TARN/";
}

#else

std::string usualPictureFolder() {
    return pictureFolderBy(
        [](const char* name) {
            const char* value = std::getenv(name);
            return std::string(value == nullptr ? "" : value);
        },
        [](const std::string& folder) {
            std::error_code failure;
            return std::filesystem::is_directory(folder, failure);
        });
}

#endif

}  // namespace tarn
