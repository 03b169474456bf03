// A fiscal note that exists on the server is printed again, or cancelled there. The
// number and the series are always those of the note that a search has found.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "gateway/sessao.h"

namespace tarn {

struct Environment;

// Adds an item for each series: its description, a gap that keeps the code out of
// sight, "|" and the code. False: the loading of the screen ends here.
bool carregaSeries(Environment& ambiente, const Sessao& sessao, std::vector<std::string>& itens);

// The code that an item carries: its second piece between bars.
std::string codigoDaSerie(std::string_view item);

struct MotivoCancelamento {
    std::string descricao;
    std::int32_t id = 0;
};
std::vector<MotivoCancelamento> carregaMotivos(Environment& ambiente, const Sessao& sessao);

// What the user chose and typed.
struct CamposNota {
    std::optional<std::string> serie;  // the chosen item, whole
    std::string numero;
};

// What a search shows of a note.
struct NotaEncontrada {
    std::string numero;  // as it was typed
    std::string serie;   // code
    std::string tipo;    // code
    std::string descricaoTipo;
    std::string emissao;  // dd/mm/yyyy
    std::string cliente;
};

// Notes of this type are printed again, but never cancelled here.
inline constexpr std::string_view tipoSemCancelamento = "D";

// Nothing: the user has been told.
std::optional<NotaEncontrada> pesquisaNota(Environment& ambiente, const Sessao& sessao,
                                           const CamposNota& campos);

// Before either job: true when series and number are there and a note has been found
// (`notaEncontrada`, its number, isn't empty). Otherwise the user has been told.
bool notaSelecionada(Environment& ambiente, const CamposNota& campos,
                     std::string_view notaEncontrada);

// Fetches the note and prints it by the ladder of this screen. An error of the layout
// comes out as ErroComNota.
void reimprimeNota(Environment& ambiente, const Sessao& sessao, const std::string& numero,
                   const std::string& serie);

enum class NovoFaturamento { Com, Sem };

struct PedidoCancelamento {
    std::string numero;
    std::string serie;     // code
    std::string tipoNota;  // code
    std::optional<NovoFaturamento> opcao = std::nullopt;
    std::optional<std::int32_t> motivo = std::nullopt;
};

// True: cancelled. The user has been told how it went in any case; nothing is asked
// before and nothing is sent twice.
bool cancelaNota(Environment& ambiente, const Sessao& sessao, const PedidoCancelamento& pedido);

}  // namespace tarn
