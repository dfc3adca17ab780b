// Lines, labels and comments of JCAMP-DX.
#include "simulator/jcamp_text.h"

#include "platform/text_file.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace veritane::simulator {

namespace {

constexpr std::size_t kQuotedLength = 60;

// The number behind the "E" of "E+05", 0 for an empty text, nothing for one out of range.
std::optional<int> ExponentOf(std::string_view written) {
  if (written.empty()) return 0;
  written.remove_prefix(written.substr(1).starts_with('+') ? 2 : 1);
  int exponent = 0;
  const char* const end = written.data() + written.size();
  const auto [stop, error] = std::from_chars(written.data(), end, exponent);
  return error == std::errc() && stop == end ? std::optional(exponent) : std::nullopt;
}

// The line in quotation marks, short enough for a message box.
std::string QuotedLine(std::string_view line) {
  std::string quoted = "\"";
  for (const char c : line.substr(0, kQuotedLength)) {
    quoted += c < ' ' || c > '~' ? '.' : c;
  }
  return quoted + (line.size() > kQuotedLength ? "...\"" : "\"");
}

}  // namespace

int LineNumberAt(std::string_view text, std::size_t position) {
  int line = 1;
  for (std::size_t i = 0; i < std::min(position, text.size()); ++i) {
    const bool ends_pair = text[i] == '\n' && i > 0 && text[i - 1] == '\r';
    line += IsLineEnd(text[i]) && !ends_pair ? 1 : 0;
  }
  return line;
}

JcampFault FaultAt(JcampFault::Kind kind, std::string_view text, std::size_t position,
                   const std::string& reason) {
  position = std::min(position, text.size());
  const std::size_t before = position == 0 ? text.npos : text.find_last_of("\r\n", position - 1);
  const std::size_t begin = before == text.npos ? 0 : before + 1;
  const std::size_t end = std::min(text.find_first_of("\r\n", begin), text.size());
  return JcampFault(kind, "line " + std::to_string(LineNumberAt(text, begin)) + ": " + reason + ": " +
                              QuotedLine(text.substr(begin, end - begin)));
}

std::string NormalizedLabel(std::string_view name) {
  std::string normalized;
  for (const char c : name) {
    if (c == '-' || c == '/' || c == '_' || IsBlank(c)) {
      continue;
    }
    normalized += c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  }
  return normalized;
}

bool IsWavenumber(std::string_view units) {
  const std::string plain = NormalizedLabel(units);
  return plain == "1CM" || plain == "CM1" || plain == "CM^1" || plain.starts_with("WAVENUMBER");
}

bool IsLabelLine(std::string_view line) {
  const std::size_t begin = line.find_first_not_of(" \t");
  return begin != line.npos && line.substr(begin).starts_with("##") && line.find('=', begin) != line.npos;
}

std::string_view Trimmed(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(" \t\r\n");
  if (begin == text.npos) {
    return {};
  }
  return text.substr(begin, text.find_last_not_of(" \t\r\n") - begin + 1);
}

std::string_view WithoutComment(std::string_view value) {
  return Trimmed(value.substr(0, value.find("$$")));
}

std::string_view JcampScanner::TakeLine() {
  const std::size_t begin = position_;
  const std::size_t end = std::min(text_.find_first_of("\r\n", begin), text_.size());
  position_ = end;
  if (position_ < text_.size()) {
    position_ += text_.substr(position_).starts_with("\r\n") ? 2 : 1;
  }
  return text_.substr(begin, end - begin);
}

std::optional<JcampLabel> JcampScanner::NextLabel() {
  while (position_ < text_.size()) {
    const std::size_t begin = position_;
    const std::string_view line = TakeLine();
    if (!IsLabelLine(line)) {
      continue;
    }
    const std::size_t name_begin = line.find("##") + 2;
    const std::size_t equals = line.find('=', name_begin);
    JcampLabel label;
    label.name = platform::DecodeText(Trimmed(line.substr(name_begin, equals - name_begin)));
    label.normalized = NormalizedLabel(label.name);
    label.value = line.substr(equals + 1);
    label.position = begin;
    return label;
  }
  return std::nullopt;
}

std::string JcampScanner::FullValue(const JcampLabel& label) {
  std::string value(WithoutComment(label.value));
  while (position_ < text_.size()) {
    const std::size_t begin = position_;
    const std::string_view line = TakeLine();
    if (IsLabelLine(line)) {
      position_ = begin;
      break;
    }
    const std::string_view content = WithoutComment(line);
    if (!content.empty()) {
      value.append(value.empty() ? "" : "\n").append(content);
    }
  }
  return platform::DecodeText(value);
}

std::optional<LabelNumber> ReadLabelNumber(std::string_view value, bool decimal_comma) {
  std::string text(WithoutComment(value));
  if (decimal_comma) {
    std::replace(text.begin(), text.end(), ',', '.');
  }
  const char* begin = text.data() + (text.starts_with('+') ? 1 : 0);
  const char* const end = text.data() + text.size();
  LabelNumber number;
  const auto [stop, error] = std::from_chars(begin, end, number.value);
  if (error != std::errc() || (stop != end && !IsBlank(*stop)) || !std::isfinite(number.value)) {
    return std::nullopt;
  }
  const std::string_view digits(begin, static_cast<std::size_t>(stop - begin));
  const std::size_t exponent_mark = std::min(digits.find_first_of("eE"), digits.size());
  const std::size_t point = digits.substr(0, exponent_mark).find('.');
  const double decimals = point == digits.npos ? 0 : static_cast<double>(exponent_mark - point - 1);
  const auto exponent = ExponentOf(digits.substr(exponent_mark));
  if (!exponent) return std::nullopt;
  // A zero may have any exponent.
  number.unit = std::pow(10.0, *exponent - decimals);
  if (!std::isfinite(number.unit)) return std::nullopt;
  return number;
}

}  // namespace veritane::simulator
