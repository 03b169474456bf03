// The search of open documents that may go on a slip: what it asks for and the rows it
// finds.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
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
namespace slip_column {
inline constexpr std::size_t due = 3;
inline constexpr std::size_t number = 5;
inline constexpr std::size_t customer = 6;
inline constexpr std::size_t issued = 7;
inline constexpr std::size_t address = 8;
inline constexpr std::size_t value = 9;  // "###,##0.00"
inline constexpr std::size_t cep = 10;
inline constexpr std::size_t town = 11;
inline constexpr std::size_t state = 12;
inline constexpr std::size_t cpfCnpj = 13;
inline constexpr std::size_t registration = 14;
inline constexpr std::size_t table = 16;  // "DOCTO_COBRANCA", "DOCTO_RECEBER"
inline constexpr std::size_t controlNumber = 17;
inline constexpr std::size_t fine = 20;           // percent, "###,##0.00"
inline constexpr std::size_t dailyInterest = 21;  // "###,##0.00"
inline constexpr std::size_t instruction = 23;
inline constexpr std::size_t establishment = 24;
inline constexpr std::size_t documentKind = 25;
inline constexpr std::size_t bank = 27;
inline constexpr std::size_t externalCode = 28;
}  // namespace slip_column
inline constexpr std::size_t slipColumns = 29;

// "--------" and the company's collection portfolios; the first item alone when the
// request failed (the user has been told).
std::vector<ListItem> portfoliosForFilter(Environment& environment, const Sessao& session);

// What a search goes by; `portfolio` is the item data of its list, at a position above 0.
struct SlipFilter {
    commands::SearchFilter documents;
    std::int32_t portfolio = 0;
    bool includesPortfolio = false;
};

// Why a search or a print isn't begun: what the box says, and where the focus goes.
enum class SlipSearchField { IssuedFrom, DueTo, PortfolioField, BankNumber };
struct SlipRefusal {
    std::string_view text;
    SlipSearchField field;
};
std::optional<SlipRefusal> searchRefusal(const commands::SearchFilter& documents,
                                         int portfolioPosition);
std::optional<SlipRefusal> printRefusal(int portfolioPosition, std::string_view nextNumber);

// The rows of the grid; nothing when the request failed (the user has been told).
std::optional<std::vector<GridRow>> searchSlips(Environment& environment, const Sessao& session,
                                                const SlipFilter& filter);
std::vector<GridRow> slipRows(const XmlDocument& answer);

}  // namespace tarn
