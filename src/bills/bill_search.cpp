#include "bills/bill_search.h"

#include "gateway/answer.h"
#include "gateway/failure_texts.h"
#include "platform/environment.h"

namespace tarn {
namespace {

// The heading over the state says "Filial" as well.
constexpr auto billColumns = gridOf<BillColumn>(
    {{BillColumn::Tick, {"", "", 4, Treatment::Tick}},
     {BillColumn::Branch, {"SG_FIL", "Filial", 17}},
     {BillColumn::Due, {"DT_VNC_DOC_FMA", "Dt.de Vencimento", 17}},
     {BillColumn::Issued, {"DT_EMS_DOC", "Dt.de Emissão", 14}},
     {BillColumn::Number, {"NR_DOC", "Nº do Documento", 17}},
     {BillColumn::Customer, {"NM_CLI_ETB", "Cliente", 38}},
     {BillColumn::Address, {"DC_LG_CPL", "Endereço", 38}},
     {BillColumn::Value, {"VL_PRN_DOC", "Vlr.do Documento", 18, Treatment::Amount}},
     {BillColumn::PostalCode, {"CD_CEP", "CEP", 12}},
     {BillColumn::Town, {"NM_MUN", "Município", 24}},
     {BillColumn::State, {"SG_UF", "Filial", 8}},
     {BillColumn::CpfCnpj, {"NR_CGC_CPL", "CNPJ / CPF", 22, Treatment::CpfCnpj}},
     {BillColumn::Registration, {"CD_ICR_EST", "I.E.", 18}},
     {BillColumn::PersonKind, {"", "TP_PES", 9, Treatment::PersonKind}},
     {BillColumn::Table, {"TIPO_DOCTO", "TP_DOCTO1", 18}},
     {BillColumn::DocumentKind, {"ID_TIP_DOC", "TP_DOCTO2", 13}},
     {BillColumn::ControlNumber, {"ID_NR_CTL", "ID_NR_CTL", 13, Treatment::ReceivableOnly}},
     {BillColumn::Reference, {"DC_REF_REC", "IC_REF_REC", 38, Treatment::NotReceivableOnly}},
     {BillColumn::FiscalNote, {"NR_DOC_NF", "NR_DOC_NF", 14}},
     {BillColumn::BillingAddress, {"EG_COB", "Endereço Cobrança", 38}},
     {BillColumn::BillingTown, {"MUN_COB", "Município Cobrança", 24}},
     {BillColumn::BillingState, {"ES_COB", "Estado Cobrança", 20}},
     {BillColumn::BillingPostalCode, {"CD_CEP_COB", "CEP Cobrança", 17}}});

constexpr std::int32_t receiptKind = 12;

}  // namespace

std::span<const GridColumn> billGrid() {
    return billColumns;
}

std::vector<ListItem> documentKinds() {
    return {{"-------------", 0}, {"DUPLICATA", billKind}, {"RECIBO", receiptKind}};
}

std::optional<Refusal<BillSearchField>> searchRefusal(int kindPosition, std::string_view dueTo) {
    if (kindPosition <= 0) {
        return Refusal<BillSearchField>{BillSearchField::DocumentKind,
                                        "Tipo de Documento Obrigatório.     "};
    }
    if (dueTo.empty()) {
        return Refusal<BillSearchField>{BillSearchField::DueTo,
                                        "Data de Vencimento Obrigatória.     "};
    }
    return std::nullopt;
}

std::optional<std::vector<GridRow>> searchBills(Environment& environment, const Sessao& session,
                                                std::int32_t kind,
                                                const commands::SearchFilter& filter) {
    XmlDocument answer;
    if (!requestAnswer(environment, commands::sel_duplicata(session, kind, filter), answer,
                       failure::Tarn0009)) {
        return std::nullopt;
    }
    return billRows(answer);
}

std::vector<GridRow> billRows(const XmlDocument& answer) {
    return gridRows(answer, billColumns);
}

}  // namespace tarn
