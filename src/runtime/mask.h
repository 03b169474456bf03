// The masks under which numbers and texts are shown: "##,###0.00", "000000",
// "#,#00", "@@@.@@@.@@@-@@". A mask is written with a decimal point and grouping
// comma; what it prints has a decimal comma and grouping points.
#pragma once

#include <string>
#include <string_view>

namespace tarn {

// A numeric mask taken apart once. A comma anywhere in the whole part groups by
// threes; each "0" asks for a digit, each "#" allows one.
struct NumberMask {
    int wholeDigits = 0;    // least digits before the comma
    int leastDecimals = 0;  // "0" places after the point
    int mostDecimals = 0;   // "0" and "#" places after the point
    bool grouped = false;

    constexpr NumberMask(std::string_view mask) {  // NOLINT: a mask's text is a mask
        bool fraction = false;
        for (const char c : mask) {
            if (c == '.') {
                fraction = true;
            } else if (c == ',') {
                grouped = true;
            } else if (fraction) {
                ++mostDecimals;
                if (c == '0') {
                    leastDecimals = mostDecimals;
                }
            } else if (c == '0' || (c == '#' && wholeDigits > 0)) {
                ++wholeDigits;  // a "#" behind a "0" asks for its digit too
            }
        }
    }
    constexpr NumberMask(const char* mask) : NumberMask(std::string_view(mask)) {}  // NOLINT
};

// The value to 15 significant decimal digits, rounded half away from zero at the
// mask's places. A value that rounds to zero prints without a minus sign.
std::string formatNumber(double value, const NumberMask& mask);
void appendNumber(std::string& out, double value, const NumberMask& mask);

// A mask over a text: empty stays empty, a number by the comma reading is read
// and formatted, anything else comes back unchanged.
std::string formatText(std::string_view text, const NumberMask& mask);
// The same for building lines: false, and nothing appended, for a text that is no
// number, the empty one too.
bool appendText(std::string& out, std::string_view text, const NumberMask& mask);

// A "@" mask over a text (UTF-8, one character a placeholder): filled from the
// right; a placeholder left over prints a blank, the mask's punctuation always
// prints, characters beyond the mask come in front of it.
std::string fillMask(std::string_view text, std::string_view mask);

}  // namespace tarn
