// Parameters and times in labels.
#include "simulator/jcamp_value.h"

#include "platform/utf8.h"
#include "simulator/jcamp_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace veritane::simulator {

namespace {

constexpr std::string_view kHexDigits = "0123456789ABCDEF";

std::string Hex(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  return {kHexDigits[code / 16], kHexDigits[code % 16]};
}

std::optional<char> FromHex(std::string_view digits) {
  unsigned code = 0;
  if (digits.size() != 2) return std::nullopt;
  const auto [stop, error] = std::from_chars(digits.data(), digits.data() + 2, code, 16);
  if (error != std::errc() || stop != digits.data() + 2) return std::nullopt;
  return static_cast<char>(code);
}

bool IsControl(char c) {
  return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}
bool IsBeyondAscii(char c) {
  return static_cast<unsigned char>(c) >= 0x80;
}

std::string EscapedText(std::string_view text) {
  const bool utf8 = platform::IsUtf8(text);
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') {
      quoted.append("\\").append(1, c);
    } else if (IsControl(c) || c == '$' || (IsBeyondAscii(c) && !utf8)) {
      quoted.append("\\x").append(Hex(c));
    } else {
      quoted += c;
    }
  }
  return quoted + '"';
}

// The text within quotation marks, or nothing where the marks and escapes are not this program's.
std::optional<std::string> UnescapedText(std::string_view quoted) {
  if (quoted.size() < 2 || quoted.front() != '"' || quoted.back() != '"') return std::nullopt;
  quoted = quoted.substr(1, quoted.size() - 2);
  std::string text;
  for (std::size_t i = 0; i < quoted.size(); ++i) {
    if (quoted[i] == '"') return std::nullopt;
    if (quoted[i] != '\\') {
      text += quoted[i];
      continue;
    }
    const std::string_view escape = quoted.substr(i + 1);
    if (escape.starts_with('\\') || escape.starts_with('"')) {
      text += escape.front();
      i += 1;
    } else if (const auto byte = escape.starts_with('x') ? FromHex(escape.substr(1, 2)) : std::nullopt) {
      text += *byte;
      i += 3;
    } else {
      return std::nullopt;
    }
  }
  return text;
}

std::string Padded(int number, std::size_t width) {
  const std::string digits = std::to_string(number);
  return std::string(width - std::min(width, digits.size()), '0') + digits;
}

// "2026/11/21"
std::string DateText(int year, int month, int day) {
  return Padded(year, 4) + "/" + Padded(month, 2) + "/" + Padded(day, 2);
}

// "97/01/28" and "1997/01/28" as four-digit year, month and day; two digits mean 1970 to 2069.
std::optional<std::string> NormalDate(std::string_view date) {
  std::array<int, 3> parts{};
  const char* at = date.data();
  const char* const end = date.data() + date.size();
  for (std::size_t i = 0; i < parts.size(); ++i) {
    const auto [stop, error] = std::from_chars(at, end, parts[i]);
    const bool separated =
        i + 1 == parts.size() ? stop == end : stop != end && (*stop == '/' || *stop == '-');
    if (error != std::errc() || !separated || parts[i] < 0) return std::nullopt;
    at = stop + (stop == end ? 0 : 1);
  }
  if (parts[0] < 100) parts[0] += parts[0] < 70 ? 2000 : 1900;
  std::string normal = DateText(parts[0], parts[1], parts[2]);
  if (!ParseLongDate(normal + " 00:00:00")) return std::nullopt;
  return normal;
}

std::string Joined(std::string_view date, std::string_view time) {
  std::string joined(date);
  return joined.append(date.empty() || time.empty() ? "" : " ").append(time);
}

}  // namespace

std::string WrittenParameterName(std::string_view name) {
  const bool utf8 = platform::IsUtf8(name);
  const std::string normalized = "$" + NormalizedLabel(name);
  const bool reserved = normalized == kExactNameLabel || normalized == kExactTimeLabel;
  std::string written;
  for (std::size_t i = 0; i < name.size(); ++i) {
    const char c = name[i];
    const bool edge = i == 0 || i + 1 == name.size();
    if (IsControl(c) || c == '%' || c == '=' || c == '$' || (c == ' ' && edge) ||
        (IsBeyondAscii(c) && !utf8) || (reserved && i == 0)) {
      written.append("%").append(Hex(c));
    } else {
      written += c;
    }
  }
  return written;
}

std::string ReadParameterName(std::string_view written) {
  std::string name;
  for (std::size_t i = 0; i < written.size(); ++i) {
    const auto byte = written[i] == '%' ? FromHex(written.substr(i + 1, 2)) : std::nullopt;
    name += byte.value_or(written[i]);
    i += byte ? 2 : 0;
  }
  return name;
}

std::string ExactNumber(double number) {
  if (std::isnan(number)) return "NaN";
  if (std::isinf(number)) return number < 0 ? "-Infinity" : "Infinity";
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
  return {text.data(), end};
}

std::string WrittenValue(const acquisition::ParameterValue& value) {
  if (const double* const number = std::get_if<double>(&value)) {
    return ExactNumber(*number);
  }
  return EscapedText(std::get<std::string>(value));
}

acquisition::ParameterValue ReadValue(std::string_view written) {
  if (auto text = UnescapedText(written)) {
    return *std::move(text);
  }
  if (written == "NaN") return std::numeric_limits<double>::quiet_NaN();
  if (written == "Infinity") return std::numeric_limits<double>::infinity();
  if (written == "-Infinity") return -std::numeric_limits<double>::infinity();
  double number = 0;
  const char* const end = written.data() + written.size();
  const auto [stop, error] = std::from_chars(written.data(), end, number);
  if (error == std::errc() && stop == end && std::isfinite(number) && ExactNumber(number) == written) {
    return number;
  }
  return std::string(written);
}

std::string PlainLine(std::string_view text) {
  std::string line;
  for (const char c : text) {
    line += IsControl(c) ? ' ' : c;
  }
  for (std::size_t mark = line.find("$$"); mark != line.npos; mark = line.find("$$")) {
    line.replace(mark, 2, "$");
  }
  return std::string(Trimmed(line));
}

std::string LongDate(const platform::DateTime& moment) {
  return DateText(moment.year, moment.month, moment.day) + " " + Padded(moment.hour, 2) + ":" +
         Padded(moment.minute, 2) + ":" + Padded(moment.second, 2);
}

std::optional<platform::DateTime> ParseLongDate(std::string_view text) {
  constexpr std::string_view kForm = "0000/00/00 00:00:00";
  const bool fits = text.size() == kForm.size() &&
                    std::equal(text.begin(), text.end(), kForm.begin(), [](char c, char form) {
                      return form == '0' ? c >= '0' && c <= '9' : c == form;
                    });
  if (!fits) return std::nullopt;
  std::string iso(text);
  iso[4] = iso[7] = '-';
  iso[10] = 'T';
  return platform::ParseIsoDateTime(iso);
}

std::string TimeFromLongDate(std::string_view long_date) {
  const std::size_t blank = std::min(long_date.find_first_of(" T"), long_date.size());
  const auto date = NormalDate(long_date.substr(0, blank));
  if (!date) return std::string(long_date);
  const std::string_view time = Trimmed(long_date.substr(std::min(blank + 1, long_date.size())));
  const std::string whole = Joined(*date, time.substr(0, 8));
  // Fractions of seconds and time zones follow the seconds; they are not shown.
  return ParseLongDate(whole) ? whole : Joined(*date, time);
}

std::string TimeFromDateAndTime(std::string_view date, std::string_view time) {
  const std::string normal = NormalDate(date).value_or(std::string(date));
  const std::string whole = Joined(normal, time.substr(0, 8));
  return ParseLongDate(whole) ? whole : Joined(normal, time);
}

}  // namespace veritane::simulator
