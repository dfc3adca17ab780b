// UTF-8 by characters.
#include "platform/utf8.h"

#include <cstdint>

namespace veritane::platform {

namespace {

struct Decoded {
  char32_t code_point;
  std::size_t length;
  bool valid;
};

// Table 3-7 of the Unicode standard: which bytes may follow a lead byte.
Decoded DecodeAt(std::string_view text, std::size_t position) {
  const auto byte = [&](std::size_t offset) -> unsigned {
    return position + offset < text.size() ? static_cast<unsigned char>(text[position + offset]) : 0U;
  };
  const unsigned lead = byte(0);
  const Decoded broken{lead, 1, false};
  if (lead < 0x80) return {lead, 1, true};
  std::size_t length = 0;
  unsigned low = 0x80;
  unsigned high = 0xBF;
  if (lead >= 0xC2 && lead <= 0xDF) {
    length = 2;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    length = 3;
    if (lead == 0xE0) low = 0xA0;
    if (lead == 0xED) high = 0x9F;
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4;
    if (lead == 0xF0) low = 0x90;
    if (lead == 0xF4) high = 0x8F;
  } else {
    return broken;
  }
  char32_t code_point = lead & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    const unsigned next = byte(i);
    if (next < low || next > high) return broken;
    code_point = (code_point << 6) | (next & 0x3F);
    low = 0x80;
    high = 0xBF;
  }
  return {code_point, length, true};
}

}  // namespace

std::size_t CharacterCount(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t position = 0; position < text.size(); ++count) position += DecodeAt(text, position).length;
  return count;
}

std::string Characters(std::string_view text, std::size_t start, std::size_t length) {
  std::size_t position = 0;
  for (; start > 0 && position < text.size(); --start) position += DecodeAt(text, position).length;
  const std::size_t first = position;
  for (; length > 0 && position < text.size(); --length) position += DecodeAt(text, position).length;
  return std::string(text.substr(first, position - first));
}

bool IsUtf8(std::string_view bytes) {
  for (std::size_t position = 0; position < bytes.size();) {
    const Decoded decoded = DecodeAt(bytes, position);
    if (!decoded.valid) return false;
    position += decoded.length;
  }
  return true;
}

std::string EncodeUtf8(char32_t code_point) {
  const auto tail = [&](int shift) { return static_cast<char>(0x80 | ((code_point >> shift) & 0x3F)); };
  if (code_point < 0x80) return {static_cast<char>(code_point)};
  if (code_point < 0x800) return {static_cast<char>(0xC0 | (code_point >> 6)), tail(0)};
  if (code_point < 0x10000) return {static_cast<char>(0xE0 | (code_point >> 12)), tail(6), tail(0)};
  return {static_cast<char>(0xF0 | (code_point >> 18)), tail(12), tail(6), tail(0)};
}

std::u32string DecodeUtf8(std::string_view text) {
  std::u32string code_points;
  for (std::size_t position = 0; position < text.size();) {
    const Decoded decoded = DecodeAt(text, position);
    code_points.push_back(decoded.code_point);
    position += decoded.length;
  }
  return code_points;
}

}  // namespace veritane::platform
