#include "runtime/dates.h"

#include <gtest/gtest.h>

namespace tarn::test {
namespace {

TEST(Dates, FormatsWhatIsADate) {
    EXPECT_EQ(formatDateText("15/03/2012"), "15/03/2012");
    EXPECT_EQ(formatDateText("5/3/2012"), "05/03/2012");
    EXPECT_EQ(formatDateText(" 5-3-12 "), "05/03/2012");
    EXPECT_EQ(formatDateText("15.03.29"), "15/03/2029");
    EXPECT_EQ(formatDateText("15.03.30"), "15/03/1930");
    EXPECT_EQ(formatDateText("15/03/5"), "15/03/2005");
    EXPECT_EQ(formatDateText("2012-03-15"), "15/03/2012");
    EXPECT_EQ(formatDateText("2012/3/5"), "05/03/2012");
    EXPECT_EQ(formatDateText("29/02/2012"), "29/02/2012");
    EXPECT_EQ(formatDateText("01/01/0100"), "01/01/0100");
}

TEST(Dates, DropsTheTimeOfDay) {
    EXPECT_EQ(formatDateText("2012-03-15T00:00:00"), "15/03/2012");
    EXPECT_EQ(formatDateText("2012-03-15T10:20:30.123"), "15/03/2012");
    EXPECT_EQ(formatDateText("15/03/2012 23:59"), "15/03/2012");
}

TEST(Dates, LeavesEverythingElse) {
    for (const char* text : {"31/02/2012",
                             "12/31/2012",
                             "29/02/2011",
                             "29/02/1900",
                             "15/03",
                             "A VISTA",
                             "",
                             "   ",
                             "15/03-2012",
                             "15/03/201",
                             "150/3/2012",
                             "15/003/2012",
                             "15/03/20120",
                             "00/03/2012",
                             "15/00/2012",
                             "15/13/2012",
                             "01/01/0099",
                             "15/03/2012 ",
                             "15/03/2012 8:30",
                             "15/03/2012 24:00",
                             "15/03/2012 10:60",
                             "15/03/2012 10:20:",
                             "15/03/2012 10:20:30.",
                             "15/03/2012  10:20",
                             "15/03/2012X",
                             "15 03 2012",
                             "2012-03-",
                             "2012-3-100"}) {
        const std::string shown = formatDateText(text);
        if (std::string(text) == "15/03/2012 ") {
            EXPECT_EQ(shown, "15/03/2012");  // blanks around are trimmed
        } else {
            EXPECT_EQ(shown, text);
        }
    }
}

TEST(Dates, StrictTest) {
    EXPECT_EQ(parseStrictDate("15/03/2012"), (Date{15, 3, 2012}));
    EXPECT_EQ(parseStrictDate("29/02/2000"), (Date{29, 2, 2000}));
    EXPECT_EQ(parseStrictDate("30/04/0100"), (Date{30, 4, 100}));
    for (const char* text :
         {"31/02/2012", "29/02/2011", "12/31/2012", "99/99/2012", "5/3/2012", " 15/03/2012",
          "15-03-2012", "15/03/12", "31/04/2012", "01/01/0099", "", "15/03/20120", "15/03/2,12"}) {
        EXPECT_FALSE(parseStrictDate(text).has_value()) << text;
    }
}

TEST(Dates, TextOfADate) {
    EXPECT_EQ(dateText({1, 2, 2012}), "01/02/2012");
    EXPECT_EQ(dateText({31, 12, 999}), "31/12/0999");
}

}  // namespace
}  // namespace tarn::test
