// Dynamic libraries of the system.
#pragma once

#include "platform/dynamic_library.h"
#include "platform/system/path_map.h"

#include <filesystem>

namespace veritane::platform {

class DynamicLibraryLoader : public DynamicLibraries {
public:
  // `program_folder` is where a library is looked for first.
  DynamicLibraryLoader(const PathMap& paths, std::filesystem::path program_folder)
      : paths_(paths), program_folder_(std::move(program_folder)) {}

  std::unique_ptr<DynamicLibrary> Load(const std::string& base_name) const override;
  std::string NativePath(const std::string& windows_path) const override;

private:
  const PathMap& paths_;
  std::filesystem::path program_folder_;
};

}  // namespace veritane::platform
