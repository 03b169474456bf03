// From the rows of an answer to the rows of a grid, by a table of its columns.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "common/grid_row.h"

namespace tarn {

class XmlDocument;

// What becomes of the attribute on its way into the cell.
enum class Tratamento {
    Texto,         // as it stands
    Valor,         // read with a point as decimal mark, shown under "###,##0.00"
    CpfCnpj,       // masked for the kind of person that PES_JUR tells
    TipoPessoa,    // needs no attribute: "F" or "J" by PES_JUR
    SoReceber,     // only of a receivable (TIPO_DOCTO is "DOCTO_RECEBER")
    SoNaoReceber,  // only of anything else
};

// One for each column, the first one included; no name: the cell stays empty.
struct CampoGrade {
    std::string_view nome = {};
    Tratamento tratamento = Tratamento::Texto;
};

// Unticked rows; costs O(1) a row. An absent attribute leaves its cell empty, also in a
// treated column; a present but empty amount reads 0.
std::vector<LinhaGrade> linhasDaResposta(const XmlDocument& resposta,
                                         std::span<const CampoGrade> campos);

}  // namespace tarn
