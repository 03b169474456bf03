// tarnservidor: the practice server.
#include <CLI/CLI.hpp>
#include <QCoreApplication>
#include <csignal>
#include <cstdint>
#include <iostream>
#include <string>
#include <thread>

#include "practice/http_front.h"
#include "practice/practice_server.h"
#include "runtime/dates.h"

namespace {

using tarn::practice::HttpFront;
using tarn::practice::PracticeOptions;
using tarn::practice::PracticeServer;

constexpr int kFailure = 1;
constexpr int kLargestPort = 65535;

struct Arguments {
    int port = 8610;
    std::string address = "127.0.0.1";
    std::string encoding = "windows-1252";
    std::string today;
    PracticeOptions options;
};

void declare(CLI::App& app, Arguments& arguments) {
    app.add_option("--porta", arguments.port, "Porta em que serve; 0 escolhe uma livre")
        ->capture_default_str();
    app.add_option("--endereco", arguments.address, "Endereço em que serve")->capture_default_str();
    app.add_option("--banco", arguments.options.database,
                   "Arquivo do banco de dados, criado quando não existe")
        ->capture_default_str();
    app.add_option("--semente", arguments.options.seed,
                   "Número de que saem os dados de um banco novo")
        ->capture_default_str();
    app.add_option("--codificacao", arguments.encoding,
                   "Codificação das respostas: windows-1252, iso-8859-1 ou utf-8")
        ->capture_default_str();
    app.add_option("--hoje", arguments.today, "Data do servidor, dd/mm/aaaa; sem ela, a de hoje");
}

// What the parser can't tell: values that are no encoding, date or port.
std::string completeOptions(Arguments& arguments) {
    const auto encoding = tarn::practice::encodingByName(arguments.encoding);
    if (!encoding) {
        return "A codificação \"" + arguments.encoding +
               "\" não existe. Use windows-1252, iso-8859-1 ou utf-8.";
    }
    arguments.options.encoding = *encoding;
    if (!arguments.today.empty()) {
        arguments.options.today = tarn::parseStrictDate(arguments.today);
        if (!arguments.options.today) {
            return "A data \"" + arguments.today + "\" não existe. Escreva --hoje como dd/mm/aaaa.";
        }
    }
    if (arguments.port < 0 || arguments.port > kLargestPort) {
        return "A porta " + std::to_string(arguments.port) +
               " não existe. Escolha de 0 a 65535 com --porta.";
    }
    return {};
}

int fail(const std::string& text) {
    std::cerr << "tarnservidor: " << text << '\n';
    return kFailure;
}

std::string hostOf(const std::string& address) {
    return address.find(':') == std::string::npos ? address : '[' + address + ']';
}

sigset_t endingSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    return signals;
}

void serveUntilSignal(HttpFront& front) {
    std::thread serving([&front] { front.serve(); });
    const sigset_t signals = endingSignals();
    int received = 0;
    sigwait(&signals, &received);
    front.stop();
    serving.join();
}

int run(const Arguments& arguments) {
    PracticeServer server(arguments.options);
    HttpFront front(
        [&server](std::string_view query) { return server.answer(query); },
        "text/xml; charset=" + std::string(tarn::practice::encodingName(server.encoding())));
    const int port = front.bind(arguments.address, arguments.port);
    std::cout << "Servindo em http://" << hostOf(arguments.address) << ':' << port
              << tarn::practice::kPagePath << '?' << std::endl;
    serveUntilSignal(front);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    // Blocked before any thread begins, so that all inherit it and only the
    // waiting one takes them.
    const sigset_t signals = endingSignals();
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    const QCoreApplication application(argc, argv);
    Arguments arguments;
    CLI::App app(
        "Servidor de prática do TarnEmissao: a página do servidor central com dados "
        "inventados.",
        "tarnservidor");
    declare(app, arguments);
    CLI11_PARSE(app, argc, argv);
    if (const std::string wrong = completeOptions(arguments); !wrong.empty()) {
        return fail(wrong);
    }
    try {
        return run(arguments);
    } catch (const std::exception& error) {
        return fail(error.what());
    }
}
