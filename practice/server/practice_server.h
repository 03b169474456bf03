// The practice server without its network: a query text in, an answer out.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "practice/commands/answer_writer.h"
#include "runtime/dates.h"

namespace tarn::practice {

struct Command;
class Query;

struct PracticeOptions {
    // Or a file, made when it isn't there, or the address of a PostgreSQL database.
    std::string database = ":memory:";
    std::uint64_t seed = 1;  // used where the database is empty
    Encoding encoding = Encoding::Windows1252;
    std::optional<Date> today = std::nullopt;  // the machine's day where left out
};

// Needs a QCoreApplication as long as it lives. May be asked from any thread:
// the requests are carried out one after the other.
class PracticeServer {
public:
    // Throws DatabaseError, with a text for the user, for a database that can't
    // be opened, is of another version or of another program.
    explicit PracticeServer(const PracticeOptions& options = {});
    ~PracticeServer();
    PracticeServer(const PracticeServer&) = delete;
    PracticeServer& operator=(const PracticeServer&) = delete;

    // The query from the command key on, as it came on the wire. Throws
    // DatabaseError where the database failed; nothing is then changed.
    std::string answer(std::string_view rawQuery) { return answer(rawQuery, encoding()); }
    std::string answer(std::string_view rawQuery, Encoding encoding);

    Encoding encoding() const { return options_.encoding; }

private:
    struct State;
    Reply carryOut(const Command& command, const Query& query);

    PracticeOptions options_;
    std::unique_ptr<State> state_;
};

}  // namespace tarn::practice
