// What an open file is made of, on every system.
#include "platform/system/native_file.h"

#include <utility>

namespace veritane::platform {

NativeFile::NativeFile(Handle handle, std::filesystem::path native, std::string path)
    : handle_(handle), native_(std::move(native)), path_(std::move(path)) {}

NativeFile::NativeFile(NativeFile&& other) noexcept
    : handle_(std::exchange(other.handle_, -1)),
      native_(std::move(other.native_)),
      path_(std::move(other.path_)) {}

}  // namespace veritane::platform
