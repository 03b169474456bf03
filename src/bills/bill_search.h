// The search of bills and receipts: what it asks for and the rows it finds.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/grid_row.h"
#include "common/list_items.h"
#include "gateway/commands.h"

namespace tarn {

class XmlDocument;
struct Environment;
struct Sessao;

// Columns of the grid that are read for the printing.
namespace bill_column {
inline constexpr std::size_t due = 3;
inline constexpr std::size_t issued = 4;
inline constexpr std::size_t number = 5;
inline constexpr std::size_t customer = 6;
inline constexpr std::size_t address = 7;
inline constexpr std::size_t value = 8;
inline constexpr std::size_t cep = 9;
inline constexpr std::size_t town = 10;
inline constexpr std::size_t state = 11;
inline constexpr std::size_t cpfCnpj = 12;
inline constexpr std::size_t registration = 13;
inline constexpr std::size_t personKind = 14;
inline constexpr std::size_t documentKind = 16;
inline constexpr std::size_t reference = 18;
inline constexpr std::size_t fiscalNote = 19;
inline constexpr std::size_t billingAddress = 20;
inline constexpr std::size_t billingTown = 21;
inline constexpr std::size_t billingState = 22;
inline constexpr std::size_t billingPostalCode = 23;
}  // namespace bill_column
inline constexpr std::size_t billColumns = 23;

inline constexpr std::int32_t billKind = 1;  // item data of cboTpDocto

// The fixed items of cboTpDocto; the first one is no kind of document.
std::vector<ListItem> documentKinds();

// Why a search isn't sent: what the box says, and where the focus goes.
enum class BillSearchField { DocumentKind, DueTo };
struct SearchRefusal {
    std::string_view text;
    BillSearchField field;
};
std::optional<SearchRefusal> searchRefusal(int kindPosition, std::string_view dueTo);

// The rows of the grid; nothing when the request failed (the user has been told).
std::optional<std::vector<GridRow>> searchBills(Environment& environment, const Sessao& session,
                                                std::int32_t kind,
                                                const commands::SearchFilter& filter);
std::vector<GridRow> billRows(const XmlDocument& answer);

}  // namespace tarn
