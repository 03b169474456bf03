#include "slips/slip_search.h"

#include <array>

#include "common/grid_rows.h"
#include "gateway/answer.h"
#include "gateway/failure_texts.h"
#include "platform/environment.h"

namespace tarn {
namespace {

constexpr std::array<CampoGrade, colunasBoleto> campos{{{},
                                                        {"SG_FIL"},
                                                        {"DT_VNC_DOC_FMA"},
                                                        {"DC_TIP_DOC"},
                                                        {"NR_DOC"},
                                                        {"NM_CLI_ETB"},
                                                        {"DT_EMS_DOC"},
                                                        {"DC_LG_CPL"},
                                                        {"VL_PRN_DOC", Tratamento::Valor},
                                                        {"CD_CEP"},
                                                        {"NM_MUN"},
                                                        {"SG_UF"},
                                                        {"NR_CGC_CPL", Tratamento::CpfCnpj},
                                                        {"CD_ICR_EST"},
                                                        {{}, Tratamento::TipoPessoa},
                                                        {"TIPO_DOCTO"},
                                                        {"ID_NR_CTL", Tratamento::SoReceber},
                                                        {"DC_REF_REC", Tratamento::SoNaoReceber},
                                                        {"TX_JUR_DIA", Tratamento::Valor},
                                                        {"PC_MULTA", Tratamento::Valor},
                                                        {"JUROS_AO_DIA", Tratamento::Valor},
                                                        {"VL_OUT_DSP"},
                                                        {"DC_REF_REC"},
                                                        {"ID_ETB_TARN"},
                                                        {"ID_TIP_DOC"},
                                                        {"CD_AGE_BAN"},
                                                        {"ID_PES_BAN"},
                                                        {"CD_EXT"},
                                                        {"NR_DOC_NF"}}};

}  // namespace

std::vector<ItemLista> carteirasParaFiltro(Environment& ambiente, const Sessao& sessao) {
    std::vector<ItemLista> carteiras{{"--------", 0}};
    XmlDocument resposta;
    if (pede(ambiente, comando::sel_carteira(sessao), resposta, falha::Tarn0009Largo)) {
        const std::vector<ItemLista> lidas = itensDaResposta(resposta, "DC_CRT_COB", "ID_CRT_COB");
        carteiras.insert(carteiras.end(), lidas.begin(), lidas.end());
    }
    return carteiras;
}

std::optional<RecusaDeBoletos> recusaDaPesquisa(const comando::Pesquisa& documentos,
                                                int posicaoDaCarteira) {
    if (documentos.emissaoDe.empty()) {
        return RecusaDeBoletos{"Data Emissão De é Obrigatório.     ", CampoDeBoletos::EmissaoDe};
    }
    if (documentos.vencimentoAte.empty()) {
        return RecusaDeBoletos{"Data de Vencimento Obrigatória.     ",
                               CampoDeBoletos::VencimentoAte};
    }
    if (posicaoDaCarteira <= 0) {
        return RecusaDeBoletos{"Carteira Cobrança é um campo obrigatório.     ",
                               CampoDeBoletos::Carteira};
    }
    return std::nullopt;
}

std::optional<RecusaDeBoletos> recusaDaImpressao(int posicaoDaCarteira,
                                                 std::string_view proximoNumero) {
    if (posicaoDaCarteira <= 0) {
        return RecusaDeBoletos{"Carteira Cobrança é um campo obrigatório!     ",
                               CampoDeBoletos::Carteira};
    }
    if (proximoNumero.empty()) {
        return RecusaDeBoletos{"Nr. Boleto Bancário é um campo obrigatório!     ",
                               CampoDeBoletos::NumeroBancario};
    }
    return std::nullopt;
}

std::optional<std::vector<LinhaGrade>> pesquisaBoletos(Environment& ambiente, const Sessao& sessao,
                                                       const FiltroDeBoletos& filtro) {
    XmlDocument resposta;
    if (!pede(
            ambiente,
            comando::sel_boleto(sessao, filtro.documentos, filtro.carteira, filtro.incluiCarteira),
            resposta, falha::Tarn0009)) {
        return std::nullopt;
    }
    return linhasDeBoletos(resposta);
}

std::vector<LinhaGrade> linhasDeBoletos(const XmlDocument& resposta) {
    return linhasDaResposta(resposta, campos);
}

}  // namespace tarn
