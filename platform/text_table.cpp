// Looking texts up, and filling in their places.
#include "platform/text_table.h"

#include "platform/run_time_error.h"

#include <algorithm>

namespace veritane::platform {

const std::string* TextTable::Find(int id) const {
  const auto found =
      std::lower_bound(texts_.begin(), texts_.end(), id,
                       [](const NumberedText& entry, int wanted) { return entry.id < wanted; });
  return found == texts_.end() || found->id != id ? nullptr : &found->text;
}

const std::string& TextTable::At(int id) const {
  const std::string* const text = Find(id);
  if (text == nullptr) throw RunTimeError(ErrorNumber::kInvalidCall, std::to_string(id));
  return *text;
}

std::string FillPlaces(std::string_view text, std::initializer_list<std::string_view> values) {
  // "{", one digit, "}".
  constexpr std::size_t kPlace = 3;
  const auto value_at = [&](std::string_view place) -> const std::string_view* {
    if (place.size() < kPlace || place[2] != '}' || place[1] < '1' || place[1] > '9') return nullptr;
    const auto index = static_cast<std::size_t>(place[1] - '1');
    return index < values.size() ? values.begin() + index : nullptr;
  };
  std::string filled;
  for (std::size_t i = 0; i < text.size();) {
    const std::string_view* const value = text[i] == '{' ? value_at(text.substr(i)) : nullptr;
    filled += value == nullptr ? text.substr(i, 1) : *value;
    i += value == nullptr ? 1 : kPlace;
  }
  return filled;
}

}  // namespace veritane::platform
