#include "slips/slip_search.h"

#include <array>

#include "common/grid_rows.h"
#include "gateway/answer.h"
#include "gateway/failure_texts.h"
#include "platform/environment.h"

namespace tarn {
namespace {

constexpr std::array<GridField, slipColumns> fields{{{},
                                                     {"SG_FIL"},
                                                     {"DT_VNC_DOC_FMA"},
                                                     {"DC_TIP_DOC"},
                                                     {"NR_DOC"},
                                                     {"NM_CLI_ETB"},
                                                     {"DT_EMS_DOC"},
                                                     {"DC_LG_CPL"},
                                                     {"VL_PRN_DOC", Treatment::Amount},
                                                     {"CD_CEP"},
                                                     {"NM_MUN"},
                                                     {"SG_UF"},
                                                     {"NR_CGC_CPL", Treatment::CpfCnpj},
                                                     {"CD_ICR_EST"},
                                                     {{}, Treatment::PersonKind},
                                                     {"TIPO_DOCTO"},
                                                     {"ID_NR_CTL", Treatment::ReceivableOnly},
                                                     {"DC_REF_REC", Treatment::NotReceivableOnly},
                                                     {"TX_JUR_DIA", Treatment::Amount},
                                                     {"PC_MULTA", Treatment::Amount},
                                                     {"JUROS_AO_DIA", Treatment::Amount},
                                                     {"VL_OUT_DSP"},
                                                     {"DC_REF_REC"},
                                                     {"ID_ETB_TARN"},
                                                     {"ID_TIP_DOC"},
                                                     {"CD_AGE_BAN"},
                                                     {"ID_PES_BAN"},
                                                     {"CD_EXT"},
                                                     {"NR_DOC_NF"}}};

}  // namespace

std::vector<ListItem> portfoliosForFilter(Environment& environment, const Sessao& session) {
    std::vector<ListItem> portfolios{{"--------", 0}};
    XmlDocument answer;
    if (requestAnswer(environment, commands::sel_carteira(session), answer,
                      failure::Tarn0009Wide)) {
        const std::vector<ListItem> readItems = listItemsOf(answer, "DC_CRT_COB", "ID_CRT_COB");
        portfolios.insert(portfolios.end(), readItems.begin(), readItems.end());
    }
    return portfolios;
}

std::optional<SlipRefusal> searchRefusal(const commands::SearchFilter& documents,
                                         int portfolioPosition) {
    if (documents.issuedFrom.empty()) {
        return SlipRefusal{"Data Emissão De é Obrigatório.     ", SlipSearchField::IssuedFrom};
    }
    if (documents.dueTo.empty()) {
        return SlipRefusal{"Data de Vencimento Obrigatória.     ", SlipSearchField::DueTo};
    }
    if (portfolioPosition <= 0) {
        return SlipRefusal{"Carteira Cobrança é um campo obrigatório.     ",
                           SlipSearchField::PortfolioField};
    }
    return std::nullopt;
}

std::optional<SlipRefusal> printRefusal(int portfolioPosition, std::string_view nextNumber) {
    if (portfolioPosition <= 0) {
        return SlipRefusal{"Carteira Cobrança é um campo obrigatório!     ",
                           SlipSearchField::PortfolioField};
    }
    if (nextNumber.empty()) {
        return SlipRefusal{"Nr. Boleto Bancário é um campo obrigatório!     ",
                           SlipSearchField::BankNumber};
    }
    return std::nullopt;
}

std::optional<std::vector<GridRow>> searchSlips(Environment& environment, const Sessao& session,
                                                const SlipFilter& filter) {
    XmlDocument answer;
    if (!requestAnswer(environment,
                       commands::sel_boleto(session, filter.documents, filter.portfolio,
                                            filter.includesPortfolio),
                       answer, failure::Tarn0009)) {
        return std::nullopt;
    }
    return slipRows(answer);
}

std::vector<GridRow> slipRows(const XmlDocument& answer) {
    return rowsOf(answer, fields);
}

}  // namespace tarn
