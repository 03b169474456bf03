// The commands of bills and receipts: establishments, documents, customers. Here the kinds
// of open documents and the search that bills and slips share.
#pragma once

#include "practice/commands/command.h"
#include "practice/commands/conditions.h"

namespace tarn::practice {

// Kinds of document, as the desk knows them.
constexpr int billKind = 1;
constexpr int receiptKind = 12;

// The tables of a document: d itself, e its establishment, c the customer, a and b
// the customer's own and billing address, k the kind.
inline constexpr std::string_view documentTables =
    "FROM document d JOIN establishment e ON e.id = d.establishment_id"
    " JOIN document_kind k ON k.id = d.kind_id"
    " JOIN customer c ON c.id = d.customer_id"
    " JOIN customer_address a ON a.customer_id = c.id AND a.kind = 'P'"
    " LEFT JOIN customer_address b ON b.customer_id = c.id AND b.kind = 'C' ";

// The filters of the request: company, customer, establishment, both ranges of
// dates. Throws a Refusal for what can't be read, and a user that isn't of the company.
Conditions documentSearch(const Query& query, CommandContext& context);

}  // namespace tarn::practice
