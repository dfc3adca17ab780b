// What the registry says about the program that serves a class.
#include "platform/automation_server.h"
#include "platform/run_time_error.h"
#include "platform/texts.h"
#include "platform/windows/dispatch_error.h"
#include "platform/windows/dispatch_value.h"
#include "platform/windows/system_text.h"

#include <windows.h>

#include <array>
#include <string>

namespace veritane::platform {

namespace {

constexpr const char* kClasses = "Software\\Classes\\";

struct Hive {
  HKEY root;
  const char* name;
};
const std::array<Hive, 2> kHives{
    {{HKEY_LOCAL_MACHINE, "HKEY_LOCAL_MACHINE"}, {HKEY_CURRENT_USER, "HKEY_CURRENT_USER"}}};

std::wstring KeyOf(const std::string& key) {
  return WideText(kClasses + key);
}

LSTATUS Write(HKEY root, const std::string& key, const std::string& text) {
  const std::wstring value = WideText(text);
  return RegSetKeyValueW(root, KeyOf(key).c_str(), nullptr, REG_SZ, value.c_str(),
                         static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
}

// The key's text, "" without one.
std::string Read(HKEY root, const std::string& key) {
  std::array<wchar_t, 512> text{};
  DWORD size = sizeof(text);
  const LSTATUS status =
      RegGetValueW(root, KeyOf(key).c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text.data(), &size);
  return status == ERROR_SUCCESS ? Utf8Text(text.data()) : "";
}

LSTATUS WriteAll(HKEY root, const ServedClass& served, const std::string& command_line) {
  const std::string by_class = "CLSID\\" + served.classId;
  const std::array<std::pair<std::string, std::string>, 5> entries{{
      {by_class, served.description},
      {by_class + "\\LocalServer32", command_line},
      {by_class + "\\ProgID", served.progId},
      {served.progId, served.description},
      {served.progId + "\\CLSID", served.classId},
  }};
  for (const auto& [key, text] : entries) {
    const LSTATUS status = Write(root, key, text);
    if (status != ERROR_SUCCESS) return status;
  }
  return ERROR_SUCCESS;
}

LSTATUS Delete(HKEY root, const std::string& key) {
  const LSTATUS status = RegDeleteTreeW(root, KeyOf(key).c_str());
  return status == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : status;
}

LSTATUS DeleteAll(HKEY root, const ServedClass& served) {
  const LSTATUS by_class = Delete(root, "CLSID\\" + served.classId);
  if (by_class != ERROR_SUCCESS) return by_class;
  const bool own = Read(root, served.progId + "\\CLSID") == served.classId;
  return own ? Delete(root, served.progId) : ERROR_SUCCESS;
}

[[noreturn]] void ThrowUnwritable(const Hive& hive, LSTATUS status) {
  throw RunTimeError(kAutomationError,
                     Text(TextId::kRegistryRefuses, {hive.name, SystemText(HRESULT_FROM_WIN32(status))}));
}

}  // namespace

void RegisterServer(const ServedClass& served, const std::string& command_line) {
  for (const Hive& hive : kHives) {
    const std::string owner = Read(hive.root, served.progId + "\\CLSID");
    if (!owner.empty() && owner != served.classId) {
      throw RunTimeError(kAutomationError, Text(TextId::kClassOfAnother, {served.progId, owner, hive.name}));
    }
  }
  const Hive& everybody = kHives[0];
  const Hive& user = kHives[1];
  LSTATUS status = WriteAll(everybody.root, served, command_line);
  if (status == ERROR_SUCCESS) {
    // An older registration of the user's own would stay in force.
    status = DeleteAll(user.root, served);
  } else {
    // What was written before the refusal does not stay.
    DeleteAll(everybody.root, served);
    status = WriteAll(user.root, served, command_line);
  }
  if (status != ERROR_SUCCESS) ThrowUnwritable(user, status);
}

void UnregisterServer(const ServedClass& served) {
  for (const Hive& hive : kHives) {
    const LSTATUS status = DeleteAll(hive.root, served);
    if (status != ERROR_SUCCESS) ThrowUnwritable(hive, status);
  }
}

}  // namespace veritane::platform
