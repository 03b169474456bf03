#include "gateway/command_effects.h"

#include <algorithm>
#include <array>

namespace tarn::commands {
namespace {

constexpr std::array<CommandEffect, 39> effects{{
    {"VERSAO_TARN_EMISSAO", Effect::Reads},
    {"LOGIN", Effect::Reads},
    {"verifica_direito_acesso", Effect::Reads},
    {"sel_dados_empresa", Effect::Reads},
    {"sel_ordem_fatu", Effect::Reads},
    {"sp_can_oft", Effect::Writes},
    {"Seleciona_Obs_Vnd_X_Ord", Effect::Reads},
    {"Seleciona_Obs_Ord_X_Est", Effect::Reads},
    {"SP_GERA_NF", Effect::Writes},
    {"sel_gera_nf", Effect::Reads},
    {"MANUTENCAO_OFT", Effect::Writes},
    {"sel_impr_ordem_fatu", Effect::Reads},
    {"SEL_NF", Effect::Reads},
    {"sp_can_nf", Effect::Writes},
    {"SEL_SERIE_NF", Effect::Reads},
    {"SEL_MOT_CAN", Effect::Reads},
    {"sel_duplicata", Effect::Reads},
    {"sel_filiais", Effect::Reads},
    {"Sel_Cliente", Effect::Reads},
    {"sel_boleto", Effect::Reads},
    {"sel_carteira", Effect::Reads},
    {"sel_carteira_cob", Effect::Reads},
    {"altera_docto_cob", Effect::Writes},
    {"altera_docto_rec", Effect::Writes},
    {"insere_car_cob", Effect::Writes},
    {"insere_car_rec", Effect::Writes},
    {"sel_banco_agencia_conta", Effect::Reads},
    {"seleciona_um_controle_cheque_emitido", Effect::Reads},
    {"adiciona_controle_cheque_emitido", Effect::Writes},
    {"sel_etiquetas", Effect::Reads},
    {"sel_motivos", Effect::Reads},
    {"sel_filiais_remetente", Effect::Reads},
    {"exclui_etiquetas", Effect::Writes},
    {"sel_filias", Effect::Reads},
    {"sel_pais", Effect::Reads},
    {"sel_estado", Effect::Reads},
    {"sel_cidade", Effect::Reads},
    {"sel_dados_etq", Effect::Reads},
    {"sel_dados_remetente", Effect::Reads},
}};

// "Comando=x&...": the key's spelling differs from command to command.
std::string_view commandOf(std::string_view address) {
    const std::size_t mark = address.find('?');
    const std::size_t equals = address.find('=', mark == address.npos ? address.size() : mark);
    if (equals == address.npos) {
        return {};
    }
    const std::size_t end = address.find('&', equals);
    return address.substr(equals + 1, end == address.npos ? end : end - equals - 1);
}

}  // namespace

std::span<const CommandEffect> commandEffects() {
    return effects;
}

bool onlyReads(const std::string& address) {
    const std::string_view command = commandOf(address);
    const auto* known =
        std::find_if(effects.begin(), effects.end(),
                     [command](const CommandEffect& effect) { return effect.command == command; });
    return known != effects.end() && known->effect == Effect::Reads;
}

}  // namespace tarn::commands
