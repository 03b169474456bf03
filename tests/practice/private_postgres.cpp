#include "tests/practice/private_postgres.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QThread>

#include "practice/database/database.h"

namespace tarn::practice::test {
namespace {

constexpr int patience = 60000;  // milliseconds, for a slow machine
constexpr int turn = 20;
constexpr const char* unprivileged = "postgres";  // the package's own user

// The newest version installed.
QString programFolder() {
    const QDir versions("/usr/lib/postgresql");
    QString newest;
    int highest = 0;
    for (const QString& version : versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (version.toInt() > highest) {
            highest = version.toInt();
            newest = versions.filePath(version + "/bin");
        }
    }
    return newest;
}

bool giveAway(const QString& folder) {
    const passwd* user = getpwnam(unprivileged);
    return user != nullptr && chown(qPrintable(folder), user->pw_uid, user->pw_gid) == 0;
}

}  // namespace

PrivatePostgres::PrivatePostgres() : programs_(programFolder()) {
    if (programs_.isEmpty()) {
        ADD_FAILURE() << "there is no PostgreSQL here: install the package postgresql";
        return;
    }
    if (geteuid() == 0 && !giveAway(folder_.path())) {
        ADD_FAILURE() << "the user " << unprivileged << " is missing";
        return;
    }
    if (run(programs_ + "/initdb",
            {"--pgdata=" + folder_.filePath("data"), "--username=pratica", "--auth=trust",
             "--encoding=UTF8", "--locale=C", "--no-sync"})) {
        start();
    }
}

PrivatePostgres::~PrivatePostgres() {
    server_.terminate();
    if (server_.state() != QProcess::NotRunning && !server_.waitForFinished(patience)) {
        server_.kill();
        server_.waitForFinished(patience);
    }
}

// The server refuses to run as root, and ends with this process however it ends.
QStringList PrivatePostgres::asServerUser(const QString& program,
                                          const QStringList& arguments) const {
    QStringList words = {"--pdeathsig=QUIT"};
    if (geteuid() == 0) {
        const QString user = unprivileged;
        words += {"--reuid=" + user, "--regid=" + user, "--clear-groups"};
    }
    return words + QStringList{program} + arguments;
}

bool PrivatePostgres::run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setWorkingDirectory(folder_.path());
    process.start("setpriv", asServerUser(program, arguments));
    const bool done = process.waitForFinished(patience) && process.exitCode() == 0;
    EXPECT_TRUE(done) << process.readAll().toStdString() << process.errorString().toStdString();
    return done;
}

void PrivatePostgres::start() {
    const QString log = folder_.filePath("log");
    server_.setStandardErrorFile(log);
    server_.setWorkingDirectory(folder_.path());
    server_.start("setpriv",
                  asServerUser(programs_ + "/postgres",
                               {"-D", folder_.filePath("data"), "-c", "listen_addresses=", "-c",
                                "unix_socket_directories=" + folder_.path(), "-c", "fsync=off",
                                "-c", "autovacuum=off", "-c", "shared_buffers=16MB"}));
    for (int waited = 0; waited < patience; waited += turn) {
        try {
            Database database(address("postgres"));
            return;
        } catch (const DatabaseError&) {
            QThread::msleep(turn);  // until it takes connections
        }
    }
    QFile words(log);
    words.open(QIODevice::ReadOnly);
    ADD_FAILURE() << words.readAll().toStdString();
}

std::string PrivatePostgres::newDatabase() {
    const std::string name = "d" + std::to_string(++databases_);
    Database database(address("postgres"));
    database.execute("CREATE DATABASE " + name);
    return address(name);
}

std::string PrivatePostgres::address(const std::string& database) const {
    return "postgresql:///" + database + "?user=pratica&host=" + folder_.path().toStdString();
}

}  // namespace tarn::practice::test
