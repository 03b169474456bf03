// Prints the ticked rows of the bill search: a page each, a bill or a receipt.
#pragma once

#include <cstdint>
#include <vector>

#include "bills/company_data.h"
#include "common/grid_rows.h"
#include "platform/progress.h"

namespace tarn {

class XmlDocument;
struct Environment;
struct Sessao;

struct BillRun {
    const std::vector<GridRow>& lines;  // all rows of the grid
    bool triplicate = false;
    const BillPictures& pictures;
};

// Asks for the company's data and prints; tells how it ended.
void printSelected(Environment& environment, const Sessao& session, const BillRun& documents,
                   const Progress& progress);

// The same with the company's data at hand. A ticked row without an amount raises
// TypeMismatch before its page, and the document is never ended. Where the printer
// fails at more than a text the user has read its words and no success follows.
void printBills(Environment& environment, std::int32_t company, const XmlDocument& companyData,
                const BillRun& documents, const Progress& progress);

}  // namespace tarn
