// Finding a value in registry text.
#include "platform/registry_text.h"

#include "platform/windows_path.h"

#include <algorithm>
#include <charconv>

namespace veritane::platform {

namespace {

// One line: "name"=dword:0000000f. `name` is in upper case.
std::optional<std::uint32_t> DwordOf(std::string_view line, const std::string& name) {
  const std::size_t close = line.find('"', 1);
  if (!line.starts_with('"') || close == std::string_view::npos) return std::nullopt;
  if (UpperCase(line.substr(1, close - 1)) != name) return std::nullopt;
  line.remove_prefix(close + 1);
  constexpr std::string_view kMark = "=dword:";
  if (!line.starts_with(kMark)) return std::nullopt;
  line.remove_prefix(kMark.size());
  std::uint32_t number = 0;
  const auto [stop, error] = std::from_chars(line.data(), line.data() + line.size(), number, 16);
  return error == std::errc() && stop == line.data() + line.size() ? std::optional(number) : std::nullopt;
}

}  // namespace

std::optional<std::uint32_t> DwordInRegistryText(std::string_view text, const std::string& key,
                                                 const std::string& value) {
  const std::string wanted_key = UpperCase("[HKEY_LOCAL_MACHINE\\" + key + "]");
  const std::string wanted_value = UpperCase(value);
  bool is_in_key = false;
  while (!text.empty()) {
    std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    while (line.ends_with('\r') || line.ends_with(' ')) line.remove_suffix(1);
    if (line.starts_with('[')) {
      is_in_key = UpperCase(line) == wanted_key;
    } else if (is_in_key) {
      if (const auto found = DwordOf(line, wanted_value)) return found;
    }
  }
  return std::nullopt;
}

}  // namespace veritane::platform
