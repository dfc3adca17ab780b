// Numbers and digits of JCAMP-DX data tables.
#include "simulator/jcamp_table_reader.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace veritane::simulator {

namespace {

constexpr std::ptrdiff_t kDigitsOfFastNumber = 14;

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}
bool IsExponentMark(char c) {
  return c == 'E' || c == 'e';
}

std::optional<int> PseudoDigit(char c, char zero, char first_positive, char first_negative) {
  if (c == zero) return 0;
  if (c >= first_positive && c < first_positive + 9) return c - first_positive + 1;
  if (c >= first_negative && c < first_negative + 9) return -(c - first_negative + 1);
  return std::nullopt;
}

// Whether a table uses letters as digits. An E right behind digits is no witness, unless a second one follows
// before the number ends.
bool HoldsPseudoDigits(std::string_view table) {
  bool within_exponent = false;
  for (std::size_t i = 0; i < table.size(); ++i) {
    const char c = table[i];
    if (c == '$' && table.substr(i).starts_with("$$")) {
      i = std::min(table.find_first_of("\r\n", i), table.size());
    } else if (IsExponentMark(c)) {
      const bool after_digit = i > 0 && (IsDigit(table[i - 1]) || table[i - 1] == '.');
      if (within_exponent || !after_digit) return true;
      within_exponent = true;
    } else if (SqueezedDigit(c) || DifferenceDigit(c) || DuplicateDigit(c)) {
      return true;
    } else if (!IsDigit(c)) {
      within_exponent = within_exponent && (c == '+' || c == '-') && IsExponentMark(table[i - 1]);
    }
  }
  return false;
}

// Whether the commas of a table can only separate: "1,2,3", "1, 2" or numbers with decimal points beside
// them.
bool CommasSeparate(std::string_view table) {
  bool comma_in_number = false;
  for (std::size_t i = 0; i < table.size(); ++i) {
    if (table[i] == '.') return true;
    if (table[i] == ',') {
      if (comma_in_number || i + 1 == table.size() || !IsDigit(table[i + 1])) return true;
      comma_in_number = true;
    } else if (!IsDigit(table[i])) {
      comma_in_number = false;
    }
  }
  return false;
}

}  // namespace

std::optional<int> SqueezedDigit(char c) {
  return PseudoDigit(c, '@', 'A', 'a');
}
std::optional<int> DifferenceDigit(char c) {
  return PseudoDigit(c, '%', 'J', 'j');
}
std::optional<int> DuplicateDigit(char c) {
  if (c >= 'S' && c <= 'Z') return c - 'S' + 1;
  if (c == 's') return 9;
  return std::nullopt;
}

JcampTableReader::JcampTableReader(std::string_view text, std::size_t position, const TableHints& hints)
    : begin_(text.data()),
      table_(text.data() + position),
      at_(table_),
      end_(text.data() + text.size()),
      line_(table_),
      most_points_(hints.mostPoints) {
  if (hints.decimalComma || hints.decimalPoint) {
    decimal_comma_ = hints.decimalComma;
  }
}

bool JcampTableReader::ToNextLine() {
  while (at_ < end_) {
    const char* first = at_;
    while (first < end_ && IsBlank(*first)) ++first;
    if (first == end_) {
      at_ = end_;
    } else if (IsLineEnd(*first)) {
      at_ = first + 1;
    } else if (*first == '#' && IsLabelLine(RestOfLine(first))) {
      return false;
    } else if (IsComment(first)) {
      SkipLine();
    } else {
      at_ = line_ = first;
      return true;
    }
  }
  return false;
}

bool JcampTableReader::ToNextItem() {
  while (at_ < end_) {
    const char c = *at_;
    if (IsBlank(c) || c == ';' || (c == ',' && CommaSeparates())) {
      ++at_;
    } else if (IsLineEnd(c)) {
      return false;
    } else if (IsComment(at_)) {
      SkipLine();
      return false;
    } else {
      return true;
    }
  }
  return false;
}

bool JcampTableReader::StartsNumber() const {
  return IsDigit(*at_) || *at_ == '+' || *at_ == '-' || *at_ == '.';
}

double JcampTableReader::Number() {
  const char* const start = *at_ == '+' ? at_ + 1 : at_;
  double value = 0;
  const auto [stop, error] = std::from_chars(start, end_, value, std::chars_format::fixed);
  const bool signed_twice = *at_ == '+' && start < end_ && *start == '-';
  if (stop == start || signed_twice || !(IsDigit(*start) || *start == '-' || *start == '.')) {
    Refuse("this is no number");
  }
  if (stop < end_ && ((*stop == ',' && CommaIsDecimal()) || (IsExponentMark(*stop) && IsExponent(stop)))) {
    return LongNumber(start);
  }
  if (error != std::errc()) {
    Refuse("a number is out of range");
  }
  at_ = stop;
  return value;
}

double JcampTableReader::UnitOf(const char* start) const {
  const std::string_view written(start, static_cast<std::size_t>(at_ - start));
  if (written.find_first_of(".,eE") == written.npos) {
    return 1;
  }
  const auto number = ReadLabelNumber(written, written.find(',') != written.npos);
  return number ? number->unit : 1;
}

double JcampTableReader::SqueezedNumber(int first) {
  const char* const digits = ++at_;
  std::int64_t magnitude = std::abs(first);
  while (at_ < end_ && IsDigit(*at_) && at_ - digits < kDigitsOfFastNumber) {
    magnitude = magnitude * 10 + (*at_++ - '0');
  }
  double value = static_cast<double>(magnitude);
  if (at_ < end_ && (IsDigit(*at_) || *at_ == '.')) {
    while (at_ < end_ && (IsDigit(*at_) || *at_ == '.')) ++at_;
    value = Converted(std::to_string(std::abs(first)) + std::string(digits, at_));
  }
  return first < 0 ? -value : value;
}

std::size_t JcampTableReader::DuplicateCount(int first) {
  const double count = SqueezedNumber(first);
  if (count > static_cast<double>(most_points_)) {
    Refuse("a repetition beyond the largest spectrum");
  }
  return static_cast<std::size_t>(count);
}

void JcampTableReader::Refuse(const std::string& reason, JcampFault::Kind kind) const {
  throw FaultAt(kind, {begin_, static_cast<std::size_t>(end_ - begin_)}, LinePosition(), reason);
}

void JcampTableReader::RefuseItem() const {
  if (*at_ == '?') {
    Refuse("the spectrum has missing points (\"?\")", JcampFault::Kind::kNotSpectrum);
  }
  Refuse("a character that no data form knows");
}

bool JcampTableReader::CommaIsDecimal() {
  if (!decimal_comma_) {
    decimal_comma_ = !CommasSeparate(Table());
  }
  return *decimal_comma_;
}

// "E-05" is an exponent. "E37" may as well be the squeezed number 537; then the table holds letters of those
// forms in other places too.
bool JcampTableReader::IsExponent(const char* mark) {
  if (end_ - mark < 2) return false;
  if (mark[1] == '+' || mark[1] == '-') return end_ - mark > 2 && IsDigit(mark[2]);
  return IsDigit(mark[1]) && !IsSqueezed();
}

bool JcampTableReader::IsSqueezed() {
  if (!squeezed_) {
    squeezed_ = HoldsPseudoDigits(Table());
  }
  return *squeezed_;
}

// A number with a decimal comma or an exponent, beginning at `start` behind a plus sign.
double JcampTableReader::LongNumber(const char* start) {
  const char* stop = start + (*start == '-' ? 1 : 0);
  const auto skip_digits = [&] {
    while (stop < end_ && IsDigit(*stop)) ++stop;
  };
  skip_digits();
  if (stop < end_ && (*stop == '.' || (*stop == ',' && CommaIsDecimal()))) {
    ++stop;
    skip_digits();
  }
  if (stop < end_ && IsExponentMark(*stop) && IsExponent(stop)) {
    stop += 2;
    skip_digits();
  }
  std::string number(start, stop);
  std::replace(number.begin(), number.end(), ',', '.');
  at_ = stop;
  return Converted(number);
}

double JcampTableReader::Converted(const std::string& number) const {
  double value = 0;
  const char* const last = number.data() + number.size();
  const auto [stop, error] = std::from_chars(number.data(), last, value);
  if (error != std::errc() || stop != last) {
    Refuse("a number that cannot be held");
  }
  return value;
}

bool JcampTableReader::IsComment(const char* from) const {
  return end_ - from >= 2 && from[0] == '$' && from[1] == '$';
}

void JcampTableReader::SkipLine() {
  at_ = std::find_if(at_, end_, IsLineEnd);
}

std::string_view JcampTableReader::RestOfLine(const char* from) const {
  return {from, static_cast<std::size_t>(std::find_if(from, end_, IsLineEnd) - from)};
}

// The text of the table up to the next label.
std::string_view JcampTableReader::Table() const {
  const std::string_view rest(table_, static_cast<std::size_t>(end_ - table_));
  return rest.substr(0, std::min(rest.find("\n##"), rest.find("\r##")));
}

}  // namespace veritane::simulator
