// Formats of the user's regional settings, or of a named locale.
#include "platform/system/regional_format.h"

#include "platform/run_time_error.h"
#include "platform/texts.h"
#include "platform/windows/system_text.h"
#include "platform/windows/windows_time.h"

#include <windows.h>

#include <algorithm>
#include <array>

namespace veritane::platform {

namespace {

// "de_DE.UTF-8" is "de-DE" here.
std::wstring WindowsName(const std::string& locale_name) {
  std::string name = locale_name.substr(0, locale_name.find_first_of(".@"));
  std::ranges::replace(name, '_', '-');
  return WideText(name);
}

}  // namespace

class SystemRegionalFormat::Locale {
public:
  explicit Locale(const std::string& name) : is_plain_(name == "C"), name_(WindowsName(name)) {
    if (is_plain_ || name.empty()) return;
    if (!::IsValidLocaleName(name_.c_str())) {
      throw RunTimeError(ErrorNumber::kInvalidCall, Text(TextId::kNoLocale, {name}));
    }
  }

  std::string ShortDate(const DateTime& moment) const {
    return is_plain_ ? Date(moment, L"MM'/'dd'/'yy") : Date(moment, nullptr);
  }
  std::string LongDate(const DateTime& moment) const { return Date(moment, L"dddd MMMM d yyyy"); }

  // With seconds.
  std::string Time(const DateTime& moment) const {
    const SYSTEMTIME time = SystemTimeOf(moment);
    std::array<wchar_t, 128> text{};
    const int length = ::GetTimeFormatEx(Name(), 0, &time, is_plain_ ? L"HH':'mm':'ss" : nullptr, text.data(),
                                         static_cast<int>(text.size()));
    return Checked(text.data(), length);
  }

private:
  // The user's own settings have no name; those without any language stand behind the plain formats.
  const wchar_t* Name() const {
    if (is_plain_) return LOCALE_NAME_INVARIANT;
    return name_.empty() ? LOCALE_NAME_USER_DEFAULT : name_.c_str();
  }

  std::string Date(const DateTime& moment, const wchar_t* pattern) const {
    const SYSTEMTIME time = SystemTimeOf(moment);
    std::array<wchar_t, 256> text{};
    const int length = ::GetDateFormatEx(Name(), pattern == nullptr ? DATE_SHORTDATE : 0, &time, pattern,
                                         text.data(), static_cast<int>(text.size()), nullptr);
    return Checked(text.data(), length);
  }

  // The length counts the closing NUL and is 0 for a date that the system cannot write.
  static std::string Checked(const wchar_t* text, int length) {
    if (length <= 0) throw RunTimeError(ErrorNumber::kInvalidCall, Text(TextId::kDateUnwritable));
    return Utf8Text({text, static_cast<std::size_t>(length - 1)});
  }

  bool is_plain_;
  std::wstring name_;
};

SystemRegionalFormat::SystemRegionalFormat(const std::string& locale_name)
    : locale_(std::make_unique<const Locale>(locale_name)) {}

SystemRegionalFormat::~SystemRegionalFormat() = default;

std::string SystemRegionalFormat::ShortDate(const DateTime& moment) const {
  return locale_->ShortDate(moment);
}
std::string SystemRegionalFormat::ShortTime(const DateTime& moment) const {
  return locale_->Time(moment);
}
std::string SystemRegionalFormat::GeneralDate(const DateTime& moment) const {
  return locale_->ShortDate(moment) + " " + locale_->Time(moment);
}
std::string SystemRegionalFormat::LongDate(const DateTime& moment) const {
  return locale_->LongDate(moment);
}

}  // namespace veritane::platform
