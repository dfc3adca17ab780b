// The prediction library as the machine has it: loaded by name at the first call.
#pragma once

#include "pls/prediction_library.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace veritane::platform {
class DynamicLibraries;
}

namespace veritane::pls {

// Error 53 when library or function is missing; the next call tries again, so a library can be installed
// while the program runs. Error 7 when a function runs out of memory, 5 when it fails by any other exception.
class LoadedPredictionLibrary : public PredictionLibrary {
public:
  // Gives the text on the clipboard, nothing when it holds none.
  using ClipboardText = std::function<std::optional<std::string>()>;

  // A library that asks for it gets the clipboard's text from `clipboard`; others read the system's own.
  LoadedPredictionLibrary(const platform::DynamicLibraries& libraries, ClipboardText clipboard);
  ~LoadedPredictionLibrary() override;

  std::int32_t LoadCalFile(const std::string& path) override;
  std::int32_t UnLoadCalFile(std::int32_t handle) override;
  std::int32_t GetCalTotal(std::int32_t handle) override;
  std::int32_t GetCalMemo(std::int32_t handle, std::int32_t calibration, std::string& memo) override;
  std::int32_t LoadSpcDiskFile(std::int32_t handle, const std::string& path) override;
  std::int32_t LoadAsciiDiskFile(std::int32_t handle, const std::string& path) override;
  std::int32_t LoadClipboardText(std::int32_t handle) override;
  std::int32_t LoadMemDouble(std::int32_t handle, const std::string& path) override;
  std::int32_t PlsIqPredic(std::int32_t handle, std::int32_t calibration) override;
  std::int32_t GetItemSize(std::int32_t handle, const std::string& item) override;
  std::int32_t CopyItem(std::int32_t handle, std::span<double> destination, const std::string& item) override;
  std::int32_t ReadCalFile(std::int32_t handle, std::int32_t calibration) override;

private:
  struct Functions;
  const Functions& Loaded();

  const platform::DynamicLibraries& libraries_;
  const ClipboardText clipboard_;
  std::unique_ptr<const Functions> functions_;
};

}  // namespace veritane::pls
