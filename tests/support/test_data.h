// The bytes of files that the tests read: their own data, and what ships. A missing one fails the test.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace veritane::tests {

inline std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path;
  return {std::istreambuf_iterator<char>(file), {}};
}

// By the name below tests/data.
inline std::string TestDataBytes(const std::string& name) {
  return BytesOf(std::filesystem::path(VERITANE_TEST_DATA) / name);
}

// By the name below data.
inline std::string ShippedBytes(const std::string& name) {
  return BytesOf(std::filesystem::path(VERITANE_TEST_DATA) / ".." / ".." / "data" / name);
}

}  // namespace veritane::tests
