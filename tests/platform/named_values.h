// Which numbers an enumeration has names for: the compiler's name of a function tells a value's name, or the
// number.
#pragma once

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
  std::set<int> named;
  [&]<std::size_t... number>(std::index_sequence<number...>) {
    ((HasName<static_cast<Enum>(number)>() ? void(named.insert(static_cast<int>(number))) : void()), ...);
  }
  (std::make_index_sequence<kEnd>());
  return named;
}

}  // namespace veritane
