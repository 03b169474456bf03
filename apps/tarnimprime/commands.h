// The commands of tarnimprime. Each declares itself on the command line and, when
// it is the one given, leaves what to do in `Choice`.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/command_line.h"
#include "gateway/xml_document.h"

namespace tarn::print {

class PrintEnvironment;

inline constexpr int statusRefused = 1;  // part of a drawn document, by the printer
inline constexpr int statusLoss = 4;     // a note that was looked over loses something

// Options that stand before or after any command.
struct GlobalOptions {
    std::optional<std::string> destination;  // directory for the jobs; none: the machine's printer
    std::string format = "pdf";              // of drawn pages in that directory
    CodePage codePage = CodePage::Page1252;
};

struct Choice {
    std::function<void(PrintEnvironment&)> run;
    int status = cli::statusDone;  // of a command that went through
};

void declareNote(cli::CommandLine& line, Choice& choice);
void declareLadder(cli::CommandLine& line, Choice& choice);
void declareBills(cli::CommandLine& line, Choice& choice);
void declareOrder(cli::CommandLine& line, Choice& choice);
void declareSlips(cli::CommandLine& line, Choice& choice);
void declareLabels(cli::CommandLine& line, Choice& choice);
void declareLabelSelection(cli::CommandLine& line, Choice& choice);
void declareCheque(cli::CommandLine& line, Choice& choice);
void declareRuler(cli::CommandLine& line, Choice& choice);
void declareRules(cli::CommandLine& line, Choice& choice);

// Leaves to `choice`, when `command` is the one given, to print what it asks for.
template <typename Request>
void printWhenChosen(cli::Command& command, Choice& choice, std::shared_ptr<Request> request,
                     void (*print)(const Request&, PrintEnvironment&)) {
    command.whenChosen([&choice, request, print] {
        choice.run = [request, print](PrintEnvironment& desk) { print(*request, desk); };
    });
}

// A saved answer; cli::WrongUsage when the file can't be read or isn't an answer.
XmlDocument readAnswer(const std::string& file);
// All of them, before anything is printed: a wrong file name must not spend paper.
std::vector<XmlDocument> readAnswers(const std::vector<std::string>& files);

// One line on stdout.
void show(std::string_view line);

}  // namespace tarn::print
