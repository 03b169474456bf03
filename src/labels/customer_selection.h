// Selects customers by where they live and by what they bought.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "common/grid_row.h"
#include "common/list_items.h"
#include "gateway/commands.h"

namespace tarn {
class XmlDocument;
struct Environment;
}  // namespace tarn

namespace tarn::labels {

inline constexpr std::int32_t dadoTodas = -1;

// The four lists: "<-TODAS->" and what the server has; empty after a failed request.
std::vector<ItemLista> carregaFiliais(Environment& ambiente, const Sessao& sessao);
std::vector<ItemLista> carregaPaises(Environment& ambiente, const Sessao& sessao);
std::vector<ItemLista> carregaEstados(Environment& ambiente, const Sessao& sessao,
                                      std::int32_t pais);
std::vector<ItemLista> carregaCidades(Environment& ambiente, const Sessao& sessao,
                                      std::int32_t estado);

// The identity of the item chosen in a list, as text; at the first position those of all
// others, joined by a comma and a blank. `dados` are the item data of the whole list; an
// empty list has no position and gives the empty text.
std::string MontaURL(std::span<const std::int32_t> dados, int posicao);

// Before a search: the sale's date that the other filters ask for and that the user, who
// has been told, must fill in first.
enum class FaltaData { Nenhuma, De, Ate };
FaltaData verificaDatas(Environment& ambiente, const comando::FiltroEtiquetas& filtro);

// A customer is a row of the grid: tick, CEP, name, address, district, state, town.
std::vector<LinhaGrade> clientesDa(const XmlDocument& resposta);

// Shows the query, then sends it. No customers after a failed request.
std::vector<LinhaGrade> pesquisaClientes(Environment& ambiente, const Sessao& sessao,
                                         const comando::FiltroEtiquetas& filtro);

}  // namespace tarn::labels
