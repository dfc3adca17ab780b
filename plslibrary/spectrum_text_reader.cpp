// Spectra from text and from bare numbers.
#include "plslibrary/spectrum_text_reader.h"

#include "plslibrary/even_spacing.h"
#include "plslibrary/spc_bytes.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <map>
#include <optional>
#include <string>

namespace veritane::plslibrary {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kSeparators = " \t,;";

// The whole field as a finite number; nothing where any of it is something else.
std::optional<double> ToNumber(std::string_view field) {
  if (field.starts_with('+') && !field.starts_with("+-")) field.remove_prefix(1);
  double number = 0;
  const char* const end = field.data() + field.size();
  const auto [stop, fault] = std::from_chars(field.data(), end, number);
  if (fault != std::errc() || stop != end || !std::isfinite(number)) return std::nullopt;
  return number;
}

std::vector<std::string_view> FieldsOf(std::string_view line) {
  std::vector<std::string_view> fields;
  for (std::size_t begin = line.find_first_not_of(kSeparators); begin != line.npos;
       begin = line.find_first_not_of(kSeparators)) {
    line.remove_prefix(begin);
    fields.push_back(line.substr(0, line.find_first_of(kSeparators)));
    line.remove_prefix(fields.back().size());
  }
  return fields;
}

// The letters of a name in lower case: "First X" and "firstx" are one name.
std::string LettersOf(std::string_view name) {
  std::string letters;
  for (const char c : name) {
    if (c >= 'a' && c <= 'z') letters += c;
    if (c >= 'A' && c <= 'Z') letters += static_cast<char>(c - 'A' + 'a');
  }
  return letters;
}

// Takes the lines of a text one after the other and makes a spectrum of them.
class SpectrumText {
public:
  void AddLine(std::string_view line) {
    ++line_;
    const std::vector<std::string_view> fields = FieldsOf(line);
    if (fields.empty()) return;
    if (columns_ == 0 && !ToNumber(fields.front())) {
      AddHeaderLine(line);
    } else {
      AddPoint(fields);
    }
  }

  MeasuredSpectrum Take() {
    MeasuredSpectrum spectrum;
    spectrum.xType = TypeNamed("xtype");
    spectrum.yType = TypeNamed("ytype");
    const bool names_limits = named_.contains("firstx") || named_.contains("lastx");
    if (columns_ == 2) {
      if (names_limits)
        throw SpectrumReadError("x is given both in a column and by its first and last value");
      RequireEvenSpacing(x_, "");
      spectrum.firstX = x_.front();
      spectrum.lastX = x_.back();
    } else {
      spectrum.firstX = Limit("firstx", "First X");
      spectrum.lastX = Limit("lastx", "Last X");
      RequireLimits(spectrum.firstX, spectrum.lastX, y_.size(), "");
    }
    spectrum.y = std::move(y_);
    return spectrum;
  }

private:
  void AddHeaderLine(std::string_view line) {
    const std::size_t sign = line.find_first_of("=:");
    if (sign == line.npos) return;
    const std::string name = LettersOf(line.substr(0, sign));
    if (name != "firstx" && name != "lastx" && name != "xtype" && name != "ytype") return;
    const std::vector<std::string_view> fields = FieldsOf(line.substr(sign + 1));
    const std::optional<double> number = fields.size() == 1 ? ToNumber(fields.front()) : std::nullopt;
    if (!number) throw Fault("a number should follow \"" + name + "\"");
    if (!named_.emplace(name, *number).second) throw Fault("\"" + name + "\" stands there twice");
  }

  void AddPoint(const std::vector<std::string_view>& fields) {
    if (fields.size() > 2) {
      throw Fault("it has " + std::to_string(fields.size()) + " columns, at most two were expected");
    }
    if (columns_ == 0) columns_ = fields.size();
    if (fields.size() != columns_) {
      throw Fault("it has " + std::to_string(fields.size()) + " columns, the first point has " +
                  std::to_string(columns_));
    }
    for (std::size_t column = 0; column < columns_; ++column) {
      const std::optional<double> number = ToNumber(fields[column]);
      if (!number) throw Fault("column " + std::to_string(column + 1) + " is not a number");
      (column + 1 == columns_ ? y_ : x_).push_back(*number);
    }
  }

  double Limit(const std::string& name, const std::string& written) const {
    const auto found = named_.find(name);
    if (found == named_.end()) {
      throw SpectrumReadError("the text holds no pairs of x and y, and no line \"" + written +
                              " = \" says where its points lie");
    }
    return found->second;
  }

  int TypeNamed(const std::string& name) const {
    const auto found = named_.find(name);
    if (found == named_.end()) return 0;
    if (!(found->second >= 0 && found->second <= 255 && found->second == std::floor(found->second))) {
      throw SpectrumReadError("\"" + name + "\" is no code from 0 to 255");
    }
    return static_cast<int>(found->second);
  }

  SpectrumReadError Fault(const std::string& reason) const {
    return SpectrumReadError("line " + std::to_string(line_) + ": " + reason);
  }

  int line_ = 0;
  std::size_t columns_ = 0;  // 0 before the first point
  std::map<std::string, double> named_;
  std::vector<double> x_;
  std::vector<double> y_;
};

}  // namespace

MeasuredSpectrum ReadSpectrumText(std::string_view bytes) {
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  SpectrumText text;
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find_first_of("\r\n"), bytes.size());
    text.AddLine(bytes.substr(0, end));
    bytes.remove_prefix(end);
    bytes.remove_prefix(bytes.starts_with("\r\n") ? 2 : bytes.empty() ? 0 : 1);
  }
  return text.Take();
}

MeasuredSpectrum ReadIeeeFloats(std::string_view bytes) {
  if (bytes.empty() || bytes.size() % sizeof(float) != 0) {
    throw SpectrumReadError(std::to_string(bytes.size()) + " bytes are no whole number of 32-bit numbers");
  }
  MeasuredSpectrum spectrum;
  spectrum.firstX = spectrum.lastX = std::numeric_limits<double>::quiet_NaN();
  spectrum.y = ReadOrdinates(SpcBytes(bytes, std::endian::little), 0, bytes.size() / sizeof(float),
                             SpcCoding{.exponent = SpcCoding::kIeeeExponent}, "");
  return spectrum;
}

}  // namespace veritane::plslibrary
