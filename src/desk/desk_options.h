// The desk's command line.
#pragma once

#include <string>
#include <variant>

#include "runtime/code_page.h"

namespace tarn {

struct Opcoes {
    std::string baseUrl;            // ends in "?"
    std::string impressoraVirtual;  // directory; empty: the machine's printer
    CodePage paginaDeCodigo = CodePage::Page1252;
    std::string pastaFiguras;  // empty: the usual one
    bool selecaoEtiquetas = false;
};

// The program doesn't start: help or version was asked for (status 0, `texto` for the
// standard output) or the usage is wrong (status 1, `texto` for the error output).
struct SemPartida {
    int status = 0;
    std::string texto;
};

// `servidorDoAmbiente` is what TARN_SERVIDOR holds, `padrao` the address of the build.
std::variant<Opcoes, SemPartida> leOpcoes(int argc, const char* const* argv,
                                          const std::string& servidorDoAmbiente,
                                          const std::string& padrao);

// The address as requests need it: a bare server ("http://host:8610") gets the path of
// the one page, an address of a page its question mark. Empty: no http or https address.
std::string enderecoDoServidor(const std::string& digitado);

}  // namespace tarn
