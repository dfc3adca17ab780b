// Reading small text files by fields and lines.
#include "platform/text_file.h"

#include "platform/number_text.h"
#include "platform/run_time_error.h"
#include "platform/texts.h"
#include "platform/utf8.h"

#include <algorithm>
#include <array>

namespace veritane::platform {

namespace {

// Code points of the bytes 0x80 to 0x9F in Windows-1252; the five unused ones stay control characters.
constexpr std::array<char16_t, 32> kWindows1252{
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}
bool IsLineEnd(char c) {
  return c == '\r' || c == '\n';
}

}  // namespace

std::string DecodeText(std::string_view bytes) {
  if (IsUtf8(bytes))
    return std::string(bytes.starts_with(kByteOrderMark) ? bytes.substr(kByteOrderMark.size()) : bytes);
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 8);
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    text += EncodeUtf8(byte >= 0x80 && byte < 0xA0 ? kWindows1252[byte - 0x80U] : byte);
  }
  return text;
}

std::string_view TrimBlanks(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

TextReader::TextReader(std::string_view bytes, std::string source)
    : text_(DecodeText(bytes)), source_(std::move(source)) {}

void TextReader::RequireMore() const {
  if (AtEnd()) throw RunTimeError(ErrorNumber::kPastEndOfFile, source_);
}

// The line that reading has come to, for an error's text.
std::string TextReader::Place() const {
  const std::string line = std::to_string(line_);
  return source_.empty() ? Text(TextId::kLine, {line}) : Text(TextId::kLineOfFile, {source_, line});
}

void TextReader::SkipLineEnd() {
  ++line_;
  if (position_ < text_.size() && text_[position_] == '\r') ++position_;
  if (position_ < text_.size() && text_[position_] == '\n') ++position_;
}

std::string TextReader::ReadLine() {
  RequireMore();
  const std::size_t begin = position_;
  while (position_ < text_.size() && !IsLineEnd(text_[position_])) ++position_;
  std::string line = text_.substr(begin, position_ - begin);
  SkipLineEnd();
  return line;
}

std::string TextReader::ReadQuoted() {
  const std::size_t begin = position_ + 1;
  const std::size_t end = text_.find('"', begin);
  // All that follows would be one field.
  if (end == std::string::npos) {
    throw RunTimeError(ErrorNumber::kTypeMismatch, Text(TextId::kQuoteNotClosed, {Place()}));
  }
  for (std::size_t at = begin; at < end; ++at) {
    const bool is_first_of_two = text_[at] == '\r' && text_[at + 1] == '\n';
    if (IsLineEnd(text_[at]) && !is_first_of_two) ++line_;
  }
  position_ = end + 1;
  return text_.substr(begin, end - begin);
}

std::string TextReader::ReadField() {
  RequireMore();
  const auto skip_blanks = [this] {
    while (position_ < text_.size() && IsBlank(text_[position_])) ++position_;
  };
  skip_blanks();
  std::string field;
  if (position_ < text_.size() && text_[position_] == '"') {
    field = ReadQuoted();
    skip_blanks();
  } else {
    const std::size_t begin = position_;
    while (position_ < text_.size() && text_[position_] != ',' && !IsLineEnd(text_[position_])) ++position_;
    field = text_.substr(begin, position_ - begin);
    while (!field.empty() && IsBlank(field.back())) field.pop_back();
  }
  if (position_ < text_.size() && text_[position_] == ',') {
    ++position_;
    return field;
  }
  // What follows a closing quote directly would be taken for the next field, and every later one would shift.
  if (!AtEnd() && !IsLineEnd(text_[position_])) {
    throw RunTimeError(ErrorNumber::kTypeMismatch, Text(TextId::kTextBehindField, {Place(), field}));
  }
  SkipLineEnd();
  return field;
}

std::int16_t TextReader::ReadInt16() {
  const std::string place = Place();
  const double number = ReadDouble();
  try {
    return ToInt16(number);
  } catch (const RunTimeError&) {
    throw RunTimeError(ErrorNumber::kOverflow,
                       Text(TextId::kNumberTooLarge, {place, PlainNumberText(number)}));
  }
}

double TextReader::ReadDouble() {
  const std::string place = Place();
  const std::string field = ReadField();
  const std::optional<double> number = ParseNumber(field);
  if (!number) throw RunTimeError(ErrorNumber::kTypeMismatch, Text(TextId::kNotANumber, {place, field}));
  return *number;
}

std::vector<std::string> ReadCountedLines(std::string_view bytes, const std::string& source) {
  TextReader reader(bytes, source);
  const int count = reader.ReadInt16();
  std::vector<std::string> lines;
  lines.reserve(static_cast<std::size_t>(std::max(count, 0)));
  for (int line = 0; line < count; ++line) lines.push_back(reader.ReadLine());
  return lines;
}

std::string CountedLines(const std::vector<std::string>& lines) {
  std::string text = CountText(static_cast<long long>(lines.size())).append(kLineEnd);
  for (const std::string& line : lines) text.append(line).append(kLineEnd);
  return text;
}

}  // namespace veritane::platform
