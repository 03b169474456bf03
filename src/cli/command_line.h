// The command line of every program, in Portuguese: its options, its help and version, and
// what is wrong with it.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "runtime/code_page.h"

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace tarn::cli {

inline constexpr int statusDone = 0;
inline constexpr int statusUsage = 1;

// What the user gave won't do; the text is a sentence in Portuguese.
class WrongUsage : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

// `option` asks for `wanted` ("um número inteiro"), and `text` isn't that.
[[noreturn]] void refuseValue(const std::string& option, const std::string& wanted,
                              const std::string& text);

// The program ends instead of doing its work.
struct Ending {
    int status = statusDone;
    std::string text;  // for stdout when the status is 0, else for stderr; ends in LF
};

// Says it; its status.
int say(const Ending& ending);

class Option {
public:
    explicit Option(CLI::Option& option) : option_(&option) {}

    Option& required();
    // What stands for the value in the help.
    Option& called(const std::string& kind);

private:
    CLI::Option* option_;
};

// Options of a program or of one of its commands. Each is read into a variable of the caller,
// which must live until the line is read and keeps what it holds where the option isn't given.
// A name without "--" is that of a value by position.
class Command {
public:
    struct State;  // of the whole line
    Command(std::shared_ptr<State> state, CLI::App& app);

    // Throws WrongUsage for a text that won't do.
    using Reader = std::function<void(const std::string& text)>;
    Option value(const std::string& name, const std::string& about, Reader read);

    Option text(const std::string& name, std::string& into, const std::string& about);
    Option text(const std::string& name, std::optional<std::string>& into,
                const std::string& about);
    // By position one or more; an option can be given again, with one value each time.
    Option texts(const std::string& name, std::vector<std::string>& into, const std::string& about);
    // Zeros in front change nothing.
    Option whole(const std::string& name, std::int32_t& into, const std::string& about);
    Option whole(const std::string& name, std::optional<std::int32_t>& into, std::int32_t least,
                 std::int32_t most, const std::string& about);
    Option oneOf(const std::string& name, std::string& into, const std::vector<std::string>& words,
                 const std::string& about);
    Option flag(const std::string& name, bool& into, const std::string& about);
    // `--pagina-de-codigo`
    Option codePage(CodePage& into);

    // For a command: called when it is the one given.
    void whenChosen(std::function<void()> chosen);

protected:
    std::shared_ptr<State> state_;
    CLI::App* app_;

private:
    // `words` are told to who completes the line; empty: any text may do.
    Option valueAmong(const std::vector<std::string>& words, const std::string& name,
                      const std::string& about, Reader read);
};

class CommandLine : public Command {
public:
    CommandLine(const std::string& program, const std::string& about);

    // Where a program has commands, one must be given.
    Command command(const std::string& name, const std::string& about);
    // Said at the end of the help.
    void footer(const std::string& text);

    // Nothing: the program goes on.
    std::optional<Ending> read(int argc, const char* const* argv);
    // For what only the program can tell of its options.
    Ending wrong(const std::string& sentence) const;

private:
    explicit CommandLine(const std::shared_ptr<State>& state);
    void parse(int argc, const char* const* argv);
    std::string missing() const;
    std::string unknown() const;
};

}  // namespace tarn::cli
