// Loading shared objects.
#include "platform/system/dynamic_library_loader.h"

#include "platform/run_time_error.h"
#include "platform/texts.h"

#include <dlfcn.h>

#include <algorithm>

namespace veritane::platform {

namespace fs = std::filesystem;

namespace {

// The reason that the last call gave, which names the file.
std::string LastReason() {
  const char* reason = ::dlerror();
  return reason == nullptr ? Text(TextId::kUnknownReason) : reason;
}

class SharedObject : public DynamicLibrary {
public:
  SharedObject(void* handle, std::string file_name) : handle_(handle), file_name_(std::move(file_name)) {}
  ~SharedObject() override { ::dlclose(handle_); }
  SharedObject(const SharedObject&) = delete;
  SharedObject& operator=(const SharedObject&) = delete;

  const std::string& FileName() const override { return file_name_; }

  FunctionAddress Function(const std::string& name) const override {
    void* const address = ::dlsym(handle_, name.c_str());
    if (address == nullptr) {
      throw RunTimeError(ErrorNumber::kFileNotFound, Text(TextId::kNotInLibrary, {name, file_name_}));
    }
    return reinterpret_cast<FunctionAddress>(address);
  }

private:
  void* handle_;
  std::string file_name_;
};

std::string SharedObjectName(std::string base_name) {
  std::ranges::transform(base_name, base_name.begin(), [](char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
  });
  return "lib" + base_name + ".so";
}

}  // namespace

// A library beside the program that does not load is not replaced by another one elsewhere: that would hide
// what is wrong with it.
std::unique_ptr<DynamicLibrary> DynamicLibraryLoader::Load(const std::string& base_name) const {
  const std::string file_name = SharedObjectName(base_name);
  const fs::path beside = program_folder_ / file_name;
  std::error_code error;
  const std::string found = fs::exists(beside, error) ? beside.string() : file_name;
  void* const handle = ::dlopen(found.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) throw RunTimeError(ErrorNumber::kFileNotFound, LastReason());
  return std::make_unique<SharedObject>(handle, file_name);
}

std::string DynamicLibraryLoader::NativePath(const std::string& windows_path) const {
  return paths_.Names(windows_path) ? paths_.ToNative(windows_path).string() : windows_path;
}

}  // namespace veritane::platform
