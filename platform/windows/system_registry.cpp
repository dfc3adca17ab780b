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

  HKEY Handle() const { return handle_; }

private:
  HKEY handle_ = nullptr;
};

std::optional<std::uint32_t> DwordIn(const std::string& key, const std::string& value, REGSAM view) {
  const OpenKey open(key, view);
  if (open.Handle() == nullptr) return std::nullopt;
  DWORD type = REG_NONE;
  if (::RegQueryValueExA(open.Handle(), value.c_str(), nullptr, &type, nullptr, nullptr) != ERROR_SUCCESS ||
      type != REG_DWORD) {
    return std::nullopt;
  }
  DWORD number = 0;
  DWORD size = sizeof number;
  if (::RegQueryValueExA(open.Handle(), value.c_str(), nullptr, nullptr, reinterpret_cast<BYTE*>(&number),
                         &size) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  return number;
}

}  // namespace

std::optional<std::uint32_t> WindowsRegistry::ReadDword(const std::string& key,
                                                        const std::string& value) const {
  if (const auto own = DwordIn(key, value, 0)) return own;
  // Programs of 32 bits, as the spectrometer's are, have keys of their own, which one of 64 bits has to ask
  // for.
  return DwordIn(key, value, KEY_WOW64_32KEY);
}

}  // namespace veritane::platform
