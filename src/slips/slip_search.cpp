#include "slips/slip_search.h"

#include "gateway/answer.h"
#include "gateway/failure_texts.h"
#include "platform/environment.h"

namespace tarn {
namespace {

constexpr auto slipColumns = gridOf<SlipColumn>(
    {{SlipColumn::Tick, {"", "", 4, Treatment::Tick}},
     {SlipColumn::Branch, {"SG_FIL", "Filial", 17}},
     {SlipColumn::Due, {"DT_VNC_DOC_FMA", "Vencimento", 13}},
     {SlipColumn::KindText, {"DC_TIP_DOC", "Tipo Documento", 17}},
     {SlipColumn::Number, {"NR_DOC", "Nº Documento", 14}},
     {SlipColumn::Customer, {"NM_CLI_ETB", "Cliente", 32}},
     {SlipColumn::Issued, {"DT_EMS_DOC", "Dt.de Emissão", 14}},
     {SlipColumn::Address, {"DC_LG_CPL", "Endereço", 28}},
     {SlipColumn::Value, {"VL_PRN_DOC", "Vlr.do Documento", 18, Treatment::Amount}},
     {SlipColumn::PostalCode, {"CD_CEP", "CEP", 0}},
     {SlipColumn::Town, {"NM_MUN", "Município", 0}},
     {SlipColumn::State, {"SG_UF", "Estado", 0}},
     {SlipColumn::CpfCnpj, {"NR_CGC_CPL", "CNPJ / CPF", 0, Treatment::CpfCnpj}},
     {SlipColumn::Registration, {"CD_ICR_EST", "I.E.", 0}},
     {SlipColumn::PersonKind, {"", "TP_PES", 0, Treatment::PersonKind}},
     {SlipColumn::Table, {"TIPO_DOCTO", "TP_DOCTO2", 0}},
     {SlipColumn::ControlNumber, {"ID_NR_CTL", "ID_NR_CTL", 0, Treatment::ReceivableOnly}},
     {SlipColumn::CollectionReference,
      {"DC_REF_REC", "IC_REF_REC", 0, Treatment::NotReceivableOnly}},
     {SlipColumn::DailyRate, {"TX_JUR_DIA", "TX_JUR_DIA", 0, Treatment::Amount}},
     {SlipColumn::Fine, {"PC_MULTA", "PC_MULTA", 0, Treatment::Amount}},
     {SlipColumn::DailyInterest, {"JUROS_AO_DIA", "JUROS_DIA", 0, Treatment::Amount}},
     {SlipColumn::OtherExpenses, {"VL_OUT_DSP", "VL_OUT_DSP", 0}},
     {SlipColumn::Instruction, {"DC_REF_REC", "DC_REF_REC", 0}},
     {SlipColumn::Establishment, {"ID_ETB_TARN", "ID_ETB", 0}},
     {SlipColumn::DocumentKind, {"ID_TIP_DOC", "ID_TIP_DOC", 0}},
     {SlipColumn::Agency, {"CD_AGE_BAN", "NR_AGE", 0}},
     {SlipColumn::Bank, {"ID_PES_BAN", "ID_PES_BAN", 0}},
     {SlipColumn::ExternalCode, {"CD_EXT", "CD_EXT", 0}},
     {SlipColumn::FiscalNote, {"NR_DOC_NF", "NR_DOC_NF", 0}}});

}  // namespace

std::span<const GridColumn> slipGrid() {
    return slipColumns;
}

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
        return SlipRefusal{SlipSearchField::IssuedFrom, "Data Emissão De é Obrigatório.     "};
    }
    if (documents.dueTo.empty()) {
        return SlipRefusal{SlipSearchField::DueTo, "Data de Vencimento Obrigatória.     "};
    }
    if (portfolioPosition <= 0) {
        return SlipRefusal{SlipSearchField::PortfolioField,
                           "Carteira Cobrança é um campo obrigatório.     "};
    }
    return std::nullopt;
}

std::optional<SlipRefusal> printRefusal(int portfolioPosition, std::string_view nextNumber) {
    if (portfolioPosition <= 0) {
        return SlipRefusal{SlipSearchField::PortfolioField,
                           "Carteira Cobrança é um campo obrigatório!     "};
    }
    if (nextNumber.empty()) {
        return SlipRefusal{SlipSearchField::BankNumber,
                           "Nr. Boleto Bancário é um campo obrigatório!     "};
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
    return gridRows(answer, slipColumns);
}

}  // namespace tarn
