// Reading "Key = value" lines.
#include "simulator/key_value_lines.h"

#include "platform/number_text.h"
#include "platform/run_time_error.h"
#include "platform/text_file.h"
#include "platform/windows_path.h"

#include <cmath>

namespace veritane::simulator {

using platform::ErrorNumber;
using platform::RunTimeError;
using platform::TrimBlanks;

namespace {

std::string Place(const KeyValueLine& line) {
  return "line " + std::to_string(line.number) + ": ";
}

}  // namespace

std::vector<KeyValueLine> ReadKeyValueLines(std::string_view bytes) {
  std::vector<KeyValueLine> lines;
  platform::TextReader reader(bytes);
  for (int number = 1; !reader.AtEnd(); ++number) {
    const std::string whole = reader.ReadLine();
    const std::string_view text = TrimBlanks(whole);
    if (text.empty() || text.front() == '#') continue;
    const std::size_t equals = text.find('=');
    KeyValueLine line{number, platform::UpperCase(TrimBlanks(text.substr(0, equals))), {}};
    if (equals == std::string::npos) RefuseLine(line, "\"" + std::string(text) + "\" is not \"Key = value\"");
    if (line.key.empty()) RefuseLine(line, "the key is missing");
    line.value = TrimBlanks(text.substr(equals + 1));
    lines.push_back(std::move(line));
  }
  return lines;
}

double NumberFrom(const std::string& text, double least, double most, std::string_view unit) {
  const auto number = platform::ParseNumber(text);
  if (!number) throw RefusedValue(ErrorNumber::kTypeMismatch, "is no number: \"" + text + "\"");
  if (*number >= least && *number <= most) return *number;
  std::string why =
      "lies from " + platform::PlainNumberText(least) + " to " + platform::PlainNumberText(most);
  throw RefusedValue(ErrorNumber::kInvalidCall, why.append(unit.empty() ? "" : " ").append(unit));
}

long long WholeNumberFrom(const std::string& text, long long least, long long most) {
  const double number = NumberFrom(text, static_cast<double>(least), static_cast<double>(most));
  if (number != std::floor(number)) throw RefusedValue(ErrorNumber::kTypeMismatch, "is a whole number");
  return static_cast<long long>(number);
}

double NumberBetween(const KeyValueLine& line, double least, double most, std::string_view unit) {
  try {
    return NumberFrom(line.value, least, most, unit);
  } catch (const RefusedValue& refused) {
    RefuseLine(line, refused);
  }
}

long long WholeNumberBetween(const KeyValueLine& line, long long least, long long most) {
  try {
    return WholeNumberFrom(line.value, least, most);
  } catch (const RefusedValue& refused) {
    RefuseLine(line, refused);
  }
}

void RefuseLine(const KeyValueLine& line, const std::string& why) {
  throw RunTimeError(ErrorNumber::kInvalidCall, Place(line) + why);
}

void RefuseLine(const KeyValueLine& line, const RefusedValue& refused) {
  throw RunTimeError(refused.Number(), Place(line) + line.key + " " + refused.what());
}

}  // namespace veritane::simulator
