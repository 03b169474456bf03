#include "apps/tarnimprime/print_environment.h"

#include <cstdio>
#include <ctime>

#include "apps/tarnimprime/windowless_pages.h"
#include "platform/directory/directory_spooler.h"
#include "platform/directory/ops_printer.h"
#include "platform/system_spooler.h"
#include "runtime/text.h"

namespace tarn::imprime {
namespace {

class SemPapel : public Spooler {
public:
    std::string defaultPrinter() override { return "nenhuma"; }
    bool openPrinter(const std::string&) override { return true; }
    bool startDocument(const JobDescription&) override { return true; }
    bool startPage() override { return true; }
    std::size_t write(std::string_view bytes) override { return bytes.size(); }
    bool endPage() override { return true; }
    bool endDocument() override { return true; }
    bool closePrinter() override { return true; }
};

class SemPaginas : public Printer {
public:
    std::optional<PrinterFailure> perform(const PrintOperation&) override { return std::nullopt; }
};

CodePage paginaDe(const std::string& numero) {
    for (const int conhecida : {1252, 850, 860}) {
        if (numero == std::to_string(conhecida)) {
            return *codePageByNumber(conhecida);
        }
    }
    throw FalhaDeUso("--pagina-de-codigo pede 1252, 850 ou 860.");
}

}  // namespace

BoxAnswer CaixasNoTerminal::show(const Box& box) {
    const std::string texto = replaceAll(replaceAll(box.text, "\r\n", "\n"), "\r", "\n");
    std::fprintf(stderr, "%s: %s\n", box.title.c_str(), texto.c_str());
    return box.buttons == BoxButtons::YesNo ? BoxAnswer::Yes : BoxAnswer::Ok;
}

Date Relogio::today() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &now);
#else
    localtime_r(&now, &local);
#endif
    return {local.tm_mday, local.tm_mon + 1, local.tm_year + 1900};
}

Mesa::Mesa(const Geral& geral) : geral_(geral) {}

void Mesa::preparaPasta() {
    const auto files =
        std::make_shared<JobFiles>(std::filesystem::path(*geral_.destino), JobNumbering::FromOne);
    if (!files->makeDirectory()) {
        throw FalhaDeUso("não foi possível criar a pasta \"" + *geral_.destino +
                         "\". Confira o nome e a permissão de gravação.");
    }
    spooler_ = std::make_unique<DirectorySpooler>(files);
    if (geral_.formato == "ops") {
        paginas_ = std::make_unique<OpsPrinter>(files);
    } else {
        paginas_ = std::make_unique<PaginasSemJanela>(files);
    }
}

void Mesa::preparaImpressora() {
    if (geral_.formato == "ops") {
        throw FalhaDeUso("--formato ops grava em uma pasta: dê também --destino PASTA.");
    }
    spooler_ = makeSystemSpooler();
    if (!spooler_ || spooler_->defaultPrinter().empty()) {
        throw FalhaDeUso(
            "esta máquina não tem impressora padrão. Defina uma, ou grave os trabalhos em uma "
            "pasta com --destino PASTA.");
    }
    paginas_ = std::make_unique<PaginasSemJanela>(nullptr);
}

void Mesa::preparaNada() {
    spooler_ = std::make_unique<SemPapel>();
    paginas_ = std::make_unique<SemPaginas>();
}

CodePage Mesa::confereOpcoes() const {
    const CodePage pagina = paginaDe(geral_.paginaDeCodigo);
    if (geral_.formato != "pdf" && geral_.formato != "ops") {
        throw FalhaDeUso("--formato pede pdf ou ops.");
    }
    return pagina;
}

Environment& Mesa::ambiente() {
    const CodePage pagina = confereOpcoes();
    if (!ambiente_) {
        geral_.destino ? preparaPasta() : preparaImpressora();
    }
    return monta(pagina);
}

Environment& Mesa::ambienteDeConferencia() {
    const CodePage pagina = confereOpcoes();
    if (!ambiente_) {
        geral_.destino ? preparaPasta() : preparaNada();
    }
    return monta(pagina);
}

Environment& Mesa::monta(CodePage pagina) {
    if (!ambiente_) {
        ambiente_ = std::make_unique<Environment>(Environment{.http = servidor_,
                                                              .spooler = *spooler_,
                                                              .printer = *paginas_,
                                                              .boxes = caixas_,
                                                              .clock = relogio_,
                                                              .machine = maquina_,
                                                              .baseUrl = {},
                                                              .codePage = pagina});
    }
    return *ambiente_;
}

}  // namespace tarn::imprime
