// The twelve functions of the PLS prediction library as the program calls them.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace veritane::pls {

// Codes are the library's own, 0 for success; pls_pred.h has their texts. Paths are Windows paths.
// Calibrations count from 1. A library that is missing or breaks its contract raises RunTimeErrors; no other
// exception leaves a call.
class PredictionLibrary {
public:
  virtual ~PredictionLibrary() = default;

  // The handle of the loaded calibration file, 0 when it could not be loaded.
  virtual std::int32_t LoadCalFile(const std::string& path) = 0;
  virtual std::int32_t UnLoadCalFile(std::int32_t handle) = 0;
  // The number of calibrations in the file; no code.
  virtual std::int32_t GetCalTotal(std::int32_t handle) = 0;
  // Puts the bytes of the calibration's memo into `memo`.
  virtual std::int32_t GetCalMemo(std::int32_t handle, std::int32_t calibration, std::string& memo) = 0;

  virtual std::int32_t LoadSpcDiskFile(std::int32_t handle, const std::string& path) = 0;
  virtual std::int32_t LoadAsciiDiskFile(std::int32_t handle, const std::string& path) = 0;
  virtual std::int32_t LoadClipboardText(std::int32_t handle) = 0;
  virtual std::int32_t LoadMemDouble(std::int32_t handle, const std::string& path) = 0;

  virtual std::int32_t PlsIqPredic(std::int32_t handle, std::int32_t calibration) = 0;
  // The number of doubles (for "bands" of records) in an item, 0 when there is none.
  virtual std::int32_t GetItemSize(std::int32_t handle, const std::string& item) = 0;
  // Fills `destination` from an item. A code, or for "calfac", "bands", "flags", "prep", "bsln" and "thick"
  // how many values (for "bands" records) were copied.
  virtual std::int32_t CopyItem(std::int32_t handle, std::span<double> destination,
                                const std::string& item) = 0;
  virtual std::int32_t ReadCalFile(std::int32_t handle, std::int32_t calibration) = 0;
};

}  // namespace veritane::pls
