#include "slips/portfolio.h"

#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "gateway/pega_valor.h"
#include "runtime/numbers.h"

namespace tarn {

bool CarteiraCobranca::carteira57() const {
    return parseComma(NR_CRT_CNAB) == 57.0;
}

CarteiraCobranca carteiraDe(const XmlDocument& resposta) {
    CarteiraCobranca carteira;
    const XmlNode linhas = resposta.selectSingleNode("xml/rs:data");
    const std::size_t quantas = linhas ? linhas.childCount() : 0;
    for (std::size_t i = 0; i < quantas; ++i) {
        carteira = {.ID_CRT_COB = pegaTexto(linhas, i, "ID_CRT_COB"),
                    .ID_PES_BAN = pegaTexto(linhas, i, "ID_PES_BAN"),
                    .NR_CRT_CNAB = pegaTexto(linhas, i, "NR_CRT_CNAB"),
                    .CD_AGE_BAN_CNAB = pegaTexto(linhas, i, "CD_AGE_BAN_CNAB"),
                    .NR_CCOR_CNAB = pegaTexto(linhas, i, "NR_CCOR_CNAB")};
    }
    return carteira;
}

std::optional<CarteiraCobranca> carregaCarteira(Environment& ambiente, const Sessao& sessao,
                                                std::int32_t idCarteira) {
    XmlDocument resposta;
    if (!pede(ambiente, comando::sel_carteira_cob(sessao, idCarteira), resposta, falha::Tarn0009)) {
        return std::nullopt;
    }
    return carteiraDe(resposta);
}

}  // namespace tarn
