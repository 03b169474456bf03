// The two pages: one document each, in the upper half of the sheet.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "bills/bill_paper.h"
#include "bills/bill_pictures.h"
#include "bills/company_data.h"
#include "common/grid_row.h"

namespace tarn {

// What all pages of a run have in common.
struct Emitente {
    std::int32_t empresa = 0;  // the session's company
    DadosEmpresa dados;
    FigurasDuplicata figuras;
    bool triplicata = false;
};

// `extenso` is the amount in words.
void desenhaDuplicata(Papel& papel, const Emitente& emitente, const LinhaGrade& documento,
                      const std::string& extenso);
void desenhaRecibo(Papel& papel, const Emitente& emitente, const LinhaGrade& documento,
                   const std::string& extenso);

// What tells the two headers apart.
struct Cabecalho {
    std::string_view rotuloEmissao;
    std::string localidade;
};
void desenhaCabecalho(Papel& papel, const Emitente& emitente, const LinhaGrade& documento,
                      const Cabecalho& cabecalho);

// Piece after piece of so many characters, one at each height, in the typewriter face.
void desenhaPedacos(Papel& papel, std::string_view tira, std::size_t caracteres, double x,
                    std::initializer_list<double> alturas, double tamanho);

inline constexpr double margemEsquerda = 1.1;
inline constexpr double margemDireita = 20.3;

}  // namespace tarn
