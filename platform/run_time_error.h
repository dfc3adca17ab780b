// The one exception for faults that the program does not handle where they happen.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace veritane::platform {

// Numbers of run-time errors. Automation objects raise numbers of their own beside these.
enum class ErrorNumber : int {
  kInvalidCall = 5,
  kOverflow = 6,
  kOutOfMemory = 7,
  kSubscript = 9,
  kDivisionByZero = 11,
  kTypeMismatch = 13,
  kBadFileNumber = 52,
  kFileNotFound = 53,
  kFileAlreadyOpen = 55,
  kDeviceError = 57,
  kFileExists = 58,
  kDiskFull = 61,
  kPastEndOfFile = 62,
  kPermissionDenied = 70,
  kDiskNotReady = 71,
  kPathFileAccess = 75,
  kPathNotFound = 76,
  kCannotCreateObject = 429,
};

// The short text of an error number, e.g. "File not found" for 53.
std::string ErrorText(ErrorNumber number);

// A fault with its number and a text for the user. The dispatcher of form events shows it in one message box;
// during start-up it ends the program.
class RunTimeError : public std::runtime_error {
public:
  // The text becomes the number's short text, followed by ": " and `detail` where there is one.
  explicit RunTimeError(ErrorNumber number, const std::string& detail = "");
  // For numbers outside ErrorNumber (an automation object's own).
  RunTimeError(int number, const std::string& text);

  int Number() const { return number_; }

private:
  int number_;
};

// `value` rounded half to even as a 16-bit integer; error 6 when it does not fit or is not a number.
std::int16_t ToInt16(double value);
// The same for a 32-bit integer.
std::int32_t ToInt32(double value);

}  // namespace veritane::platform
