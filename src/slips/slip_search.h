// The search of open documents that may go on a slip: what it asks for and the rows it
// finds.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "common/grid_row.h"
#include "common/list_items.h"
#include "gateway/commands.h"

namespace tarn {

class XmlDocument;
struct Environment;
struct Sessao;

// Columns of the grid that are read for the printing.
namespace coluna_boleto {
inline constexpr std::size_t vencimento = 3;
inline constexpr std::size_t numero = 5;
inline constexpr std::size_t cliente = 6;
inline constexpr std::size_t emissao = 7;
inline constexpr std::size_t endereco = 8;
inline constexpr std::size_t valor = 9;  // "###,##0.00"
inline constexpr std::size_t cep = 10;
inline constexpr std::size_t municipio = 11;
inline constexpr std::size_t estado = 12;
inline constexpr std::size_t cpfCnpj = 13;
inline constexpr std::size_t inscricao = 14;
inline constexpr std::size_t tabela = 16;  // "DOCTO_COBRANCA", "DOCTO_RECEBER"
inline constexpr std::size_t numeroControle = 17;
inline constexpr std::size_t multa = 20;       // percent, "###,##0.00"
inline constexpr std::size_t jurosAoDia = 21;  // "###,##0.00"
inline constexpr std::size_t instrucao = 23;
inline constexpr std::size_t estabelecimento = 24;
inline constexpr std::size_t tipoDocumento = 25;
inline constexpr std::size_t banco = 27;
inline constexpr std::size_t codigoExterno = 28;
}  // namespace coluna_boleto
inline constexpr std::size_t colunasBoleto = 29;

// "--------" and the company's collection portfolios; the first item alone when the
// request failed (the user has been told).
std::vector<ItemLista> carteirasParaFiltro(Environment& ambiente, const Sessao& sessao);

// What a search goes by; `carteira` is the item data of its list, at a position above 0.
struct FiltroDeBoletos {
    comando::Pesquisa documentos;
    std::int32_t carteira = 0;
    bool incluiCarteira = false;
};

// Why a search or a print isn't begun: what the box says, and where the focus goes.
enum class CampoDeBoletos { EmissaoDe, VencimentoAte, Carteira, NumeroBancario };
struct RecusaDeBoletos {
    std::string_view texto;
    CampoDeBoletos campo;
};
std::optional<RecusaDeBoletos> recusaDaPesquisa(const comando::Pesquisa& documentos,
                                                int posicaoDaCarteira);
std::optional<RecusaDeBoletos> recusaDaImpressao(int posicaoDaCarteira,
                                                 std::string_view proximoNumero);

// The rows of the grid; nothing when the request failed (the user has been told).
std::optional<std::vector<LinhaGrade>> pesquisaBoletos(Environment& ambiente, const Sessao& sessao,
                                                       const FiltroDeBoletos& filtro);
std::vector<LinhaGrade> linhasDeBoletos(const XmlDocument& resposta);

}  // namespace tarn
