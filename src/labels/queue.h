// The queue of labels that the server keeps under reasons of printing.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "common/grid_rows.h"
#include "common/list_items.h"

namespace tarn {
struct Environment;
struct Sessao;
}  // namespace tarn

namespace tarn::labels {

struct LabelValues;

// The item that stands for none.
inline constexpr std::string_view noChoice = "--------";

// The items of the queue screen's list of forms; the position is the TipoFormulario.
inline constexpr std::array<std::string_view, 5> queueForms{
    noChoice, "PIMACO 6280 - LASER", "PIMACO - XXX - MATRICIAL", "PDF - A5 - DESTINATÁRIO",
    "PDF - A4 - DESTINATÁRIO - REMETENTE - LASER"};
inline constexpr int positionWithSender = 4;

// "--------" and the reasons for the kind of label that the session holds; the first item
// alone after a failed request.
std::vector<ListItem> loadReasons(Environment& environment, const Sessao& session);

// "--------" and the branches that can send; nothing after a failed request.
std::optional<std::vector<ListItem>> loadSenderBranches(Environment& environment,
                                                        const Sessao& session);

// The columns of the grid.
enum class QueueColumn {
    Sequence,
    PostalCode,
    Name,
    Code,
    Address,
    Complement,
    District,
    Town,
    State,
    Country,
    End
};
std::span<const GridColumn> queueGrid();

// The whole queue of a reason, which from here on is the MotivoImpressao; its size is
// told there too. Nothing, and the former size, after a failed request.
std::optional<std::vector<GridRow>> readQueue(Environment& environment, const Sessao& session,
                                              const std::string& reason, LabelValues& values);

// Before printing: what the user, who has been told, must choose first.
enum class MissingChoice { Nothing, Reason, LabelForm };
MissingChoice checkChoices(Environment& environment, const LabelValues& values, int formPosition);

}  // namespace tarn::labels
