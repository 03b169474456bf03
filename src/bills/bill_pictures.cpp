#include "bills/bill_pictures.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace tarn {
namespace {

std::optional<Picture> figuraDe(const std::string& pasta, const char* arquivo, const char* nome) {
    const std::filesystem::path caminho = std::filesystem::path(pasta) / arquivo;
    std::error_code falha;
    if (!std::filesystem::is_regular_file(caminho, falha)) {
        return std::nullopt;
    }
    std::ifstream entrada(caminho, std::ios::binary);
    std::string bytes((std::istreambuf_iterator<char>(entrada)), std::istreambuf_iterator<char>());
    if (!entrada || bytes.empty()) {
        return std::nullopt;
    }
    return Picture(nome, std::move(bytes));
}

}  // namespace

FigurasDuplicata carregaFiguras(const std::string& pasta) {
    return {.picLogo = figuraDe(pasta, "LOGODUPL.jpg", "picLogo"),
            .picVert = figuraDe(pasta, "VERTDUPL.jpg", "picVert"),
            .picAss = figuraDe(pasta, "ASSEMITENTE.jpg", "picAss")};
}

}  // namespace tarn
