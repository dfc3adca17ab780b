// Asking the registry for the type first, then for the value.
#include "platform/windows/system_registry.h"

#include <windows.h>

namespace veritane::platform {

namespace {

class OpenKey {
public:
  OpenKey(const std::string& key, REGSAM view) {
    if (::RegOpenKeyExA(HKEY_LOCAL_MACHINE, key.c_str(), 0, KEY_QUERY_VALUE | view, &handle_) !=
        ERROR_SUCCESS) {
      handle_ = nullptr;
    }
  }
  ~OpenKey() {
    if (handle_ != nullptr) ::RegCloseKey(handle_);
  }
  OpenKey(const OpenKey&) = delete;
  OpenKey& operator=(const OpenKey&) = delete;

  // REG_NONE for a value that is not there.
  DWORD TypeOf(const std::string& value) const {
    DWORD type = REG_NONE;
    if (handle_ == nullptr ||
        ::RegQueryValueExA(handle_, value.c_str(), nullptr, &type, nullptr, nullptr) != ERROR_SUCCESS) {
      return REG_NONE;
    }
    return type;
  }

  std::optional<std::uint32_t> Dword(const std::string& value) const {
    if (TypeOf(value) != REG_DWORD) return std::nullopt;
    DWORD number = 0;
    DWORD size = sizeof number;
    if (::RegQueryValueExA(handle_, value.c_str(), nullptr, nullptr, reinterpret_cast<BYTE*>(&number),
                           &size) != ERROR_SUCCESS) {
      return std::nullopt;
    }
    return number;
  }

private:
  HKEY handle_ = nullptr;
};

}  // namespace

std::optional<std::uint32_t> WindowsRegistry::ReadDword(const std::string& key,
                                                        const std::string& value) const {
  const OpenKey own(key, 0);
  if (own.TypeOf(value) != REG_NONE) return own.Dword(value);
  // Programs of 32 bits, as the spectrometer's are, have keys of their own, which one of 64 bits has to ask
  // for.
  return OpenKey(key, KEY_WOW64_32KEY).Dword(value);
}

}  // namespace veritane::platform
