// One run over the grid: a slip for each ticked document, its number written to the
// server before it is printed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "session/sessao.h"
#include "slips/carteira_cobranca.h"
#include "slips/documento_boleto.h"

namespace tarn {

struct Environment;

// What the run asks of the grid and tells it; rows count from 0. The grid must not
// change under the run but by its ticks.
struct GradeDeBoletos {
    std::size_t linhas = 0;
    std::function<const DocumentoBoleto&(std::size_t)> documento;
    std::function<bool(std::size_t)> marcada;
    std::function<void(std::size_t)> desmarca;
    std::function<void(std::size_t)> passou = [](std::size_t) {};  // ticked or not
};

struct PedidoDeBoletos {
    std::string proximo;          // number of the first slip, as typed
    bool incluiCarteira = false;  // the portfolio's bank counts, not each row's own
};

// The writes are sent and nothing of them is looked at: a slip is printed whatever
// became of them. Tells the user when no slip was printed. Raises TipoIncompativel for a
// number or a portfolio that can't be worked with, ArgumentoInvalido when the number
// has no next one, Estouro past 32767 slips; what was written and printed stays.
void imprimeBoletos(Environment& ambiente, const Sessao& sessao, const CarteiraCobranca& carteira,
                    const PedidoDeBoletos& pedido, const GradeDeBoletos& grade);

}  // namespace tarn
