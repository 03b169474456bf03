// The items of a drop-down list that an answer fills.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class XmlDocument;
struct Environment;
struct Sessao;

struct ItemLista {
    std::string texto;
    std::int32_t dado = 0;  // item data; 0 of the first item: none chosen
    bool operator==(const ItemLista&) const = default;
};

// One for each row of the answer, in its order. An absent text is empty; item data
// that is absent or no 32-bit number is 0.
std::vector<ItemLista> itensDaResposta(const XmlDocument& resposta, std::string_view campoTexto,
                                       std::string_view campoDado);

// "<-TODAS->" and the company's branches; the first item alone when the request failed
// (the user has been told).
std::vector<ItemLista> filiaisParaFiltro(Environment& ambiente, const Sessao& sessao);

}  // namespace tarn
