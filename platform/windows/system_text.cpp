// Conversions by the system.
#include "platform/windows/system_text.h"

#include <windows.h>

namespace veritane::platform {

namespace {

std::wstring Decoded(UINT code_page, std::string_view text) {
  const int length = static_cast<int>(text.size());
  std::wstring wide(
      static_cast<std::size_t>(::MultiByteToWideChar(code_page, 0, text.data(), length, nullptr, 0)), L'\0');
  ::MultiByteToWideChar(code_page, 0, text.data(), length, wide.data(), static_cast<int>(wide.size()));
  return wide;
}

std::string Encoded(UINT code_page, std::wstring_view wide) {
  const int length = static_cast<int>(wide.size());
  std::string text(static_cast<std::size_t>(::WideCharToMultiByte(code_page, 0, wide.data(), length, nullptr,
                                                                  0, nullptr, nullptr)),
                   '\0');
  ::WideCharToMultiByte(code_page, 0, wide.data(), length, text.data(), static_cast<int>(text.size()),
                        nullptr, nullptr);
  return text;
}

}  // namespace

std::wstring WideText(std::string_view utf8) {
  return Decoded(CP_UTF8, utf8);
}
std::string Utf8Text(std::wstring_view wide) {
  return Encoded(CP_UTF8, wide);
}
std::string Utf8OfCodePage(std::string_view text) {
  return Utf8Text(Decoded(CP_ACP, text));
}
std::string CodePageText(std::wstring_view wide) {
  return Encoded(CP_ACP, wide);
}

std::string SystemWords(unsigned long code) {
  wchar_t* words = nullptr;
  const DWORD length = ::FormatMessageW(
      FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
      code, 0, reinterpret_cast<wchar_t*>(&words), 0, nullptr);
  std::string text = Utf8Text({words, length});
  ::LocalFree(words);
  return text.substr(0, text.find_last_not_of("\r\n ") + 1);
}

}  // namespace veritane::platform
