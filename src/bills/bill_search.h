// The search of bills and receipts: what it asks for and the rows it finds.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
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
namespace coluna_duplicata {
inline constexpr std::size_t vencimento = 3;
inline constexpr std::size_t emissao = 4;
inline constexpr std::size_t numero = 5;
inline constexpr std::size_t cliente = 6;
inline constexpr std::size_t endereco = 7;
inline constexpr std::size_t valor = 8;
inline constexpr std::size_t cep = 9;
inline constexpr std::size_t municipio = 10;
inline constexpr std::size_t estado = 11;
inline constexpr std::size_t cpfCnpj = 12;
inline constexpr std::size_t inscricao = 13;
inline constexpr std::size_t tipoPessoa = 14;
inline constexpr std::size_t tipoDocumento = 16;
inline constexpr std::size_t referencia = 18;
inline constexpr std::size_t notaFiscal = 19;
inline constexpr std::size_t enderecoCobranca = 20;
inline constexpr std::size_t municipioCobranca = 21;
inline constexpr std::size_t estadoCobranca = 22;
inline constexpr std::size_t cepCobranca = 23;
}  // namespace coluna_duplicata
inline constexpr std::size_t colunasDuplicata = 23;

inline constexpr std::int32_t tipoDuplicata = 1;  // item data of cboTpDocto

// The fixed items of cboTpDocto; the first one is no kind of document.
std::vector<ItemLista> tiposDeDocumento();

// Why a search isn't sent: what the box says, and where the focus goes.
enum class CampoDaPesquisa { TipoDocumento, VencimentoAte };
struct RecusaDaPesquisa {
    std::string_view texto;
    CampoDaPesquisa campo;
};
std::optional<RecusaDaPesquisa> recusaDaPesquisa(int posicaoDoTipo, std::string_view vencimentoAte);

// The rows of the grid; nothing when the request failed (the user has been told).
std::optional<std::vector<LinhaGrade>> pesquisaDuplicatas(Environment& ambiente,
                                                          const Sessao& sessao, std::int32_t tipo,
                                                          const comando::Pesquisa& filtro);
std::vector<LinhaGrade> linhasDeDuplicatas(const XmlDocument& resposta);

}  // namespace tarn
