#include "practice/server/practice_server.h"

#include "practice/commands/command.h"
#include "practice/data/practice_data.h"
#include "practice/database/database_address.h"
#include "practice/database/schema.h"
#include "practice/server/executor.h"

namespace tarn::practice {
namespace {

QDate todayOf(const PracticeOptions& options) {
    return options.today ? QDate(options.today->year, options.today->month, options.today->day)
                         : QDate::currentDate();
}

// Two servers may begin on one empty database at the same moment: the second one
// waits for the first one's tables.
void takeTurn(Database& database) {
    constexpr std::int64_t key = 8610;
    if (database.isServer()) {
        database.select("SELECT pg_advisory_xact_lock(" + std::to_string(key) + ')');
    }
}

void prepare(Database& database, const PracticeOptions& options) {
    const std::string name = shownAddress(options.database);
    if (checkSchema(database, name) == SchemaState::Ready) {
        return;
    }
    try {
        Transaction transaction(database);
        takeTurn(database);
        if (database.isEmpty()) {
            createSchema(database);
            InsertBatch batch(database);
            insertPracticeData(database, options.seed, todayOf(options));
            batch.finish();
            if (database.isServer()) {
                database.execute("ANALYZE");  // its plans follow from what the tables hold
            }
            transaction.commit();
        }
    } catch (const DatabaseError& error) {
        throw DatabaseError("O banco de dados \"" + name +
                            "\" não pôde ser preparado. Confira se é um banco do servidor de "
                            "prática e pode ser gravado, ou escolha outro com --banco. " +
                            error.what());
    }
    checkSchema(database, name);
}

Element unknownCommand(const Query& query) {
    return statusAnswer(query.command().empty()
                            ? std::string("O pedido não traz comando.")
                            : "O comando \"" + query.command() +
                                  "\" não existe neste servidor. Atualize o sistema.");
}

}  // namespace

// The database belongs to the executor's thread from its making to its end.
struct PracticeServer::State {
    Executor executor;
    std::unique_ptr<Database> database;

    ~State() {
        executor.run([this] { database.reset(); });
    }
};

PracticeServer::PracticeServer(const PracticeOptions& options)
    : options_(options), state_(std::make_unique<State>()) {
    state_->executor.run([this] {
        state_->database = std::make_unique<Database>(options_.database);
        prepare(*state_->database, options_);
    });
}

PracticeServer::~PracticeServer() = default;

// A command undone because of another connection's is carried out again. Where the
// connection itself is gone, the next request finds a new one.
Reply PracticeServer::carryOut(const Command& command, const Query& query) {
    constexpr int attempts = 5;
    for (int attempt = 1;; ++attempt) {
        try {
            if (!state_->database) {
                state_->database = std::make_unique<Database>(options_.database);
            }
            CommandContext context{*state_->database, todayOf(options_)};
            return command.handler(query, context);
        } catch (const Refusal& refusal) {
            return refusalAnswer(command.shape, refusal.what());
        } catch (const DatabaseConflict&) {
            if (attempt == attempts) {
                throw;
            }
        } catch (const DatabaseError&) {
            if (state_->database && state_->database->isServer() && !state_->database->isAlive()) {
                state_->database.reset();
            }
            throw;
        }
    }
}

std::string PracticeServer::answer(std::string_view rawQuery, Encoding encoding) {
    const Query query(rawQuery);
    const Command* command = findCommand(query.command());
    if (command == nullptr) {
        return writeAnswer(unknownCommand(query), encoding);
    }
    Reply reply = state_->executor.run([&] { return carryOut(*command, query); });
    return writeAnswer(answerElement(std::move(reply)), encoding);
}

}  // namespace tarn::practice
