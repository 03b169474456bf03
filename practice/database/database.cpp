#include "practice/database/database.h"

#include <QCoreApplication>
#include <QSqlError>
#include <QUuid>
#include <algorithm>
#include <array>

#include "practice/database/database_address.h"

namespace tarn::practice {
namespace {

QString qtText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

constexpr const char* refused = "O banco de dados recusou um comando";

// Deadlock and serialization failure of PostgreSQL; a file busy for too long.
constexpr std::array conflicts = {"40P01", "40001", "5", "517"};

[[noreturn]] void fail(const std::string& what, const QSqlError& error) {
    const std::string text = what + ": " + error.text().trimmed().toStdString();
    for (const char* conflict : conflicts) {
        if (error.nativeErrorCode() == conflict) {
            throw DatabaseConflict(text);
        }
    }
    throw DatabaseError(text);
}

constexpr std::size_t rowsAtOnce = 400;

std::string placeholders(std::size_t count) {  // "(?, ?)"
    std::string text = "(";
    for (std::size_t i = 0; i < count; ++i) {
        text += i == 0 ? "?" : ", ?";
    }
    return text + ')';
}

void setUpFile(QSqlDatabase& connection, const std::string& file) {
    connection.setDatabaseName(qtText(file));
}

void setUpServer(QSqlDatabase& connection, const ServerAddress& address) {
    connection.setHostName(qtText(address.host));
    connection.setDatabaseName(qtText(address.database));
    connection.setUserName(qtText(address.user));
    connection.setPassword(qtText(address.password));
    connection.setPort(address.port);
    connection.setConnectOptions(qtText(address.options));
}

constexpr const char* adviceOnFile =
    "Confira o caminho e as permissões do arquivo, ou escolha outro com --banco";
constexpr const char* adviceOnServer =
    "Confira se o servidor PostgreSQL está no ar, o nome do banco, o usuário e a senha em --banco";

}  // namespace

// An empty QString that isn't null, so that the empty text isn't bound as null.
Bind::Bind(std::string_view text) : value_(text.empty() ? QString("") : qtText(text)) {}

Bind::Bind(const char* text) {
    if (text != nullptr) {
        *this = Bind(std::string_view(text));
    }
}

std::optional<std::string> Rows::nullableText(int column) const {
    return isNull(column) ? std::nullopt : std::optional(text(column));
}

Database::Database(const std::string& address)
    : name_(QUuid::createUuid().toString(QUuid::WithoutBraces)), server_(isServerAddress(address)) {
    if (QCoreApplication::instance() == nullptr) {
        throw DatabaseError("O banco de dados só pode ser aberto com o programa já iniciado.");
    }
    const char* driver = server_ ? "QPSQL" : "QSQLITE";
    if (!QSqlDatabase::isDriverAvailable(driver)) {
        throw DatabaseError(std::string("Falta o driver ") + driver + " do Qt. Instale o pacote " +
                            (server_ ? "libqt6sql6-psql." : "libqt6sql6-sqlite."));
    }
    bool opened = false;
    QSqlError error;
    {
        QSqlDatabase connection = QSqlDatabase::addDatabase(driver, name_);
        if (server_) {
            setUpServer(connection, serverAddress(address));
        } else {
            setUpFile(connection, address);
        }
        opened = connection.open();
        error = connection.lastError();
        if (opened && !server_) {
            QSqlQuery(connection).exec("PRAGMA foreign_keys = ON");
        }
    }
    if (!opened) {
        QSqlDatabase::removeDatabase(name_);
        fail("Não foi possível abrir o banco de dados \"" + shownAddress(address) + "\". " +
                 (server_ ? adviceOnServer : adviceOnFile),
             error);
    }
}

Database::~Database() {
    QSqlDatabase::database(name_, false).close();
    QSqlDatabase::removeDatabase(name_);
}

// On a server the whole result comes at once: another statement may run before it
// is read.
QSqlQuery Database::prepared(std::string_view sql) {
    QSqlQuery query(QSqlDatabase::database(name_, false));
    query.setForwardOnly(!server_);
    if (!query.prepare(qtText(sql))) {
        fail(refused, query.lastError());
    }
    return query;
}

void Database::execute(QSqlQuery& query, const std::vector<Bind>& binds) {
    for (std::size_t i = 0; i < binds.size(); ++i) {
        query.bindValue(static_cast<int>(i), binds[i].value());
    }
    if (!query.exec()) {
        const QSqlError error = query.lastError();
        query.finish();
        fail(refused, error);
    }
}

QSqlQuery Database::run(std::string_view sql, const std::vector<Bind>& binds) {
    if (!binds.empty()) {
        QSqlQuery query = prepared(sql);
        execute(query, binds);
        return query;
    }
    QSqlQuery query(QSqlDatabase::database(name_, false));
    query.setForwardOnly(!server_);
    if (!query.exec(qtText(sql))) {
        fail(refused, query.lastError());
    }
    return query;
}

Rows Database::select(std::string_view sql, const std::vector<Bind>& binds) {
    return Rows(run(sql, binds));
}

int Database::execute(std::string_view sql, const std::vector<Bind>& binds) {
    return run(sql, binds).numRowsAffected();
}

void Database::insert(std::string_view table, std::string_view columns,
                      const std::vector<Bind>& values) {
    const std::string head =
        "INSERT INTO " + std::string(table) + " (" + std::string(columns) + ") VALUES ";
    if (!batching_) {
        execute(head + placeholders(values.size()), values);
        return;
    }
    auto pending = std::ranges::find(pending_, head, &Pending::head);
    if (pending == pending_.end()) {
        pending = pending_.insert(pending, {head, values.size(), {}, std::nullopt});
    }
    if (!server_) {
        if (!pending->oneRow) {
            pending->oneRow = prepared(head + placeholders(values.size()));
        }
        execute(*pending->oneRow, values);
        pending->oneRow->finish();
        return;
    }
    pending->values.insert(pending->values.end(), values.begin(), values.end());
    if (++pendingRows_ >= rowsAtOnce) {
        flush();
    }
}

void Database::flush() {
    for (Pending& pending : pending_) {
        if (pending.values.empty()) {
            continue;
        }
        const std::string row = placeholders(pending.width);
        std::string sql = pending.head + row;
        for (std::size_t left = pending.values.size() / pending.width; left > 1; --left) {
            sql += ", " + row;
        }
        execute(sql, pending.values);
        pending.values.clear();
    }
    pendingRows_ = 0;
}

InsertBatch::InsertBatch(Database& database) : database_(database) {
    database_.batching_ = true;
}

InsertBatch::~InsertBatch() {
    database_.batching_ = false;
    database_.pendingRows_ = 0;
    database_.pending_.clear();
}

void InsertBatch::finish() {
    database_.flush();
}

bool Database::hasTable(std::string_view name) const {
    return QSqlDatabase::database(name_, false).tables().contains(qtText(name));
}

bool Database::isEmpty() const {
    return QSqlDatabase::database(name_, false).tables().isEmpty();
}

bool Database::isAlive() {
    const QSqlDatabase connection = QSqlDatabase::database(name_, false);
    return connection.isOpen() && QSqlQuery(connection).exec("SELECT 1");
}

void Database::command(const char* sql, const char* what) {
    QSqlQuery query(QSqlDatabase::database(name_, false));
    if (!query.exec(sql)) {
        fail(what, query.lastError());
    }
}

Transaction::Transaction(Database& database) : database_(database) {
    database_.command(database_.isServer() ? "BEGIN" : "BEGIN IMMEDIATE",
                      "O banco de dados não abriu a transação");
}

Transaction::~Transaction() {
    if (open_) {
        QSqlQuery(QSqlDatabase::database(database_.name_, false)).exec("ROLLBACK");
    }
}

void Transaction::commit() {
    database_.command("COMMIT", "O banco de dados não gravou a transação");
    open_ = false;
}

}  // namespace tarn::practice
