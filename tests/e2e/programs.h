// The programs as they are shipped, run to their end or served from. The paths come from
// the build.
#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <string>

namespace tarn::test {

inline constexpr int patienceMs = 120000;  // for a slow machine under sanitizers

inline std::string contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

// Runs a program to its end; its exit status, or -1 when it didn't end by itself.
inline int run(const char* program, const QStringList& arguments) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    const bool ended = process.waitForFinished(patienceMs);
    return ended && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

// The practice server's program; every one starts with the same data.
class Server {
public:
    void start(const QString& database = ":memory:") {
        process_.start(TARNSERVIDOR, {"--porta", "0", "--banco", database, "--hoje", "05/09/2012"});
        while (!process_.canReadLine() && process_.waitForReadyRead(patienceMs)) {
        }
        const QString line = QString::fromUtf8(process_.readLine()).trimmed();
        ASSERT_TRUE(line.startsWith("Servindo em ")) << line.toStdString();
        address_ = line.mid(12);
    }
    void stop() {
        process_.terminate();
        EXPECT_TRUE(process_.waitForFinished(patienceMs));
    }
    void kill() {
        process_.kill();
        EXPECT_TRUE(process_.waitForFinished(patienceMs));
    }
    const QString& address() const { return address_; }

private:
    QProcess process_;
    QString address_;
};

}  // namespace tarn::test
