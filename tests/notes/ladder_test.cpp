#include "notes/ladder.h"

#include <gtest/gtest.h>

#include <string_view>

namespace tarn::test {
namespace {

struct RungCase {
    std::int32_t company;
    std::int32_t establishment;
    std::string_view issuing;
    std::string_view reprint;
};

constexpr std::string_view same;  // the reprint screen's is the same

constexpr RungCase cases[] = {
    {7, 1, "ImprimeNF_7", same},
    {7, 6001, "ImprimeNF_7", same},
    {1361, 1, "ImprimeNF_1361", same},
    {141, 5282, "ImprimeNF_1361", same},
    {761, 1, "ImprimeNF_1361", "ImprimeNF_Padrao"},
    {761, 6001, "ImprimeNF_1361", "ImprimeNF_E6001"},
    {761, 5281, "ImprimeNF_1361", "ImprimeNF_3601"},
    {761, 5282, "ImprimeNF_1361", "ImprimeNF_E5282"},
    {2161, 3385, "ImprimeNF_2161_3381", same},
    {2161, 3384, "ImprimeNF_2161_3381", same},
    {2161, 3381, "ImprimeNF_2161_3381", same},
    {2161, 3382, "ImprimeNF_2161_3381", same},
    {2161, 3341, "ImprimeNF_2161_3341", same},
    {2161, 3383, "ImprimeNF_2161_3383", same},
    {2041, 1, "ImprimeNF_2041", same},
    {2041, 6001, "ImprimeNF_2041", same},
    {2321, 1, "ImprimeNF_2321", same},
    {1581, 5281, "ImprimeNF_1581", same},
    {2801, 1, "ImprimeNF_2801", same},
    {2421, 3621, "ImprimeNF_2421", same},
    {2421, 1, "ImprimeNF_2421", same},
    {1521, 6001, "ImprimeNF_1521", same},
    {821, 1, "ImprimeNF_821", same},
    {3301, 5282, "ImprimeNF_3301", same},
    {3881, 1, "ImprimeNF_3881", same},
    {3881, 5281, "ImprimeNF_3881", same},
    {3881, 6001, "ImprimeNF_E6001", same},
    {9999, 6001, "ImprimeNF_E6001", same},
    {3081, 6001, "ImprimeNF_E6001", same},
    {3081, 5282, "ImprimeNF_3081", same},
    {3141, 1, "ImprimeNF_3081", same},
    {9999, 5282, "ImprimeNF_E5282", same},
    {3601, 5282, "ImprimeNF_E5282", same},
    {3601, 1, "ImprimeNF_3601", same},
    {9999, 5281, "ImprimeNF_3601", same},
    {3681, 5281, "ImprimeNF_3601", same},
    {2541, 1, "ImprimeNF_2541", same},
    {2541, 6001, "ImprimeNF_E6001", "ImprimeNF_2541"},
    {2541, 5281, "ImprimeNF_3601", "ImprimeNF_2541"},
    {2541, 5282, "ImprimeNF_E5282", "ImprimeNF_2541"},
    {3681, 1, "ImprimeNF_3681", same},
    {4621, 7321, "ImprimeNF_4621", same},
    {4621, 1, "ImprimeNF_4621", same},
    {541, 1, "ImprimeNF_4621", same},
    {541, 6001, "ImprimeNF_E6001", same},
    {0, 0, "ImprimeNF_Padrao", same},
    {9999, 1, "ImprimeNF_Padrao", same},
    {-2147483647 - 1, 2147483647, "ImprimeNF_Padrao", same},
};

std::string_view nameOf(Ladder ladder, std::int32_t company, std::int32_t establishment) {
    const notes::Layout* layout = layoutFor(ladder, company, establishment);
    return layout == nullptr ? "nothing" : layout->name;
}

TEST(Ladder, EveryRungOfBothScreens) {
    for (const RungCase& rung : cases) {
        SCOPED_TRACE(testing::Message() << rung.company << " / " << rung.establishment);
        EXPECT_EQ(nameOf(Ladder::Issuing, rung.company, rung.establishment), rung.issuing);
        EXPECT_EQ(nameOf(Ladder::Reprint, rung.company, rung.establishment),
                  rung.reprint.empty() ? rung.issuing : rung.reprint);
    }
}

TEST(Ladder, Company2161PrintsNothingAtItsOtherEstablishments) {
    for (const std::int32_t establishment : {0, 3340, 3380, 3386, 5281, 5282, 6001}) {
        EXPECT_EQ(layoutFor(Ladder::Issuing, 2161, establishment), nullptr);
        EXPECT_EQ(layoutFor(Ladder::Reprint, 2161, establishment), nullptr);
    }
}

}  // namespace
}  // namespace tarn::test
