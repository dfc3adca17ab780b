// The registry with what registering a server leaves in it, the names and the regional formats of Windows
// itself.
#include "platform/automation_server.h"
#include "platform/system/system_machine.h"
#include "tests/support/errors.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
// Behind the program's own headers, whose names its macros would change.
#include "platform/windows/windows_time.h"

#include <windows.h>

namespace veritane::platform {
namespace {

using ::testing::HasSubstr;
using tests::ErrorOf;

constexpr const char* kKey = "Software\\Veritane registry test";

class WindowsRegistryTest : public ::testing::Test {
protected:
  void SetUp() override {
    const LONG answer = ::RegCreateKeyA(HKEY_LOCAL_MACHINE, kKey, &key_);
    if (answer == ERROR_ACCESS_DENIED) GTEST_SKIP() << "only an administrator may write keys of the machine";
    ASSERT_EQ(answer, ERROR_SUCCESS);
  }
  void TearDown() override {
    if (key_ == nullptr) return;
    ::RegCloseKey(key_);
    ::RegDeleteKeyA(HKEY_LOCAL_MACHINE, kKey);
  }

  void Store(const char* name, DWORD type, const void* bytes, DWORD size) {
    ASSERT_EQ(::RegSetValueExA(key_, name, 0, type, static_cast<const BYTE*>(bytes), size), ERROR_SUCCESS);
  }

  HKEY key_ = nullptr;
  PathMap no_root_{""};
  std::unique_ptr<Registry> registry_ = SystemRegistry(no_root_);
};

TEST_F(WindowsRegistryTest, OnlyADwordCounts) {
  const DWORD six = 6;
  const std::uint64_t wide = 6;
  Store("Obe Type", REG_DWORD, &six, sizeof six);
  Store("Text", REG_SZ, "6", 2);
  Store("Bytes", REG_BINARY, &six, sizeof six);
  Store("Wide", REG_QWORD, &wide, sizeof wide);
  EXPECT_EQ(registry_->ReadDword(kKey, "Obe Type"), 6U);
  EXPECT_EQ(registry_->ReadDword(kKey, "OBE TYPE"), 6U);
  for (const char* other : {"Text", "Bytes", "Wide", "None"}) {
    EXPECT_EQ(registry_->ReadDword(kKey, other), std::nullopt) << other;
  }
  EXPECT_EQ(registry_->ReadDword(std::string(kKey) + "\\none", "Obe Type"), std::nullopt);
}

TEST_F(WindowsRegistryTest, OnlyAValueThatTheFirstViewLacksIsLookedForInTheOther) {
  if (sizeof(void*) == 4) GTEST_SKIP() << "the two views are one for a 32-bit program";
  HKEY other = nullptr;
  ASSERT_EQ(::RegCreateKeyExA(HKEY_LOCAL_MACHINE, kKey, 0, nullptr, 0, KEY_WRITE | KEY_WOW64_32KEY, nullptr,
                              &other, nullptr),
            ERROR_SUCCESS);
  const DWORD six = 6;
  EXPECT_EQ(
      ::RegSetValueExA(other, "Obe Type", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&six), sizeof six),
      ERROR_SUCCESS);
  EXPECT_EQ(registry_->ReadDword(kKey, "Obe Type"), 6U);
  Store("Obe Type", REG_SZ, "6", 2);
  EXPECT_EQ(registry_->ReadDword(kKey, "Obe Type"), std::nullopt) << "the first view has it, as another type";
  ::RegCloseKey(other);
  ::RegDeleteKeyExA(HKEY_LOCAL_MACHINE, kKey, KEY_WOW64_32KEY, 0);
}

const ServedClass kServed{.progId = "Veritane.RegistrationTest.1",
                          .classId = "{6D5B0B5C-5C43-4D0E-9A53-6E0F3B8E7A11}",
                          .description = "Veritane registration test"};
const std::string kServerKey = "Software\\Classes\\CLSID\\" + kServed.classId + "\\LocalServer32";

std::string CommandLineIn(HKEY hive) {
  std::array<char, 64> text{};
  DWORD size = sizeof text;
  const LSTATUS status =
      ::RegGetValueA(hive, kServerKey.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text.data(), &size);
  return status == ERROR_SUCCESS ? text.data() : "";
}

TEST(WindowsRegistration, AnOlderOneOfTheUsersOwnDoesNotStayInForce) {
  ASSERT_EQ(::RegSetKeyValueA(HKEY_CURRENT_USER, kServerKey.c_str(), nullptr, REG_SZ, "old", 4),
            ERROR_SUCCESS);
  RegisterServer(kServed, "new");
  const std::string users = CommandLineIn(HKEY_CURRENT_USER);
  const std::string everybodys = CommandLineIn(HKEY_LOCAL_MACHINE);
  // Where only an administrator may write for everybody, the user's own is the new one.
  EXPECT_EQ(users.empty() ? everybodys : users, "new");
  UnregisterServer(kServed);
  EXPECT_EQ(CommandLineIn(HKEY_CURRENT_USER) + CommandLineIn(HKEY_LOCAL_MACHINE), "");
}

TEST(WindowsNames, UserAndComputerHaveNamesWithoutWhatLiesBehindThem) {
  const SystemUserAccount account;
  for (const auto& name : {account.LoggedOnUser(), account.ComputerName()}) {
    ASSERT_TRUE(name.has_value());
    EXPECT_FALSE(name->empty());
    EXPECT_EQ(name->find('\0'), std::string::npos);
    EXPECT_NE(name->back(), ' ');
  }
}

TEST(WindowsRegionalFormats, AreThoseOfTheLocaleAskedFor) {
  const DateTime moment{.year = 2026, .month = 11, .day = 21, .hour = 13, .minute = 59, .second = 7};
  const SystemRegionalFormat american("en_US");
  EXPECT_EQ(american.ShortDate(moment), "11/21/2026");
  EXPECT_EQ(american.ShortTime(moment), "1:59:07 PM");
  EXPECT_EQ(american.GeneralDate(moment), "11/21/2026 1:59:07 PM");
  const SystemRegionalFormat own("");
  EXPECT_THAT(own.GeneralDate(moment), HasSubstr(own.ShortDate(moment)));
  EXPECT_THAT(own.LongDate(moment), HasSubstr("2026"));
}

TEST(WindowsClock, GoesByTheTimeZoneAndStandsWhenItIsSet) {
  SystemClock clock;
  SYSTEMTIME local;
  const DateTime before = clock.LocalNow();
  ::GetLocalTime(&local);
  const DateTime after = clock.LocalNow();
  const DateTime told{.year = local.wYear,
                      .month = local.wMonth,
                      .day = local.wDay,
                      .hour = local.wHour,
                      .minute = local.wMinute,
                      .second = local.wSecond};
  EXPECT_LE(before, told);
  EXPECT_LE(told, after);
  const DateTime summer{.year = 2026, .month = 7, .day = 1, .hour = 0, .minute = 30, .second = 5};
  clock.Set(summer);
  EXPECT_EQ(clock.LocalNow(), summer);
}

TEST(WindowsClock, CountsBeyond2038InEveryWidth) {
  SYSTEMTIME told{};
  told.wYear = 2040;
  told.wMonth = 6;
  told.wDay = 1;
  told.wHour = 12;
  FILETIME time;
  ASSERT_TRUE(::SystemTimeToFileTime(&told, &time));
  const auto seconds = std::chrono::floor<std::chrono::seconds>(MomentOf(time).time_since_epoch()).count();
  EXPECT_EQ(FromWallClockSeconds(seconds), (DateTime{.year = 2040, .month = 6, .day = 1, .hour = 12}));
}

}  // namespace
}  // namespace veritane::platform
