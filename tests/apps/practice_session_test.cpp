// A practice session as a whole, its pieces the programs as they are shipped.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <algorithm>
#include <csignal>
#include <vector>

namespace tarn::test {
namespace {

constexpr int patienceMs = 30000;  // for a slow machine

// A running program and how it was called.
struct Child {
    pid_t pid = 0;
    QStringList words;

    QString program() const { return QFileInfo(words.value(0)).fileName(); }
    QString valueOf(const QString& option) const { return words.value(words.indexOf(option) + 1); }
};

QByteArray contentsOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool runs(pid_t pid) {
    const QByteArray status = contentsOf(QStringLiteral("/proc/%1/stat").arg(pid));
    return !status.isEmpty() && status.mid(status.lastIndexOf(')') + 2, 1) != "Z";
}

class PracticeSession : public testing::Test {
protected:
    ~PracticeSession() override {
        session.kill();
        session.waitForFinished(patienceMs);
    }

    void begin(QProcess& process) const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        process.setProcessEnvironment(environment);
        process.start(TARNEMISSAO_TREINO, {"--pasta", folder.path()});
    }

    // Its pieces run.
    void open() {
        begin(session);
        ASSERT_TRUE(QTest::qWaitFor([this] { return children().size() == 3; }, patienceMs));
        ASSERT_TRUE(says(session, QProcess::StandardOutput, "Entre com empresa 1361"));
    }

    // The process says the text on that channel.
    static bool says(QProcess& process, QProcess::ProcessChannel channel, const QByteArray& text) {
        QByteArray all;
        process.setReadChannel(channel);
        return QTest::qWaitFor(
            [&] {
                all += process.readAll();
                return all.contains(text);
            },
            patienceMs);
    }

    std::vector<Child> children() const {
        const auto id = session.processId();
        std::vector<Child> all;
        for (const QByteArray& pid :
             contentsOf(QStringLiteral("/proc/%1/task/%1/children").arg(id)).split(' ')) {
            const QStringList words =
                QString::fromUtf8(
                    contentsOf(QStringLiteral("/proc/%1/cmdline").arg(QString(pid.trimmed()))))
                    .split(u'\0');
            // Between fork and exec a child is still called as its parent.
            if (words.size() > 1 && !words[0].endsWith(QStringLiteral("-treino"))) {
                all.push_back({static_cast<pid_t>(pid.toLong()), words});
            }
        }
        return all;
    }
    Child child(const QString& program) const {
        for (const Child& one : children()) {
            if (one.program() == program) {
                return one;
            }
        }
        return {};
    }
    // Breaks the piece; another one that came for it.
    Child broken(const QString& program) {
        const Child before = child(program);
        EXPECT_GT(before.pid, 0) << program.toStdString();
        kill(before.pid, SIGKILL);
        Child after;
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                after = child(program);
                return after.pid > 0 && after.pid != before.pid;
            },
            patienceMs))
            << program.toStdString();
        return after;
    }
    static bool gone(const std::vector<Child>& pieces) {
        return QTest::qWaitFor(
            [&pieces] {
                return std::ranges::none_of(pieces, [](const Child& one) { return runs(one.pid); });
            },
            patienceMs);
    }
    void write(const QString& name, const QByteArray& contents) const {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
    }
    bool has(const QString& name) const { return QFile::exists(folder.filePath(name)); }
    bool ends() {
        return session.state() == QProcess::NotRunning || session.waitForFinished(patienceMs);
    }

    QTemporaryDir folder;
    QProcess session;
};

TEST_F(PracticeSession, EndsWithTheDeskAndNothingOfItGoesOn) {
    open();
    const std::vector<Child> pieces = children();
    EXPECT_TRUE(
        child("tarnemissao").valueOf("--servidor").startsWith(QStringLiteral("http://127.0.0.1:")));
    EXPECT_EQ(child("tarnemissao").valueOf("--impressora-virtual"), folder.path());
    EXPECT_EQ(child("tarnimpressora").valueOf("--pasta"), folder.path());
    kill(child("tarnemissao").pid, SIGTERM);
    ASSERT_TRUE(ends());
    EXPECT_EQ(session.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(session.exitCode(), 0);
    EXPECT_TRUE(gone(pieces));
}

TEST_F(PracticeSession, ABrokenServerComesBackAtItsAddressWithItsData) {
    open();
    const QString address = child("tarnemissao").valueOf("--servidor");
    const QString data = child("tarnservidor").valueOf("--banco");
    const pid_t desk = child("tarnemissao").pid;
    const Child again = broken("tarnservidor");
    const auto port = static_cast<quint16>(QUrl(address).port());
    EXPECT_EQ(again.valueOf("--porta"), QString::number(port));
    EXPECT_EQ(again.valueOf("--banco"), data);
    EXPECT_TRUE(QTest::qWaitFor(
        [port] {
            QTcpSocket socket;
            socket.connectToHost(QStringLiteral("127.0.0.1"), port);
            return socket.waitForConnected(patienceMs);
        },
        patienceMs));
    EXPECT_EQ(child("tarnemissao").pid, desk);
}

TEST_F(PracticeSession, ABrokenDeskOrPrinterComesBack) {
    open();
    EXPECT_EQ(broken("tarnimpressora").valueOf("--pasta"), folder.path());
    const QString address = child("tarnemissao").valueOf("--servidor");
    EXPECT_EQ(broken("tarnemissao").valueOf("--servidor"), address);
    EXPECT_EQ(session.state(), QProcess::Running);
}

TEST_F(PracticeSession, ADeskThatKeepsBreakingEndsItWithASentence) {
    open();
    for (int i = 0; i < 3; ++i) {
        broken("tarnemissao");
    }
    const std::vector<Child> pieces = children();
    kill(child("tarnemissao").pid, SIGKILL);
    EXPECT_TRUE(says(session, QProcess::StandardError,
                     "O treino terminou porque um programa dele (tarnemissao) parou."));
    EXPECT_TRUE(gone(pieces));
}

TEST_F(PracticeSession, NoPieceOutlivesIt) {
    open();
    const std::vector<Child> pieces = children();
    session.kill();
    ASSERT_TRUE(ends());
    EXPECT_TRUE(gone(pieces));
}

TEST_F(PracticeSession, AWindowOfThePrinterThatIsClosedStaysClosed) {
    open();
    kill(child("tarnimpressora").pid, SIGTERM);
    ASSERT_TRUE(QTest::qWaitFor([this] { return children().size() == 2; }, patienceMs));
    broken("tarnservidor");
    EXPECT_EQ(child("tarnimpressora").pid, 0);
}

TEST_F(PracticeSession, AnotherOneInTheSameFolderIsRefused) {
    open();
    QProcess other;
    begin(other);
    EXPECT_TRUE(says(other, QProcess::StandardError, "Já há um treino aberto"));
    other.kill();
    other.waitForFinished(patienceMs);
    EXPECT_EQ(children().size(), 3U);
}

TEST_F(PracticeSession, RemovesThePaperOfTheSessionBeforeAndNoFileOfTheUser) {
    write("job-001.prn", "velho");
    write("job-001.kind", "velho");
    write("nota.pdf", "velha");
    write("carta.txt", "minha");
    open();
    EXPECT_FALSE(has("job-001.prn"));
    EXPECT_FALSE(has("job-001.kind"));
    EXPECT_FALSE(has("nota.pdf"));
    EXPECT_EQ(contentsOf(folder.filePath("carta.txt")), "minha");
}

TEST_F(PracticeSession, KeepsThePaperAsOnePdf) {
    open();
    write("job-001.prn", "PAPEL\r\n");
    ASSERT_TRUE(QTest::qWaitFor([this] { return has("nota.pdf"); }, patienceMs));
    QFile::remove(folder.filePath("nota.pdf"));
    kill(child("tarnemissao").pid, SIGTERM);
    ASSERT_TRUE(ends());
    EXPECT_TRUE(contentsOf(folder.filePath("nota.pdf")).startsWith("%PDF"));
}

}  // namespace
}  // namespace tarn::test
