// The two pages: one document each, in the upper half of the sheet.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "bills/bill_paper.h"
#include "bills/bill_pictures.h"
#include "bills/company_data.h"
#include "common/grid_rows.h"

namespace tarn {

// What all pages of a run have in common.
struct Issuer {
    std::int32_t company = 0;  // the session's company
    CompanyData data;
    BillPictures pictures;
    bool triplicate = false;
};

// `inWords` is the amount in words.
void drawBill(BillPage& paper, const Issuer& issuer, const GridRow& document,
              const std::string& inWords);
void drawReceipt(BillPage& paper, const Issuer& issuer, const GridRow& document,
                 const std::string& inWords);

// What tells the two headers apart.
struct PageHeader {
    std::string_view issuedLabel;
    std::string place;
};
void drawHeader(BillPage& paper, const Issuer& issuer, const GridRow& document,
                const PageHeader& header);

// Piece after piece of so many characters, one at each height, in the typewriter face.
void drawPieces(BillPage& paper, std::string_view strip, std::size_t characters, double x,
                std::initializer_list<double> heights, double size);

inline constexpr double leftMargin = 1.1;
inline constexpr double rightMargin = 20.3;

}  // namespace tarn
