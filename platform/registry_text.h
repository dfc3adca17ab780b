// Values of the system's registry as its exported text holds them (REGEDIT4).
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace veritane::platform {

// The DWORD `value` of `key` below HKEY_LOCAL_MACHINE; nothing where the text has none. Names are compared
// without regard to case.
std::optional<std::uint32_t> DwordInRegistryText(std::string_view text, const std::string& key,
                                                 const std::string& value);

}  // namespace veritane::platform
