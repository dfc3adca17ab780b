// The registry of Windows.
#pragma once

#include "platform/machine.h"

namespace veritane::platform {

class WindowsRegistry : public Registry {
public:
  std::optional<std::uint32_t> ReadDword(const std::string& key, const std::string& value) const override;
};

}  // namespace veritane::platform
