// The command line of tarnimpressora.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "cli/command_line.h"
#include "dotmatrix/dialect.h"

namespace tarn::printer {

struct Options {
    std::string pdf;  // output files, empty where not asked for
    std::string png;
    std::string text;
    std::vector<std::string> jobs;
    bool bands = false;
    std::string title;
    dotmatrix::Dialect dialect;
    bool ownHeight = false;  // the form height, the pitch were given
    bool ownPitch = false;

    std::string form;  // name or file of the pre-printed form, empty for blank paper
    std::optional<std::int32_t> itemLines;
    bool ruler = false;
    bool listForms = false;
    std::string writtenForm;  // to be written to stdout as text

    std::optional<std::uint16_t> port;  // 0: any that is free
    std::string address = "127.0.0.1";
    std::string folder;        // whose jobs are printed, empty for none
    std::size_t endAfter = 0;  // jobs; 0: never

    std::string queue;                         // jobs are held for it, empty for none
    std::optional<std::int32_t> releaseAfter;  // seconds; nothing: when the user says so
    std::string held;                          // folder of the held jobs, empty for the usual
    bool noWindow = false;

    // Of jobs on one paper, when files are written; what comes behind them goes into other
    // files.
    std::int64_t rollBytes = std::int64_t{128} * 1024 * 1024;

    // What the user chose lies under all jobs, whatever they say.
    bool onePaper() const { return !form.empty() || ownHeight || ownPitch; }
    bool writes() const { return !pdf.empty() || !png.empty() || !text.empty(); }
    bool holds() const { return !queue.empty(); }
    bool waits() const { return port.has_value() || !folder.empty(); }
};

std::variant<Options, cli::Ending> readCommandLine(int argc, const char* const* argv);

}  // namespace tarn::printer
