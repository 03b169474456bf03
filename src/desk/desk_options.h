// The desk's command line.
#pragma once

#include <string>
#include <variant>

#include "cli/command_line.h"
#include "runtime/code_page.h"

namespace tarn {

struct Options {
    std::string baseUrl;          // ends in "?"
    bool serverReplaced = false;  // baseUrl isn't the build's own
    std::string virtualPrinter;   // directory; empty: the machine's printer
    CodePage codePage = CodePage::Page1252;
    std::string pictureFolder;  // empty: the usual one
    bool labelSelection = false;
};

// `environmentServer` is what TARN_SERVIDOR holds, `fallback` the address of the build.
std::variant<Options, cli::Ending> readOptions(int argc, const char* const* argv,
                                               const std::string& environmentServer,
                                               const std::string& fallback);

}  // namespace tarn
