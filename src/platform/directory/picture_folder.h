// Where the pictures of bills and receipts lie when nobody named a folder: decision D118.
#pragma once

#include <functional>
#include <string>

namespace tarn {

// On Windows a fixed folder. Elsewhere the user's, or where that isn't there but the
// machine's is, the machine's.
std::string usualPictureFolder();

// The rule of the systems that aren't Windows: `variable` gives an environment variable's
// value, empty where there is none; `isFolder` says what is there.
std::string pictureFolderBy(const std::function<std::string(const char*)>& variable,
                            const std::function<bool(const std::string&)>& isFolder);

}  // namespace tarn
