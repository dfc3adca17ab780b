// UTF-8 as the system's calls take it: UTF-16, or the code page of the process; and the system's own words.
#pragma once

#include <string>
#include <string_view>

namespace veritane::platform {

// Bytes that are no UTF-8 become replacement characters.
std::wstring WideText(std::string_view utf8);
std::string Utf8Text(std::wstring_view wide);
// Text of the calls whose names end in "A".
std::string Utf8OfCodePage(std::string_view text);
std::string CodePageText(std::wstring_view wide);
// What the system says about an error number or an automation result, without a line end; "" when it says
// nothing.
std::string SystemWords(unsigned long code);

}  // namespace veritane::platform
