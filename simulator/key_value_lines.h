// "Key = value" lines, as collect methods, print templates and the compartment's file are written.
#pragma once

#include "platform/run_time_error.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace veritane::simulator {

struct KeyValueLine {
  int number = 0;   // in the file, from 1
  std::string key;  // upper case, no blanks around it
  std::string value;
};

// All lines but comments ("#") and empty ones. Error 5 naming the line for one without "=" or without a key.
std::vector<KeyValueLine> ReadKeyValueLines(std::string_view bytes);

// Why a text is no value, in words that follow the value's name: "lies from 0 to 1000".
class RefusedValue : public std::runtime_error {
public:
  RefusedValue(platform::ErrorNumber number, const std::string& reason)
      : std::runtime_error(reason), number_(number) {}

  platform::ErrorNumber Number() const { return number_; }

private:
  platform::ErrorNumber number_;
};

// The text as a number from `least` to `most`. RefusedValue 13 when it is none, 5 outside, whose reason names
// the bounds with their `unit`.
double NumberFrom(const std::string& text, double least, double most, std::string_view unit = "");
// The same as a whole number; RefusedValue 13 for a fraction.
long long WholeNumberFrom(const std::string& text, long long least, long long most);

// The line's value likewise, errors naming the line and the key.
double NumberBetween(const KeyValueLine& line, double least, double most, std::string_view unit = "");
long long WholeNumberBetween(const KeyValueLine& line, long long least, long long most);

// Raises error 5 with "line 3: " before the text.
[[noreturn]] void RefuseLine(const KeyValueLine& line, const std::string& why);
// Raises the error of a value that was refused, naming the line and the key.
[[noreturn]] void RefuseLine(const KeyValueLine& line, const RefusedValue& refused);

}  // namespace veritane::simulator
