// Numbers to text and back, independent of any locale.
#include "platform/number_text.h"

#include "platform/text_file.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace veritane::platform {

namespace {

constexpr int kSignificantDigits = 15;

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// |number| as 15 significant decimal digits d and exponent e with value 0.d × 10^e; trailing zeros dropped.
struct Decimal {
  std::string digits;
  int exponent = 0;
};

Decimal ToDecimal(double number) {
  std::array<char, 40> buffer{};
  // to_chars rounds the exact binary value correctly; it knows no locale.
  const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(number),
                                          std::chars_format::scientific, kSignificantDigits - 1);
  const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  const std::size_t mark = text.find('e');
  Decimal decimal;
  decimal.digits = std::string(text.substr(0, 1)) + std::string(text.substr(2, mark - 2));
  const bool is_negative = text[mark + 1] == '-';
  int exponent = 0;
  std::from_chars(text.data() + mark + 2, text.data() + text.size(), exponent);
  decimal.exponent = (is_negative ? -exponent : exponent) + 1;
  while (!decimal.digits.empty() && decimal.digits.back() == '0') decimal.digits.pop_back();
  if (decimal.digits.empty()) decimal.exponent = 0;
  return decimal;
}

// Keeps `places` digits behind the point, rounding half away from zero.
void RoundToPlaces(Decimal& decimal, int places) {
  const int keep = decimal.exponent + places;
  if (keep >= static_cast<int>(decimal.digits.size())) return;
  if (keep < 0) {
    decimal = {};
    return;
  }
  const bool up = decimal.digits[static_cast<std::size_t>(keep)] >= '5';
  decimal.digits.resize(static_cast<std::size_t>(keep));
  if (up) {
    int position = keep - 1;
    while (position >= 0 && decimal.digits[static_cast<std::size_t>(position)] == '9') {
      decimal.digits[static_cast<std::size_t>(position--)] = '0';
    }
    if (position >= 0) {
      ++decimal.digits[static_cast<std::size_t>(position)];
    } else {
      decimal.digits.insert(0, 1, '1');
      ++decimal.exponent;
    }
  }
  while (!decimal.digits.empty() && decimal.digits.back() == '0') decimal.digits.pop_back();
  if (decimal.digits.empty()) decimal.exponent = 0;
}

std::string WholeDigits(const Decimal& decimal) {
  if (decimal.exponent <= 0) return "";
  std::string whole = decimal.digits.substr(0, static_cast<std::size_t>(decimal.exponent));
  whole.resize(static_cast<std::size_t>(decimal.exponent), '0');
  return whole;
}

std::string FractionDigits(const Decimal& decimal) {
  if (decimal.digits.empty()) return "";
  if (decimal.exponent <= 0)
    return std::string(static_cast<std::size_t>(-decimal.exponent), '0') + decimal.digits;
  const auto whole = static_cast<std::size_t>(decimal.exponent);
  return whole < decimal.digits.size() ? decimal.digits.substr(whole) : "";
}

// Length of the decimal number that the text begins with; 0 when there is none.
std::size_t NumberLength(std::string_view text) {
  std::size_t i = 0;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
  std::size_t digits = 0;
  for (; i < text.size() && IsDigit(text[i]); ++i) ++digits;
  if (i < text.size() && text[i] == '.') {
    ++i;
    for (; i < text.size() && IsDigit(text[i]); ++i) ++digits;
  }
  if (digits == 0) return 0;
  if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
    std::size_t j = i + 1;
    if (j < text.size() && (text[j] == '+' || text[j] == '-')) ++j;
    const std::size_t exponent = j;
    while (j < text.size() && IsDigit(text[j])) ++j;
    if (j > exponent) i = j;
  }
  return i;
}

// Whether a decimal number that no double holds is too small for one, not too large: by its exponent and
// where its first digit stands.
bool IsTiny(std::string_view text) {
  const std::size_t mark = std::min(text.find_first_of("eE"), text.size());
  const std::string_view digits = text.substr(0, mark);
  const auto point = static_cast<long long>(std::min(digits.find('.'), digits.size()));
  const auto first = static_cast<long long>(digits.find_first_of("123456789"));
  std::string_view exponent_text = text.substr(std::min(mark + 1, text.size()));
  if (exponent_text.starts_with('+')) exponent_text.remove_prefix(1);
  int exponent = 0;
  const auto [end, error] =
      std::from_chars(exponent_text.data(), exponent_text.data() + exponent_text.size(), exponent);
  // Such an exponent decides alone.
  if (error == std::errc::result_out_of_range) return exponent_text.starts_with('-');
  return point - first + exponent < 0;
}

// `text` is a whole decimal number. Nothing when it is too large for a double; one that is too small is 0.
std::optional<double> Convert(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error == std::errc()) return number;
  return IsTiny(text) ? std::optional(0.0) : std::nullopt;
}

}  // namespace

std::string CountText(long long number) {
  return (number < 0 ? "" : " ") + std::to_string(number) + " ";
}

std::string NumberText(double number) {
  const std::string text = PlainNumberText(number);
  return text.starts_with('-') ? text : " " + text;
}

std::string PlainNumberText(double number) {
  if (std::isnan(number)) return "NaN";
  const std::string sign = number < 0 ? "-" : "";
  if (std::isinf(number)) return sign + "Inf";
  const Decimal decimal = ToDecimal(number);
  if (decimal.digits.empty()) return "0";
  // Fifteen digits before the point, or as many behind it, still stand as they are.
  const int last_place = static_cast<int>(decimal.digits.size()) - decimal.exponent;
  if (decimal.exponent > kSignificantDigits || (decimal.exponent < 0 && last_place > kSignificantDigits)) {
    std::string text = sign + decimal.digits.substr(0, 1);
    if (decimal.digits.size() > 1) text += "." + decimal.digits.substr(1);
    const int exponent = decimal.exponent - 1;
    const std::string magnitude = std::to_string(std::abs(exponent));
    return text + (exponent < 0 ? "E-" : "E+") + (magnitude.size() < 2 ? "0" : "") + magnitude;
  }
  const std::string fraction = FractionDigits(decimal);
  return sign + WholeDigits(decimal) + (fraction.empty() ? "" : "." + fraction);
}

std::optional<double> ParseNumber(std::string_view text) {
  text = TrimBlanks(text);
  if (text.empty() || NumberLength(text) != text.size()) return std::nullopt;
  return Convert(text);
}

std::optional<std::int64_t> ParseWholeNumber(std::string_view text, std::int64_t least, std::int64_t most) {
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool is_whole = error == std::errc() && end == text.data() + text.size();
  if (!is_whole || number < least || number > most) return std::nullopt;
  return number;
}

double LeadingNumber(std::string_view text) {
  std::string packed(text);
  std::erase_if(packed, [](char c) { return c == ' ' || c == '\t'; });
  const std::size_t length = NumberLength(packed);
  return length == 0 ? 0 : Convert(std::string_view(packed).substr(0, length)).value_or(0);
}

std::string FormatPattern(double number, std::string_view pattern) {
  if (!std::isfinite(number)) return PlainNumberText(number);
  const std::size_t point = pattern.find('.');
  const std::string_view whole_pattern = pattern.substr(0, point);
  const std::string_view fraction_pattern =
      point == std::string_view::npos ? std::string_view() : pattern.substr(point + 1);

  Decimal decimal = ToDecimal(number);
  RoundToPlaces(decimal, static_cast<int>(fraction_pattern.size()));
  std::string whole = WholeDigits(decimal);
  std::size_t least_whole = 0;
  for (const char c : whole_pattern) least_whole += c == '0' ? 1U : 0U;
  if (whole.size() < least_whole) whole.insert(0, least_whole - whole.size(), '0');
  std::string fraction = FractionDigits(decimal);
  const std::size_t last_zero = fraction_pattern.rfind('0');
  const std::size_t least_fraction = last_zero == std::string_view::npos ? 0 : last_zero + 1;
  if (fraction.size() < least_fraction) fraction.resize(least_fraction, '0');

  const bool is_negative = number < 0 && !decimal.digits.empty();
  return (is_negative ? "-" : "") + whole + (point == std::string_view::npos ? "" : "." + fraction);
}

double RoundToTwoDecimals(double number) {
  return std::isfinite(number) ? LeadingNumber(FormatPattern(number, "0.##")) : number;
}

}  // namespace veritane::platform
