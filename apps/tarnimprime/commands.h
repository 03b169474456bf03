// The commands of tarnimprime. Each declares itself on the command line and, when
// it is the one given, leaves what to do in `Escolha`.
#pragma once

#include <CLI/CLI.hpp>
#include <cstdint>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "gateway/xml_document.h"

namespace tarn::imprime {

class Mesa;

inline constexpr int statusFeito = 0;
inline constexpr int statusPerda = 4;  // a note that was looked over loses something
inline constexpr int statusUso = 1;    // wrong usage, unreadable input, nowhere to print

// Ends the program with `statusUso`; the text (Portuguese) goes to stderr.
class FalhaDeUso : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Options that stand before or after any command.
struct Geral {
    std::optional<std::string> destino;  // directory for the jobs; none: the machine's printer
    std::string formato = "pdf";         // of drawn pages in that directory
    std::string paginaDeCodigo = "1252";
};

struct Escolha {
    std::function<void(Mesa&)> faz;
    int status = statusFeito;  // of a command that went through
};

void declaraNota(CLI::App& app, Escolha& escolha);
void declaraEscada(CLI::App& app, Escolha& escolha);
void declaraDuplicatas(CLI::App& app, Escolha& escolha);
void declaraOrdem(CLI::App& app, Escolha& escolha);
void declaraBoletos(CLI::App& app, Escolha& escolha);
void declaraEtiquetas(CLI::App& app, Escolha& escolha);
void declaraEtiquetasSelecao(CLI::App& app, Escolha& escolha);
void declaraCheque(CLI::App& app, Escolha& escolha);
void declaraRegras(CLI::App& app, Escolha& escolha);

// A required code: an option when `nome` begins with "--", a value otherwise. Zeros in
// front change nothing.
void declaraCodigo(CLI::App& comando, const std::string& nome, std::int32_t& codigo,
                   const std::string& descricao);

// A saved answer; FalhaDeUso when the file can't be read or isn't an answer.
XmlDocument leResposta(const std::string& arquivo);
// All of them, before anything is printed: a wrong file name must not spend paper.
std::vector<XmlDocument> leRespostas(const std::vector<std::string>& arquivos);

// One line on stdout.
void mostra(std::string_view linha);

}  // namespace tarn::imprime
