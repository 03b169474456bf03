// The companies of the practice data, their establishments and the pre-printed
// forms these use: one for each row of the note's ladder.
#pragma once

#include <span>

namespace tarn::practice {

struct CompanyRow {
    int id;
    const char* name;
    const char* serverName;
    bool sellsServices = false;
};

// A pre-printed form, on sheets of 66 lines.
struct Form {
    int itemLines;
    int parcelLimit;  // parcels it has room for; 0: it shows none
    int serviceLines = 0;
    bool parcelsInPairs = false;  // two parcels in a printed row
    bool taxCredit = false;       // tells the credit that the recipient may take
};

struct EstablishmentRow {
    int code;  // unique in its company only
    int company;
    const char* name;
    const char* shortName;
    const char* taxBase;  // twelve digits of the tax number
    const char* stateRegistration;
    const char* street;
    const char* number;
    const char* district;
    const char* postalCode;
    const char* town;
    const char* state;
    const char* stateName;
    Form form;
};

// Has many rows of everything, so that lists are as long as at work.
inline constexpr int manyCompany = 1361;

std::span<const CompanyRow> companyRows();
std::span<const EstablishmentRow> establishmentRows();

int companyIndex(int company);  // place in its table, from 0
// The database's own number: establishments are numbered in the order of their
// table, from 1. 0 for one that isn't there.
int establishmentId(int company, int code);

// The establishments of a company, which are together in their table.
struct Branches {
    int first = 0;  // the database's own number
    int count = 0;
};
Branches branchesOf(int company);

}  // namespace tarn::practice
