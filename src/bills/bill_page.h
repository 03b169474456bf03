// The page of one document, in the upper half of the sheet: what bills and receipts share
// of it, and the bill. Places are centimetres, sizes points.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "bills/company_data.h"
#include "common/drawn_run.h"
#include "common/grid_rows.h"

namespace tarn {

class BillPage {
public:
    explicit BillPage(DrawnRun& run) : run_(run) {}

    // Half a centimetre left of and above the point. A text that fails is dropped and the
    // page goes on (decision D97).
    void ImprimeLinha(std::string_view text, double x, double y, double size, bool bold = true,
                      std::string_view font = "Arial");
    // At the points as they are, its width in dots.
    void drawLine(double x1, double y1, double x2, double y2, int width);
    // At the point as it is; nothing for no picture.
    void picture(const std::optional<Picture>& which, double x, double y);

private:
    DrawnRun& run_;
};

// What all pages of a run have in common.
struct Issuer {
    std::int32_t company = 0;  // the session's company
    CompanyData data;
    BillPictures pictures;
    bool triplicate = false;
};

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

// `inWords` is the amount in words.
void drawBill(BillPage& paper, const Issuer& issuer, const GridRow& document,
              const std::string& inWords);

}  // namespace tarn
