// The page of a receipt.
#pragma once

#include <string>

#include "bills/bill_page.h"

namespace tarn {

// `inWords` is the amount in words.
void drawReceipt(BillPage& paper, const Issuer& issuer, const GridRow& document,
                 const std::string& inWords);

}  // namespace tarn
