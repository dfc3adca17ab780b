// What the programs take from their command lines.
#include "apps/command_line.h"

#include <gtest/gtest.h>

#include <limits>

namespace veritane::apps {
namespace {

CommandLine Line(std::vector<std::string> words) {
  std::vector<char*> arguments{nullptr};
  for (std::string& word : words) arguments.push_back(word.data());
  return {static_cast<int>(arguments.size()), arguments.data(), {"--root", "--count"}, 1};
}

TEST(CommandLine, OptionsTakeWhatFollowsThemAsTheirValue) {
  const CommandLine line = Line({"--root", "a", "script", "--count", "--root", "--root", "b"});
  EXPECT_EQ(line.Option("--root"), "b");
  EXPECT_EQ(line.Values("--root"), (std::vector<std::string>{"a", "b"}));
  EXPECT_EQ(line.Option("--count"), "--root");
  EXPECT_EQ(line.Words(), std::vector<std::string>{"script"});
}

TEST(CommandLine, WhatCannotBeUnderstoodIsRefused) {
  EXPECT_THROW(Line({"--colour", "red"}), UsageError);
  EXPECT_THROW(Line({"--root"}), UsageError);
  EXPECT_THROW(Line({"one", "two"}), UsageError);
}

TEST(CommandLine, AWholeNumberIsOneOfDigitsAloneWithinItsBounds) {
  EXPECT_EQ(Line({}).WholeNumber("--count", 7, 0, 9), 7);
  EXPECT_EQ(Line({"--count", "9"}).WholeNumber("--count", 7, 0, 9), 9);
  EXPECT_EQ(Line({"--count", "-3"}).WholeNumber("--count", 7, -3, 9), -3);
  constexpr std::int64_t kAny = std::numeric_limits<std::int64_t>::max();
  for (const char* text :
       {"", "-1", "10", "1.5", "1e0", "+1", " 1", "1 ", "0x1", "x", "99999999999999999999"}) {
    EXPECT_THROW(Line({"--count", text}).WholeNumber("--count", 7, 0, 9), UsageError) << text;
  }
  EXPECT_THROW(Line({"--count", "9223372036854775808"}).WholeNumber("--count", 7, 0, kAny), UsageError);
}

}  // namespace
}  // namespace veritane::apps
