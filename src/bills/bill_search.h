// The search of bills and receipts: what it asks for and the rows it finds.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
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

// The columns of the grid; the printing reads most of them.
enum class BillColumn {
    Tick,
    Branch,
    Due,
    Issued,
    Number,
    Customer,
    Address,
    Value,
    PostalCode,
    Town,
    State,
    CpfCnpj,
    Registration,
    PersonKind,
    Table,         // "DOCTO_COBRANCA", "DOCTO_RECEBER"
    DocumentKind,  // its number
    ControlNumber,
    Reference,
    FiscalNote,
    BillingAddress,
    BillingTown,
    BillingState,
    BillingPostalCode,
    End
};
std::span<const GridColumn> billGrid();

inline constexpr std::int32_t billKind = 1;  // item data of cboTpDocto

// The fixed items of cboTpDocto; the first one is no kind of document.
std::vector<ListItem> documentKinds();

// Why a search isn't sent.
enum class BillSearchField { DocumentKind, DueTo };
std::optional<Refusal<BillSearchField>> searchRefusal(int kindPosition, std::string_view dueTo);

// The rows of the grid; nothing when the request failed (the user has been told).
std::optional<std::vector<GridRow>> searchBills(Environment& environment, const Sessao& session,
                                                std::int32_t kind,
                                                const commands::SearchFilter& filter);
std::vector<GridRow> billRows(const XmlDocument& answer);

}  // namespace tarn
