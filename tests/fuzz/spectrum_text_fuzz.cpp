// Feeds arbitrary bytes to the readers of spectra in text and in bare numbers. What they read must keep their
// promises and be no larger than the file can hold, and the text of it must read back to the last bit; what
// they refuse must be refused with a SpectrumReadError.
#include "plslibrary/spectrum_text_reader.h"
#include "tests/fuzz/require.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string>

namespace {

using namespace veritane::plslibrary;
using veritane::fuzz::Require;

std::string Text(double number) {
  std::array<char, 32> text{};
  const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), number);
  return {text.data(), end};
}

void RequireRoundTrip(const MeasuredSpectrum& spectrum) {
  std::string text = "First X = " + Text(spectrum.firstX) + "\nLast X = " + Text(spectrum.lastX) +
                     "\nX Type = " + std::to_string(spectrum.xType) +
                     "\nY Type = " + std::to_string(spectrum.yType) + "\n";
  for (const double y : spectrum.y) text += Text(y) + "\n";
  const MeasuredSpectrum again = ReadSpectrumText(text);
  Require(again.firstX == spectrum.firstX && again.lastX == spectrum.lastX);
  Require(again.xType == spectrum.xType && again.yType == spectrum.yType && again.y == spectrum.y);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes = veritane::fuzz::BytesOf(data, size);
  try {
    const MeasuredSpectrum spectrum = ReadSpectrumText(bytes);
    Require(std::isfinite(spectrum.firstX) && std::isfinite(spectrum.lastX));
    Require((spectrum.y.size() == 1) == (spectrum.firstX == spectrum.lastX));
    Require(!spectrum.y.empty() && 2 * spectrum.y.size() <= size + 1);
    for (const double y : spectrum.y) Require(std::isfinite(y));
    RequireRoundTrip(spectrum);
  } catch (const SpectrumReadError&) {
  }
  try {
    const MeasuredSpectrum spectrum = ReadIeeeFloats(bytes);
    Require(4 * spectrum.y.size() == size && std::isnan(spectrum.firstX));
    for (const double y : spectrum.y) Require(std::isfinite(y));
  } catch (const SpectrumReadError&) {
  }
  return 0;
}
