#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

#include "apps/tarnimprime/commands.h"
#include "apps/tarnimprime/print_environment.h"
#include "notes/losses.h"
#include "notes/print_note.h"
#include "platform/http_loader.h"
#include "runtime/file_names.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn::print {
namespace {

struct NoteRequest {
    Sessao session;
    bool reprint = false;
    bool check = false;
    std::string number;
    std::vector<std::string> files;

    Ladder ladder() const { return reprint ? Ladder::Reprint : Ladder::Issuing; }
};

void declareSession(cli::Command& command, NoteRequest& request) {
    command.whole("--empresa", request.session.NCOMPANYCODE, "Código da empresa").required();
    command.whole("--estabelecimento", request.session.ID_ETB_TARN, "Código do estabelecimento")
        .required();
    command.flag("--reimpressao", request.reprint, "escada da tela de reimpressão");
}

const notes::Layout* layoutOf(const NoteRequest& request) {
    return layoutFor(request.ladder(), request.session.NCOMPANYCODE, request.session.ID_ETB_TARN);
}

// On the desk such a note prints nothing either, and nothing is said.
void sayWhereNoForm(const NoteRequest& request) {
    if (layoutOf(request) == nullptr) {
        std::fprintf(stderr,
                     "tarnimprime: a empresa %d, estabelecimento %d, não tem formulário de nota: "
                     "nada é impresso.\n",
                     request.session.NCOMPANYCODE, request.session.ID_ETB_TARN);
    }
}

void print(const NoteRequest& request, PrintEnvironment& desk) {
    std::vector<XmlDocument> documents = readAnswers(request.files);
    sayWhereNoForm(request);
    Environment& environment = desk.environment();
    for (XmlDocument& document : documents) {
        printNote(request.ladder(), environment, request.session, document, request.number);
    }
}

// Says what each document loses; true where one loses anything. What was found before an
// error of the run time is said too.
bool check(const NoteRequest& request, PrintEnvironment& desk) {
    std::vector<XmlDocument> documents = readAnswers(request.files);
    sayWhereNoForm(request);
    Environment& environment = desk.dryRunEnvironment();
    bool anyLoss = false;
    for (std::size_t i = 0; i < documents.size(); ++i) {
        notes::LossLog losses;
        const auto say = [&] {
            for (const notes::Loss& loss : losses.losses()) {
                show(forTerminal(request.files[i] + ": " + describe(loss)));
            }
        };
        try {
            printNote(request.ladder(), environment, request.session, documents[i], request.number,
                      &losses);
        } catch (const RuntimeError&) {
            say();
            throw;
        }
        say();
        anyLoss |= !losses.losses().empty();
    }
    return anyLoss;
}

// Nothing for a file that can't be read: a stream would raise its own error on a directory.
// Of one larger than an answer may be so much that it shows.
std::optional<std::string> content(const std::string& file) {
    std::error_code failure;
    const std::filesystem::path path = pathOf(file);
    if (std::filesystem::is_directory(path, failure)) {
        return std::nullopt;
    }
    std::ifstream input(path, std::ios::binary);
    if (!input.is_open()) {
        return std::nullopt;
    }
    std::string bytes;
    std::array<char, std::size_t{64} * 1024> piece{};
    while (bytes.size() <= largestAnswer && (input.read(piece.data(), piece.size()), true) &&
           input.gcount() > 0) {
        bytes.append(piece.data(), static_cast<std::size_t>(input.gcount()));
    }
    return input.bad() ? std::nullopt : std::optional(std::move(bytes));
}

}  // namespace

XmlDocument readAnswer(const std::string& file) {
    const std::optional<std::string> bytes = content(file);
    if (!bytes) {
        throw cli::WrongUsage("não foi possível ler \"" + file +
                              "\". Confira o nome do arquivo e a permissão de leitura.");
    }
    XmlDocument document;
    if (!document.loadXML(*bytes)) {
        throw cli::WrongUsage(
            "\"" + file + "\" não é uma resposta do servidor: o XML está incompleto ou errado.");
    }
    return document;
}

std::vector<XmlDocument> readAnswers(const std::vector<std::string>& files) {
    std::vector<XmlDocument> documents;
    documents.reserve(files.size());
    for (const std::string& file : files) {
        documents.push_back(readAnswer(file));
    }
    return documents;
}

void declareNote(cli::CommandLine& line, Choice& choice) {
    cli::Command command = line.command("nota", "imprime notas fiscais pela escada");
    const auto request = std::make_shared<NoteRequest>();
    declareSession(command, *request);
    command.text("--numero", request->number, "Número da nota").required();
    command.texts("documentos", request->files, "documentos de nota (DOC.xml)")
        .called("ARQUIVO")
        .required();
    command.flag("--confere", request->check,
                 "Não imprime: diz o que a nota perde no seu formulário (status 4 se perde)");
    command.whenChosen([&choice, request] {
        choice.run = [&choice, request](PrintEnvironment& desk) {
            if (!request->check) {
                print(*request, desk);
            } else if (check(*request, desk)) {
                choice.status = statusLoss;
            }
        };
    });
}

void declareLadder(cli::CommandLine& line, Choice& choice) {
    cli::Command command = line.command("escada", "mostra o layout de uma empresa");
    const auto request = std::make_shared<NoteRequest>();
    declareSession(command, *request);
    command.whenChosen([&choice, request] {
        choice.run = [request](PrintEnvironment&) {
            const notes::Layout* layout = layoutOf(*request);
            show(layout == nullptr ? "-" : layout->name);
        };
    });
}

}  // namespace tarn::print
