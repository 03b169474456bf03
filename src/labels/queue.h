// The queue of labels that the server keeps under reasons of printing, and what the label
// screens tell each other of it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "common/grid_rows.h"
#include "common/list_items.h"
#include "common/refusal.h"

namespace tarn {
struct Environment;
struct Sessao;
}  // namespace tarn

namespace tarn::labels {

// It outlives the screens: one that couldn't read anew works on with what the one before
// left.
struct LabelValues {
    std::string TipoFormulario;        // "1" to "4"
    std::string MotivoImpressao;       // the reason's description
    std::int32_t FilialRemetente = 0;  // identifier; 0: none chosen
    std::size_t quantity = 0;          // rows of the queue as it was last read
};

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

// Before printing: what must be chosen first.
enum class QueueField { Reason, LabelForm };
std::optional<Refusal<QueueField>> choiceRefusal(const LabelValues& values, int formPosition);

// Sequence numbers as they were typed.
struct Range {
    std::string from;
    std::string to;
};

// Before a deletion: the end of the range that isn't filled in.
enum class RangeField { From, To };
std::optional<Refusal<RangeField>> rangeRefusal(const Range& range);

// Takes a range of labels out of the queue of one reason. True: the request was made and
// success shown, whatever became of it; the queue, read anew, shows the truth. False: an end
// is no number, as the user has been told.
bool deleteLabels(Environment& environment, const Sessao& session, const std::string& reason,
                  const Range& range);

}  // namespace tarn::labels
