// The registry's two views, and what registering a server leaves in it.
#include "platform/automation_server.h"
#include "platform/system/system_machine.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
// Behind the program's own headers, whose names its macros would change.
#include <windows.h>

namespace veritane::platform {
namespace {

constexpr const char* kKey = "Software\\Veritane registry views test";

TEST(WindowsRegistryViews, AValueThatTheFirstViewLacksIsLookedForInTheOther) {
  HKEY own = nullptr;
  HKEY other = nullptr;
  const LONG answer = ::RegCreateKeyA(HKEY_LOCAL_MACHINE, kKey, &own);
  if (answer == ERROR_ACCESS_DENIED) GTEST_SKIP() << "only an administrator may write keys of the machine";
  ASSERT_EQ(answer, ERROR_SUCCESS);
  ASSERT_EQ(::RegCreateKeyExA(HKEY_LOCAL_MACHINE, kKey, 0, nullptr, 0, KEY_WRITE | KEY_WOW64_32KEY, nullptr,
                              &other, nullptr),
            ERROR_SUCCESS);
  const DWORD six = 6;
  EXPECT_EQ(
      ::RegSetValueExA(other, "Obe Type", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&six), sizeof six),
      ERROR_SUCCESS);
  const PathMap no_root("");
  EXPECT_EQ(SystemRegistry(no_root)->ReadDword(kKey, "Obe Type"), 6U);
  ::RegCloseKey(own);
  ::RegCloseKey(other);
  ::RegDeleteKeyExA(HKEY_LOCAL_MACHINE, kKey, KEY_WOW64_32KEY, 0);
  ::RegDeleteKeyA(HKEY_LOCAL_MACHINE, kKey);
}

const ServedClass kServed{.progId = "Veritane.RegistrationTest.1",
                          .classId = "{6D5B0B5C-5C43-4D0E-9A53-6E0F3B8E7A11}",
                          .description = "Veritane registration test"};

std::string CommandLineIn(HKEY hive) {
  const std::string key = "Software\\Classes\\CLSID\\" + kServed.classId + "\\LocalServer32";
  std::array<char, 64> text{};
  DWORD size = sizeof text;
  const LSTATUS status =
      ::RegGetValueA(hive, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text.data(), &size);
  return status == ERROR_SUCCESS ? text.data() : "";
}

TEST(WindowsRegistration, AnOlderOneOfTheUsersOwnDoesNotStayInForce) {
  const std::string key = "Software\\Classes\\CLSID\\" + kServed.classId + "\\LocalServer32";
  ASSERT_EQ(::RegSetKeyValueA(HKEY_CURRENT_USER, key.c_str(), nullptr, REG_SZ, "old", 4), ERROR_SUCCESS);
  RegisterServer(kServed, "new");
  const std::string users = CommandLineIn(HKEY_CURRENT_USER);
  const std::string everybodys = CommandLineIn(HKEY_LOCAL_MACHINE);
  // Where only an administrator may write for everybody, the user's own is the new one.
  EXPECT_EQ(users.empty() ? everybodys : users, "new");
  UnregisterServer(kServed);
  EXPECT_EQ(CommandLineIn(HKEY_CURRENT_USER) + CommandLineIn(HKEY_LOCAL_MACHINE), "");
}

}  // namespace
}  // namespace veritane::platform
