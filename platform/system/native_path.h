// Paths of the system and their UTF-8 text.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace veritane::platform {

inline std::filesystem::path PathFromUtf8(std::string_view text) {
  return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

inline std::string Utf8Of(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

}  // namespace veritane::platform
