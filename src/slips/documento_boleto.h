// One open document that may go on a slip: a row of the search's grid.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "session/xml_document.h"

namespace tarn {

// The grid's columns by number; column 1 is the tick.
enum class ColunaBoleto {
    Filial = 2,
    Vencimento,
    TipoDocumento,
    NumeroDocumento,
    Cliente,
    Emissao,
    Endereco,
    Valor,  // "###,##0.00"
    Cep,
    Municipio,
    Estado,
    CnpjCpf,  // masked
    InscricaoEstadual,
    TipoPessoa,  // "F" or "J"
    Tabela,      // "DOCTO_COBRANCA", "DOCTO_RECEBER"
    NumeroControle,
    ReferenciaCobranca,
    TaxaJuros,   // "###,##0.00"
    Multa,       // "###,##0.00", percent
    JurosAoDia,  // "###,##0.00"
    OutrasDespesas,
    Instrucao,
    Estabelecimento,
    IdTipoDocumento,
    Agencia,
    Banco,
    CodigoExterno,
    NotaFiscal,
};

inline constexpr std::size_t colunasDoBoleto = 29;

// The texts of a row as the grid shows them. An absent field is empty.
class DocumentoBoleto {
public:
    const std::string& operator[](ColunaBoleto coluna) const { return celulas_[lugar(coluna)]; }
    std::string& operator[](ColunaBoleto coluna) { return celulas_[lugar(coluna)]; }

private:
    static std::size_t lugar(ColunaBoleto coluna) {
        return static_cast<std::size_t>(coluna) - 2;  // the tick isn't kept here
    }
    std::array<std::string, colunasDoBoleto - 1> celulas_;
};

// The rows of a sel_boleto answer; none when it has no rows.
std::vector<DocumentoBoleto> documentosDe(const XmlDocument& resposta);

}  // namespace tarn
