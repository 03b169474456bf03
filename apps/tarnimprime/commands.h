// The commands of tarnimprime. Each declares itself on the command line and, when
// it is the one given, leaves what to do in `Choice`.
#pragma once

#include <CLI/CLI.hpp>
#include <cstdint>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "gateway/xml_document.h"

namespace tarn::print {

class PrintEnvironment;

inline constexpr int statusDone = 0;
inline constexpr int statusLoss = 4;   // a note that was looked over loses something
inline constexpr int statusUsage = 1;  // wrong usage, unreadable input, nowhere to print

// Ends the program with `statusUsage`; the text (Portuguese) goes to stderr.
class UsageError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Options that stand before or after any command.
struct GlobalOptions {
    std::optional<std::string> destination;  // directory for the jobs; none: the machine's printer
    std::string format = "pdf";              // of drawn pages in that directory
    std::string codePage = "1252";
};

struct Choice {
    std::function<void(PrintEnvironment&)> run;
    int status = statusDone;  // of a command that went through
};

void declareNote(CLI::App& app, Choice& choice);
void declareLadder(CLI::App& app, Choice& choice);
void declareBills(CLI::App& app, Choice& choice);
void declareOrder(CLI::App& app, Choice& choice);
void declareSlips(CLI::App& app, Choice& choice);
void declareLabels(CLI::App& app, Choice& choice);
void declareLabelSelection(CLI::App& app, Choice& choice);
void declareCheque(CLI::App& app, Choice& choice);
void declareRules(CLI::App& app, Choice& choice);

// A required code: an option when `name` begins with "--", a value otherwise. Zeros in
// front change nothing.
void declareCode(CLI::App& commands, const std::string& name, std::int32_t& code,
                 const std::string& description);

// A saved answer; UsageError when the file can't be read or isn't an answer.
XmlDocument readAnswer(const std::string& file);
// All of them, before anything is printed: a wrong file name must not spend paper.
std::vector<XmlDocument> readAnswers(const std::vector<std::string>& files);

// One line on stdout.
void show(std::string_view line);

}  // namespace tarn::print
