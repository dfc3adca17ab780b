// The registry as a file in REGEDIT4 text below the data root.
#pragma once

#include "platform/machine.h"

#include <filesystem>

namespace veritane::platform {

// No file means no values.
class RegistryFile : public Registry {
public:
  explicit RegistryFile(std::filesystem::path file) : file_(std::move(file)) {}
  std::optional<std::uint32_t> ReadDword(const std::string& key, const std::string& value) const override;

private:
  std::filesystem::path file_;
};

}  // namespace veritane::platform
