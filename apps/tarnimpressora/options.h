// The command line of tarnimpressora.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "dotmatrix/dialect.h"

namespace tarn::impressora {

struct Options {
    std::string pdf;  // output files, empty where not asked for
    std::string png;
    std::string text;
    std::vector<std::string> jobs;
    bool bands = false;
    std::string title;
    dotmatrix::Dialect dialect;
};

// Why the program ends here instead: the help was asked for, or the line is wrong.
struct Ending {
    int status = 0;
    std::string text;  // for stdout when status is 0, else for stderr; ends in LF
};

std::variant<Options, Ending> readCommandLine(int argc, const char* const* argv);

}  // namespace tarn::impressora
