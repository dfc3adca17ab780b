// Spectra as JCAMP-DX text.
#include "simulator/jcamp_writer.h"

#include "platform/run_time_error.h"
#include "platform/text_file.h"
#include "simulator/jcamp_value.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace veritane::simulator {

namespace {

constexpr std::size_t kLineLength = 80;
constexpr std::size_t kLongestNumber = 25;  // "-2.2250738585072014e-308" and a blank

void Require(bool holds, const StoredSpectrum& spectrum, const std::string& what) {
  if (!holds) {
    throw platform::RunTimeError(platform::ErrorNumber::kInvalidCall,
                                 "the spectrum \"" + spectrum.name + "\" cannot be written: " + what);
  }
}

void RequireWritable(const StoredSpectrum& spectrum) {
  const state::Ordinates& ordinates = spectrum.ordinates;
  Require(!ordinates.Empty(), spectrum, "it has no points");
  Require(static_cast<double>(ordinates.lower) + static_cast<double>(ordinates.Size()) - 1 <=
              std::numeric_limits<std::int32_t>::max(),
          spectrum, "it has too many points");
  Require(spectrum.spacing > 0 && std::isfinite(spectrum.spacing * ordinates.lower) &&
              std::isfinite(spectrum.spacing * ordinates.Upper()),
          spectrum, "its spacing is not a positive number");
  Require(std::ranges::all_of(ordinates.values, [](double y) { return std::isfinite(y); }), spectrum,
          "a point is not a number");
}

class TextWriter {
public:
  void Label(std::string_view name, std::string_view value) {
    text_.append("##").append(name).append("= ").append(value).append(platform::kLineEnd);
  }

  void Spectrum(const StoredSpectrum& spectrum) {
    Identity(spectrum);
    for (const FileLabel& label : spectrum.labels) {
      LongLabel(label);
    }
    for (const NamedValue& parameter : spectrum.parameters) {
      Label("$" + WrittenParameterName(parameter.name), WrittenValue(parameter.value));
    }
    Table(spectrum);
    Label("END", "");
  }

  void Reserve(std::size_t size) { text_.reserve(size); }
  std::string Take() { return std::move(text_); }

private:
  void Identity(const StoredSpectrum& spectrum) {
    const std::string title = PlainLine(spectrum.name);
    Label("TITLE", title);
    Label("JCAMP-DX", "5.01");
    Label("DATA TYPE", PlainLine(spectrum.dataType));
    if (platform::DecodeText(title) != spectrum.name) {
      Label(kExactNameLabel, WrittenValue(spectrum.name));
    }
    if (ParseLongDate(spectrum.time) && TimeFromLongDate(spectrum.time) == spectrum.time) {
      Label("LONGDATE", spectrum.time);
    } else if (!spectrum.time.empty()) {
      Label(kExactTimeLabel, WrittenValue(spectrum.time));
    }
  }

  // A label of another maker's file; its text may have several lines.
  void LongLabel(const FileLabel& label) {
    std::string text = label.text;
    for (std::size_t end = text.find('\n'); end != text.npos; end = text.find('\n', end + 2)) {
      text.replace(end, 1, platform::kLineEnd);
    }
    Label(label.name, text);
  }

  void Table(const StoredSpectrum& spectrum) {
    const std::vector<double>& values = spectrum.ordinates.values;
    const auto [smallest, largest] = std::ranges::minmax(values);
    Label("XUNITS", PlainLine(spectrum.xUnits));
    Label("YUNITS", PlainLine(spectrum.yUnits));
    Label("XFACTOR", "1");
    Label("YFACTOR", "1");
    Label("FIRSTX", ExactNumber(spectrum.ordinates.lower * spectrum.spacing));
    Label("LASTX", ExactNumber(spectrum.ordinates.Upper() * spectrum.spacing));
    Label("DELTAX", ExactNumber(spectrum.spacing));
    Label("NPOINTS", std::to_string(values.size()));
    Label("FIRSTY", ExactNumber(values.front()));
    Label("MAXY", ExactNumber(largest));
    Label("MINY", ExactNumber(smallest));
    Label("XYDATA", "(X++(Y..Y))");
    double index = spectrum.ordinates.lower;
    std::size_t line = text_.size();
    for (const double value : values) {
      if (text_.size() == line) {
        Number(index * spectrum.spacing);
      }
      text_ += ' ';
      Number(value);
      if (text_.size() - line + kLongestNumber > kLineLength) {
        text_.append(platform::kLineEnd);
        line = text_.size();
      }
      ++index;
    }
    if (text_.size() != line) text_.append(platform::kLineEnd);
  }

  void Number(double number) {
    std::array<char, kLongestNumber> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    text_.append(digits.data(), end);
  }

  std::string text_;
};

}  // namespace

std::string WriteJcamp(std::span<const StoredSpectrum* const> spectra) {
  if (spectra.empty()) {
    throw platform::RunTimeError(platform::ErrorNumber::kInvalidCall, "there is no spectrum to write");
  }
  std::size_t points = 0;
  for (const StoredSpectrum* const spectrum : spectra) {
    RequireWritable(*spectrum);
    points += spectrum->ordinates.Size();
  }
  TextWriter writer;
  writer.Reserve(points * kLongestNumber + spectra.size() * 1024);
  if (spectra.size() == 1) {
    writer.Spectrum(*spectra.front());
    return writer.Take();
  }
  writer.Label("TITLE", "Spectra of one document");
  writer.Label("JCAMP-DX", "5.01");
  writer.Label("DATA TYPE", "LINK");
  writer.Label("BLOCKS", std::to_string(spectra.size()));
  for (const StoredSpectrum* const spectrum : spectra) {
    writer.Spectrum(*spectrum);
  }
  writer.Label("END", "");
  return writer.Take();
}

}  // namespace veritane::simulator
