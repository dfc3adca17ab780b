// The lines of a ".cal" file.
#include "plslibrary/calibration_file.h"

#include "plslibrary/crc32.h"
#include "plslibrary/pls_error.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

namespace veritane::plslibrary {

namespace {

constexpr std::string_view kFirstLine = "VERITANE CALIBRATIONS 1 ";
constexpr std::size_t kChecksumDigits = 8;

std::string ChecksumText(std::string_view json) {
  std::string text(kChecksumDigits, '0');
  const std::uint32_t sum = Crc32(json);
  for (std::size_t i = 0; i < kChecksumDigits; ++i) {
    text[i] = "0123456789abcdef"[(sum >> (4 * (kChecksumDigits - 1 - i))) & 15U];
  }
  return text;
}

// Cuts the first line off; line ends are LF, or CR LF where a file has travelled.
std::string_view TakeLine(std::string_view& bytes) {
  const std::size_t end = bytes.find('\n');
  std::string_view line = bytes.substr(0, end);
  bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

std::optional<int> TotalOf(std::string_view line) {
  if (!line.starts_with(kFirstLine)) return std::nullopt;
  line.remove_prefix(kFirstLine.size());
  int total = 0;
  const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), total);
  const bool whole = error == std::errc() && end == line.data() + line.size();
  if (!whole || total < 1 || total > kMostCalibrations) return std::nullopt;
  return total;
}

}  // namespace

CalibrationFile::CalibrationFile(std::string_view bytes) {
  const std::optional<int> total = TotalOf(TakeLine(bytes));
  if (!total)
    throw PlsError(PlsCode::kCalibrationRead, "no calibration file of a version that is known here");
  total_ = *total;
  while (!bytes.empty() && std::cmp_less(lines_.size(), total_)) {
    lines_.emplace_back(TakeLine(bytes));
  }
}

Calibration CalibrationFile::Read(std::int32_t number) const {
  const std::string name = "calibration " + std::to_string(number);
  if (number < 1 || number > total_) {
    throw PlsError(PlsCode::kNoSuchCalibration, "there is no " + name + " in the file");
  }
  const auto index = static_cast<std::size_t>(number - 1);
  if (index >= lines_.size()) throw PlsError(PlsCode::kCalibrationRead, "the file ends before " + name);
  const std::string_view line = lines_[index];
  const std::string_view json = line.substr(std::min(line.size(), kChecksumDigits + 1));
  if (line.substr(0, kChecksumDigits + 1) != ChecksumText(json) + ' ') {
    throw PlsError(PlsCode::kCalibrationRead, name + " is damaged");
  }
  return ParseCalibration(json);
}

std::string CalibrationFileText(std::span<const Calibration> calibrations) {
  std::string text = std::string(kFirstLine) + std::to_string(calibrations.size()) + '\n';
  for (const Calibration& calibration : calibrations) {
    const std::string json = CalibrationJson(calibration);
    text += ChecksumText(json) + ' ' + json + '\n';
  }
  return text;
}

}  // namespace veritane::plslibrary
