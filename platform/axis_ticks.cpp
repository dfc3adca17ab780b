// Round tick values and their labels.
#include "platform/axis_ticks.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace veritane::platform {

namespace {

// 1, 2 or 5 times a power of ten, kept apart so that multiples come out exactly.
struct Step {
  double mantissa = 1;
  int exponent = 0;

  // The multiple of the step; dividing by a positive power of ten is exact where multiplying by 0.1 is not.
  double Times(double factor) const {
    const double whole = factor * mantissa;
    return exponent < 0 ? whole / std::pow(10.0, -exponent) : whole * std::pow(10.0, exponent);
  }
};

Step RoundStep(double rough) {
  Step step{.mantissa = 1, .exponent = static_cast<int>(std::floor(std::log10(rough)))};
  // Powers of ten below the smallest normal number lose their digits.
  step.exponent = std::max(step.exponent, -300);
  const double fraction = rough / std::pow(10.0, step.exponent);
  if (fraction > 7) {
    ++step.exponent;
  } else if (fraction > 3.5) {
    step.mantissa = 5;
  } else if (fraction > 1.5) {
    step.mantissa = 2;
  }
  return step;
}

std::string FormatNumber(double value, std::chars_format format, int precision) {
  std::array<char, 400> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value, format, precision);
  return {text.data(), end.ptr};
}

// "1.5e+08" becomes "1.5e8", "1e-06" becomes "1e-6".
std::string ShortExponent(const std::string& text) {
  const std::size_t e = text.find('e');
  std::string exponent = text.substr(e + 2);
  exponent.erase(0, std::min(exponent.find_first_not_of('0'), exponent.size() - 1));
  return text.substr(0, e + 1) + (text[e + 1] == '-' ? "-" : "") + exponent;
}

int PowerOfTen(double value) {
  return static_cast<int>(std::floor(std::log10(value)));
}

std::string TickLabel(double value, const Step& step, double largest) {
  if (value == 0) return "0";
  const bool is_plain = largest < 1e7 && step.exponent >= -5;
  if (is_plain) return FormatNumber(value, std::chars_format::fixed, std::max(0, -step.exponent));
  const int digits = std::clamp(PowerOfTen(std::abs(value)) - step.exponent, 0, 15);
  return ShortExponent(FormatNumber(value, std::chars_format::scientific, digits));
}

std::string SingleLabel(double value) {
  std::array<char, 64> text{};
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, 6);
  return {text.data(), end.ptr};
}

}  // namespace

std::vector<AxisTick> AxisTicks(double from, double to, int wanted) {
  if (!std::isfinite(from) || !std::isfinite(to)) return {};
  const double low = std::min(from, to);
  const double high = std::max(from, to);
  const double largest = std::max(std::abs(low), std::abs(high));
  const int count = std::max(1, wanted);
  // Dividing first keeps the difference of two huge limits finite.
  const double rough = high / count - low / count;
  if (!(rough > largest * 1e-13) || rough < 1e-300) return {{.value = low, .label = SingleLabel(low)}};

  const Step step = RoundStep(rough);
  const double unit = step.Times(1);
  // A limit that is a tick but for its last bit still counts as one.
  const double first = std::ceil(low / unit - 1e-9);
  const double last = std::floor(high / unit + 1e-9);
  std::vector<AxisTick> ticks;
  const int tick_count = static_cast<int>(last - first) + 1;
  for (int tick = 0; tick < tick_count; ++tick) {
    const double value = std::clamp(step.Times(first + tick) + 0.0, low, high);
    ticks.push_back({.value = value, .label = TickLabel(value, step, largest)});
  }
  return ticks;
}

}  // namespace veritane::platform
