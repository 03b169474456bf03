#include "apps/tarnimpressora/options.h"

#include <CLI/CLI.hpp>
#include <cmath>
#include <memory>
#include <optional>

namespace tarn::printer {

namespace {

using dotmatrix::PaperUnits;
using dotmatrix::unitsPerInch;

constexpr double lowestForm = 0.5;  // inches, as printers take by ESC C
constexpr double highestForm = 22;
constexpr double highestFormLines = highestForm * 6;

struct Raw {
    std::string lines;
    std::string height;
    std::string codePage = "1252";
    std::string pitch;
    std::string items;
    std::string port;
    std::string endAfter;
    std::string needles = "9";
    std::string carriage = "136";
};

Ending wrong(const std::string& what) {
    return {1, "tarnimpressora: " + what + "\nVeja as opções com --ajuda.\n"};
}

// CLI11 speaks English; what it found wrong is said again by its kind.
Ending wrongUsage(const CLI::ParseError& error, const CLI::App& app) {
    if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr) {
        std::string unknown;
        for (const std::string& word : app.remaining()) {
            unknown += ' ';
            unknown += word;
        }
        return wrong("opção desconhecida:" + unknown + ".");
    }
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
        return wrong("uma opção foi dada sem o seu valor ou mais de uma vez.");
    }
    return wrong("linha de comando inválida.");
}

std::optional<double> numberOf(std::string text) {
    for (char& c : text) {
        c = c == ',' ? '.' : c;
    }
    double value = 0;
    if (text.find_first_not_of("0123456789.") != std::string::npos ||
        !CLI::detail::lexical_cast(text, value)) {
        return std::nullopt;
    }
    return value;
}

std::optional<Ending> readForm(const Raw& raw, dotmatrix::Dialect& dialect) {
    if (!raw.lines.empty() && !raw.height.empty()) {
        return wrong("dê --linhas-por-formulario ou --altura, não as duas.");
    }
    if (!raw.lines.empty()) {
        const auto lines = numberOf(raw.lines);
        if (!lines || *lines != std::floor(*lines) || *lines < 6 * lowestForm ||
            *lines > highestFormLines) {
            return wrong("--linhas-por-formulario pede um número inteiro de 3 a 132.");
        }
        dialect.formHeight = static_cast<PaperUnits>(*lines) * unitsPerInch / 6;
    }
    if (!raw.height.empty()) {
        const auto inches = numberOf(raw.height);
        if (!inches || *inches < lowestForm || *inches > highestForm) {
            return wrong("--altura pede um número de polegadas de 0,5 a 22.");
        }
        dialect.formHeight = std::llround(*inches * static_cast<double>(unitsPerInch));
    }
    return std::nullopt;
}

std::optional<Ending> readPanel(const Raw& raw, Options& options) {
    dotmatrix::Dialect& dialect = options.dialect;
    const auto pageNumber = numberOf(raw.codePage);
    const bool known = raw.codePage == "1252" || raw.codePage == "850" || raw.codePage == "860";
    const auto page = known ? codePageByNumber(static_cast<int>(*pageNumber)) : std::nullopt;
    if (!page) {
        return wrong("--pagina-de-codigo pede 1252, 850 ou 860.");
    }
    dialect.codePage = *page;
    options.ownPitch = !raw.pitch.empty();
    if (options.ownPitch && raw.pitch != "10" && raw.pitch != "12" && raw.pitch != "17" &&
        raw.pitch != "20") {
        return wrong("--passo pede 10, 12, 17 ou 20.");
    }
    dialect.elite = raw.pitch == "12" || raw.pitch == "20";
    dialect.condensed = raw.pitch == "17" || raw.pitch == "20";
    if (raw.needles != "9" && raw.needles != "24") {
        return wrong("--agulhas pede 9 ou 24.");
    }
    dialect.needles =
        raw.needles == "9" ? dotmatrix::Needles::Nine : dotmatrix::Needles::TwentyFour;
    if (raw.carriage != "80" && raw.carriage != "136") {
        return wrong("--carro pede 80 ou 136.");
    }
    dialect.carriageWidth = (raw.carriage == "80" ? 80 : 136) * unitsPerInch / 10;
    options.ownHeight = !raw.lines.empty() || !raw.height.empty();
    return readForm(raw, dialect);
}

// A whole number from `least` to `most`.
std::optional<int> wholeOf(const std::string& text, int least, int most) {
    const auto number = numberOf(text);
    const bool whole =
        number && *number == std::floor(*number) && *number >= least && *number <= most;
    return whole ? std::optional(static_cast<int>(*number)) : std::nullopt;
}

std::optional<Ending> readRest(const Raw& raw, Options& options) {
    constexpr int mostItems = 100;
    constexpr int mostJobs = 1'000'000;
    if (!raw.items.empty()) {
        options.itemLines = wholeOf(raw.items, 0, mostItems);
        if (!options.itemLines) {
            return wrong("--itens pede um número inteiro de 0 a 100.");
        }
    }
    if (!raw.port.empty()) {
        const auto port = wholeOf(raw.port, 0, 65535);
        if (!port) {
            return wrong("--porta pede um número inteiro de 0 a 65535.");
        }
        options.port = static_cast<std::uint16_t>(*port);
    }
    if (!raw.endAfter.empty()) {
        const auto jobs = wholeOf(raw.endAfter, 1, mostJobs);
        if (!jobs || !options.waits()) {
            return wrong(
                "--quantos pede um número inteiro de 1 a 1000000, com --porta ou --pasta.");
        }
        options.endAfter = static_cast<std::size_t>(*jobs);
    }
    return std::nullopt;
}

void declare(CLI::App& app, Options& options, Raw& raw) {
    app.get_formatter()->label("Usage", "Uso");
    app.get_formatter()->label("OPTIONS", "OPÇÕES");
    app.option_defaults()->group("Opções");
    app.get_formatter()->label("Positionals", "Arquivos");
    app.get_formatter()->label("TEXT", "VALOR");
    app.set_help_flag("-h,--ajuda,--help", "Mostra esta ajuda")->group("Opções");
    app.add_option("--pdf", options.pdf, "Grava o papel em PDF, uma página por formulário");
    app.add_option("--png", options.png,
                   "Grava o papel em figuras: ARQ.png, ARQ-002.png, uma por formulário");
    app.add_option("--texto", options.text, "Grava o papel em texto (UTF-8)");
    app.add_option("--pagina-de-codigo", raw.codePage,
                   "Página dos bytes: 1252 (usual), 850 ou 860");
    app.add_option("--linhas-por-formulario", raw.lines,
                   "Altura do formulário em linhas de 1/6 de polegada (usual 66)");
    app.add_option("--altura", raw.height, "Altura do formulário em polegadas (usual 11)");
    app.add_option("--passo", raw.pitch,
                   "Caracteres por polegada ao ligar: 10 (usual), 12, 17 ou 20");
    app.add_option("--formulario", options.form,
                   "Formulário pré-impresso sob o texto: um nome de --formularios, uma figura da "
                   "folha inteira ou um formulário escrito em texto");
    app.add_option("--itens", raw.items,
                   "Linhas de item do formulário (usual: as que enchem 11 polegadas)");
    app.add_flag("--formularios", options.listForms,
                 "Mostra os formulários: nome, empresa e estabelecimento");
    app.add_option("--mostra-formulario", options.writtenForm,
                   "Mostra um formulário escrito em texto, para servir de começo a outro");
    app.add_flag("--regua", options.ruler, "Desenha os números das linhas e das colunas");
    app.add_option("--porta", raw.port,
                   "Recebe trabalhos pela rede nesta porta (0: uma livre); a janela sem mais "
                   "nada usa 9100");
    app.add_option("--escutar", options.address,
                   "Endereço em que recebe (usual 127.0.0.1, só esta máquina)");
    app.add_option("--pasta", options.folder,
                   "Imprime os trabalhos (*.prn) desta pasta, e os que chegarem nela");
    app.add_option("--quantos", raw.endAfter, "Termina depois de tantos trabalhos recebidos");
    app.add_option("--carro", raw.carriage, "Carro da impressora: 136 (usual) ou 80 colunas");
    app.add_option("--agulhas", raw.needles, "Cabeça de 9 (usual) ou 24 agulhas");
    app.add_flag("--faixas", options.bands, "Desenha as faixas claras do papel zebrado");
    app.add_option("--titulo", options.title, "Nome escrito na margem de cada formulário");
    app.add_option("trabalhos", options.jobs,
                   "Trabalhos crus (.prn), impressos um após o outro no mesmo papel");
}

}  // namespace

std::variant<Options, Ending> readCommandLine(int argc, const char* const* argv) {
    Options options;
    Raw raw;
    CLI::App app("Impressora matricial virtual: mostra no papel o que um trabalho cru imprime.",
                 "tarnimpressora");
    declare(app, options, raw);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        return Ending{0, app.help()};
    } catch (const CLI::ParseError& error) {
        return wrongUsage(error, app);
    }
    if (auto ending = readPanel(raw, options)) {
        return *ending;
    }
    if (auto ending = readRest(raw, options)) {
        return *ending;
    }
    if (options.writes() && options.jobs.empty() && !options.waits()) {
        return wrong(
            "diga que trabalho imprimir: um ou mais arquivos .prn, --porta N ou --pasta DIR.");
    }
    return options;
}

}  // namespace tarn::printer
