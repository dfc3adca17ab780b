// Windows paths and names as text.
#include "platform/windows_path.h"

#include "platform/texts.h"
#include "platform/utf8.h"

#include <algorithm>
#include <array>

namespace veritane::platform {

std::string LeafName(std::string_view path) {
  const std::size_t slash = path.rfind('\\');
  return std::string(slash == std::string_view::npos ? path : path.substr(slash + 1));
}

std::string LeafWithoutExtension(std::string_view path) {
  const std::string leaf = LeafName(path);
  return leaf.substr(0, leaf.rfind('.'));
}

std::string FolderOf(std::string_view path) {
  const std::size_t slash = path.rfind('\\');
  return std::string(slash == std::string_view::npos ? std::string_view() : path.substr(0, slash));
}

std::string UpperCase(std::string_view text) {
  const bool is_ascii =
      std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  std::string upper;
  if (is_ascii) {
    upper = text;
    for (char& c : upper) {
      if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    }
    return upper;
  }
  for (char32_t c : DecodeUtf8(text)) {
    if (c >= U'a' && c <= U'z') {
      c -= 32;
    } else if (c >= 0xE0 && c <= 0xFE && c != 0xF7) {
      c -= 32;
    } else if ((c >= 0x3B1 && c <= 0x3CB && c != 0x3C2) || (c >= 0x430 && c <= 0x44F)) {
      c -= 32;
    } else if (c == 0x3AC) {
      c = 0x386;
    } else if (c >= 0x3AD && c <= 0x3AF) {
      c -= 37;
    } else if (c == 0x3CC) {
      c = 0x38C;
    } else if (c == 0x3CD || c == 0x3CE) {
      c -= 63;
    } else if (c >= 0x450 && c <= 0x45F) {
      c -= 80;
    } else if (c == 0xFF) {
      c = 0x178;
    } else if ((c >= 0x100 && c <= 0x137 && c != 0x131) || (c >= 0x14A && c <= 0x177)) {
      c &= ~char32_t{1};
    } else if ((c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E)) {
      c = c % 2 == 0 ? c - 1 : c;
    }
    upper += EncodeUtf8(c);
  }
  return upper;
}

namespace {

bool IsReservedDevice(std::string_view name) {
  const std::string stem = UpperCase(name.substr(0, name.find('.')));
  static constexpr std::array<std::string_view, 4> kDevices{"CON", "PRN", "AUX", "NUL"};
  if (std::find(kDevices.begin(), kDevices.end(), stem) != kDevices.end()) return true;
  return stem.size() == 4 && (stem.starts_with("COM") || stem.starts_with("LPT")) && stem[3] >= '1' &&
         stem[3] <= '9';
}

}  // namespace

std::string WhyNotAFileName(std::string_view name) {
  if (name.empty()) return Text(TextId::kNameIsEmpty);
  if (name == "." || name == "..") return Text(TextId::kNameIsForbidden, {name});
  for (const char& c : name) {
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) return Text(TextId::kNameHoldsControlCharacter);
    if (kForbiddenInNames.find(c) != std::string_view::npos) {
      return Text(TextId::kNameHoldsCharacter, {std::string_view(&c, 1)});
    }
  }
  if (name.back() == ' ' || name.back() == '.') return Text(TextId::kNameEndsWrongly);
  if (IsReservedDevice(name)) return Text(TextId::kNameOfDevice);
  return "";
}

}  // namespace veritane::platform
