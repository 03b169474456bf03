// A command line told for other programs, from which manual pages and completions are made.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace tarn::cli {

// The texts that an option takes, where it takes no others.
using KnownWords = std::map<const CLI::Option*, std::vector<std::string>>;

// One thing a line, its parts behind tabs. First what the program is, then options, values
// by position and commands in the order of the help, each with the command that it belongs
// to (empty: the program's own), at last the lines of the footer:
//
//   program  NAME  ABOUT
//   command  NAME  ABOUT
//   option   COMMAND  NAME,NAME...  KIND  WORD,WORD...  required|repeated|...  ABOUT
//   value    COMMAND  NAME          KIND  WORD,WORD...  required|repeated|...  ABOUT
//   footer   LINE
//
// An option without a kind takes no value. What an option must or may be is parted by commas.
std::string described(const CLI::App& app, const KnownWords& words);

}  // namespace tarn::cli
