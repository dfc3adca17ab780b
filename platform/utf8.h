// Counting and cutting UTF-8 text by characters. Bytes that are not UTF-8 count as one character each.
#pragma once

#include <string>
#include <string_view>

namespace veritane::platform {

// What some programs begin a file with; it is no text.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::size_t CharacterCount(std::string_view text);

// At most `length` characters from position `start`, counted from 0; "" when the text ends before.
std::string Characters(std::string_view text, std::size_t start, std::size_t length);

// Whether the bytes are well-formed UTF-8.
bool IsUtf8(std::string_view bytes);

// One code point as UTF-8.
std::string EncodeUtf8(char32_t code_point);

// The code points of a text, for typing it key by key.
std::u32string DecodeUtf8(std::string_view text);

}  // namespace veritane::platform
