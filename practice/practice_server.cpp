#include "practice/practice_server.h"

#include "practice/command.h"
#include "practice/executor.h"
#include "practice/practice_data.h"
#include "practice/schema.h"

namespace tarn::practice {
namespace {

QDate todayOf(const PracticeOptions& options) {
    return options.today ? QDate(options.today->year, options.today->month, options.today->day)
                         : QDate::currentDate();
}

void prepare(Database& database, const PracticeOptions& options) {
    if (checkSchema(database, options.database) == SchemaState::Ready) {
        return;
    }
    try {
        Transaction transaction(database);
        createSchema(database);
        insertPracticeData(database, options.seed, todayOf(options));
        transaction.commit();
    } catch (const DatabaseError& error) {
        throw DatabaseError("O banco de dados \"" + options.database +
                            "\" não pôde ser preparado. Confira se o arquivo é um banco do "
                            "servidor de prática e pode ser gravado, ou escolha outro com "
                            "--banco. " +
                            error.what());
    }
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

std::string PracticeServer::answer(std::string_view rawQuery, Encoding encoding) {
    const Query query(rawQuery);
    const Command* command = findCommand(query.command());
    if (command == nullptr) {
        return writeAnswer(unknownCommand(query), encoding);
    }
    Reply reply = state_->executor.run([&] {
        CommandContext context{*state_->database, todayOf(options_)};
        return command->handler(query, context);
    });
    return writeAnswer(answerElement(command->shape, std::move(reply)), encoding);
}

}  // namespace tarn::practice
