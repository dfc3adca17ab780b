// Numbers as text: what files and captions show, and what is read back.
#include "platform/number_text.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>

namespace veritane::platform {
namespace {

TEST(NumberText, CountsStandBetweenBlanksOrSignAndBlank) {
  EXPECT_EQ(CountText(3), " 3 ");
  EXPECT_EQ(CountText(0), " 0 ");
  EXPECT_EQ(CountText(-12), "-12 ");
}

TEST(NumberText, ANumberThatIsNotNegativeHasALeadingBlankAndAFractionNoZero) {
  EXPECT_EQ(NumberText(97.35), " 97.35");
  EXPECT_EQ(NumberText(100), " 100");
  EXPECT_EQ(NumberText(0), " 0");
  EXPECT_EQ(NumberText(0.5), " .5");
  EXPECT_EQ(NumberText(-0.5), "-.5");
  EXPECT_EQ(PlainNumberText(85.5), "85.5");
  EXPECT_EQ(NumberText(0.1 + 0.2), " .3") << "fifteen significant digits";
  EXPECT_EQ(NumberText(1e20), " 1E+20");
  EXPECT_EQ(NumberText(1.5e-20), " 1.5E-20");
  EXPECT_EQ(NumberText(123456789012345.0), " 123456789012345");
}

TEST(NumberText, PatternsWriteThePointAlwaysAndRoundHalfAwayFromZero) {
  EXPECT_EQ(FormatPattern(97.346, "0.##"), "97.35");
  EXPECT_EQ(FormatPattern(97.3, "0.##"), "97.3");
  EXPECT_EQ(FormatPattern(12, "0.##"), "12.");
  EXPECT_EQ(FormatPattern(0.004, "0.##"), "0.");
  EXPECT_EQ(FormatPattern(-0.004, "0.##"), "0.") << "no negative zero";
  EXPECT_EQ(FormatPattern(99.996, "0.##"), "100.");
  EXPECT_EQ(FormatPattern(2.675, "0.##"), "2.68")
      << "the decimal digits count, not the binary value below them";
  EXPECT_EQ(FormatPattern(-2.675, "0.##"), "-2.68");
  EXPECT_EQ(FormatPattern(0.0123, "#.######"), ".0123");
  EXPECT_EQ(FormatPattern(0, "#.######"), ".");
  EXPECT_EQ(FormatPattern(3999.96, "####.0"), "4000.0");
  EXPECT_EQ(FormatPattern(400, "####.0"), "400.0");
  EXPECT_EQ(FormatPattern(12345.6, "####.0"), "12345.6");
  EXPECT_EQ(FormatPattern(0.25, "#0.####"), "0.25");
  EXPECT_EQ(RoundToTwoDecimals(99.996), 100);
  EXPECT_EQ(RoundToTwoDecimals(12), 12);
  EXPECT_TRUE(std::isnan(RoundToTwoDecimals(std::nan("")))) << "what is no number is no 0";
  EXPECT_EQ(RoundToTwoDecimals(-INFINITY), -INFINITY);
}

TEST(NumberText, OnlyAWholeDecimalNumberConverts) {
  EXPECT_EQ(ParseNumber(" 85.5 "), 85.5);
  EXPECT_EQ(ParseNumber("-.5"), -0.5);
  EXPECT_EQ(ParseNumber("+1E2"), 100);
  EXPECT_EQ(ParseNumber("12."), 12);
  for (const char* text : {"", "-", ".", "1,5", "nan", "inf", "0x10", "1 2", "12h", "1e400", "--1"}) {
    EXPECT_FALSE(ParseNumber(text)) << text;
  }
  // Which side of a double's range a number lies on shows in its digits and its exponent together.
  const std::string zeros(400, '0');
  EXPECT_EQ(ParseNumber("1e-400"), 0);
  EXPECT_EQ(ParseNumber("." + zeros + "1"), 0);
  EXPECT_EQ(ParseNumber("1" + zeros + "e-5"), std::nullopt);
  EXPECT_EQ(ParseNumber("1e-99999999999"), 0);
  EXPECT_EQ(LeadingNumber(" 12 h"), 12);
  EXPECT_EQ(LeadingNumber("1 000"), 1000);
  EXPECT_EQ(LeadingNumber("-"), 0);
  EXPECT_EQ(LeadingNumber("x1"), 0);
}

TEST(NumberText, EveryNumberOfFifteenDigitsReadsBackAsItWas) {
  for (const double number : {97.35, 1e-7, 2.5e15, 1e100, -123.456}) {
    EXPECT_EQ(LeadingNumber(NumberText(number)), number);
  }
}

TEST(NumberText, ANumberOfMoreDigitsReadsBackRoundedToFifteen) {
  EXPECT_EQ(LeadingNumber(NumberText(1.0 / 3.0)), 0.333333333333333);
  EXPECT_EQ(LeadingNumber(NumberText(4503599627370496.0)), 4503599627370500.0);
}

TEST(NumberText, AProcessLocaleWithADecimalCommaChangesNothing) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  // The name on a POSIX system, and the one on Windows.
  const bool is_set =
      std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr || std::setlocale(LC_ALL, "German_Germany") != nullptr;
  ASSERT_TRUE(is_set) << "the locale de_DE.UTF-8 is not installed";
  const std::string text = NumberText(97.35);
  const std::string pattern = FormatPattern(97.35, "0.##");
  const auto number = ParseNumber("97.35");
  std::setlocale(LC_ALL, before.c_str());
  EXPECT_EQ(text, " 97.35");
  EXPECT_EQ(pattern, "97.35");
  EXPECT_EQ(number, 97.35);
}

}  // namespace
}  // namespace veritane::platform
