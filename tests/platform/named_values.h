// Which numbers an enumeration has names for, as the compiler's name of a function tells; and whether a table
// has a text for each.
#pragma once

#include "platform/text_table.h"

#include <gmock/gmock.h>

#include <array>
#include <cstddef>
#include <set>
#include <string_view>
#include <utility>

namespace veritane {

template <auto value>
constexpr bool HasName() {
  // "value = veritane::state::TextId::kPass" or "value = (veritane::state::TextId)1".
  return std::string_view(__PRETTY_FUNCTION__).find("value = (") == std::string_view::npos;
}

// The numbers below `kEnd` that have a name.
template <typename Enum, std::size_t kEnd>
std::set<int> NamedValues() {
  constexpr auto have_names = []<std::size_t... number>(std::index_sequence<number...>) {
    return std::array<bool, kEnd>{HasName<static_cast<Enum>(number)>()...};
  };
  constexpr std::array has_name = have_names(std::make_index_sequence<kEnd>());
  std::set<int> named;
  for (std::size_t number = 0; number < kEnd; ++number) {
    if (has_name[number]) named.insert(static_cast<int>(number));
  }
  return named;
}

// A table has a text for each wanted number and for no other, in order.
inline void ExpectEachNumberOnce(const platform::TextTable& table, const std::set<int>& wanted) {
  std::set<int> there;
  int before = 0;
  for (const auto& [id, text] : table.Texts()) {
    EXPECT_LT(before, id) << "out of order";
    EXPECT_NE(text, "") << id;
    there.insert(before = id);
  }
  EXPECT_THAT(there, ::testing::ContainerEq(wanted));
}

}  // namespace veritane
