// A PostgreSQL server of the test's own: in a folder of its own, reached through a
// socket there, gone with the test.
#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <string>

namespace tarn::practice::test {

class PrivatePostgres {
public:
    PrivatePostgres();  // fails the test when the server doesn't come up
    ~PrivatePostgres();
    PrivatePostgres(const PrivatePostgres&) = delete;
    PrivatePostgres& operator=(const PrivatePostgres&) = delete;

    // The address of an empty database, made by this call.
    std::string newDatabase();
    std::string address(const std::string& database) const;

private:
    bool run(const QString& program, const QStringList& arguments);
    QStringList asServerUser(const QString& program, const QStringList& arguments) const;
    void start();

    QTemporaryDir folder_;
    QString programs_;  // folder of initdb and postgres
    QProcess server_;
    int databases_ = 0;
};

}  // namespace tarn::practice::test
