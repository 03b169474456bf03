#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>

#include "cheques/quebra_texto.h"
#include "common/field_rules.h"
#include "common/tax_number.h"
#include "common/valor_extenso.h"
#include "platform/request_line.h"
#include "runtime/code_page.h"
#include "runtime/dates.h"
#include "runtime/mask.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"
#include "slips/slip_number.h"
#include "tests/fuzz/byte_source.h"
#include "tests/fuzz/checking_spooler.h"
#include "tests/fuzz/fuzz_entries.h"
#include "tests/fuzz/second_ways.h"
#include "tests/fuzz/words_reader.h"
#include "tests/support/fixed_machine.h"

namespace tarn::fuzz {

namespace {

using namespace std::string_view_literals;

void require(bool holds, const char* what, std::string_view value) {
    if (!holds) {
        broken(std::string(what) + ": \"" + std::string(value) + "\"");
    }
}

// Any double, or one as it is typed.
double madeValue(ByteSource& source) {
    if (source.oneIn(2)) {
        std::uint64_t bits = 0;
        for (std::size_t i = 0; i < sizeof bits; ++i) {
            bits = bits << 8U | source.byte();
        }
        double value = 0;
        std::memcpy(&value, &bits, sizeof value);
        return std::isfinite(value) ? value : 0;
    }
    return secondReadPoint(source.rest());
}

void checkComma(ByteSource& source) {
    const std::string_view text = source.rest();
    require(parseComma(text) == secondParseComma(text), "the comma reading differs", text);
    require(isNumeric(text) == parseComma(text).has_value(), "isNumeric differs", text);
}

void checkPoint(ByteSource& source) {
    const std::string_view text = source.rest();
    if (text.find('\0') == std::string_view::npos) {
        require(readPoint(text) == secondReadPoint(text), "the point reading differs", text);
    }
}

template <typename Integer>
void checkInteger(std::string_view text, Integer (*read)(std::string_view)) {
    const std::optional<double> value = secondParseComma(text);
    const double even = value ? value.value() - std::remainder(value.value(), 1.0) : 0;
    const bool fits = value && even >= std::numeric_limits<Integer>::min() &&
                      even <= std::numeric_limits<Integer>::max();
    try {
        require(static_cast<double>(read(text)) == even && fits, "an integer differs", text);
    } catch (const RuntimeError& error) {
        const auto expected = value ? RuntimeErrorCode::Overflow : RuntimeErrorCode::TypeMismatch;
        require(!fits && error.number() == expected, "an integer is refused", text);
    }
}

void checkIntegers(ByteSource& source) {
    const std::string_view text = source.rest();
    checkInteger<std::int16_t>(text, readInt16);
    checkInteger<std::int32_t>(text, readInt32);
}

constexpr std::array masks{"##,###0.00"sv, "###,##0.00"sv,  "000000"sv, "#,#00"sv,
                           "0"sv,          "##,###0.000"sv, "0.0000"sv, "###,###,###,##0.000"sv,
                           "#"sv,          "#.##"sv,        "0,0.0#"sv, "0000000000000"sv};

std::string madeMask(ByteSource& source) {
    if (!source.oneIn(4)) {
        return std::string(source.of(masks));
    }
    std::string mask;
    for (std::size_t count = source.below(20); count > 0; --count) {
        mask += "#0,."[source.below(4)];
    }
    return mask;
}

void checkMask(ByteSource& source) {
    const std::string mask = madeMask(source);
    const double value = madeValue(source);
    require(formatNumber(value, NumberMask(mask)) == secondFormatNumber(value, mask),
            "a masked number differs", mask + " of " + std::to_string(value));
}

// A text under a mask is its number under it where 15 digits hold it, and itself else.
void checkMaskedText(ByteSource& source) {
    const std::string mask = madeMask(source);
    const std::string_view text = source.rest();
    const std::optional<double> value = secondParseComma(text);
    const std::string shown = formatText(text, NumberMask(mask));
    if (!value) {
        require(shown == text, "a text that is no number has changed", text);
    } else {
        require(shown == secondFormatNumber(*value, mask), "a masked text differs", text);
    }
}

void checkNumberText(ByteSource& source) {
    const double value = madeValue(source);
    const std::string text = numberText(value);
    std::array<char, 32> fifteen{};
    std::snprintf(fifteen.data(), fifteen.size(), "%.14e", value);
    const double rounded = std::strtod(fifteen.data(), nullptr);
    const auto read = parseComma(text);
    const bool same = std::isinf(rounded) ? !read.has_value() : read == rounded;
    require(same, "a number's text is another", text);
}

void checkWords(ByteSource& source) {
    constexpr std::int64_t tooMuch = 10'000'000'000'000;  // cents that a double still tells apart
    std::int64_t cents = 0;
    for (std::size_t count = 1 + source.below(8); count > 0; --count) {
        cents = cents * 256 + source.byte();
        cents %= tooMuch;
    }
    cents = source.oneIn(4) ? -cents : cents;
    const std::string words = ValorExtenso(static_cast<double>(cents) / 100);
    // A minus stands before whole units alone.
    const std::int64_t expected = std::abs(cents) < 100 ? std::abs(cents) : cents;
    require(readWords(words) == expected, "an amount in words is another", words);
    ValorExtenso(madeValue(source));
}

void checkDates(ByteSource& source) {
    const std::string_view text = source.rest();
    const std::optional<Date> date = parseDate(text);
    if (!date) {
        require(formatDateText(text) == text, "a text that is no date has changed", text);
        require(!parseStrictDate(text), "a strict date isn't a date", text);
        return;
    }
    using namespace std::chrono;
    const year_month_day day{year(date->year), month(static_cast<unsigned>(date->month)),
                             std::chrono::day(static_cast<unsigned>(date->day))};
    require(day.ok() && isCalendarDay(*date), "a day that no calendar has", text);
    const std::string written = dateText(*date);
    require(parseStrictDate(written) == date && parseDate(written) == date &&
                formatDateText(text) == written,
            "a date isn't read back", written);
}

void checkFields(ByteSource& source) {
    test::FixedMachine machine;
    const Date today{15, 3, 2012};
    const std::string_view text = source.rest();
    const std::string date = dateOnLeave(text, today);
    const FieldResult tested = testedDateOnLeave(text, today);
    require(tested.text.empty() || parseStrictDate(tested.text), "a date that is none", text);
    dateOnEnter(date);
    const FieldResult quantity = quantityOnLeave(text, messagesQtde);
    require(isNumeric(quantity.text), "a quantity that is no number", text);
    const auto taken = takenOf(KeyFilter::Decimal, text, machine);
    require(!taken || taken->find_first_not_of("0123456789,") == std::string::npos,
            "a field has taken what it doesn't take", text);
    cpfCnpj(true, text);
    cpfCnpj(false, text);
    moneyOnLeave(text);
}

void checkFilledMask(ByteSource& source) {
    constexpr std::array shapes{
        "@@@.@@@.@@@-@@"sv, "@@.@@@.@@@/@@@@-@@"sv, "@@@@@-@@@"sv, ""sv, "@"sv, "-"sv};
    const std::string_view mask = source.of(shapes);
    const std::string_view text = source.rest();
    const std::string filled = fillMask(text, mask);
    const auto places = static_cast<std::size_t>(std::count(mask.begin(), mask.end(), '@'));
    require(lengthOf(filled) == mask.size() - places + std::max(places, lengthOf(text)),
            "a filled mask is of another length", text);
}

std::string decoded(std::string_view line) {
    std::string bytes;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '%') {
            bytes += static_cast<char>(
                std::strtol(std::string(line.substr(i + 1, 2)).c_str(), nullptr, 16));
            i += 2;
        } else {
            bytes += line[i];
        }
    }
    return bytes;
}

void checkRequestLine(ByteSource& source) {
    const std::string_view text = source.rest();
    const std::string line = requestLine(text);
    require(std::all_of(line.begin(), line.end(), [](char c) { return c > ' ' && c < 127; }),
            "a request of more than one line", text);
    if (text.find('%') == std::string_view::npos) {
        require(decoded(line) == toWindows1252(text), "a request has lost text", text);
    }
}

void checkTexts(ByteSource& source) {
    const std::size_t cut = source.byte();
    const std::string_view text = source.rest();
    const std::size_t length = lengthOf(text);
    const std::string_view left = leftOf(text, cut);
    require(lengthOf(left) == std::min(cut, length), "a cut of another length", text);
    require(std::string(left).append(midOf(text, cut + 1, length)) == text,
            "a text isn't the sum of its parts", text);
    require(lengthOf(rightOf(text, cut)) == std::min(cut, length), "a right cut differs", text);
    const std::string blanked = blankControls(text);
    require(lengthOf(blanked) == length, "blanks of another number", text);
    require(std::none_of(blanked.begin(), blanked.end(),
                         [](char c) { return (c >= 0 && c < ' ') || c == 127; }),
            "a control character is left", text);
    require(lengthOf(upperCase(text)) == length, "capitals of another number", text);
    const std::string line = escapedLine(text);
    require(line.find_first_of("\t\r\n") == std::string::npos, "an escaped line is two", text);
    std::string joined;
    for (const std::string_view piece : split(text, ' ')) {
        joined.append(piece).append(" ");
    }
    joined.pop_back();
    require(joined == text, "split and joined isn't the text", text);
}

void checkCodePages(ByteSource& source) {
    constexpr std::array pages{CodePage::Page1252, CodePage::Page850, CodePage::Page860};
    const CodePage page = pages.at(source.below(pages.size()));
    const std::string_view text = source.rest();
    std::string bytes;
    appendPrinterBytes(bytes, text, page);
    require(bytes.size() == lengthOf(text), "a character isn't one byte", text);
    if (page == CodePage::Page1252) {
        require(std::none_of(bytes.begin(), bytes.end(),
                             [](char c) {
                                 const auto byte = static_cast<unsigned char>(c);
                                 return byte >= 0x80 && byte <= 0xA0;
                             }),
                "a byte that printers take for a command", text);
    }
    const std::string windows = toWindows1252(text);
    require(toWindows1252(fromWindows1252(windows)) == windows, "a page isn't its own", text);
}

void checkBrokenText(ByteSource& source) {
    const std::size_t width = source.byte();
    std::string text(source.rest());
    std::erase(text, '\r');
    const std::string broken = QuebraTexto(text, width);
    for (const std::string_view line : split(broken, '\r')) {
        require(lengthOf(line) <= width + 1 || line.find(' ') == std::string_view::npos,
                "a broken line is too wide", text);
    }
    const auto letters = [](std::string all) {
        std::erase_if(all, [](char c) { return c == ' ' || c == '\r'; });
        return all;
    };
    require(letters(broken) == letters(text), "a broken text has lost letters", text);
}

void checkSlipNumbers(ByteSource& source) {
    const bool wallet57 = source.oneIn(2);
    const Portfolio portfolio{.ID_CRT_COB = "5",
                              .ID_PES_BAN = "1016",
                              .NR_CRT_CNAB = wallet57 ? "57" : "101",
                              .CD_AGE_BAN_CNAB = "112-3",
                              .NR_CCOR_CNAB = "45678-9"};
    const std::string_view typed = source.rest();
    RunningNumber number(portfolio, typed);
    const SlipNumber first = number.slipNumber();
    require(first.digit >= 0 && first.digit <= 9, "a check digit of two digits", typed);
    number.advance();
    const SlipNumber second = number.slipNumber();
    if (first.digits.find_first_not_of("0123456789") == std::string::npos && typed.size() < 14 &&
        typed.find(',') == std::string_view::npos) {
        require(readComma(second.digits) == readComma(first.digits) + 1, "a number is skipped",
                typed);
    }
}

constexpr std::array checks{checkComma,      checkPoint,      checkIntegers,   checkMask,
                            checkMaskedText, checkWords,      checkNumberText, checkDates,
                            checkFields,     checkTexts,      checkFilledMask, checkRequestLine,
                            checkCodePages,  checkBrokenText, checkSlipNumbers};

}  // namespace

void checkRules(std::span<const std::uint8_t> bytes) {
    ByteSource source(bytes);
    const auto check = checks.at(source.below(checks.size()));
    try {
        check(source);
    } catch (const RuntimeError&) {
        return;
    }
}

}  // namespace tarn::fuzz
