#include "cli/command_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "runtime/version.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {
using testing::HasSubstr;
using testing::Not;

using Words = std::vector<const char*>;

std::optional<cli::Ending> read(cli::CommandLine& line, Words words) {
    words.insert(words.begin(), "prog");
    return line.read(static_cast<int>(words.size()), words.data());
}

// A program without commands, as its variables stand once the line was read.
struct Plain {
    std::string text = "usual";
    std::optional<std::string> other;
    std::vector<std::string> again;
    std::vector<std::string> files;
    std::int32_t code = 0;
    std::optional<std::int32_t> port;
    std::string format = "pdf";
    bool flag = false;
    CodePage page = CodePage::Page1252;
    std::optional<cli::Ending> ending;

    explicit Plain(const Words& words) {
        cli::CommandLine line("prog", "Faz o que faz.");
        line.text("--texto", text, "um texto").called("PASTA");
        line.text("--outro", other, "outro texto");
        line.texts("--falha", again, "pode ser repetida");
        line.whole("--codigo", code, "um código").required();
        line.whole("--porta", port, 0, 65535, "uma porta");
        line.oneOf("--formato", format, {"pdf", "png", "ops"}, "um formato");
        line.flag("--regua", flag, "uma régua");
        line.codePage(page);
        line.texts("arquivos", files, "os arquivos");
        line.footer("Fim.");
        ending = read(line, words);
    }
};

std::string refusalOf(const Words& words) {
    const Plain plain(words);
    if (!plain.ending) {
        return "none";
    }
    EXPECT_EQ(plain.ending->status, 1);
    EXPECT_THAT(plain.ending->text, testing::StartsWith("prog: "));
    EXPECT_THAT(plain.ending->text, testing::EndsWith("\nUse prog --ajuda para ver as opções.\n"));
    return plain.ending->text.substr(6, plain.ending->text.find('\n') - 6);
}

TEST(CommandLine, ReadsIntoTheCallersVariables) {
    const Plain plain({"--texto", "a b", "--outro", "", "--falha", "x=1", "um.prn", "--falha",
                       "y=2", "dois.prn", "--codigo", "00012", "--porta", "0", "--formato", "ops",
                       "--regua", "--pagina-de-codigo", "860"});
    ASSERT_FALSE(plain.ending) << plain.ending->text;
    EXPECT_EQ(plain.text, "a b");
    EXPECT_EQ(plain.other, "");
    EXPECT_EQ(plain.again, (Texts{"x=1", "y=2"}));
    EXPECT_EQ(plain.files, (Texts{"um.prn", "dois.prn"}));
    EXPECT_EQ(plain.code, 12);
    EXPECT_EQ(plain.port, 0);
    EXPECT_EQ(plain.format, "ops");
    EXPECT_TRUE(plain.flag);
    EXPECT_EQ(plain.page, CodePage::Page860);
}

TEST(CommandLine, AVariableKeepsWhatItHoldsWhereNothingIsGiven) {
    const Plain plain({"--codigo", "7"});
    ASSERT_FALSE(plain.ending);
    EXPECT_EQ(plain.text, "usual");
    EXPECT_EQ(plain.other, std::nullopt);
    EXPECT_TRUE(plain.again.empty() && plain.files.empty());
    EXPECT_EQ(plain.port, std::nullopt);
    EXPECT_EQ(plain.format, "pdf");
    EXPECT_FALSE(plain.flag);
    EXPECT_EQ(plain.page, CodePage::Page1252);
}

TEST(CommandLine, TakesAnEmptyTextInEitherSpellingAndValuesAfterTwoDashes) {
    const Plain plain({"--codigo=-3", "--outro=", "--", "-5", ""});
    ASSERT_FALSE(plain.ending) << plain.ending->text;
    EXPECT_EQ(plain.code, -3);
    EXPECT_EQ(plain.other, "");
    EXPECT_EQ(plain.files, (Texts{"-5", ""}));
}

TEST(CommandLine, SaysWhichOptionAndWhichValueWontDo) {
    const std::pair<Words, const char*> cases[] = {
        {{"--codigo", "x1"}, "--codigo pede um número inteiro: \"x1\" não serve."},
        {{"--codigo", ""}, "--codigo pede um número inteiro: \"\" não serve."},
        {{"--codigo", "99999999999"},
         "--codigo pede um número inteiro: \"99999999999\" não serve."},
        {{"--codigo", "1", "--porta", "65536"},
         "--porta pede um número inteiro de 0 a 65535: \"65536\" não serve."},
        {{"--codigo", "1", "--formato", "doc"},
         "--formato pede pdf, png ou ops: \"doc\" não serve."},
        {{"--codigo", "1", "--pagina-de-codigo", "437"},
         "--pagina-de-codigo pede 1252, 850 ou 860: \"437\" não serve."},
        {{"--codigo", "1", "--pagina-de-codigo", "0850"},
         "--pagina-de-codigo pede 1252, 850 ou 860: \"0850\" não serve."},
        {{"--codigo"}, "falta o valor da opção --codigo."},
        {{"--codigo", "1", "--falha"}, "falta o valor da opção --falha."},
        {{"--codigo", "1", "--codigo", "2"}, "a opção --codigo foi dada mais de uma vez."},
        {{"--codigo", "1", "--regua=sim"}, "a opção --regua não leva valor."},
        {{}, "falta a opção --codigo."},
        {{"--codigo", "1", "--cor", "-v"}, "opção ou argumento desconhecido: --cor -v."}};
    for (const auto& [words, sentence] : cases) {
        EXPECT_EQ(refusalOf(words), sentence);
    }
}

TEST(CommandLine, HelpAndVersionEndWellInPortuguese) {
    for (const char* word : {"--ajuda", "--help", "-h"}) {
        // Whatever else the line lacks.
        const Plain plain({word, "--porta", "x"});
        ASSERT_TRUE(plain.ending);
        EXPECT_EQ(plain.ending->status, 0);
        for (const char* said : {"Faz o que faz.", "Uso: prog [OPÇÕES]", "Opções:", "--texto PASTA",
                                 "[usual]", "(obrigatório)", "--versao", "Fim."}) {
            EXPECT_THAT(plain.ending->text, HasSubstr(said));
        }
        for (const char* english : {"Usage", "Options", "OPTIONS", "Positionals", "REQUIRED",
                                    "TEXT ", "INT", "Print this"}) {
            EXPECT_THAT(plain.ending->text, Not(HasSubstr(english)));
        }
    }
    for (const char* word : {"--versao", "--version"}) {
        const Plain plain({word});
        ASSERT_TRUE(plain.ending);
        EXPECT_EQ(plain.ending->status, 0);
        EXPECT_EQ(plain.ending->text, "TarnEmissao " + std::string(productVersion) + "\n");
    }
}

// A program with commands.
struct Commands {
    std::string chosen;
    std::optional<std::string> destination;
    std::int32_t company = 0;
    std::vector<std::string> files;
    std::optional<cli::Ending> ending;

    explicit Commands(const Words& words) {
        cli::CommandLine line("prog", "Imprime.");
        line.text("--destino", destination, "uma pasta");
        cli::Command note = line.command("nota", "uma nota");
        note.whenChosen([this] { chosen = "nota"; });
        note.whole("--empresa", company, "a empresa").required();
        note.texts("documentos", files, "os documentos").required();
        line.command("escada", "a escada").whenChosen([this] { chosen = "escada"; });
        ending = read(line, words);
    }
    std::string refusal() const {
        return ending ? ending->text.substr(6, ending->text.find('\n') - 6) : "none";
    }
};

TEST(CommandLine, OptionsOfTheProgramStandBeforeAndAfterTheCommand) {
    for (const Words& words : {Words{"--destino", "d", "nota", "--empresa", "7", "a.xml"},
                               Words{"nota", "a.xml", "--empresa", "7", "--destino", "d"}}) {
        const Commands commands(words);
        ASSERT_FALSE(commands.ending) << commands.ending->text;
        EXPECT_EQ(commands.chosen, "nota");
        EXPECT_EQ(commands.destination, "d");
        EXPECT_EQ(commands.company, 7);
        EXPECT_EQ(commands.files, (Texts{"a.xml"}));
    }
}

TEST(CommandLine, SaysWhatACommandLacks) {
    EXPECT_EQ(Commands({}).refusal(), "falta um comando: nota ou escada.");
    EXPECT_EQ(Commands({"imprime"}).refusal(), "comando desconhecido: imprime. Há nota ou escada.");
    EXPECT_EQ(Commands({"nota", "a.xml"}).refusal(), "falta a opção --empresa.");
    EXPECT_EQ(Commands({"nota", "--empresa", "7"}).refusal(), "falta o valor documentos.");
    EXPECT_EQ(Commands({"nota", "--empresa"}).refusal(), "falta o valor da opção --empresa.");
    EXPECT_EQ(Commands({"nota", "--empresa", "x", "a.xml"}).refusal(),
              "--empresa pede um número inteiro: \"x\" não serve.");
    EXPECT_EQ(Commands({"escada", "-5"}).refusal(),
              "opção ou argumento desconhecido: -5. Um valor que começa com \"-\" vem depois de "
              "\"--\".");
}

// A file of the machine's root, where Windows would take it for an option.
TEST(CommandLine, AWordThatBeginsWithASlashIsAFile) {
    const Commands commands({"nota", "--empresa", "7", "/notas/a.xml"});
    EXPECT_FALSE(commands.ending);
    EXPECT_EQ(commands.files, (Texts{"/notas/a.xml"}));
}

TEST(CommandLine, ACommandHasItsOwnHelp) {
    const Commands commands({"nota", "--ajuda"});
    ASSERT_TRUE(commands.ending);
    EXPECT_EQ(commands.ending->status, 0);
    for (const char* said : {"uma nota", "Valores:", "documentos", "--empresa", "Opções:"}) {
        EXPECT_THAT(commands.ending->text, HasSubstr(said));
    }
    EXPECT_THAT(Commands({"--ajuda"}).ending->text, HasSubstr("Comandos:"));
}

TEST(CommandLine, DescribesItselfForManualPagesAndCompletions) {
    std::string form = "pdf";
    std::vector<std::string> files;
    cli::CommandLine line("prog", "Faz o que faz.");
    line.oneOf("--formato", form, {"pdf", "ops"}, "um formato");
    cli::Command note = line.command("nota", "imprime a nota");
    note.texts("arquivos", files, "os arquivos").called("ARQUIVO").required();
    line.footer("Fim.\nMesmo.");
    const auto ending = read(line, {"--descreve-opcoes"});
    ASSERT_TRUE(ending);
    EXPECT_EQ(ending->status, 0);
    EXPECT_EQ(ending->text,
              "program\tprog\tFaz o que faz.\n"
              "option\t\t-h,--ajuda,--help\t\t\t\tmostra esta ajuda e termina\n"
              "option\t\t--versao,--version\t\t\t\tmostra a versão e termina\n"
              "option\t\t--formato\tTEXTO\tpdf,ops\t\tum formato [pdf]\n"
              "command\tnota\timprime a nota\n"
              "option\tnota\t-h,--ajuda,--help\t\t\t\tmostra esta ajuda e termina\n"
              "value\tnota\tarquivos\tARQUIVO\t\trequired,repeated\tos arquivos\n"
              "footer\tFim.\n"
              "footer\tMesmo.\n");
}

TEST(CommandLine, NamesTheDescriptionInNoHelpAndTakesItOnlyByItself) {
    EXPECT_THAT(Plain({"--ajuda"}).ending->text, Not(HasSubstr("--descreve")));
    EXPECT_EQ(refusalOf({"--codigo", "1", "--descreve-opcoes"}),
              "opção ou argumento desconhecido: --descreve-opcoes.");
}

}  // namespace
}  // namespace tarn::test
