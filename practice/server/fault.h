// Faults that the server commits on purpose, command by command, for tests and for
// clerks who are to see what their screens say then.
#pragma once

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "practice/server/page.h"
#include "practice/server/practice_server.h"

namespace tarn::practice {

enum class FaultKind {
    Refuse,           // a refusal in the command's own shape, no rows where it has none
    CloseBefore,      // no answer at all
    CloseWithin,      // the body ends half-way
    ResetBefore,      // the connection is reset without an answer,
    ResetWithinHead,  // within the head of the answer,
    ResetWithinBody,  // within its body
    NotFound,         // HTTP 404
    ServerError,      // HTTP 500
    Partial,          // the right answer, as a part of one: HTTP 206
    Empty,            // a body of no bytes
    Html,             // a page that is no XML
    CutXml,           // the first half, as if it were all
    NoDeclaration,    // well-formed, without the XML declaration
    WrongEncoding,    // declared as utf-8, written in windows-1252
    Slow,             // the right answer, late
    Huge              // the right answer, and blanks beyond 16 MiB behind it
};

struct Fault {
    FaultKind kind = FaultKind::Refuse;
    std::chrono::milliseconds wait{0};  // of Slow
};

class FaultPlan {
public:
    // "COMANDO=falha", as the command line has it. Gives the reason, for the user,
    // where it can't be taken. A command given twice keeps the last fault.
    std::optional<std::string> add(std::string_view text);
    // False where the catalogue has no such command; nothing is then taken.
    bool add(std::string_view command, const Fault& fault);
    std::optional<Fault> of(std::string_view command) const;
    bool empty() const { return faults_.empty(); }

private:
    std::map<std::string, Fault, std::less<>> faults_;  // by the catalogue's spelling
};

std::string faultNames();  // as the command line names them, separated by commas

// Refuse, CloseBefore, ResetBefore, NotFound and ServerError keep the command from being carried
// out; all others spoil its answer alone.
Page answeredPage(PracticeServer& server, const FaultPlan& plan, std::string_view rawQuery);

}  // namespace tarn::practice
