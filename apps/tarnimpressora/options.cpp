#include "apps/tarnimpressora/options.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <system_error>

namespace tarn::printer {

namespace {

using dotmatrix::PaperUnits;
using dotmatrix::unitsPerInch;

constexpr double lowestForm = 0.5;  // inches, as printers take by ESC C
constexpr double highestForm = 22;
constexpr std::int32_t fewestLines = 3;  // the same in lines of 1/6 inch
constexpr std::int32_t mostLines = 132;
constexpr std::int32_t mostItems = 100;
constexpr std::int32_t highestPort = 65535;
constexpr std::int32_t mostJobs = 1'000'000;
constexpr std::int32_t mostMegabytes = 1024;
constexpr std::int32_t mostSeconds = 7 * 24 * 60 * 60;

// What the options say, before the printer's panel is set by them.
struct Panel {
    std::optional<std::int32_t> lines;
    std::optional<double> height;  // inches
    std::string pitch;
    std::string needles = "9";
    std::string carriage = "136";
    std::optional<std::int32_t> port;
    std::optional<std::int32_t> endAfter;
    std::optional<std::int32_t> rollMegabytes;
};

// Digits with a comma or a point.
std::optional<double> inchesOf(std::string text) {
    std::ranges::replace(text, ',', '.');
    double value = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, value, std::chars_format::fixed);
    if (read.ec != std::errc() || read.ptr != end || value < lowestForm || value > highestForm) {
        return std::nullopt;
    }
    return value;
}

void declarePanel(cli::CommandLine& line, Options& options, Panel& panel) {
    line.codePage(options.dialect.codePage);
    line.whole("--linhas-por-formulario", panel.lines, fewestLines, mostLines,
               "altura do formulário em linhas de 1/6 de polegada (usual 66)");
    line.value("--altura", "altura do formulário em polegadas (usual 11)",
               [&panel](const std::string& text) {
                   panel.height = inchesOf(text);
                   if (!panel.height) {
                       cli::refuseValue("--altura", "um número de polegadas de 0,5 a 22", text);
                   }
               })
        .called("N");
    line.oneOf("--passo", panel.pitch, {"10", "12", "17", "20"},
               "caracteres por polegada ao ligar: 10 (usual), 12, 17 ou 20")
        .called("N");
    line.oneOf("--carro", panel.carriage, {"80", "136"}, "carro da impressora: 136 ou 80 colunas")
        .called("N");
    line.oneOf("--agulhas", panel.needles, {"9", "24"}, "cabeça de 9 ou 24 agulhas").called("N");
}

void declarePaper(cli::CommandLine& line, Options& options, Panel& panel) {
    line.text("--pdf", options.pdf, "grava o papel em PDF, uma página por formulário")
        .called("ARQUIVO");
    line.text("--png", options.png,
              "grava o papel em figuras: ARQ.png, ARQ-002.png, uma por formulário")
        .called("ARQUIVO");
    line.text("--texto", options.text, "grava o papel em texto (UTF-8)").called("ARQUIVO");
    line.text("--formulario", options.form,
              "formulário pré-impresso sob o texto: um nome de --formularios, uma figura da folha "
              "inteira ou um formulário escrito em texto");
    line.whole("--itens", options.itemLines, 0, mostItems,
               "linhas de item do formulário (usual: as que enchem 11 polegadas)");
    line.flag("--formularios", options.listForms,
              "mostra os nomes dos formulários; os das notas com uma empresa e um estabelecimento");
    line.text("--mostra-formulario", options.writtenForm,
              "mostra um formulário escrito em texto, para servir de começo a outro");
    line.flag("--regua", options.ruler, "desenha os números das linhas e das colunas");
    line.flag("--faixas", options.bands, "desenha as faixas claras do papel zebrado");
    line.whole("--rolo", panel.rollMegabytes, 1, mostMegabytes,
               "tamanho do rolo em MiB de trabalhos (usual 128): o que vem depois vai para "
               "ARQUIVO-rolo2, ARQUIVO-rolo3...");
    line.text("--titulo", options.title, "nome escrito na margem de cada formulário");
}

void declareJobs(cli::CommandLine& line, Options& options, Panel& panel) {
    line.whole("--porta", panel.port, 0, highestPort,
               "recebe trabalhos pela rede nesta porta (0: uma livre); a janela sem mais nada usa "
               "9100");
    line.text("--escutar", options.address, "endereço em que recebe").called("IP");
    line.text("--pasta", options.folder,
              "imprime os trabalhos (*.prn) desta pasta, e os que chegarem nela")
        .called("PASTA");
    line.whole("--quantos", panel.endAfter, 1, mostJobs,
               "termina depois de tantos trabalhos recebidos");
    line.texts("trabalhos", options.jobs,
               "trabalhos crus (.prn), impressos um após o outro no mesmo papel")
        .called("ARQUIVO");
}

void declareHolding(cli::CommandLine& line, Options& options) {
    line.text("--repassa", options.queue,
              "retém os trabalhos que chegam e, liberados, os manda a esta fila da máquina, "
              "byte por byte")
        .called("FILA");
    line.whole("--repassa-apos", options.releaseAfter, 0, mostSeconds,
               "libera sozinha cada trabalho depois de tantos segundos (usual: só quando se manda)")
        .called("SEGUNDOS");
    line.text("--retidos", options.held,
              "pasta em que ficam os trabalhos retidos (usual: uma da conta do usuário)")
        .called("PASTA");
    line.flag("--sem-janela", options.noWindow,
              "não abre janela: recebe e repassa em segundo plano (com --repassa-apos)");
}

std::optional<std::string> wrongHolding(const Options& options) {
    if (!options.holds()) {
        return options.releaseAfter || !options.held.empty() || options.noWindow
                   ? std::optional(
                         "--repassa-apos, --retidos e --sem-janela pedem também "
                         "--repassa FILA.")
                   : std::nullopt;
    }
    if (!options.waits()) {
        return "--repassa pede também --porta N ou --pasta DIR.";
    }
    if ((options.noWindow || options.writes()) && !options.releaseAfter) {
        return "sem a janela ninguém libera os trabalhos: --repassa pede também "
               "--repassa-apos SEGUNDOS.";
    }
    return std::nullopt;
}

void setPanel(const Panel& panel, Options& options) {
    dotmatrix::Dialect& dialect = options.dialect;
    options.ownPitch = !panel.pitch.empty();
    dialect.elite = panel.pitch == "12" || panel.pitch == "20";
    dialect.condensed = panel.pitch == "17" || panel.pitch == "20";
    dialect.needles =
        panel.needles == "9" ? dotmatrix::Needles::Nine : dotmatrix::Needles::TwentyFour;
    dialect.carriageWidth = (panel.carriage == "80" ? 80 : 136) * unitsPerInch / 10;
    options.ownHeight = panel.lines || panel.height;
    if (panel.lines) {
        dialect.formHeight = static_cast<PaperUnits>(*panel.lines) * unitsPerInch / 6;
    }
    if (panel.height) {
        dialect.formHeight = std::llround(*panel.height * static_cast<double>(unitsPerInch));
    }
    if (panel.port) {
        options.port = static_cast<std::uint16_t>(*panel.port);
    }
    if (panel.rollMegabytes) {
        options.rollBytes = std::int64_t{*panel.rollMegabytes} * 1024 * 1024;
    }
    options.endAfter = static_cast<std::size_t>(panel.endAfter.value_or(0));
}

}  // namespace

std::variant<Options, cli::Ending> readCommandLine(int argc, const char* const* argv) {
    Options options;
    Panel panel;
    cli::CommandLine line(
        "tarnimpressora",
        "Impressora matricial virtual: mostra no papel o que um trabalho cru imprime.");
    declarePaper(line, options, panel);
    declareJobs(line, options, panel);
    declareHolding(line, options);
    declarePanel(line, options, panel);
    if (auto ending = line.read(argc, argv)) {
        return *ending;
    }
    if (panel.lines && panel.height) {
        return line.wrong("dê --linhas-por-formulario ou --altura, não as duas.");
    }
    setPanel(panel, options);
    if (const auto wrong = wrongHolding(options)) {
        return line.wrong(*wrong);
    }
    if (options.endAfter > 0 && !options.waits()) {
        return line.wrong("--quantos pede também --porta N ou --pasta DIR.");
    }
    if (options.writes() && options.jobs.empty() && !options.waits()) {
        return line.wrong(
            "diga que trabalho imprimir: um ou mais arquivos .prn, --porta N ou --pasta DIR.");
    }
    return options;
}

}  // namespace tarn::printer
