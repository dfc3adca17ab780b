// Loading DLLs.
#include "platform/system/dynamic_library_loader.h"

#include "platform/run_time_error.h"
#include "platform/system/native_path.h"
#include "platform/texts.h"
#include "platform/windows/system_text.h"

#include <windows.h>

namespace veritane::platform {

namespace fs = std::filesystem;

namespace {

std::string ReasonOf(DWORD code) {
  const std::string words = SystemWords(code);
  return words.empty() ? Text(TextId::kErrorOfSystem, {std::to_string(code)}) : words;
}

class LoadedDll : public DynamicLibrary {
public:
  LoadedDll(HMODULE handle, std::string file_name) : handle_(handle), file_name_(std::move(file_name)) {}
  ~LoadedDll() override { ::FreeLibrary(handle_); }
  LoadedDll(const LoadedDll&) = delete;
  LoadedDll& operator=(const LoadedDll&) = delete;

  const std::string& FileName() const override { return file_name_; }

  FunctionAddress Function(const std::string& name) const override {
    const FARPROC address = ::GetProcAddress(handle_, name.c_str());
    if (address == nullptr)
      throw RunTimeError(ErrorNumber::kFileNotFound, Text(TextId::kNotInLibrary, {name, file_name_}));
    return reinterpret_cast<FunctionAddress>(address);
  }

private:
  HMODULE handle_;
  std::string file_name_;
};

}  // namespace

// A library beside the program that does not load is not replaced by another one elsewhere: that would hide
// what is wrong with it.
std::unique_ptr<DynamicLibrary> DynamicLibraryLoader::Load(const std::string& base_name) const {
  const std::string file_name = base_name + ".DLL";
  const fs::path beside = program_folder_ / PathFromUtf8(file_name);
  std::error_code error;
  const bool is_beside = fs::exists(beside, error);
  const fs::path found = is_beside ? fs::absolute(beside).make_preferred() : PathFromUtf8(file_name);
  // What the library needs itself is looked for in its own folder first.
  const HMODULE handle =
      ::LoadLibraryExW(found.c_str(), nullptr, is_beside ? LOAD_WITH_ALTERED_SEARCH_PATH : 0);
  if (handle == nullptr) {
    throw RunTimeError(ErrorNumber::kFileNotFound, Utf8Of(found) + ": " + ReasonOf(::GetLastError()));
  }
  return std::make_unique<LoadedDll>(handle, file_name);
}

std::string DynamicLibraryLoader::NativePath(const std::string& windows_path) const {
  if (!paths_.Names(windows_path)) return windows_path;
  return CodePageText(paths_.ToNative(windows_path).wstring());
}

}  // namespace veritane::platform
