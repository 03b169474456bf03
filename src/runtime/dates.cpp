#include "runtime/dates.h"

#include "runtime/ascii.h"
#include "runtime/text.h"

namespace tarn {

namespace {

bool isLeapYear(int year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int daysInMonth(int month, int year) {
    if (month == 2) {
        return isLeapYear(year) ? 29 : 28;
    }
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

// A run of digits taken off the front of `rest`.
struct Piece {
    int value = 0;
    std::size_t digits = 0;
};

Piece takeDigits(std::string_view& rest, std::size_t most) {
    Piece piece;
    while (piece.digits < most && piece.digits < rest.size() && isDigit(rest[piece.digits])) {
        piece.value = piece.value * 10 + (rest[piece.digits] - '0');
        ++piece.digits;
    }
    rest.remove_prefix(piece.digits);
    return piece;
}

bool take(std::string_view& rest, char wanted) {
    if (rest.empty() || rest.front() != wanted) {
        return false;
    }
    rest.remove_prefix(1);
    return true;
}

bool takeTwoDigits(std::string_view& rest, int limit) {
    const Piece piece = takeDigits(rest, 2);
    return piece.digits == 2 && piece.value < limit;
}

// hh:mm[:ss[.fff]]
bool isTimeOfDay(std::string_view rest) {
    if (!takeTwoDigits(rest, 24) || !take(rest, ':') || !takeTwoDigits(rest, 60)) {
        return false;
    }
    if (rest.empty()) {
        return true;
    }
    if (!take(rest, ':') || !takeTwoDigits(rest, 60)) {
        return false;
    }
    if (rest.empty()) {
        return true;
    }
    return take(rest, '.') && takeDigits(rest, 9).digits > 0 && rest.empty();
}

bool isTimeBehind(std::string_view rest) {
    return rest.empty() || ((take(rest, ' ') || take(rest, 'T')) && isTimeOfDay(rest));
}

std::optional<Date> calendarDay(int day, int month, int year) {
    const Date date{day, month, year};
    return isCalendarDay(date) ? std::optional(date) : std::nullopt;
}

std::optional<Date> dateOfPieces(const Piece& first, const Piece& second, const Piece& third) {
    if (second.digits < 1 || second.digits > 2) {
        return std::nullopt;
    }
    if (first.digits == 4) {
        const bool dayGiven = third.digits == 1 || third.digits == 2;
        return dayGiven ? calendarDay(third.value, second.value, first.value) : std::nullopt;
    }
    if (first.digits < 1 || first.digits > 2) {
        return std::nullopt;
    }
    if (third.digits == 4) {
        return calendarDay(first.value, second.value, third.value);
    }
    if (third.digits < 1 || third.digits > 2) {
        return std::nullopt;
    }
    constexpr int lastYearOf2000 = 29;
    const int century = third.value <= lastYearOf2000 ? 2000 : 1900;
    return calendarDay(first.value, second.value, century + third.value);
}

void appendTwoDigits(std::string& out, int value) {
    out.push_back(static_cast<char>('0' + value / 10 % 10));
    out.push_back(static_cast<char>('0' + value % 10));
}

}  // namespace

bool isCalendarDay(const Date& date) {
    return date.year >= 100 && date.year <= 9999 && date.month >= 1 && date.month <= 12 &&
           date.day >= 1 && date.day <= daysInMonth(date.month, date.year);
}

std::optional<Date> parseDate(std::string_view text) {
    std::string_view rest = trimBlanks(text);
    const Piece first = takeDigits(rest, 4);
    const char separator = rest.empty() ? '\0' : rest.front();
    if (separator != '/' && separator != '-' && separator != '.') {
        return std::nullopt;
    }
    rest.remove_prefix(1);
    const Piece second = takeDigits(rest, 2);
    if (!take(rest, separator)) {
        return std::nullopt;
    }
    const Piece third = takeDigits(rest, 4);
    return isTimeBehind(rest) ? dateOfPieces(first, second, third) : std::nullopt;
}

std::optional<Date> parseStrictDate(std::string_view text) {
    std::string_view rest = text;
    const Piece day = takeDigits(rest, 2);
    const bool firstSlash = take(rest, '/');
    const Piece month = takeDigits(rest, 2);
    const bool secondSlash = take(rest, '/');
    const Piece year = takeDigits(rest, 4);
    const bool shaped = firstSlash && secondSlash && rest.empty() && day.digits == 2 &&
                        month.digits == 2 && year.digits == 4;
    return shaped ? calendarDay(day.value, month.value, year.value) : std::nullopt;
}

std::string dateText(const Date& date) {
    std::string out;
    appendTwoDigits(out, date.day);
    out.push_back('/');
    appendTwoDigits(out, date.month);
    out.push_back('/');
    appendTwoDigits(out, date.year / 100);
    appendTwoDigits(out, date.year);
    return out;
}

std::string formatDateText(std::string_view text) {
    const std::optional<Date> date = parseDate(text);
    return date ? dateText(*date) : std::string(text);
}

}  // namespace tarn
