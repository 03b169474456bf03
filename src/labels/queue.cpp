#include "labels/queue.h"

#include "common/grid_rows.h"
#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "labels/label_boxes.h"
#include "labels/label_values.h"

namespace tarn::labels {
namespace {

constexpr std::array<GridField, 10> fields{{{"SEQUENCIAL"},
                                            {"CEP"},
                                            {"NOME"},
                                            {"CODIGO"},
                                            {"ENDERECO"},
                                            {"COMPLEMENTO"},
                                            {"BAIRRO"},
                                            {"MUNICIPIO"},
                                            {"UF"},
                                            {"PAIS"}}};

std::vector<ListItem> withNone(std::vector<ListItem> items) {
    items.insert(items.begin(), ListItem{std::string(noChoice), 0});
    return items;
}

}  // namespace

std::vector<ListItem> loadReasons(Environment& environment, const Sessao& session) {
    XmlDocument answer;
    if (!requestAnswer(environment, commands::sel_motivos(session), answer,
                       failure::Tarn0009Wide)) {
        return withNone({});
    }
    return withNone(listItemsOf(answer, "DC_MOT_IMP", {}));
}

std::optional<std::vector<ListItem>> loadSenderBranches(Environment& environment,
                                                        const Sessao& session) {
    XmlDocument answer;
    if (!requestAnswer(environment, commands::sel_filiais_remetente(session), answer,
                       failure::Tarn0009)) {
        return std::nullopt;
    }
    return withNone(listItemsOf(answer, "FILIAL", "ID_ETB"));
}

std::optional<std::vector<GridRow>> readQueue(Environment& environment, const Sessao& session,
                                              const std::string& reason, LabelValues& values) {
    values.MotivoImpressao = reason;
    XmlDocument answer;
    if (!requestAnswer(environment, commands::sel_etiquetas(session, reason), answer,
                       failure::Tarn0009)) {
        return std::nullopt;
    }
    std::vector<GridRow> queue = rowsOf(answer, fields);
    values.quantity = queue.size();
    return queue;
}

MissingChoice checkChoices(Environment& environment, const LabelValues& values, int formPosition) {
    if (values.quantity == 0) {
        inform(environment, "É necessário escolher o Motivo de Impressão.     ");
        return MissingChoice::Reason;
    }
    if (formPosition == 0) {
        inform(environment, "Tipo de formulário é um campo obrigatório.     ");
        return MissingChoice::LabelForm;
    }
    return MissingChoice::Nothing;
}

}  // namespace tarn::labels
