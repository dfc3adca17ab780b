// Formats of a named C locale.
#include "platform/system/regional_format.h"

#include "platform/run_time_error.h"
#include "platform/text_file.h"
#include "platform/texts.h"

#include <array>
#include <clocale>
#include <ctime>

namespace veritane::platform {

class SystemRegionalFormat::Locale {
public:
  explicit Locale(const std::string& name) : locale_(::newlocale(LC_ALL_MASK, name.c_str(), nullptr)) {
    if (locale_ == nullptr && name.empty()) locale_ = ::newlocale(LC_ALL_MASK, "C", nullptr);
    if (locale_ == nullptr) {
      throw RunTimeError(ErrorNumber::kInvalidCall, Text(TextId::kNoLocale, {name}));
    }
  }
  ~Locale() { ::freelocale(locale_); }
  Locale(const Locale&) = delete;
  Locale& operator=(const Locale&) = delete;

  std::string Format(const char* pattern, const DateTime& moment) const {
    std::tm broken{};
    broken.tm_year = moment.year - 1900;
    broken.tm_mon = moment.month - 1;
    broken.tm_mday = moment.day;
    broken.tm_hour = moment.hour;
    broken.tm_min = moment.minute;
    broken.tm_sec = moment.second;
    broken.tm_wday = DayOfWeek(moment);
    broken.tm_isdst = -1;
    std::array<char, 256> buffer{};
    const std::size_t length = ::strftime_l(buffer.data(), buffer.size(), pattern, &broken, locale_);
    // A locale may write in another code than UTF-8.
    return DecodeText({buffer.data(), length});
  }

private:
  locale_t locale_;
};

SystemRegionalFormat::SystemRegionalFormat(const std::string& locale_name)
    : locale_(std::make_unique<const Locale>(locale_name)) {}

SystemRegionalFormat::~SystemRegionalFormat() = default;

std::string SystemRegionalFormat::ShortDate(const DateTime& moment) const {
  return locale_->Format("%x", moment);
}
std::string SystemRegionalFormat::ShortTime(const DateTime& moment) const {
  return locale_->Format("%X", moment);
}
std::string SystemRegionalFormat::GeneralDate(const DateTime& moment) const {
  return locale_->Format("%x %X", moment);
}
std::string SystemRegionalFormat::LongDate(const DateTime& moment) const {
  return locale_->Format("%A %B ", moment) + std::to_string(moment.day) + " " + std::to_string(moment.year);
}

}  // namespace veritane::platform
