// What the interpreter did not simply print: kept so that the designer of a form
// sees which bytes a printer would drop or take otherwise.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tarn::dotmatrix {

enum class NoticeKind {
    UnknownCommand,   // escape pair dropped; what follows it prints
    UnknownControl,   // control byte dropped
    RepeatedEscape,   // ESC ESC: the second one opens the command
    NotDrawn,         // known command, taken with its parameters, without effect here
    BadParameter,     // known command whose parameter is out of range; dropped
    UpperControl,     // byte 80-9F taken for the control code 128 below it
    PastRightMargin,  // the line is full; the printer goes on in the next one
};

struct Notice {
    NoticeKind kind{};
    std::size_t job = 0;  // from 1, as line and column
    std::size_t jobLine = 0;
    std::size_t column = 0;  // where the next character would print
    std::string bytes;       // the command as it came, without graphics data

    bool operator==(const Notice&) const = default;
};

// Keeps the first notices and counts the rest, so that a job of rubbish doesn't fill
// the memory.
class NoticeLog {
public:
    static constexpr std::size_t mostKept = 1000;

    void add(Notice notice);
    const std::vector<Notice>& kept() const { return kept_; }
    std::size_t total() const { return total_; }

private:
    std::vector<Notice> kept_;
    std::size_t total_ = 0;
};

// One line in Portuguese for the user, without a line end.
std::string describe(const Notice& notice);

}  // namespace tarn::dotmatrix
