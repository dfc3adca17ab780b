// Numbers as the program writes and reads them: a decimal point in every locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace veritane::platform {

// Sign or blank, digits, blank: " 3 ", "-3 ". The form of counts in files.
std::string CountText(long long number);

// The shortest decimal text of up to 15 significant digits with a leading blank for the sign of a number that
// is not negative, and no zero before the point of a fraction: " 97.35", " .5", "-.5", " 100", " 1E+20".
std::string NumberText(double number);

// The same without the leading blank: "85.5", ".5", "-.5".
std::string PlainNumberText(double number);

// The whole text as one decimal number, blanks around it allowed; nothing when any of it is something else
// ("", "-", "1,5", "nan", "inf", "0x1").
std::optional<double> ParseNumber(std::string_view text);

// The whole text as one whole number from `least` to `most`, in decimal digits alone, "-" before them where
// it is negative; nothing when it is anything else ("", "+1", "1.0", " 1").
std::optional<std::int64_t> ParseWholeNumber(std::string_view text, std::int64_t least, std::int64_t most);

// The number that a text begins with, blanks skipped wherever they stand, 0 if it begins with none: "12 h" is
// 12, "1 000" is 1000, "-" is 0.
double LeadingNumber(std::string_view text);

// Formats with a pattern of "#", "0" and one "."; each "0" after the point always writes its digit, each "#"
// only where there is one, the point is always written. Rounds half away from zero on the decimal digits of
// 15 significant. FormatPattern(97.346, "0.##") is "97.35", FormatPattern(12, "0.##") is "12.",
// FormatPattern(0.0123, "#.######") is ".0123".
std::string FormatPattern(double number, std::string_view pattern);

// `number` rounded the way that "0.##" writes it, read back; one that is not finite as it is.
double RoundToTwoDecimals(double number);

}  // namespace veritane::platform
