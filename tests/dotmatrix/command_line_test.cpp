// The program itself, as a shell starts it.
#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

struct Ran {
    int status = -1;
    std::string out;
    std::string err;
};

Ran run(const QStringList& arguments) {
    QProcess process;
    process.start(QStringLiteral(TARNIMPRESSORA), arguments);
    EXPECT_TRUE(process.waitForFinished());
    return {process.exitCode(), process.readAllStandardOutput().toStdString(),
            process.readAllStandardError().toStdString()};
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
        {{job}, "diga o que gravar: --pdf ARQUIVO, --png ARQUIVO ou --texto ARQUIVO."},
        {{}, "diga o que gravar"},
        {{"--texto", path("n.txt")}, "diga que trabalho imprimir"},
        {{"--texto"}, "uma opção foi dada sem o seu valor"},
        {{"--nada", "--texto", path("n.txt"), job}, "opção desconhecida: --nada"},
        {{"--pagina-de-codigo", "437", "--texto", path("n.txt"), job},
         "--pagina-de-codigo pede 1252, 850 ou 860."},
        {{"--linhas-por-formulario", "0", "--texto", path("n.txt"), job},
         "--linhas-por-formulario pede um número inteiro de 3 a 132."},
        {{"--altura", "doze", "--texto", path("n.txt"), job}, "--altura pede"},
        {{"--altura", "11", "--linhas-por-formulario", "66", "--texto", path("n.txt"), job},
         "não as duas"}};
    for (const auto& [arguments, expected] : cases) {
        const Ran ran = run(arguments);
        EXPECT_EQ(ran.status, 1) << expected;
        EXPECT_NE(ran.err.find(expected), std::string::npos) << ran.err;
        EXPECT_EQ(ran.out, "");
    }
    EXPECT_FALSE(QFile::exists(path("n.txt")));
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

TEST_F(CommandLine, HelpIsThere) {
    const Ran ran = run({"--ajuda"});
    EXPECT_EQ(ran.status, 0);
    EXPECT_NE(ran.out.find("--linhas-por-formulario"), std::string::npos);
}

}  // namespace
