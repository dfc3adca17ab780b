// What an open file is made of, on every system.
#include "platform/system/native_file.h"

#include "platform/system/native_path.h"

#include <utility>

namespace veritane::platform {

namespace {

constexpr std::string_view kUniqueCharacters =
    "-0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

}  // namespace

// "Meth.tbl.Xa81cK.unfinished"
bool IsNameOfUnfinished(const std::filesystem::path& name) {
  const std::string unique = Utf8Of(name.stem().extension());
  return Utf8Of(name.extension()) == kUnfinished && unique.size() > 1 &&
         unique.find_first_not_of(kUniqueCharacters, 1) == std::string::npos && !name.stem().stem().empty();
}

NativeFile::NativeFile(Handle handle, std::filesystem::path native, std::string path)
    : handle_(handle), native_(std::move(native)), path_(std::move(path)) {}

NativeFile::NativeFile(NativeFile&& other) noexcept
    : handle_(std::exchange(other.handle_, -1)),
      native_(std::move(other.native_)),
      path_(std::move(other.path_)) {}

}  // namespace veritane::platform
