// The commands of the server's one page: each function gives the query text that
// follows BaseUrl. Keys keep the spelling and order in which the server knows
// them; values go as they are. Item data of a list is a 32-bit integer; where an item
// data of 0 means "all", nothing is sent behind the key's "=".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "gateway/sessao.h"

namespace tarn::commands {

// Start
std::string VERSAO_TARN_EMISSAO(std::string_view version);
std::string LOGIN(std::string_view company, std::string_view user, std::string_view password);
std::string verifica_direito_acesso(const Sessao& session, std::string_view transaction);
std::string sel_dados_empresa(const Sessao& session);

// Billing orders and notes
std::string sel_ordem_fatu(const Sessao& session);
std::string sp_can_oft(const Sessao& session, std::string_view order, std::string_view loadOrder);
std::string Seleciona_Obs_Vnd_X_Ord(const Sessao& session, std::string_view order);
std::string Seleciona_Obs_Ord_X_Est(const Sessao& session, std::string_view order);
std::string SP_GERA_NF(const Sessao& session, std::string_view order);
std::string sel_gera_nf(const Sessao& session, std::string_view note, std::string_view series);
struct OrderData {
    std::string order = {};
    std::string observation = {};  // "%" goes as "||", then "&" as "|"
    std::string quantity = {};
    std::string grossWeight = {};
    std::string netWeight = {};
};
std::string MANUTENCAO_OFT(const Sessao& session, const OrderData& data);
std::string sel_impr_ordem_fatu(const Sessao& session, std::string_view order);

// Reprint and cancellation
std::string SEL_NF(const Sessao& session, std::string_view note, std::string_view series);
struct Cancellation {
    std::string noteKind = {};
    std::string note = {};
    std::string series = {};
    std::int32_t reason = 0;        // item data
    bool withoutRebilling = false;  // Tipo_Can: S, otherwise C
};
std::string sp_can_nf(const Sessao& session, const Cancellation& data);
std::string SEL_SERIE_NF(const Sessao& session);
std::string SEL_MOT_CAN(const Sessao& session);

// Bills, receipts, slips
struct SearchFilter {
    std::string customer = {};  // its identifier, empty for all
    std::int32_t branch = 0;    // item data; 0: all
    std::string dueFrom = {};
    std::string dueTo = {};
    std::string issuedFrom = {};
    std::string issuedTo = {};
};
// `kind` is the item data of the kind of document: 0 both, 1 bills, 12 receipts.
std::string sel_duplicata(const Sessao& session, std::int32_t kind, const SearchFilter& filter);
std::string sel_filiais(const Sessao& session);
std::string Sel_Cliente(const Sessao& session, std::string_view filter);  // "&" goes as "|"
std::string sel_boleto(const Sessao& session, const SearchFilter& filter, std::int32_t portfolio,
                       bool includesPortfolio);
std::string sel_carteira(const Sessao& session);
std::string sel_carteira_cob(const Sessao& session, std::int32_t portfolio);
struct Slip {
    std::string branch = {};  // ID_ETB of the row
    std::string documentKind = {};
    std::string document = {};
    std::string controlNumber = {};
    std::string portfolio = {};  // ID_CRT_COB of the portfolio's record
    std::string bankNumber = {};
};
std::string altera_docto_cob(const Sessao& session, const Slip& slip);
// One of the two layouts that send it spells the control number's key its own way;
// keys keep their spelling (decision D18).
enum class ControlKey { ID_NR_CTL, ID_NR_CLT };
std::string altera_docto_rec(const Sessao& session, const Slip& slip, ControlKey key);
std::string insere_car_cob(const Sessao& session, const Slip& slip);
std::string insere_car_rec(const Sessao& session, const Slip& slip);

// Cheques
std::string sel_banco_agencia_conta(const Sessao& session);
struct Cheque {
    std::int32_t bank = 0;  // item data
    std::string agency = {};
    std::string account = {};
    std::string number = {};
    std::string series = {};
    std::string value = {};
    std::string payee = {};
    std::string depositDate = {};
    std::string observation = {};
};
// Number and series go trimmed, the series in capitals.
std::string seleciona_um_controle_cheque_emitido(const Sessao& session, const Cheque& cheque);
// All texts go trimmed; series, payee and purpose in capitals.
std::string adiciona_controle_cheque_emitido(const Sessao& session, const Cheque& cheque);

// Labels. A range's ends are converted to numbers and back: TypeMismatch for a
// text that is none.
std::string sel_etiquetas(const Sessao& session, std::string_view reason);  // the whole queue
std::string sel_etiquetas(const Sessao& session, std::string_view reason, std::string_view from,
                          std::string_view to);
std::string sel_motivos(const Sessao& session);
std::string sel_filiais_remetente(const Sessao& session);
std::string exclui_etiquetas(const Sessao& session, std::string_view reason, std::string_view from,
                             std::string_view to);
std::string sel_dados_remetente(const Sessao& session, std::int32_t senderBranch);

// Bulk label selection
std::string sel_filias(const Sessao& session);
std::string sel_pais(const Sessao& session);
std::string sel_estado(const Sessao& session, std::int32_t country);
std::string sel_cidade(const Sessao& session, std::int32_t state);
// An item chosen in a list; at position 0 nothing is chosen.
struct ChosenItem {
    int position = 0;
    std::int32_t data = 0;
};
struct LabelFilter {
    std::string branches = {};  // identifiers, joined by ", "
    ChosenItem country = {};    // key always sent
    ChosenItem state = {};      // key left out at position 0
    ChosenItem town = {};       // key left out at position 0
    std::string product = {};
    std::string postalCodeFrom = {};
    std::string postalCodeTo = {};
    std::string saleFrom = {};
    std::string saleTo = {};
    std::string amountFrom = {};
    std::string amountTo = {};
    std::string quantityFrom = {};
    std::string quantityTo = {};
    bool byPostalCode = false;  // order by CEP, otherwise by name
};
std::string sel_dados_etq(const Sessao& session, const LabelFilter& filter);

}  // namespace tarn::commands
