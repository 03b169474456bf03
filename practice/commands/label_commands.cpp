// The commands of the label queue: its reasons, its labels, the sender, deletion.
#include <array>
#include <cmath>

#include "practice/commands/command.h"
#include "practice/commands/fields.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace tarn::practice {
namespace {

constexpr int daysKept = 15;  // what waits longer is gone
constexpr double largestSequence = 1e15;

constexpr std::array labelFields = {
    Field{"SEQUENCIAL", "l.sequence"},
    Field{"CEP", "l.postal_code"},
    Field{"NOME", "l.name"},
    Field{"CODIGO", "l.code"},
    Field{"ENDERECO", "l.address"},
    Field{"SOMENTE_ENDERECO", "l.street"},
    Field{"NUMERO", "l.street_number"},
    Field{"COMPLEMENTO", "l.complement"},
    Field{"BAIRRO", "l.district"},
    Field{"MUNICIPIO", "l.town"},
    Field{"UF", "l.state"},
    Field{"PAIS", "l.country"},
};

struct Sequences {
    std::int64_t from = 0;
    std::int64_t to = 0;
};

// One end of a range as the desk writes a number back, decimals and all.
std::optional<double> rangeEnd(const std::string& text, double whenEmpty) {
    if (trimBlanks(text).empty()) {
        return whenEmpty;
    }
    const std::optional<double> value = parseComma(text);
    return value && std::abs(*value) <= largestSequence ? value : std::nullopt;
}

Sequences requestedSequences(const Query& query) {
    const auto from = rangeEnd(query.value("nSeq_De"), 0);
    const auto to = rangeEnd(query.value("nSeq_Ate"), largestSequence);
    if (!from || !to) {
        throw Refusal{"O intervalo de etiquetas não é válido. Digite os seqüenciais da lista."};
    }
    return Sequences{static_cast<std::int64_t>(std::ceil(*from)),
                     static_cast<std::int64_t>(std::floor(*to))};
}

// An empty range is the whole queue of the reason.
Reply listLabels(const Query& query, CommandContext& context) {
    const auto company = requestedCompany(query, "ID_EMP_TARN", context);
    const auto range = requestedSequences(query);
    const auto& [from, to] = range;
    return readRowset(
        context.database, labelFields,
        "FROM label l JOIN label_reason r ON r.company_id = l.company_id AND r.id = l.reason_id"
        " WHERE l.company_id = ? AND r.description = ? AND l.sequence >= ? AND l.sequence <= ?"
        " AND l.queued_on >= ? ORDER BY l.sequence",
        {company, query.value("sDc_Mot_Imp"), from, to, context.today.addDays(-daysKept)});
}

constexpr std::array labelReasonFields = {Field{"DC_MOT_IMP", "description"}};

Reply listLabelReasons(const Query& query, CommandContext& context) {
    const auto company = requestedCompany(query, "ID_EMP_TARN", context);
    return readRowset(context.database, labelReasonFields,
                      "FROM label_reason WHERE company_id = ? AND kind = ? ORDER BY id",
                      {company, query.value("sIc_Ver_Eti")});
}

// The reason comes by its description, in spite of the key's name.
Reply deleteLabels(const Query& query, CommandContext& context) {
    const auto company = requestedCompany(query, "ID_EMP_TARN", context);
    if (query.value("nSeq_De").empty() || query.value("nSeq_Ate").empty()) {
        throw Refusal{"O intervalo de etiquetas não foi informado. Nada foi excluído."};
    }
    const auto range = requestedSequences(query);
    const auto& [from, to] = range;
    Transaction transaction(context.database);
    context.database.execute(
        "DELETE FROM label WHERE company_id = ? AND sequence >= ? AND sequence <= ?"
        " AND reason_id IN (SELECT id FROM label_reason WHERE company_id = ? AND description = ?)",
        {company, from, to, company, query.value("nId_Motivo")});
    transaction.commit();
    return statusAnswer();
}

Reply listSenders(const Query& query, CommandContext& context) {
    return listNamedBranches(query, "ID_EMP_TARN", context);
}

constexpr std::array senderFields = {
    Field{"NOME", "legal_name"},
    Field{"ENDERECO", "street"},
    Field{"NUMERO", "street_number"},
    Field{"DESCRICAO", "complement"},
    Field{"BAIRRO", "district"},
    Field{"MUNICIPIO", "town"},
    Field{"UF", "state"},
    Field{"CEP", "postal_code"},
};

// 0 is what the desk sends while no branch is chosen: the company's first one.
Reply senderData(const Query& query, CommandContext& context) {
    const auto company = requestedCompany(query, "nId_Emp_Tarn", context);
    const std::optional<std::int64_t> code = wholeNumber(query.value("nId_Etb_Tarn"));
    if (code == 0) {
        return readRowset(context.database, senderFields,
                          "FROM establishment WHERE id = (SELECT MIN(id) FROM establishment WHERE "
                          "company_id = ?)",
                          {company});
    }
    return readRowset(context.database, senderFields,
                      "FROM establishment WHERE company_id = ? AND code = ?",
                      {company, code.value_or(-1)});
}

constexpr std::array labelTable = {
    Command{"sel_etiquetas", Shape::Rows, listLabels},
    Command{"sel_motivos", Shape::Rows, listLabelReasons},
    Command{"sel_filiais_remetente", Shape::Rows, listSenders},
    Command{"exclui_etiquetas", Shape::Status, deleteLabels},
    Command{"sel_dados_remetente", Shape::Rows, senderData},
};

}  // namespace

std::span<const Command> labelCommands() {
    return labelTable;
}

}  // namespace tarn::practice
