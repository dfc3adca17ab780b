// "Key = value" lines, as collect methods and the compartment's file are written.
#pragma once

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

// The value as a number, error 13 naming the line and the key when it is none.
double NumberOf(const KeyValueLine& line);
// The same as a whole number from `least` to `most`; error 5 outside, 13 for a fraction.
long long WholeNumberOf(const KeyValueLine& line, long long least, long long most);

// Raises error 5 with "line 3: " before the text.
[[noreturn]] void RefuseLine(const KeyValueLine& line, const std::string& why);

}  // namespace veritane::simulator
