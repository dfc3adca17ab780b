// Texts by number, and filling in the places that a text leaves open.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace veritane::platform {

struct NumberedText {
  int id = 0;
  std::string text;
};

class TextTable {
public:
  // The texts in the order of their numbers, each number once.
  TextTable(std::initializer_list<NumberedText> texts) : texts_(texts) {}

  // The text of this number; nullptr for a number that has none.
  const std::string* Find(int id) const;
  // The text of this number; error 5 for a number that has none.
  const std::string& At(int id) const;

  const std::vector<NumberedText>& Texts() const { return texts_; }

private:
  std::vector<NumberedText> texts_;
};

// The text with the first value in every "{1}", the second in every "{2}", up to "{9}". The places may stand
// in any order, so that a translation can follow its own language. Values are put in as they are, whatever
// braces they hold; a place without a value stays as it is.
std::string FillPlaces(std::string_view text, std::initializer_list<std::string_view> values);

}  // namespace veritane::platform
