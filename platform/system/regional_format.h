// Dates and times in the formats of a named locale, whatever the process's own is.
#pragma once

#include "platform/machine.h"

#include <memory>

namespace veritane::platform {

class SystemRegionalFormat : public RegionalFormat {
public:
  // A name as POSIX systems have it: "de_DE.UTF-8", or "C" for the plain formats that are the same on every
  // system. "" is the user's own, and the plain ones where that is not installed. Any other name that is not
  // installed raises error 5.
  explicit SystemRegionalFormat(const std::string& locale_name);
  ~SystemRegionalFormat() override;

  std::string ShortDate(const DateTime& moment) const override;
  std::string ShortTime(const DateTime& moment) const override;
  std::string GeneralDate(const DateTime& moment) const override;
  std::string LongDate(const DateTime& moment) const override;

private:
  class Locale;
  std::unique_ptr<const Locale> locale_;
};

}  // namespace veritane::platform
