// A folder of a test's own that goes when the test is done.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <string>

namespace veritane::tests {

class TemporaryFolder {
public:
  TemporaryFolder() {
    static std::atomic<int> count{0};
    path_ = std::filesystem::path(::testing::TempDir()) /
            ("veritane-" + std::to_string(::getpid()) + "-" + std::to_string(count++));
    std::filesystem::create_directories(path_);
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }

private:
  std::filesystem::path path_;
};

}  // namespace veritane::tests
