// What the command lines of all programs have in common, and a desk without a display.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QProcess>
#include <QProcessEnvironment>
#include <algorithm>

#include "runtime/version.h"

namespace tarn::test {
namespace {

constexpr int patienceMs = 60000;  // for a slow machine

struct Ran {
    int status = -1;  // -1: didn't end by itself
    std::string out;
    std::string err;
};

// Windows ends a line by two characters.
std::string textOf(QByteArray said) {
    return said.replace("\r\n", "\n").toStdString();
}

Ran run(const char* program, const QStringList& arguments,
        const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment()) {
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    const bool ended =
        process.waitForFinished(patienceMs) && process.exitStatus() == QProcess::NormalExit;
    return {ended ? process.exitCode() : -1, textOf(process.readAllStandardOutput()),
            textOf(process.readAllStandardError())};
}

struct Program {
    const char* name;
    const char* path;
};
void PrintTo(const Program& program, std::ostream* out) {
    *out << program.name;
}

class EveryProgram : public testing::TestWithParam<Program> {};

TEST_P(EveryProgram, SaysTheReleasesVersion) {
    for (const char* word : {"--versao", "--version"}) {
        const Ran ran = run(GetParam().path, {word});
        EXPECT_EQ(ran.status, 0);
        EXPECT_EQ(ran.out, "TarnEmissao " + std::string(productVersion) + "\n");
        EXPECT_EQ(ran.err, "");
    }
}

TEST_P(EveryProgram, ShowsItsHelp) {
    for (const char* word : {"--ajuda", "--help", "-h"}) {
        const Ran ran = run(GetParam().path, {word});
        EXPECT_EQ(ran.status, 0);
        EXPECT_THAT(ran.out, testing::HasSubstr(std::string("Uso: ") + GetParam().name));
        EXPECT_EQ(ran.err, "");
    }
}

TEST_P(EveryProgram, RefusesAnOptionThatItDoesNotKnow) {
    const Ran ran = run(GetParam().path, {"--nada"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.out, "");
    EXPECT_THAT(ran.err, testing::StartsWith(std::string(GetParam().name) + ": "));
    EXPECT_THAT(ran.err, testing::EndsWith(std::string("\nUse ") + GetParam().name +
                                           " --ajuda para ver as opções.\n"));
}

INSTANTIATE_TEST_SUITE_P(All, EveryProgram,
                         testing::Values(Program{"tarnemissao", TARNEMISSAO},
                                         Program{"tarnemissao-treino", TARNEMISSAO_TREINO},
                                         Program{"tarnimpressora", TARNIMPRESSORA},
                                         Program{"tarnimprime", TARNIMPRIME},
                                         Program{"tarnroteiro", TARNROTEIRO},
                                         Program{"tarnservidor", TARNSERVIDOR}),
                         [](const testing::TestParamInfo<Program>& each) {
                             std::string name = each.param.name;
                             std::ranges::replace(name, '-', '_');
                             return name;
                         });

TEST(TheWalk, SaysThatItNeedsAFolder) {
    const Ran ran = run(TARNROTEIRO, {});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, testing::StartsWith("tarnroteiro: falta a opção --saida.\n"));
}

#ifdef Q_OS_LINUX
TEST(TheDesk, WithoutADisplaySaysWhatToDo) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* display : {"", ":65000"}) {  // none, and one that isn't there
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
            environment.remove(name);
        }
        if (*display != '\0') {
            environment.insert("DISPLAY", display);
        }
        const Ran ran = run(TARNEMISSAO, {"--impressora-virtual", "saida"}, environment);
        EXPECT_EQ(ran.status, 1) << display;
        EXPECT_EQ(ran.out, "");
        EXPECT_EQ(ran.err,
                  "tarnemissao: não há tela em que abrir a mesa. Entre numa sessão gráfica e abra "
                  "o programa de lá; as variáveis DISPLAY e WAYLAND_DISPLAY dizem qual é a tela.\n")
            << display;
    }
}
#endif

}  // namespace
}  // namespace tarn::test
