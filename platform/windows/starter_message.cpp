// Windows connects a program with a window to no console, not even to the one that it was started from.
#include "platform/system/starter_message.h"

#include "platform/windows/system_text.h"

#include <windows.h>

namespace veritane::platform {

namespace {

void WriteToConsole(const std::wstring& text) {
  // Standard outputs that lead somewhere have the text already.
  if (::GetFileType(::GetStdHandle(STD_ERROR_HANDLE)) != FILE_TYPE_UNKNOWN) return;
  if (!::AttachConsole(ATTACH_PARENT_PROCESS)) return;
  HANDLE console =
      ::CreateFileW(L"CONOUT$", GENERIC_WRITE, FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
  if (console != INVALID_HANDLE_VALUE) {
    DWORD written = 0;
    ::WriteConsoleW(console, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    ::CloseHandle(console);
  }
  ::FreeConsole();
}

}  // namespace

void ShowToStarter(const std::string& text) {
  const std::wstring wide = WideText(text);
  WriteToConsole(wide);
  ::MessageBoxW(nullptr, wide.c_str(), L"Veritane", MB_OK | MB_ICONINFORMATION | MB_SETFOREGROUND);
}

}  // namespace veritane::platform
