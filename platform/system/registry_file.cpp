// Values from a file of registry text.
#include "platform/system/registry_file.h"

#include "platform/registry_text.h"

#include <fstream>
#include <iterator>

namespace veritane::platform {

std::optional<std::uint32_t> RegistryFile::ReadDword(const std::string& key, const std::string& value) const {
  std::ifstream file(file_, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  return DwordInRegistryText(text, key, value);
}

}  // namespace veritane::platform
