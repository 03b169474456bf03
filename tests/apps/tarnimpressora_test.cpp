// The program itself, as a shell starts it.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>

namespace {

struct Ran {
    int status = -1;
    std::string out;
    std::string err;
};

// Windows ends a line by two characters.
std::string textOf(QByteArray said) {
    return said.replace("\r\n", "\n").toStdString();
}

Ran run(const QStringList& arguments, bool display = true) {
    QProcess process;
    if (!display) {
        auto environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
            environment.remove(QLatin1StringView(name));
        }
        process.setProcessEnvironment(environment);
    }
    process.start(QStringLiteral(TARNIMPRESSORA), arguments);
    EXPECT_TRUE(process.waitForFinished());
    return {process.exitCode(), textOf(process.readAllStandardOutput()),
            textOf(process.readAllStandardError())};
}

class CommandLine : public testing::Test {
protected:
    QString file(const char* name, const QByteArray& bytes) const {
        QFile out(path(name));
        EXPECT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(bytes);
        return out.fileName();
    }
    QString path(const char* name) const { return folder_.filePath(QString::fromLatin1(name)); }
    QByteArray read(const char* name) const {
        QFile in(path(name));
        EXPECT_TRUE(in.open(QIODevice::ReadOnly)) << name;
        return in.readAll();
    }
    QTemporaryDir folder_;
};

TEST_F(CommandLine, WritesAllThreeFromSeveralJobs) {
    const Ran ran = run({"--pdf", path("n.pdf"), "--png", path("n.png"), "--texto", path("n.txt"),
                         file("1.prn", " \x0F"), file("2.prn", " S\xC3O PAULO\r\nfim\r\n")});
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.err, "");
    EXPECT_EQ(read("n.txt"), "  SÃO PAULO\nfim\n");
    EXPECT_TRUE(read("n.pdf").startsWith("%PDF-"));
    EXPECT_TRUE(read("n.png").startsWith("\x89PNG"));
}

TEST_F(CommandLine, FormLengthAndCodePage) {
    const QString job = file("1.prn", "\x80\r\n\r\n\r\nx");
    EXPECT_EQ(run({"--texto", path("n.txt"), "--pagina-de-codigo", "850", "--linhas-por-formulario",
                   "3", job})
                  .status,
              0);
    EXPECT_EQ(read("n.txt"), "Ç\n\fx\n");
    EXPECT_EQ(
        run({"--texto", path("n.txt"), "--pagina-de-codigo=860", "--altura", "0,5", job}).status,
        0);
    EXPECT_EQ(read("n.txt"), "Ç\n\fx\n");
}

TEST_F(CommandLine, NoticesGoToStandardError) {
    const Ran ran = run({"--texto", path("n.txt"), file("1.prn", " \x1B#3")});
    EXPECT_EQ(ran.status, 0);
    EXPECT_NE(ran.err.find("aviso: trabalho 1, linha 1, coluna 2, bytes 1B 23: "),
              std::string::npos);
    EXPECT_EQ(read("n.txt"), " 3\n");
}

TEST_F(CommandLine, WrongUsageSaysWhatToGive) {
    const QString job = file("1.prn", "x");
    const std::vector<std::pair<QStringList, std::string>> cases{
        {{"--texto", path("n.txt")},
         "diga que trabalho imprimir: um ou mais arquivos .prn, --porta N ou --pasta DIR."},
        {{"--texto"}, "falta o valor da opção --texto."},
        {{"--nada", "--texto", path("n.txt"), job}, "opção ou argumento desconhecido: --nada."},
        {{"--pagina-de-codigo", "437", "--texto", path("n.txt"), job},
         "--pagina-de-codigo pede 1252, 850 ou 860: \"437\" não serve."},
        {{"--linhas-por-formulario", "0", "--texto", path("n.txt"), job},
         "--linhas-por-formulario pede um número inteiro de 3 a 132: \"0\" não serve."},
        {{"--altura", "doze", "--texto", path("n.txt"), job},
         "--altura pede um número de polegadas de 0,5 a 22: \"doze\" não serve."},
        {{"--altura", "11", "--linhas-por-formulario", "66", "--texto", path("n.txt"), job},
         "não as duas"},
        {{"--porta", "65536", "--texto", path("n.txt")},
         "--porta pede um número inteiro de 0 a 65535: \"65536\" não serve."},
        {{"--quantos", "2", "--texto", path("n.txt"), job}, "--quantos pede"},
        {{"--quantos", "0", "--porta", "0", "--texto", path("n.txt")}, "--quantos pede"},
        {{"--itens", "-1", "--texto", path("n.txt"), job},
         "--itens pede um número inteiro de 0 a 100: \"-1\" não serve."},
        {{"--porta", "0", "--escutar", "aqui", "--texto", path("n.txt")},
         "--escutar pede um endereço IP"},
        {{"--pasta", job + "/nada", "--texto", path("n.txt")}, "não há pasta \""},
        {{"--repassa", "LX", "--texto", path("n.txt"), job}, "--repassa pede também --porta N"},
        {{"--repassa", "LX", "--porta", "0", "--sem-janela"}, "pede também --repassa-apos"},
        {{"--repassa-apos", "3", "--texto", path("n.txt"), job}, "pedem também --repassa FILA"},
        {{"--formulario", path("nada"), "--texto", path("n.txt"), job},
         "não há formulário nem arquivo \""},
        {{"--mostra-formulario", "ImprimeNF_9"}, "não há formulário \"ImprimeNF_9\"."}};
    for (const auto& [arguments, expected] : cases) {
        const Ran ran = run(arguments);
        EXPECT_EQ(ran.status, 1) << expected;
        EXPECT_NE(ran.err.find(expected), std::string::npos) << ran.err;
        EXPECT_EQ(ran.out, "");
    }
    EXPECT_FALSE(QFile::exists(path("n.txt")));
}

TEST_F(CommandLine, AFormsTextDoesntCommandTheTerminal) {
    QFile form(path("mau.frm"));
    ASSERT_TRUE(form.open(QIODevice::WriteOnly));
    form.write("\x1B]0;PWN\x07\x1B[31m\xC2\x9B 1\n");
    form.close();
    const Ran ran =
        run({"--formulario", path("mau.frm"), "--texto", path("n.txt"), file("1.prn", "x")});
    EXPECT_EQ(ran.status, 1);
    EXPECT_NE(ran.err.find("\"?]0;PWN??[31m?\" não é palavra"), std::string::npos) << ran.err;
}

TEST_F(CommandLine, UnreadableJobOrUnwritableFileEndsWithOne) {
    for (const QString& job : {path("none.prn"), folder_.path()}) {
        const Ran ran = run({"--texto", path("n.txt"), job});
        EXPECT_EQ(ran.status, 1);
        EXPECT_NE(ran.err.find("não foi possível ler o trabalho \"" + job.toStdString() + "\""),
                  std::string::npos)
            << ran.err;
        EXPECT_FALSE(QFile::exists(path("n.txt")));
    }
    const Ran ran = run({"--pdf", path("no/n.pdf"), file("1.prn", "x")});
    EXPECT_EQ(ran.status, 1);
    EXPECT_NE(ran.err.find("não foi possível gravar"), std::string::npos);
}

#ifdef Q_OS_LINUX
// A bound on the size of any file stands for a full disk; the shell's signal for it is off.
TEST_F(CommandLine, AJobThatTheTemporaryFolderCannotHoldIsToldWhy) {
    const QString job = file("1.prn", QByteArray("uma linha\r\n").repeated(10'000));
    QProcess process;
    process.start(QStringLiteral("/bin/sh"), {"-c", "trap '' XFSZ; ulimit -f 8; exec \"$@\"", "sh",
                                              TARNIMPRESSORA, "--texto", path("n.txt"), job});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 1);
    const std::string err = process.readAllStandardError().toStdString();
    EXPECT_NE(err.find("não foi possível guardar o trabalho (File too large)."), std::string::npos)
        << err;
}
#endif

// Its size isn't known before it is read.
TEST_F(CommandLine, AJobOverItsSizeIsRefused) {
    if (!QFile::exists(QStringLiteral("/dev/zero"))) {
        GTEST_SKIP() << "no /dev/zero here";
    }
    const Ran ran = run({"--texto", path("n.txt"), "/dev/zero"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_NE(ran.err.find("o trabalho \"/dev/zero\" passa de 67108864 bytes."), std::string::npos)
        << ran.err;
    EXPECT_FALSE(QFile::exists(path("n.txt")));
}

TEST_F(CommandLine, AFormOverItsSizeIsRefused) {
    const QString job = file("1.prn", "x");
    const QByteArray comment = QByteArray("# um comentário qualquer\n").repeated(50'000);
    const Ran ran = run({"--formulario", file("f.frm", comment + "texto 1 1 fim\n"), "--texto",
                         path("n.txt"), job});
    EXPECT_EQ(ran.status, 1);
    EXPECT_NE(ran.err.find("o formulário \"" + path("f.frm").toStdString() +
                           "\" passa de 1048576 bytes."),
              std::string::npos)
        << ran.err;
    EXPECT_FALSE(QFile::exists(path("n.txt")));
}

#ifdef Q_OS_LINUX
TEST_F(CommandLine, WithoutADisplayItSaysWhatToGive) {
    for (const QStringList& arguments : {QStringList(), QStringList{file("1.prn", "x")}}) {
        const Ran ran = run(arguments, false);
        EXPECT_EQ(ran.status, 1);
        EXPECT_NE(ran.err.find("não há tela para a janela; diga o que gravar: --pdf ARQUIVO, "
                               "--png ARQUIVO ou --texto ARQUIVO."),
                  std::string::npos)
            << ran.err;
    }
}
#endif

TEST_F(CommandLine, FormsAreListedAndWrittenAsText) {
    const Ran list = run({"--formularios"});
    EXPECT_EQ(list.status, 0);
    EXPECT_EQ(QString::fromStdString(list.out).count(QStringLiteral("ImprimeNF_")), 23);
    EXPECT_NE(list.out.find("ImprimeNF_2421_3621 2421 3621\nImprimeNF_2421 2421 1\n"),
              std::string::npos);
    EXPECT_NE(list.out.find("ImprimeNF_E6001 1 6001\n"), std::string::npos);
    EXPECT_NE(list.out.find("ImprimeNF_Padrao 1 1 nota\n"), std::string::npos);
    for (const char* form : {"Boleto_1016_57", "Boleto_1016", "Cheque_33", "Cheque",
                             "OrdemFaturamento_1361", "OrdemFaturamento", "Etiquetas"}) {
        EXPECT_NE(list.out.find("\n" + std::string(form) + "\n"), std::string::npos) << form;
    }
    const Ran form = run({"--mostra-formulario", "ImprimeNF_1361"});
    EXPECT_EQ(form.status, 0);
    EXPECT_EQ(form.out.find("nome ImprimeNF_1361\naltura 66\nligar 10\npasso 17\n"), 0U);
    EXPECT_NE(form.out.find("caixa 9,5 2 82 1,5 Nome / razão social\n"), std::string::npos);
    const Ran cheque = run({"--mostra-formulario", "Cheque"});
    EXPECT_EQ(cheque.out.find("nome Cheque\naltura 18\n"), 0U) << cheque.out;
    const Ran shorter = run({"--mostra-formulario", "ImprimeNF_1361", "--itens", "6"});
    EXPECT_NE(shorter.out.find("altura 59\n"), std::string::npos);
}

// A form sets the printer up, but for what the user chose; and what it wrote reads again.
TEST_F(CommandLine, AFormSetsThePaperUp) {
    const QString job = file("1.prn", "a" + QByteArray("\r\n").repeated(33) + "b");
    const QString form = file("f.txt", "altura 33\nligar 17\ncaixa 1 1 10 2 Caixa\n");
    EXPECT_EQ(run({"--formulario", form, "--texto", path("n.txt"), job}).status, 0);
    EXPECT_EQ(read("n.txt"), "a\n\fb\n");
    EXPECT_EQ(run({"--formulario", form, "--altura", "11", "--texto", path("n.txt"), job}).status,
              0);
    EXPECT_FALSE(read("n.txt").contains('\f'));
    const Ran written = run({"--mostra-formulario", "ImprimeNF_821"});
    const QString again = file("g.txt", QByteArray::fromStdString(written.out));
    EXPECT_EQ(run({"--formulario", again, "--regua", "--pdf", path("n.pdf"), job}).status, 0);
    EXPECT_TRUE(read("n.pdf").startsWith("%PDF-"));
}

TEST_F(CommandLine, TakesJobsFromAFolderUntilToldEnough) {
    QDir(folder_.path()).mkdir(QStringLiteral("fila"));
    file("fila/job-001.prn", " \x0F");
    file("fila/job-002.prn", "um\r\n");
    const Ran ran = run({"--pasta", path("fila"), "--quantos", "2", "--texto", path("n.txt")});
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_EQ(ran.out, "Imprimindo da pasta " + path("fila").toStdString() + "\n");
    EXPECT_EQ(read("n.txt"), " um\n");
}

TEST_F(CommandLine, TakesJobsFromTheNetworkAndWritesAfterEach) {
    QProcess process;
    process.start(QStringLiteral(TARNIMPRESSORA),
                  {"--porta", "0", "--quantos", "2", "--texto", path("n.txt")});
    while (!process.canReadLine() && process.waitForReadyRead()) {
    }
    const QString line = QString::fromUtf8(process.readLine()).trimmed();
    ASSERT_TRUE(line.startsWith(QStringLiteral("Recebendo em 127.0.0.1, porta ")))
        << line.toStdString();
    const auto port = static_cast<quint16>(line.section(u' ', -1).toInt());
    for (const char* job : {"um\r\n", "dois\r\n"}) {
        QTcpSocket socket;
        socket.connectToHost(QHostAddress::LocalHost, port);
        ASSERT_TRUE(socket.waitForConnected());
        socket.write(job);
        socket.disconnectFromHost();
        EXPECT_TRUE(socket.state() == QAbstractSocket::UnconnectedState ||
                    socket.waitForDisconnected());
    }
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_EQ(read("n.txt"), "um\ndois\n");
    EXPECT_EQ(process.readAllStandardError(), "");
}

#ifdef Q_OS_LINUX
// What a program keeps in its temporary folder, files without a name included.
qint64 bytesKept(qint64 process, const QString& folder) {
    qint64 bytes = 0;
    const QDir open(QStringLiteral("/proc/%1/fd").arg(process));
    for (const QFileInfo& file : open.entryInfoList(QDir::Files | QDir::System)) {
        if (file.symLinkTarget().startsWith(folder)) {
            bytes += file.size();
        }
    }
    return bytes;
}

// Without a window the paper of a long day goes into files of bounded size, and what the
// program keeps of it is bounded too.
TEST_F(CommandLine, ARollThatIsFullIsFollowedByAnother) {
    ASSERT_TRUE(QDir(folder_.path()).mkdir(QStringLiteral("tmp")));
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TMPDIR"), path("tmp"));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(TARNIMPRESSORA),
                  {"--porta", "0", "--quantos", "4", "--rolo", "1", "--texto", path("n.txt")});
    while (!process.canReadLine() && process.waitForReadyRead()) {
    }
    const auto port = static_cast<quint16>(
        QString::fromUtf8(process.readLine()).trimmed().section(u' ', -1).toInt());
    const auto send = [port](const QByteArray& bytes) {
        QTcpSocket socket;
        socket.connectToHost(QHostAddress::LocalHost, port);
        ASSERT_TRUE(socket.waitForConnected());
        socket.write(bytes);
        while (socket.bytesToWrite() > 0 && socket.waitForBytesWritten()) {
        }
        socket.disconnectFromHost();
        EXPECT_TRUE(socket.state() == QAbstractSocket::UnconnectedState ||
                    socket.waitForDisconnected());
    };
    const auto written = [&](const char* name, const QByteArray& text) {
        constexpr int tries = 3000;
        for (int i = 0; i < tries && !(QFile::exists(path(name)) && read(name) == text); ++i) {
            process.waitForFinished(20);
        }
        return QFile::exists(path(name)) && read(name) == text;
    };
    constexpr int overAMegabyte = 1'200'000;
    send("um\r\n" + QByteArray(overAMegabyte, '\r'));
    ASSERT_TRUE(written("n.txt", "um\n"));
    send("dois\r\n");
    ASSERT_TRUE(written("n-rolo2.txt", "dois\n"));
    EXPECT_LT(bytesKept(process.processId(), path("tmp")), 100'000);
    send("tres\r\n" + QByteArray(overAMegabyte, '\r'));
    ASSERT_TRUE(written("n-rolo2.txt", "dois\ntres\n"));
    send("quatro\r\n");
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    EXPECT_EQ(read("n-rolo3.txt"), "quatro\n");
    EXPECT_EQ(read("n.txt"), "um\n");
    EXPECT_EQ(read("n-rolo2.txt"), "dois\ntres\n");
}
#endif

TEST_F(CommandLine, APortInUseIsTold) {
    QTcpServer other;
    ASSERT_TRUE(other.listen(QHostAddress::LocalHost));
    const Ran ran = run({"--porta", QString::number(other.serverPort()), "--texto", path("n.txt")});
    EXPECT_EQ(ran.status, 1);
    EXPECT_NE(ran.err.find("escolha outra com --porta."), std::string::npos) << ran.err;
}

TEST_F(CommandLine, HelpIsThere) {
    const Ran ran = run({"--ajuda"});
    EXPECT_EQ(ran.status, 0);
    EXPECT_NE(ran.out.find("--linhas-por-formulario"), std::string::npos);
}

}  // namespace
