// The search of open documents that may go on a slip: what it asks for and the rows it
// finds.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "common/grid_rows.h"
#include "common/list_items.h"
#include "common/refusal.h"
#include "gateway/commands.h"

namespace tarn {

class XmlDocument;
struct Environment;
struct Sessao;

// The columns of the grid; those behind the amount are for the printing alone.
enum class SlipColumn {
    Tick,
    Branch,
    Due,
    KindText,
    Number,
    Customer,
    Issued,
    Address,
    Value,
    PostalCode,
    Town,
    State,
    CpfCnpj,
    Registration,
    PersonKind,
    Table,  // "DOCTO_COBRANCA", "DOCTO_RECEBER"
    ControlNumber,
    CollectionReference,
    DailyRate,
    Fine,  // percent
    DailyInterest,
    OtherExpenses,
    Instruction,
    Establishment,
    DocumentKind,  // its number
    Agency,
    Bank,
    ExternalCode,
    FiscalNote,
    End
};
std::span<const GridColumn> slipGrid();

// "--------" and the company's collection portfolios; the first item alone when the
// request failed (the user has been told).
std::vector<ListItem> portfoliosForFilter(Environment& environment, const Sessao& session);

// What a search goes by; `portfolio` is the item data of its list, at a position above 0.
struct SlipFilter {
    commands::SearchFilter documents;
    std::int32_t portfolio = 0;
    bool includesPortfolio = false;
};

// Why a search or a print isn't begun.
enum class SlipSearchField { IssuedFrom, DueTo, PortfolioField, BankNumber };
using SlipRefusal = Refusal<SlipSearchField>;
std::optional<SlipRefusal> searchRefusal(const commands::SearchFilter& documents,
                                         int portfolioPosition);
std::optional<SlipRefusal> printRefusal(int portfolioPosition, std::string_view nextNumber);

// The rows of the grid; nothing when the request failed (the user has been told).
std::optional<std::vector<GridRow>> searchSlips(Environment& environment, const Sessao& session,
                                                const SlipFilter& filter);
std::vector<GridRow> slipRows(const XmlDocument& answer);

}  // namespace tarn
