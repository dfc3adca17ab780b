// Spectra from text in its two forms and from bare IEEE numbers.
#include "plslibrary/spectrum_text_reader.h"

#include "tests/plslibrary/spc_image.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace veritane::plslibrary {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

std::string TextRefusal(const std::string& text) {
  try {
    ReadSpectrumText(text);
  } catch (const SpectrumReadError& error) {
    return error.what();
  }
  return "";
}

TEST(SpectrumText, TwoColumnsMayBeSeparatedInManyWays) {
  for (const char* const text :
       {"4000 0.5\n3998 -1e-3\n3996 .25\n", "4000\t0.5\r\n3998\t-0.001\r\n3996\t+0.25",
        "4000,0.5\r3998,-1E-3\r3996,0.25", "  4000 ; 0.5 ;\n\n3998;-.001;\n3996 ; 0.25\n\n",
        "\xEF\xBB\xBFwavenumber, absorbance\n4000, 0.5\n3998, -0.001\n3996, .25"}) {
    const MeasuredSpectrum spectrum = ReadSpectrumText(text);
    EXPECT_EQ(spectrum.firstX, 4000) << text;
    EXPECT_EQ(spectrum.lastX, 3996) << text;
    EXPECT_THAT(spectrum.y, ElementsAre(0.5, -0.001, 0.25)) << text;
    EXPECT_EQ(spectrum.xType, 0);
    EXPECT_EQ(spectrum.yType, 0);
  }
}

TEST(SpectrumText, OneColumnTakesItsXFromTheHeader) {
  const MeasuredSpectrum spectrum = ReadSpectrumText(
      "# polystyrene: film\n# First X = 400\nLAST_X: 404.5\nx type=1\nytype: 2\n\n.1\n.2\n.3\n.4\n");
  EXPECT_EQ(spectrum.firstX, 400);
  EXPECT_EQ(spectrum.lastX, 404.5);
  EXPECT_EQ(spectrum.xType, 1);
  EXPECT_EQ(spectrum.yType, 2);
  EXPECT_THAT(spectrum.y, ElementsAre(.1, .2, .3, .4));
}

TEST(SpectrumText, RoundedXCountAsEvenlySpacedAndOtherScalesDoNot) {
  std::string rounded;
  std::string wavelengths;
  for (int i = 0; i < 500; ++i) {
    const double x = 4000 - 1.928 * i;
    rounded += std::to_string(std::round(x * 10) / 10) + " 0.5\n";
    wavelengths += std::to_string(1e7 / (2500 + 0.5 * i)) + " 0.5\n";
  }
  EXPECT_EQ(ReadSpectrumText(rounded).y.size(), 500U);
  EXPECT_THAT(TextRefusal(wavelengths), HasSubstr("not evenly spaced"));
  EXPECT_THAT(TextRefusal("1 1\n2 1\n4 1\n5 1\n"), HasSubstr("point 2"));
  EXPECT_THAT(TextRefusal("1 1\n3 1\n2 1\n4 1\n"), HasSubstr("not evenly spaced"));
}

TEST(SpectrumText, WhatIsNoPointIsToldWithItsLine) {
  EXPECT_THAT(TextRefusal(""), HasSubstr("First X"));
  EXPECT_THAT(TextRefusal("1\n2\n"), HasSubstr("First X"));
  EXPECT_THAT(TextRefusal("First X = 1\n1\n2\n"), HasSubstr("Last X"));
  EXPECT_THAT(TextRefusal("First X = 1\nLast X = 2\n"), HasSubstr("no points"));
  EXPECT_THAT(TextRefusal("First X = 1\nLast X = 1\n1\n2\n"), HasSubstr("same x"));
  EXPECT_THAT(TextRefusal("First X = 1\nLast X = 9\n1 1\n2 2\n"), HasSubstr("both"));
  EXPECT_THAT(TextRefusal("First X = 1\nfirst x = 2\n"), HasSubstr("line 2"));
  EXPECT_THAT(TextRefusal("First X = one\n"), HasSubstr("line 1"));
  EXPECT_THAT(TextRefusal("x type = 1.5\n1 1\n2 2\n"), HasSubstr("0 to 255"));
  EXPECT_THAT(TextRefusal("x y\n1 1\n\n2 2 2\n"), HasSubstr("line 4: it has 3 columns"));
  EXPECT_THAT(TextRefusal("1,5;0,5\n"), HasSubstr("line 1: it has 4 columns"));
  EXPECT_THAT(TextRefusal("1 1\n2\n"), HasSubstr("line 2: it has 1 columns"));
  EXPECT_THAT(TextRefusal("1 1x\n2 2\n"), HasSubstr("line 1: column 2"));
  for (const std::string& damaged : std::vector<std::string>{
           "2 two", "nan 2", "2 nan", "2 inf", "2 1e999", "2 0x1", "2 +-2", {"2 1\0.5", 6}}) {
    EXPECT_THAT(TextRefusal("1 1\n" + damaged + "\n3 3\n"), HasSubstr("line 2")) << damaged;
  }
}

TEST(IeeeFloats, AreOrdinatesWithoutX) {
  const MeasuredSpectrum spectrum =
      ReadIeeeFloats(SpcImage().Append(std::vector<float>{0.5F, -2, 1e-7F}).bytes);
  EXPECT_THAT(spectrum.y, ElementsAre(0.5, -2, static_cast<double>(1e-7F)));
  EXPECT_TRUE(std::isnan(spectrum.firstX));
  EXPECT_TRUE(std::isnan(spectrum.lastX));
  EXPECT_EQ(spectrum.xType, 0);
  EXPECT_THROW(ReadIeeeFloats(""), SpectrumReadError);
  EXPECT_THROW(ReadIeeeFloats("12345"), SpectrumReadError);
  EXPECT_THROW(ReadIeeeFloats(SpcImage().Append(std::numeric_limits<float>::infinity()).bytes),
               SpectrumReadError);
}

}  // namespace
}  // namespace veritane::plslibrary
