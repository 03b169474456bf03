// Dates as texts: dd/mm/yyyy, whatever the machine says.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarn {

struct Date {
    int day = 1;
    int month = 1;
    int year = 1900;
    bool operator==(const Date&) const = default;
};

// A day of the calendar, years 100 to 9999.
bool isCalendarDay(const Date& date);

// A text taken for a date after trimming: day/month/year (day and month of one
// or two digits, year of four, or of one or two: 0-29 is 20xx, 30-99 is 19xx) or
// year-month-day with a four-digit year; one separator "/", "-" or "." used
// twice; a time of day behind a blank or "T" is dropped. Day and month are never
// swapped (decision D6).
std::optional<Date> parseDate(std::string_view text);

// Strictly dd/mm/yyyy of the calendar.
std::optional<Date> parseStrictDate(std::string_view text);

std::string dateText(const Date& date);             // dd/mm/yyyy
std::string formatDateText(std::string_view text);  // dd/mm/yyyy, or the text as it is

}  // namespace tarn
