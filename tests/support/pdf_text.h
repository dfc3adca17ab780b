// What other programs read out of a PDF.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <string>

namespace veritane::tests {

// What a command of the PDF tools prints about the file; the test fails when the command does.
inline std::string AboutPdf(const std::string& command, const std::filesystem::path& file,
                            const std::string& behind = "") {
  const std::string line = command + " '" + file.string() + "' " + behind;
  FILE* const pipe = ::popen(line.c_str(), "r");
  if (pipe == nullptr) {
    ADD_FAILURE() << line << " cannot be run";
    return {};
  }
  std::string text;
  std::array<char, 4096> part;
  while (const std::size_t length = std::fread(part.data(), 1, part.size(), pipe)) {
    text.append(part.data(), length);
  }
  EXPECT_EQ(::pclose(pipe), 0) << line;
  return text;
}

// The pages' text, line by line as it stands there.
inline std::string TextOfPdf(const std::filesystem::path& file) {
  return AboutPdf("pdftotext -layout", file, "-");
}

}  // namespace veritane::tests
