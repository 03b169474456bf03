// The billing orders that the establishments start with: one for each case a
// clerk should have seen.
#pragma once

#include <span>

namespace tarn::practice {

constexpr int noCarrier = -1;
// Counts that the form sets: as many lines or parcels as it has, and some more.
constexpr int fullForm = -1;
constexpr int overFullForm = -2;

// Which products the items are taken from, one after the other.
enum class Choice { Any, ByWeight, Withheld, EveryLegalText, Exempt };

// Which establishments have the order.
enum class Where { Everywhere, SellsServices, ParcelsInPairs, TaxCredit };

struct Scenario {
    int customer = 0;         // row of the customers' table
    int carrier = noCarrier;  // row of the carriers' table
    const char* driver = nullptr;
    int parcels = 1;
    int firstDays = 30;
    int stepDays = 30;
    const char* paymentCondition = "28 DIAS";  // "#": the count of the parcels
    int items = 3;
    int services = 0;
    Choice choice = Choice::Any;
    const char* observation = nullptr;
    const char* saleObservation = nullptr;
    bool entry = false;
    bool lacksStock = false;
    int discountRate = 0;  // hundredths of a percent of each item
    int icmsDiscountRate = 0;
    int freight = 0;  // cents
    int insurance = 0;
    int expenses = 0;
    const char* customerOrder = nullptr;
    const char* controlNumber = nullptr;
    bool ownOrder = true;  // false: the order number of the sale is "0"
    bool loadOrder = true;
    Where where = Where::Everywhere;
};

std::span<const Scenario> orderScenarios();

}  // namespace tarn::practice
