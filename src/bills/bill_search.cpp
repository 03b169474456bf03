#include "bills/bill_search.h"

#include "common/grid_rows.h"
#include "gateway/answer.h"
#include "gateway/failure_texts.h"
#include "platform/environment.h"

namespace tarn {
namespace {

constexpr std::array<GridField, billColumns> fields{{{},
                                                     {"SG_FIL"},
                                                     {"DT_VNC_DOC_FMA"},
                                                     {"DT_EMS_DOC"},
                                                     {"NR_DOC"},
                                                     {"NM_CLI_ETB"},
                                                     {"DC_LG_CPL"},
                                                     {"VL_PRN_DOC", Treatment::Amount},
                                                     {"CD_CEP"},
                                                     {"NM_MUN"},
                                                     {"SG_UF"},
                                                     {"NR_CGC_CPL", Treatment::CpfCnpj},
                                                     {"CD_ICR_EST"},
                                                     {{}, Treatment::PersonKind},
                                                     {"TIPO_DOCTO"},
                                                     {"ID_TIP_DOC"},
                                                     {"ID_NR_CTL", Treatment::ReceivableOnly},
                                                     {"DC_REF_REC", Treatment::NotReceivableOnly},
                                                     {"NR_DOC_NF"},
                                                     {"EG_COB"},
                                                     {"MUN_COB"},
                                                     {"ES_COB"},
                                                     {"CD_CEP_COB"}}};

constexpr std::int32_t receiptKind = 12;

}  // namespace

std::vector<ListItem> documentKinds() {
    return {{"-------------", 0}, {"DUPLICATA", billKind}, {"RECIBO", receiptKind}};
}

std::optional<SearchRefusal> searchRefusal(int kindPosition, std::string_view dueTo) {
    if (kindPosition <= 0) {
        return SearchRefusal{"Tipo de Documento Obrigatório.     ", BillSearchField::DocumentKind};
    }
    if (dueTo.empty()) {
        return SearchRefusal{"Data de Vencimento Obrigatória.     ", BillSearchField::DueTo};
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
    return rowsOf(answer, fields);
}

}  // namespace tarn
