// Binding the library's functions, and keeping their exceptions out of the program.
#include "pls/loaded_prediction_library.h"

#include "platform/dynamic_library.h"
#include "platform/run_time_error.h"
#include "pls/pls_library.h"
#include "shell/state/string_table.h"

#include <algorithm>
#include <array>
#include <exception>
#include <new>
#include <utility>

namespace veritane::pls {

using platform::ErrorNumber;
using platform::RunTimeError;
using state::Text;
using state::TextId;

namespace {

constexpr const char* kLibraryName = "PLSIQP32";

// A memo's room, and as much again four times: a foreign library is not known to cut its memos.
constexpr std::size_t kMemoRoom = std::size_t{5} * kPlsMemoBufferSize;

// The function, cast to the shape that the interface declares for its name.
template <typename Function>
Function* Bound(const platform::DynamicLibrary& library, const char* name) {
  return reinterpret_cast<Function*>(library.Function(name));
}

// A function that only some libraries have.
template <typename Function>
Function* BoundIfThere(const platform::DynamicLibrary& library, const char* name) {
  try {
    return Bound<Function>(library, name);
  } catch (const RunTimeError&) {
    return nullptr;
  }
}

// What ReadClipboard hands over; the library's interface passes no object to it.
thread_local std::optional<std::string> text_on_clipboard;

std::int32_t VERITANE_PLS_CALL ReadClipboard(char* text, std::int32_t capacity) {
  if (!text_on_clipboard) return -1;
  const std::size_t length = text_on_clipboard->size();
  text_on_clipboard->copy(text, std::min(length, static_cast<std::size_t>(std::max(capacity, 0))));
  return static_cast<std::int32_t>(length);
}

// Calls into the library. It may be written in any language, so whatever it throws ends here.
template <typename Function, typename... Arguments>
std::int32_t Call(Function* function, const char* name, Arguments... arguments) {
  try {
    return function(arguments...);
  } catch (const std::bad_alloc&) {
    throw RunTimeError(ErrorNumber::kOutOfMemory, Text(TextId::kLibraryFunction, {name}));
  } catch (const std::exception& error) {
    throw RunTimeError(ErrorNumber::kInvalidCall, Text(TextId::kLibraryFunctionFailed, {name, error.what()}));
  } catch (...) {
    throw RunTimeError(ErrorNumber::kInvalidCall, Text(TextId::kLibraryFunction, {name}));
  }
}

}  // namespace

struct LoadedPredictionLibrary::Functions {
  explicit Functions(std::unique_ptr<platform::DynamicLibrary> loaded) : library(std::move(loaded)) {}

  std::unique_ptr<platform::DynamicLibrary> library;
  decltype(::LoadCalFile)* loadCalFile = Bound<decltype(::LoadCalFile)>(*library, "LoadCalFile");
  decltype(::UnLoadCalFile)* unLoadCalFile = Bound<decltype(::UnLoadCalFile)>(*library, "UnLoadCalFile");
  decltype(::GetCalTotal)* getCalTotal = Bound<decltype(::GetCalTotal)>(*library, "GetCalTotal");
  decltype(::GetCalMemo)* getCalMemo = Bound<decltype(::GetCalMemo)>(*library, "GetCalMemo");
  decltype(::LoadSpcDiskFile)* loadSpcDiskFile =
      Bound<decltype(::LoadSpcDiskFile)>(*library, "LoadSpcDiskFile");
  decltype(::LoadAsciiDiskFile)* loadAsciiDiskFile =
      Bound<decltype(::LoadAsciiDiskFile)>(*library, "LoadAsciiDiskFile");
  decltype(::LoadClipboardText)* loadClipboardText =
      Bound<decltype(::LoadClipboardText)>(*library, "LoadClipboardText");
  decltype(::LoadMemDouble)* loadMemDouble = Bound<decltype(::LoadMemDouble)>(*library, "LoadMemDouble");
  decltype(::PlsIqPredic)* plsIqPredic = Bound<decltype(::PlsIqPredic)>(*library, "PlsIqPredic");
  decltype(::GetItemSize)* getItemSize = Bound<decltype(::GetItemSize)>(*library, "GetItemSize");
  decltype(::CopyItem)* copyItem = Bound<decltype(::CopyItem)>(*library, "CopyItem");
  decltype(::ReadCalFile)* readCalFile = Bound<decltype(::ReadCalFile)>(*library, "ReadCalFile");
  decltype(::SetPlsClipboardReader)* setPlsClipboardReader =
      BoundIfThere<decltype(::SetPlsClipboardReader)>(*library, "SetPlsClipboardReader");
};

LoadedPredictionLibrary::LoadedPredictionLibrary(const platform::DynamicLibraries& libraries,
                                                 ClipboardText clipboard)
    : libraries_(libraries), clipboard_(std::move(clipboard)) {}

LoadedPredictionLibrary::~LoadedPredictionLibrary() = default;

const LoadedPredictionLibrary::Functions& LoadedPredictionLibrary::Loaded() {
  if (functions_ == nullptr) functions_ = std::make_unique<const Functions>(libraries_.Load(kLibraryName));
  return *functions_;
}

std::int32_t LoadedPredictionLibrary::LoadCalFile(const std::string& path) {
  return Call(Loaded().loadCalFile, "LoadCalFile", libraries_.NativePath(path).c_str());
}

std::int32_t LoadedPredictionLibrary::UnLoadCalFile(std::int32_t handle) {
  return Call(Loaded().unLoadCalFile, "UnLoadCalFile", handle);
}

std::int32_t LoadedPredictionLibrary::GetCalTotal(std::int32_t handle) {
  return Call(Loaded().getCalTotal, "GetCalTotal", handle);
}

std::int32_t LoadedPredictionLibrary::GetCalMemo(std::int32_t handle, std::int32_t calibration,
                                                 std::string& memo) {
  std::array<char, kMemoRoom> room{};
  const std::int32_t code = Call(Loaded().getCalMemo, "GetCalMemo", handle, calibration, room.data());
  memo.assign(room.begin(), std::ranges::find(room, '\0'));
  return code;
}

std::int32_t LoadedPredictionLibrary::LoadSpcDiskFile(std::int32_t handle, const std::string& path) {
  return Call(Loaded().loadSpcDiskFile, "LoadSpcDiskFile", handle, libraries_.NativePath(path).c_str());
}

std::int32_t LoadedPredictionLibrary::LoadAsciiDiskFile(std::int32_t handle, const std::string& path) {
  return Call(Loaded().loadAsciiDiskFile, "LoadAsciiDiskFile", handle, libraries_.NativePath(path).c_str());
}

std::int32_t LoadedPredictionLibrary::LoadClipboardText(std::int32_t handle) {
  const Functions& functions = Loaded();
  text_on_clipboard = clipboard_();
  if (functions.setPlsClipboardReader != nullptr) functions.setPlsClipboardReader(ReadClipboard);
  const std::int32_t code = Call(functions.loadClipboardText, "LoadClipboardText", handle);
  text_on_clipboard.reset();
  return code;
}

std::int32_t LoadedPredictionLibrary::LoadMemDouble(std::int32_t handle, const std::string& path) {
  return Call(Loaded().loadMemDouble, "LoadMemDouble", handle, libraries_.NativePath(path).c_str());
}

std::int32_t LoadedPredictionLibrary::PlsIqPredic(std::int32_t handle, std::int32_t calibration) {
  return Call(Loaded().plsIqPredic, "PlsIqPredic", handle, calibration);
}

std::int32_t LoadedPredictionLibrary::GetItemSize(std::int32_t handle, const std::string& item) {
  return Call(Loaded().getItemSize, "GetItemSize", handle, item.c_str());
}

std::int32_t LoadedPredictionLibrary::CopyItem(std::int32_t handle, std::span<double> destination,
                                               const std::string& item) {
  return Call(Loaded().copyItem, "CopyItem", handle, destination.data(), item.c_str(),
              static_cast<std::int32_t>(destination.size()));
}

std::int32_t LoadedPredictionLibrary::ReadCalFile(std::int32_t handle, std::int32_t calibration) {
  return Call(Loaded().readCalFile, "ReadCalFile", handle, calibration);
}

}  // namespace veritane::pls
