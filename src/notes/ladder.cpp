// Which form a note goes on: the company and the establishment of the logon
// decide, from top to bottom, the first row that fits. The issuing and the reprint
// screen have a ladder each, which differ on purpose (decision N58).
#include "notes/print_note.h"

namespace tarn {
namespace {

// Company 2161 has a form for some of its establishments; at the others nothing
// is printed and nothing is said.
std::string_view layoutOf2161(std::int32_t establishment) {
    switch (establishment) {
        case 3381:
        case 3382:
        case 3384:
        case 3385:
            return "ImprimeNF_2161_3381";
        case 3341:
            return "ImprimeNF_2161_3341";
        case 3383:
            return "ImprimeNF_2161_3383";
        default:
            return "";
    }
}

// Companies with one form wherever they are, down to the first test of an
// establishment alone.
std::string_view layoutOfCompany(std::int32_t company) {
    switch (company) {
        case 7:
            return "ImprimeNF_7";
        case 141:
        case 1361:
            return "ImprimeNF_1361";
        case 2041:
            return "ImprimeNF_2041";
        case 2321:
            return "ImprimeNF_2321";
        case 1581:
            return "ImprimeNF_1581";
        case 2801:
            return "ImprimeNF_2801";
        case 2421:
            return "ImprimeNF_2421";
        case 1521:
            return "ImprimeNF_1521";
        case 821:
            return "ImprimeNF_821";
        case 3301:
            return "ImprimeNF_3301";
        default:
            return "";
    }
}

// The lower half of the ladder, where establishments come between the companies.
std::string_view layoutOfRest(std::int32_t company, std::int32_t establishment) {
    if (company == 3881 && establishment != 6001) {
        return "ImprimeNF_3881";
    }
    if (establishment == 6001) {
        return "ImprimeNF_E6001";
    }
    if (company == 3081 || company == 3141) {
        return "ImprimeNF_3081";
    }
    if (establishment == 5282) {
        return "ImprimeNF_E5282";
    }
    if (company == 3601 || establishment == 5281) {
        return "ImprimeNF_3601";
    }
    if (company == 2541) {
        return "ImprimeNF_2541";
    }
    if (company == 3681) {
        return "ImprimeNF_3681";
    }
    if (company == 4621 || company == 541) {
        return "ImprimeNF_4621";
    }
    return "ImprimeNF_Padrao";
}

}  // namespace

std::string_view layoutFor(Ladder ladder, std::int32_t company, std::int32_t establishment) {
    // The reprint screen knows nothing of company 761 and asks for 2541 early.
    if (ladder == Ladder::Issuing && company == 761) {
        return "ImprimeNF_1361";
    }
    if (ladder == Ladder::Reprint && company == 2541) {
        return "ImprimeNF_2541";
    }
    if (company == 2161) {
        return layoutOf2161(establishment);
    }
    const std::string_view layout = layoutOfCompany(company);
    return layout.empty() ? layoutOfRest(company, establishment) : layout;
}

}  // namespace tarn
