// The run-time error: what a routine raises when it meets a value or an object
// that it can't work with. Nothing catches it but the event loop and main, which
// show the report and end the program with exit status 3.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace tarn {

enum class RuntimeErrorCode : int {
    InvalidArgument = 5,
    Overflow = 6,
    OutOfRange = 9,
    TypeMismatch = 13,
    ObjectVariable = 91,
    ObjectRequired = 424,
};

class RuntimeError : public std::runtime_error {
public:
    // Describes itself in Portuguese by its number.
    explicit RuntimeError(RuntimeErrorCode number);
    // `detail` (Portuguese, UTF-8) follows the number's own description after ": ".
    RuntimeError(RuntimeErrorCode number, std::string_view detail);

    RuntimeErrorCode number() const noexcept { return number_; }
    std::string description() const { return what(); }

private:
    RuntimeErrorCode number_;
};

// What is known of the fiscal note that an error hit: it was asked of the server, or it had
// been made there before.
enum class NoteState { MayExist, Exists };
struct NoteAffected {
    NoteState note;
};

// What every error is that comes after a fiscal note was asked of the server: it may exist
// there, unprinted.
class ErrorAfterNote : public RuntimeError, public NoteAffected {
public:
    explicit ErrorAfterNote(const RuntimeError& error, NoteState state = NoteState::MayExist)
        : RuntimeError(error), NoteAffected{state} {}
};
class UnexpectedAfterNote : public std::runtime_error, public NoteAffected {
public:
    explicit UnexpectedAfterNote(const std::exception& error, NoteState state = NoteState::MayExist)
        : std::runtime_error(error.what()), NoteAffected{state} {}
};

// Runs what follows the request for a note; its errors come out as one of these two.
template <typename Routine>
auto afterNote(const Routine& routine, NoteState state = NoteState::MayExist) {
    try {
        return routine();
    } catch (const RuntimeError& error) {
        throw ErrorAfterNote(error, state);
    } catch (const std::exception& error) {
        throw UnexpectedAfterNote(error, state);
    }
}

inline constexpr int runtimeErrorStatus = 3;  // exit status of a program that such an error ended

// "Erro em tempo de execução 'N':", two line ends (character 13), the description and a
// full stop: what every report of such an error begins with.
std::string failureText(const RuntimeError& error);

// Text of the box that ends the program: failureText, or for any other exception a sentence
// without the words of the library that it came from; and how to print a note that may exist
// on the server.
std::string reportText(const std::exception& error);

}  // namespace tarn
