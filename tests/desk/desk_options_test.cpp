#include "desk/desk_options.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarn::test {
namespace {

constexpr char fallback[] = "http://fixo/Kestomain/TarnEmissao.asp?";

std::variant<Options, cli::Ending> read(std::vector<const char*> words, const char* env = "") {
    words.insert(words.begin(), "tarnemissao");
    return readOptions(static_cast<int>(words.size()), words.data(), env, fallback);
}
Options optionsOf(const std::vector<const char*>& words, const char* env = "") {
    return std::get<Options>(read(words, env));
}
cli::Ending stop(const std::vector<const char*>& words) {
    return std::get<cli::Ending>(read(words));
}

TEST(Options, WithoutOptionsTheBuildsServerAndTheMachinesPrinter) {
    const Options options = optionsOf({});
    EXPECT_EQ(options.baseUrl, fallback);
    EXPECT_EQ(options.virtualPrinter, "");
    EXPECT_EQ(options.codePage, CodePage::Page1252);
    EXPECT_FALSE(options.labelSelection);
}

TEST(Options, TheServerOfTheCommandLineGoesBeforeTheEnvironments) {
    EXPECT_EQ(optionsOf({}, "http://amb/p.asp?").baseUrl, "http://amb/p.asp?");
    EXPECT_EQ(optionsOf({"--servidor", "https://linha/p.asp?"}, "http://amb/p.asp?").baseUrl,
              "https://linha/p.asp?");
}

TEST(Options, SaysWhetherTheServerWasReplaced) {
    EXPECT_FALSE(optionsOf({}).serverReplaced);
    EXPECT_TRUE(optionsOf({}, "http://amb").serverReplaced);
    EXPECT_TRUE(optionsOf({"--servidor", "http://linha"}).serverReplaced);
}

TEST(Options, ReadsTheOthers) {
    const Options options = optionsOf({"--impressora-virtual", "saida", "--pagina-de-codigo", "850",
                                       "--pasta-figuras", "fig", "--selecao-etiquetas"});
    EXPECT_EQ(options.virtualPrinter, "saida");
    EXPECT_EQ(options.codePage, CodePage::Page850);
    EXPECT_EQ(options.pictureFolder, "fig");
    EXPECT_TRUE(options.labelSelection);
}

TEST(Options, HelpAndVersionEndWellInPortuguese) {
    for (const char* word : {"--ajuda", "--help", "-h"}) {
        EXPECT_EQ(stop({word}).status, 0);
        EXPECT_NE(stop({word}).text.find("--impressora-virtual"), std::string::npos);
        EXPECT_EQ(stop({word}).text.find("Options"), std::string::npos);
    }
    EXPECT_EQ(stop({"--versao"}).status, 0);
    EXPECT_EQ(stop({"--versao"}).text.rfind("TarnEmissao ", 0), 0U);
}

TEST(Options, WrongUsageSaysWhat) {
    const std::pair<std::vector<const char*>, const char*> cases[] = {
        {{"--foo"}, "tarnemissao: opção ou argumento desconhecido: --foo.\n"},
        {{"--servidor"}, "tarnemissao: falta o valor da opção --servidor.\n"},
        {{"--pagina-de-codigo", "437"},
         "tarnemissao: --pagina-de-codigo pede 1252, 850 ou 860: \"437\" não serve.\n"},
        {{"--pagina-de-codigo", "abc"},
         "tarnemissao: --pagina-de-codigo pede 1252, 850 ou 860: \"abc\" não serve.\n"},
        {{"--impressora-virtual", ""},
         "tarnemissao: --impressora-virtual pede o nome de uma pasta.\n"},
        {{"--servidor", "ftp://x"},
         "tarnemissao: --servidor \"ftp://x\": o endereço do servidor começa com http:// ou "
         "https://.\n"},
        {{"--servidor", "http://ana:segredo@h/x.asp?a=1"},
         "tarnemissao: --servidor \"http://h/x.asp\": depois do \"?\" não vem nada: o programa põe "
         "o "
         "pedido ali.\n"}};
    for (const auto& [words, text] : cases) {
        EXPECT_EQ(stop(words).status, 1);
        EXPECT_EQ(stop(words).text,
                  std::string(text) + "Use tarnemissao --ajuda para ver as opções.\n");
    }
}

TEST(Options, AWrongServerOfTheEnvironmentIsCalledByItsName) {
    EXPECT_EQ(std::get<cli::Ending>(read({}, "servidor:8610")).text,
              "tarnemissao: TARN_SERVIDOR \"servidor:8610\": o endereço do servidor começa com "
              "http:// ou https://.\nUse tarnemissao --ajuda para ver as opções.\n");
}

}  // namespace
}  // namespace tarn::test
