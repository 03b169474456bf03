#include "practice/database.h"

#include <QCoreApplication>
#include <QSqlError>
#include <QUuid>

namespace tarn::practice {
namespace {

QString qtText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

constexpr const char* kRefused = "O banco de dados recusou um comando";

[[noreturn]] void fail(const std::string& what, const QSqlError& error) {
    throw DatabaseError(what + ": " + error.text().trimmed().toStdString());
}

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

std::optional<std::int64_t> Rows::nullableInteger(int column) const {
    return isNull(column) ? std::nullopt : std::optional(integer(column));
}

Database::Database(const std::string& file)
    : name_(QUuid::createUuid().toString(QUuid::WithoutBraces)) {
    if (QCoreApplication::instance() == nullptr) {
        throw DatabaseError("O banco de dados só pode ser aberto com o programa já iniciado.");
    }
    bool opened = false;
    QSqlError error;
    {
        QSqlDatabase connection = QSqlDatabase::addDatabase("QSQLITE", name_);
        connection.setDatabaseName(qtText(file));
        opened = connection.open();
        error = connection.lastError();
        if (opened) {
            QSqlQuery(connection).exec("PRAGMA foreign_keys = ON");
        }
    }
    if (!opened) {
        QSqlDatabase::removeDatabase(name_);
        fail("Não foi possível abrir o banco de dados \"" + file +
                 "\". Confira o caminho e as permissões do arquivo, ou escolha outro com --banco",
             error);
    }
}

Database::~Database() {
    inserts_.clear();
    QSqlDatabase::database(name_, false).close();
    QSqlDatabase::removeDatabase(name_);
}

QSqlQuery Database::prepared(std::string_view sql) {
    QSqlQuery query(QSqlDatabase::database(name_, false));
    query.setForwardOnly(true);
    if (!query.prepare(qtText(sql))) {
        fail(kRefused, query.lastError());
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
        fail(kRefused, error);
    }
}

QSqlQuery Database::run(std::string_view sql, const std::vector<Bind>& binds) {
    QSqlQuery query = prepared(sql);
    execute(query, binds);
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
    std::string sql =
        "INSERT INTO " + std::string(table) + " (" + std::string(columns) + ") VALUES (";
    for (std::size_t i = 0; i < values.size(); ++i) {
        sql += i == 0 ? "?" : ", ?";
    }
    sql += ')';
    auto known = inserts_.find(sql);
    if (known == inserts_.end()) {
        known = inserts_.emplace(sql, prepared(sql)).first;
    }
    execute(known->second, values);
    known->second.finish();
}

bool Database::hasTable(std::string_view name) const {
    return QSqlDatabase::database(name_, false).tables().contains(qtText(name));
}

bool Database::isEmpty() const {
    return QSqlDatabase::database(name_, false).tables().isEmpty();
}

void Database::require(bool done, const char* what) {
    if (!done) {
        fail(what, QSqlDatabase::database(name_, false).lastError());
    }
}

Transaction::Transaction(Database& database) : database_(database) {
    database_.require(QSqlDatabase::database(database_.name_, false).transaction(),
                      "O banco de dados não abriu a transação");
}

Transaction::~Transaction() {
    if (open_) {
        QSqlDatabase::database(database_.name_, false).rollback();
    }
}

void Transaction::commit() {
    database_.require(QSqlDatabase::database(database_.name_, false).commit(),
                      "O banco de dados não gravou a transação");
    open_ = false;
}

}  // namespace tarn::practice
