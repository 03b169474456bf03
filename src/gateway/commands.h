// The commands of the server's one page: each function gives the query text that
// stands behind BaseUrl. Keys keep the spelling and order in which the server knows
// them; values go as they are. Item data of a list is a 32-bit integer; where an item
// data of 0 means "all", nothing is sent behind the key's "=".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "gateway/sessao.h"

namespace tarn::comando {

// Start
std::string VERSAO_TARN_EMISSAO(std::string_view versao);
std::string LOGIN(std::string_view empresa, std::string_view usuario, std::string_view senha);
std::string verifica_direito_acesso(const Sessao& sessao, std::string_view transacao);
std::string sel_dados_empresa(const Sessao& sessao);

// Billing orders and notes
std::string sel_ordem_fatu(const Sessao& sessao);
std::string sp_can_oft(const Sessao& sessao, std::string_view ordem, std::string_view ordemCarga);
std::string Seleciona_Obs_Vnd_X_Ord(const Sessao& sessao, std::string_view ordem);
std::string Seleciona_Obs_Ord_X_Est(const Sessao& sessao, std::string_view ordem);
std::string SP_GERA_NF(const Sessao& sessao, std::string_view ordem);
std::string sel_gera_nf(const Sessao& sessao, std::string_view nota, std::string_view serie);
struct DadosOrdem {
    std::string_view ordem = {};
    std::string_view observacao = {};  // "%" goes as "||", then "&" as "|"
    std::string_view quantidade = {};
    std::string_view pesoBruto = {};
    std::string_view pesoLiquido = {};
};
std::string MANUTENCAO_OFT(const Sessao& sessao, const DadosOrdem& dados);
std::string sel_impr_ordem_fatu(const Sessao& sessao, std::string_view ordem);

// Reprint and cancellation
std::string SEL_NF(const Sessao& sessao, std::string_view nota, std::string_view serie);
struct Cancelamento {
    std::string_view tipoNota = {};
    std::string_view nota = {};
    std::string_view serie = {};
    std::int32_t motivo = 0;          // item data
    bool semNovoFaturamento = false;  // Tipo_Can: S, otherwise C
};
std::string sp_can_nf(const Sessao& sessao, const Cancelamento& dados);
std::string SEL_SERIE_NF(const Sessao& sessao);
std::string SEL_MOT_CAN(const Sessao& sessao);

// Bills, receipts, slips
struct Pesquisa {
    std::string_view cliente = {};  // its identifier, empty for all
    std::int32_t filial = 0;        // item data; 0: all
    std::string_view vencimentoDe = {};
    std::string_view vencimentoAte = {};
    std::string_view emissaoDe = {};
    std::string_view emissaoAte = {};
};
// `tipo` is the item data of the kind of document: 0 both, 1 bills, 12 receipts.
std::string sel_duplicata(const Sessao& sessao, std::int32_t tipo, const Pesquisa& filtro);
std::string sel_filiais(const Sessao& sessao);
std::string Sel_Cliente(const Sessao& sessao, std::string_view filtro);  // "&" goes as "|"
std::string sel_boleto(const Sessao& sessao, const Pesquisa& filtro, std::int32_t carteira,
                       bool incluiCarteira);
std::string sel_carteira(const Sessao& sessao);
std::string sel_carteira_cob(const Sessao& sessao, std::int32_t carteira);
struct Boleto {
    std::string_view filial = {};  // ID_ETB of the row
    std::string_view tipoDocumento = {};
    std::string_view documento = {};
    std::string_view numeroControle = {};
    std::string_view carteira = {};  // ID_CRT_COB of the portfolio's record
    std::string_view numeroBancario = {};
};
std::string altera_docto_cob(const Sessao& sessao, const Boleto& boleto);
// One of the two layouts that send it spells the control number's key its own way.
enum class ChaveControle { ID_NR_CTL, ID_NR_CLT };
std::string altera_docto_rec(const Sessao& sessao, const Boleto& boleto, ChaveControle chave);
std::string insere_car_cob(const Sessao& sessao, const Boleto& boleto);
std::string insere_car_rec(const Sessao& sessao, const Boleto& boleto);

// Cheques
std::string sel_banco_agencia_conta(const Sessao& sessao);
struct Cheque {
    std::int32_t banco = 0;  // item data
    std::string_view agencia = {};
    std::string_view conta = {};
    std::string_view numero = {};
    std::string_view serie = {};
    std::string_view valor = {};
    std::string_view favorecido = {};
    std::string_view dataDeposito = {};
    std::string_view observacao = {};
};
// Number and series go trimmed, the series in capitals.
std::string seleciona_um_controle_cheque_emitido(const Sessao& sessao, const Cheque& cheque);
// All texts go trimmed; series, payee and purpose in capitals.
std::string adiciona_controle_cheque_emitido(const Sessao& sessao, const Cheque& cheque);

// Labels. A range's ends are converted to numbers and back: TipoIncompativel for a
// text that is none.
std::string sel_etiquetas(const Sessao& sessao, std::string_view motivo);  // the whole queue
std::string sel_etiquetas(const Sessao& sessao, std::string_view motivo, std::string_view de,
                          std::string_view ate);
std::string sel_motivos(const Sessao& sessao);
std::string sel_filiais_remetente(const Sessao& sessao);
std::string exclui_etiquetas(const Sessao& sessao, std::string_view motivo, std::string_view de,
                             std::string_view ate);
std::string sel_dados_remetente(const Sessao& sessao, std::int32_t filialRemetente);

// Bulk label selection
std::string sel_filias(const Sessao& sessao);
std::string sel_pais(const Sessao& sessao);
std::string sel_estado(const Sessao& sessao, std::int32_t pais);
std::string sel_cidade(const Sessao& sessao, std::int32_t estado);
// An item chosen in a list; at position 0 nothing is chosen.
struct ItemEscolhido {
    int posicao = 0;
    std::int32_t dado = 0;
};
struct FiltroEtiquetas {
    std::string_view filiais = {};  // identifiers, joined by ", "
    ItemEscolhido pais = {};        // key always sent
    ItemEscolhido estado = {};      // key left out at position 0
    ItemEscolhido cidade = {};      // key left out at position 0
    std::string_view produto = {};
    std::string_view cepDe = {};
    std::string_view cepAte = {};
    std::string_view vendaDe = {};
    std::string_view vendaAte = {};
    std::string_view valorDe = {};
    std::string_view valorAte = {};
    std::string_view quantidadeDe = {};
    std::string_view quantidadeAte = {};
    bool porCep = false;  // order by CEP, otherwise by name
};
std::string sel_dados_etq(const Sessao& sessao, const FiltroEtiquetas& filtro);

}  // namespace tarn::comando
