// Reads the single numbers and digits out of which a JCAMP-DX data table is made, line by line.
#pragma once

#include "simulator/jcamp_table.h"
#include "simulator/jcamp_text.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace veritane::simulator {

// The digit that a character stands for at the beginning of a squeezed value, of a difference, of a
// repetition.
std::optional<int> SqueezedDigit(char c);
std::optional<int> DifferenceDigit(char c);
std::optional<int> DuplicateDigit(char c);

// Every read stops at the end of the text or at the first character that does not belong. What no form allows
// is a JcampFault that quotes the line.
class JcampTableReader {
public:
  JcampTableReader(std::string_view text, std::size_t position, const TableHints& hints);

  // Moves to the next line that holds data; false at the table's end.
  bool ToNextLine();
  // Passes over separators; false when the line's data end here.
  bool ToNextItem();

  bool StartsNumber() const;
  // A number with decimal point or comma and perhaps an exponent.
  double Number();
  // Weight of the last digit of the number just read, which began at `start`.
  double UnitOf(const char* start) const;
  // The number that begins with a squeezed digit, standing for `first` in this place.
  double SqueezedNumber(int first);
  // How many times the item before stands in all.
  std::size_t DuplicateCount(int first);

  [[noreturn]] void Refuse(const std::string& reason,
                           JcampFault::Kind kind = JcampFault::Kind::kDamaged) const;
  // Refuses an item that is neither separator nor number.
  [[noreturn]] void RefuseItem() const;

  const char* At() const { return at_; }
  char Current() const { return *at_; }
  bool AtTextEnd() const { return at_ == end_; }
  std::size_t Position() const { return static_cast<std::size_t>(at_ - begin_); }
  std::size_t LinePosition() const { return static_cast<std::size_t>(line_ - begin_); }
  std::size_t Remaining() const { return static_cast<std::size_t>(end_ - at_); }

private:
  bool CommaIsDecimal();
  bool CommaSeparates() const { return !decimal_comma_.value_or(false); }
  bool IsExponent(const char* mark);
  bool IsSqueezed();
  double LongNumber(const char* start);
  double Converted(const std::string& number) const;
  bool IsComment(const char* from) const;
  void SkipLine();
  std::string_view RestOfLine(const char* from) const;
  std::string_view Table() const;

  const char* begin_;
  const char* table_;
  const char* at_;
  const char* end_;
  const char* line_;
  std::size_t most_points_;
  std::optional<bool> decimal_comma_;  // empty until a comma asks for it
  std::optional<bool> squeezed_;       // empty until an E asks for it
};

}  // namespace veritane::simulator
