// The desk.
#include <cstdio>

#include "desk/desk_assembly.h"

int main(int argc, char** argv) {
    const auto lidas = tarn::leOpcoes(
        argc, argv, qEnvironmentVariable("TARN_SERVIDOR").toStdString(), TARN_BASE_URL);
    if (const auto* parada = std::get_if<tarn::SemPartida>(&lidas)) {
        std::fputs(parada->texto.c_str(), parada->status == 0 ? stdout : stderr);
        return parada->status;
    }
    const auto& opcoes = std::get<tarn::Opcoes>(lidas);
    auto impressoras = tarn::impressorasDe(opcoes);
    if (!impressoras.bruta) {
        std::fputs(
            "tarnemissao: este programa foi compilado sem impressora do sistema; use "
            "--impressora-virtual PASTA.\n",
            stderr);
        return 1;
    }
    tarn::DeskApplication programa(argc, argv);
    tarn::Mesa mesa(programa, opcoes, std::move(impressoras));
    mesa.abre();
    return programa.exec();
}
