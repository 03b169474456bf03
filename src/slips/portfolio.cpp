#include "slips/portfolio.h"

#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "gateway/pega_valor.h"
#include "runtime/numbers.h"

namespace tarn {

bool Portfolio::isWallet57() const {
    return parseComma(NR_CRT_CNAB) == 57.0;
}

Portfolio portfolioOf(const XmlDocument& answer) {
    Portfolio portfolio;
    const XmlNode rowset = rowsetOf(answer);
    for (std::size_t i = 0; i < rowsOf(answer).length(); ++i) {
        portfolio = {.ID_CRT_COB = PegaValor(rowset, i, "ID_CRT_COB"),
                     .ID_PES_BAN = PegaValor(rowset, i, "ID_PES_BAN"),
                     .NR_CRT_CNAB = PegaValor(rowset, i, "NR_CRT_CNAB"),
                     .CD_AGE_BAN_CNAB = PegaValor(rowset, i, "CD_AGE_BAN_CNAB"),
                     .NR_CCOR_CNAB = PegaValor(rowset, i, "NR_CCOR_CNAB")};
    }
    return portfolio;
}

std::optional<Portfolio> loadPortfolio(Environment& environment, const Sessao& session,
                                       std::int32_t portfolioId) {
    XmlDocument answer;
    if (!requestAnswer(environment, commands::sel_carteira_cob(session, portfolioId), answer,
                       failure::Tarn0009)) {
        return std::nullopt;
    }
    return portfolioOf(answer);
}

}  // namespace tarn
