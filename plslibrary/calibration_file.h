// ".cal" files: one or several calibrations as text.
//
// The first line is "VERITANE CALIBRATIONS 1 n", format version and number of calibrations. Each of the n
// lines after it is one calibration: the CRC-32 of the rest as 8 hexadecimal digits, a blank, a JSON object
// with every number exact. A damaged line spoils no other. docs/pls-library.md names the members of the
// object.
#pragma once

#include "plslibrary/calibration.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace veritane::plslibrary {

// The interface counts calibrations in 16 bits.
inline constexpr int kMostCalibrations = 32'767;

class CalibrationFile {
public:
  // PlsError kCalibrationRead where the first line is another.
  explicit CalibrationFile(std::string_view bytes);

  int Total() const { return total_; }

  // Calibration `number`, from 1. PlsError kNoSuchCalibration, kCalibrationRead for a line that is missing or
  // damaged, kNotEnoughInformation for a calibration that lacks something.
  Calibration Read(std::int32_t number) const;

private:
  int total_ = 0;
  std::vector<std::string> lines_;
};

// The file's text. The calibrations have to be sound, 1 to kMostCalibrations of them.
std::string CalibrationFileText(std::span<const Calibration> calibrations);

// The JSON object of a line, as it is read and written.
Calibration ParseCalibration(std::string_view json);
std::string CalibrationJson(const Calibration& calibration);

}  // namespace veritane::plslibrary
