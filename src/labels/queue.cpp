#include "labels/queue.h"

#include "common/acts.h"
#include "common/boxes.h"
#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "runtime/runtime_error.h"

namespace tarn::labels {
namespace {

constexpr auto queueColumns = gridOf<QueueColumn>(
    {{QueueColumn::Sequence, {"SEQUENCIAL", "Sequencial", 13, Treatment::Number}},
     {QueueColumn::PostalCode, {"CEP", "Cep", 13}},
     {QueueColumn::Name, {"NOME", "Nome", 46}},
     {QueueColumn::Code, {"CODIGO", "Código", 12}},
     {QueueColumn::Address, {"ENDERECO", "Endereço Nº", 46}},
     {QueueColumn::Complement, {"COMPLEMENTO", "Complemento", 20}},
     {QueueColumn::District, {"BAIRRO", "Bairro", 26}},
     {QueueColumn::Town, {"MUNICIPIO", "Município", 28}},
     {QueueColumn::State, {"UF", "UF", 5}},
     {QueueColumn::Country, {"PAIS", "País", 14}}});

std::vector<ListItem> withNone(std::vector<ListItem> items) {
    items.insert(items.begin(), ListItem{std::string(noChoice), 0});
    return items;
}

}  // namespace

std::span<const GridColumn> queueGrid() {
    return queueColumns;
}

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
    std::vector<GridRow> queue = gridRows(answer, queueColumns);
    values.quantity = queue.size();
    return queue;
}

std::optional<Refusal<QueueField>> choiceRefusal(const LabelValues& values, int formPosition) {
    if (values.quantity == 0) {
        return Refusal<QueueField>{QueueField::Reason,
                                   "É necessário escolher o Motivo de Impressão.     "};
    }
    if (formPosition == 0) {
        return Refusal<QueueField>{QueueField::LabelForm,
                                   "Tipo de formulário é um campo obrigatório.     "};
    }
    return std::nullopt;
}

std::optional<Refusal<RangeField>> rangeRefusal(const Range& range) {
    if (range.from.empty()) {
        return Refusal<RangeField>{RangeField::From, "De é um campo obrigatório!  "};
    }
    if (range.to.empty()) {
        return Refusal<RangeField>{RangeField::To, "Até é um campo obrigatório!  "};
    }
    return std::nullopt;
}

bool deleteLabels(Environment& environment, const Sessao& session, const std::string& reason,
                  const Range& range) {
    std::string query;
    try {
        query = commands::exclui_etiquetas(session, reason, range.from, range.to);
    } catch (const RuntimeError& error) {
        reportError(environment, error);
        return false;
    }
    // Success whatever became of it: decision D96.
    XmlDocument answer;
    const bool answered = requestAnswer(environment, query, answer, failure::Tarn0009);
    tellDone(environment,
             "Exclusão das etiquetas " + range.from + " a " + range.to +
                 (answered ? " enviada" : " sem resposta do servidor: confira na fila"));
    inform(environment, "Etiquetas excluídas com sucesso!     ");
    return true;
}

}  // namespace tarn::labels
