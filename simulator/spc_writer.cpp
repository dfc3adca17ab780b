// Spectra as SPC files.
#include "simulator/spc_writer.h"

#include "platform/run_time_error.h"
#include "platform/utf8.h"
#include "simulator/jcamp_text.h"
#include "simulator/jcamp_value.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace veritane::simulator {

namespace {

constexpr std::size_t kHeaderSize = 512;
constexpr std::size_t kSubheaderSize = 32;
constexpr std::uint8_t kNewLittleEndian = 0x4B;
constexpr std::uint8_t kFourierTransformInfrared = 4;  // kind of experiment
constexpr std::uint8_t kIeeeOrdinates = 0x80;          // in the place of the exponent
constexpr std::size_t kMemoSize = 130;                 // with the NUL that ends it

void RequireExportable(bool holds, const StoredSpectrum& spectrum, const std::string& why) {
  if (!holds) {
    throw platform::RunTimeError(platform::ErrorNumber::kInvalidCall,
                                 "the spectrum \"" + spectrum.name + "\" cannot be exported: " + why);
  }
}

// The bytes of a file, little-endian, from the front to the back.
class SpcText {
public:
  template <typename Number>
  void Put(Number number) {
    using Bits = std::conditional_t<sizeof(Number) == 8, std::uint64_t, std::uint32_t>;
    std::uint64_t bits = 0;
    if constexpr (std::is_floating_point_v<Number>) {
      bits = std::bit_cast<Bits>(number);
    } else {
      bits = number;
    }
    for (std::size_t i = 0; i < sizeof(Number); ++i) {
      bytes_ += static_cast<char>(bits >> (8 * i) & 0xFF);
    }
  }
  void PutText(const std::string& text) { bytes_ += text; }
  // NULs up to this place.
  void FillUpTo(std::size_t place) { bytes_.resize(place, '\0'); }
  void Reserve(std::size_t size) { bytes_.reserve(size); }
  std::string Take() { return std::move(bytes_); }

private:
  std::string bytes_;
};

// Minute, hour, day, month and year in one number; 0 for a time in a form of its own.
std::uint32_t PackedDate(const std::string& time) {
  const auto moment = ParseLongDate(time);
  if (!moment || moment->year > 4095) return 0;
  return static_cast<std::uint32_t>(moment->year << 20 | moment->month << 16 | moment->day << 11 |
                                    moment->hour << 6 | moment->minute);
}

// One line of single-byte text (ISO 8859-1), cut to the memo's size.
std::string Memo(const std::string& name) {
  std::string memo;
  for (const char32_t c : platform::DecodeUtf8(name)) {
    if (memo.size() + 1 == kMemoSize) break;
    const bool is_control = c < 0x20 || c == 0x7F;
    const bool is_latin = c < 0x7F || (c >= 0xA0 && c <= 0xFF);
    memo += is_control ? ' ' : is_latin ? static_cast<char>(c) : '?';
  }
  return memo;
}

float ToFloat(double value, const StoredSpectrum& spectrum) {
  RequireExportable(std::isfinite(value), spectrum, "a point is not a number");
  if (std::abs(value) > static_cast<double>(std::numeric_limits<float>::max())) {
    throw platform::RunTimeError(platform::ErrorNumber::kOverflow,
                                 "a point of \"" + spectrum.name + "\" is too large for an SPC file");
  }
  return static_cast<float>(value);
}

void PutHeader(SpcText& file, const StoredSpectrum& spectrum, double first_x, double last_x) {
  file.Put(std::uint8_t{0});  // no flags: one spectrum, evenly spaced
  file.Put(kNewLittleEndian);
  file.Put(kFourierTransformInfrared);
  file.Put(kIeeeOrdinates);
  file.Put(static_cast<std::uint32_t>(spectrum.ordinates.Size()));
  file.Put(first_x);
  file.Put(last_x);
  file.Put(std::uint32_t{1});
  file.Put(static_cast<std::uint8_t>(SpcXType(spectrum.xUnits)));
  file.Put(static_cast<std::uint8_t>(SpcYType(spectrum.yUnits)));
  file.FillUpTo(32);
  file.Put(PackedDate(spectrum.time));
  file.FillUpTo(88);
  file.PutText(Memo(spectrum.name));
  file.FillUpTo(kHeaderSize);
}

}  // namespace

int SpcXType(std::string_view x_units) {
  if (IsWavenumber(x_units)) return 1;
  const std::string units = NormalizedLabel(x_units);
  if (units.starts_with("MICROMET")) return 2;
  if (units.starts_with("NANOMET")) return 3;
  return 0;
}

int SpcYType(std::string_view y_units) {
  const std::string units = NormalizedLabel(y_units);
  if (units == "A" || units.find("ABSORBANCE") != units.npos) return 2;
  if (units == "T" || units == "%T" || units.find("TRANSMI") != units.npos) return 128;
  if (units.find("REFLECTANCE") != units.npos) return 129;
  if (units == "SINGLEBEAM") return 130;
  return 0;
}

std::string WriteSpc(const StoredSpectrum& spectrum) {
  const state::Ordinates& ordinates = spectrum.ordinates;
  const double first_x = ordinates.lower * spectrum.spacing;
  const double last_x = (ordinates.lower + (static_cast<double>(ordinates.Size()) - 1)) * spectrum.spacing;
  RequireExportable(!ordinates.Empty(), spectrum, "it has no points");
  RequireExportable(spectrum.spacing > 0 && std::isfinite(first_x) && std::isfinite(last_x), spectrum,
                    "its spacing is not a positive number");
  SpcText file;
  file.Reserve(kHeaderSize + kSubheaderSize + 4 * ordinates.Size());
  PutHeader(file, spectrum, first_x, last_x);
  file.Put(std::uint8_t{0});
  file.Put(kIeeeOrdinates);
  file.FillUpTo(kHeaderSize + kSubheaderSize);
  for (const double value : ordinates.values) {
    file.Put(ToFloat(value, spectrum));
  }
  return file.Take();
}

}  // namespace veritane::simulator
