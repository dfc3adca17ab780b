// Run-time errors and the conversions that raise them.
#include "platform/run_time_error.h"

#include <cmath>
#include <limits>

namespace veritane::platform {

std::string ErrorText(ErrorNumber number) {
  switch (number) {
    case ErrorNumber::kInvalidCall:
      return "Invalid procedure call or argument";
    case ErrorNumber::kOverflow:
      return "Overflow";
    case ErrorNumber::kOutOfMemory:
      return "Out of memory";
    case ErrorNumber::kSubscript:
      return "Subscript out of range";
    case ErrorNumber::kDivisionByZero:
      return "Division by zero";
    case ErrorNumber::kTypeMismatch:
      return "Type mismatch";
    case ErrorNumber::kBadFileNumber:
      return "Bad file name or number";
    case ErrorNumber::kFileNotFound:
      return "File not found";
    case ErrorNumber::kFileAlreadyOpen:
      return "File already open";
    case ErrorNumber::kDeviceError:
      return "Device I/O error";
    case ErrorNumber::kFileExists:
      return "File already exists";
    case ErrorNumber::kDiskFull:
      return "Disk full";
    case ErrorNumber::kPastEndOfFile:
      return "Input past end of file";
    case ErrorNumber::kPermissionDenied:
      return "Permission denied";
    case ErrorNumber::kDiskNotReady:
      return "Disk not ready";
    case ErrorNumber::kPathFileAccess:
      return "Path/File access error";
    case ErrorNumber::kPathNotFound:
      return "Path not found";
    case ErrorNumber::kCannotCreateObject:
      return "Cannot create the automation object";
  }
  return "Application-defined or object-defined error";
}

RunTimeError::RunTimeError(ErrorNumber number, const std::string& detail)
    : std::runtime_error(detail.empty() ? ErrorText(number) : ErrorText(number) + ": " + detail),
      number_(static_cast<int>(number)) {}

RunTimeError::RunTimeError(int number, const std::string& text) : std::runtime_error(text), number_(number) {}

namespace {

template <typename Integer>
Integer ToInteger(double value) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
        rounded <= static_cast<double>(std::numeric_limits<Integer>::max()))) {
    throw RunTimeError(ErrorNumber::kOverflow, std::to_string(value));
  }
  return static_cast<Integer>(rounded);
}

}  // namespace

std::int16_t ToInt16(double value) {
  return ToInteger<std::int16_t>(value);
}
std::int32_t ToInt32(double value) {
  return ToInteger<std::int32_t>(value);
}

}  // namespace veritane::platform
