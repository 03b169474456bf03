#include "bills/bill_search.h"

#include "common/grid_rows.h"
#include "gateway/answer.h"
#include "gateway/failure_texts.h"
#include "platform/environment.h"

namespace tarn {
namespace {

constexpr std::array<CampoGrade, colunasDuplicata> campos{{{},
                                                           {"SG_FIL"},
                                                           {"DT_VNC_DOC_FMA"},
                                                           {"DT_EMS_DOC"},
                                                           {"NR_DOC"},
                                                           {"NM_CLI_ETB"},
                                                           {"DC_LG_CPL"},
                                                           {"VL_PRN_DOC", Tratamento::Valor},
                                                           {"CD_CEP"},
                                                           {"NM_MUN"},
                                                           {"SG_UF"},
                                                           {"NR_CGC_CPL", Tratamento::CpfCnpj},
                                                           {"CD_ICR_EST"},
                                                           {{}, Tratamento::TipoPessoa},
                                                           {"TIPO_DOCTO"},
                                                           {"ID_TIP_DOC"},
                                                           {"ID_NR_CTL", Tratamento::SoReceber},
                                                           {"DC_REF_REC", Tratamento::SoNaoReceber},
                                                           {"NR_DOC_NF"},
                                                           {"EG_COB"},
                                                           {"MUN_COB"},
                                                           {"ES_COB"},
                                                           {"CD_CEP_COB"}}};

constexpr std::int32_t tipoRecibo = 12;

}  // namespace

std::vector<ItemLista> tiposDeDocumento() {
    return {{"-------------", 0}, {"DUPLICATA", tipoDuplicata}, {"RECIBO", tipoRecibo}};
}

std::optional<RecusaDaPesquisa> recusaDaPesquisa(int posicaoDoTipo,
                                                 std::string_view vencimentoAte) {
    if (posicaoDoTipo <= 0) {
        return RecusaDaPesquisa{"Tipo de Documento Obrigatório.     ",
                                CampoDaPesquisa::TipoDocumento};
    }
    if (vencimentoAte.empty()) {
        return RecusaDaPesquisa{"Data de Vencimento Obrigatória.     ",
                                CampoDaPesquisa::VencimentoAte};
    }
    return std::nullopt;
}

std::optional<std::vector<LinhaGrade>> pesquisaDuplicatas(Environment& ambiente,
                                                          const Sessao& sessao, std::int32_t tipo,
                                                          const comando::Pesquisa& filtro) {
    XmlDocument resposta;
    if (!pede(ambiente, comando::sel_duplicata(sessao, tipo, filtro), resposta, falha::Tarn0009)) {
        return std::nullopt;
    }
    return linhasDeDuplicatas(resposta);
}

std::vector<LinhaGrade> linhasDeDuplicatas(const XmlDocument& resposta) {
    return linhasDaResposta(resposta, campos);
}

}  // namespace tarn
