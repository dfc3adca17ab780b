// The one exception of the prediction library: a result code of its interface with words for people.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace veritane::plslibrary {

// Result codes of the library's interface.
enum class PlsCode : std::int32_t {
  kNoError = 0,
  kMemory = 1,
  kCalibrationOpen = 2,
  kCalibrationRead = 3,
  kSourceOpen = 4,
  kSourceRead = 5,
  kSourceMismatch = 6,
  kPreprocessing = 7,
  kNoSuchCalibration = 8,
  kNotEnoughInformation = 9,
  kMathematics = 10,
  kItemCopy = 11,
};

class PlsError : public std::runtime_error {
public:
  PlsError(PlsCode code, const std::string& text) : std::runtime_error(text), code_(code) {}

  PlsCode Code() const { return code_; }

private:
  PlsCode code_;
};

}  // namespace veritane::plslibrary
