// Filters of file choosers.
#include "platform/wx/file_filter.h"

#include <cctype>

namespace veritane::platform {

std::string NativeFilter(const std::string& filter) {
#ifdef _WIN32
  return filter;
#else
  std::string native;
  bool is_pattern = false;
  for (const char c : filter) {
    const auto letter = static_cast<unsigned char>(c);
    if (c == '|') is_pattern = !is_pattern;
    if (is_pattern && std::isalpha(letter) != 0) {
      native += {'[', static_cast<char>(std::tolower(letter)), static_cast<char>(std::toupper(letter)), ']'};
    } else {
      native += c;
    }
  }
  return native;
#endif
}

}  // namespace veritane::platform
