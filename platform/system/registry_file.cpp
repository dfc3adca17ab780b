// Reading REGEDIT4 text.
#include "platform/system/registry_file.h"

#include <charconv>
#include <fstream>

#include "platform/windows_path.h"

namespace veritane::platform {

namespace {

// One line of REGEDIT4 text: "name"=dword:0000000f.
std::optional<std::uint32_t> DwordOf(const std::string& line, const std::string& name) {
  const std::size_t close = line.find('"', 1);
  if (!line.starts_with('"') || close == std::string::npos) return std::nullopt;
  if (UpperCase(line.substr(1, close - 1)) != UpperCase(name)) return std::nullopt;
  const std::string rest = line.substr(close + 1);
  constexpr std::string_view kMark = "=dword:";
  if (!rest.starts_with(kMark)) return std::nullopt;
  std::uint32_t value = 0;
  const char* begin = rest.data() + kMark.size();
  const char* end = rest.data() + rest.size();
  const auto [stop, error] = std::from_chars(begin, end, value, 16);
  return error == std::errc() && stop == end ? std::optional(value) : std::nullopt;
}

}  // namespace

std::optional<std::uint32_t> RegistryFile::ReadDword(const std::string& key, const std::string& value) const {
  std::ifstream file(file_, std::ios::binary);
  const std::string wanted = UpperCase("[HKEY_LOCAL_MACHINE\\" + key + "]");
  bool is_in_key = false;
  for (std::string line; std::getline(file, line);) {
    while (!line.empty() && (line.back() == '\r' || line.back() == ' ')) line.pop_back();
    if (line.starts_with('[')) {
      is_in_key = UpperCase(line) == wanted;
    } else if (is_in_key) {
      if (const auto found = DwordOf(line, value)) return found;
    }
  }
  return std::nullopt;
}

}  // namespace veritane::platform
