// How a script line splits into words.
#include "platform/scripted/script_line.h"

#include <gmock/gmock.h>

namespace veritane::platform {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

std::vector<std::string> Words(std::string_view line) {
  std::vector<std::string> words;
  for (const ScriptWord& word : ParseScriptLine(line).words) words.push_back(word.text);
  return words;
}

std::string WhyRefused(std::string_view line) {
  try {
    ParseScriptLine(line);
  } catch (const RefusedLine& refused) {
    return refused.what();
  }
  return "";
}

TEST(ScriptLine, WordsAreSeparatedByBlanksAndTabs) {
  const ScriptLine line = ParseScriptLine(" \thighlight   frmParse.txt\t7  3 \r");
  EXPECT_EQ(line.command, "highlight");
  EXPECT_THAT(Words(" \thighlight   frmParse.txt\t7  3 \r"), ElementsAre("frmParse.txt", "7", "3"));
  EXPECT_EQ(FirstWord("  # a comment"), "#");
  EXPECT_EQ(FirstWord(" \t "), "");
}

TEST(ScriptLine, WindowsPathsStandUnescapedInQuotes) {
  EXPECT_THAT(Words(R"(file "C:\new\table.clm")"), ElementsAre(R"(C:\new\table.clm)"));
  EXPECT_THAT(Words(R"(file "\\server\share\poly pls test.bsp")"),
              ElementsAre(R"(\\server\share\poly pls test.bsp)"));
  EXPECT_THAT(Words(R"(set F.C "C:\data\")"), ElementsAre("F.C", R"(C:\data\)"));
  EXPECT_THAT(Words("set F.C \"C:\\data\\\" \r"), ElementsAre("F.C", R"(C:\data\)"));
  EXPECT_THAT(Words(R"(file C:\x\y.clm)"), ElementsAre(R"(C:\x\y.clm)"));
}

TEST(ScriptLine, AQuoteInsideQuotesIsDoubledOrEscaped) {
  EXPECT_THAT(Words(R"(type F.C "the \"blue\" lot")"), ElementsAre("F.C", R"(the "blue" lot)"));
  EXPECT_THAT(Words(R"(type F.C "the ""blue"" lot")"), ElementsAre("F.C", R"(the "blue" lot)"));
  EXPECT_THAT(Words(R"(type F.C "\"all\"")"), ElementsAre("F.C", R"("all")"));
  EXPECT_THAT(Words(R"(type F.C "")"), ElementsAre("F.C", ""));
  EXPECT_THAT(Words(R"(app sample "a b" 2 "c")"), ElementsAre("sample", "a b", "2", "c"));
}

TEST(ScriptLine, AQuotedWordIsMarkedAsSuch) {
  const ScriptLine line = ParseScriptLine("choose #2 \"#2\"");
  EXPECT_FALSE(line.words.at(0).isQuoted);
  EXPECT_TRUE(line.words.at(1).isQuoted);
}

TEST(ScriptLine, DamagedLinesAreRefusedWithTheReason) {
  EXPECT_THAT(WhyRefused("type F.C \"open"), HasSubstr("not closed"));
  EXPECT_THAT(WhyRefused("type F.C \""), HasSubstr("not closed"));
  EXPECT_THAT(WhyRefused("type F.C \"a\"b"), HasSubstr("blank must follow"));
  EXPECT_THAT(WhyRefused("type F.C \xE9t\xE9"), HasSubstr("UTF-8"));
  EXPECT_THAT(WhyRefused(std::string_view("type F.C a\0b", 12)), HasSubstr("NUL"));
}

TEST(ScriptLine, WholeNumbersAreDigitsAlone) {
  EXPECT_EQ(ParseWholeNumber("12", "an index"), 12);
  for (const char* wrong : {"", "-1", "1.5", "2x", " 3", "99999999999"}) {
    EXPECT_THROW(ParseWholeNumber(wrong, "an index"), RefusedLine) << wrong;
  }
}

}  // namespace
}  // namespace veritane::platform
