// What is written as a spectrum file reads back to the last bit, and other programs could read it too.
#include "simulator/spectrum_file.h"

#include "simulator/jcamp_writer.h"
#include "tests/support/errors.h"

#include <gmock/gmock.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

namespace veritane::simulator {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::SizeIs;

StoredSpectrum Sample(double spacing = 2, std::int32_t lower = 400, std::vector<double> values = {1, 2, 3}) {
  StoredSpectrum spectrum;
  spectrum.name = "Lot 4711";
  spectrum.time = "2026/11/21 10:59:00";
  spectrum.yUnits = "ABSORBANCE";
  spectrum.spacing = spacing;
  spectrum.ordinates = {lower, std::move(values)};
  return spectrum;
}

std::string Written(const StoredSpectrum& spectrum) {
  const StoredSpectrum* const one[] = {&spectrum};
  return WriteJcamp(one);
}

StoredSpectrum ReadBack(const StoredSpectrum& spectrum) {
  SpectrumFile file = ReadSpectrumFile("back", Written(spectrum));
  EXPECT_THAT(file.spectra, SizeIs(1));
  return std::move(file.spectra.front());
}

void ExpectSameBits(const StoredSpectrum& saved, const StoredSpectrum& read) {
  EXPECT_EQ(saved.name, read.name);
  EXPECT_EQ(saved.time, read.time);
  EXPECT_EQ(saved.labels, read.labels);
  EXPECT_EQ(saved.parameters, read.parameters);
  EXPECT_EQ(std::bit_cast<std::uint64_t>(saved.spacing), std::bit_cast<std::uint64_t>(read.spacing));
  EXPECT_EQ(saved.ordinates.lower, read.ordinates.lower);
  ASSERT_EQ(saved.ordinates.Size(), read.ordinates.Size());
  for (std::size_t i = 0; i < saved.ordinates.Size(); ++i) {
    ASSERT_EQ(std::bit_cast<std::uint64_t>(saved.ordinates.values[i]),
              std::bit_cast<std::uint64_t>(read.ordinates.values[i]))
        << i;
  }
}

TEST(SpectrumFileRoundTrip, EveryFiniteDoubleComesBack) {
  using Limits = std::numeric_limits<double>;
  std::vector<double> values = {0.0,           -0.0,          Limits::denorm_min(), -Limits::denorm_min(),
                                Limits::min(), Limits::max(), -Limits::max(),       0.1,
                                1e-5,          -1e23,         123456789.123456789,  1e15 + 0.5};
  std::mt19937_64 random(20261121);
  while (values.size() < 5000) {
    const double value = std::bit_cast<double>(random());
    if (std::isfinite(value)) values.push_back(value);
  }
  const StoredSpectrum saved = Sample(2, 225, values);
  ExpectSameBits(saved, ReadBack(saved));
}

TEST(SpectrumFileRoundTrip, EverySpacingAndFirstPointComesBack) {
  std::mt19937_64 random(1);
  std::uniform_real_distribution<double> exponent(-6, 6);
  for (int i = 0; i < 300; ++i) {
    const auto lower = static_cast<std::int32_t>(random() % 200'000) - 100'000;
    const StoredSpectrum saved =
        Sample(std::pow(10.0, exponent(random)), lower, std::vector<double>(1 + i % 7, 0.5));
    ExpectSameBits(saved, ReadBack(saved));
  }
  ExpectSameBits(Sample(1.0 / 3, 0, {1}), ReadBack(Sample(1.0 / 3, 0, {1})));
  const std::int32_t highest = std::numeric_limits<std::int32_t>::max() - 3;
  ExpectSameBits(Sample(0.1, highest), ReadBack(Sample(0.1, highest)));
}

TEST(SpectrumFileRoundTrip, TextsOfAnyKindComeBackAndNeverBecomeLabels) {
  const std::string evil = "a\r\n##END=\r\n##TITLE= b $$ c \"q\" \\x41 \\";
  const std::string bytes = std::string("\0\xFF\xC3", 3);
  for (const std::string& text :
       {evil, bytes, std::string("  blanks  "), std::string(), std::string("\"quoted\""),
        std::string("97.35"), std::string("NaN"), std::string("\xC3\xA4\xE2\x82\xAC"),
        std::string("\xEF\xBB\xBFmark"), std::string("$$")}) {
    StoredSpectrum saved = Sample();
    saved.name = text;
    saved.time = text;
    saved.parameters = {{text + "x", text}, {"Sample Name", text}, {"VERITANE NAME", text}, {"%41=", 1.5}};
    ExpectSameBits(saved, ReadBack(saved));
  }
}

TEST(SpectrumFileRoundTrip, ParametersKeepTheirTypes) {
  StoredSpectrum saved = Sample();
  saved.parameters = {{"Comparison", 97.35},
                      {"Text", std::string("97.35")},
                      {"Zero", -0.0},
                      {"Tiny", 5e-324},
                      {"Much", std::numeric_limits<double>::infinity()}};
  saved.labels = {{"OWNER", "somebody\nsomewhere"}, {"RESOLUTION", "4"}};
  ExpectSameBits(saved, ReadBack(saved));
  saved.parameters = {{"Comparison", std::nan("")}};
  EXPECT_TRUE(std::isnan(std::get<double>(ReadBack(saved).parameters.at(0).value)));
}

TEST(SpectrumFileRoundTrip, ACompoundDocumentComesBackInOrder) {
  const StoredSpectrum first = Sample();
  StoredSpectrum second = Sample(5, 80, {7, 8});
  second.name = "second";
  const StoredSpectrum* const both[] = {&first, &second};
  const SpectrumFile file = ReadSpectrumFile("both", WriteJcamp(both));
  ASSERT_THAT(file.spectra, SizeIs(2));
  ExpectSameBits(first, file.spectra[0]);
  ExpectSameBits(second, file.spectra[1]);
}

TEST(SpectrumFileForm, IsPlainJcampWithShortLines) {
  std::vector<double> values;
  for (int i = 0; i < 300; ++i) values.push_back(std::sin(i) * 1e-200);
  const std::string text = Written(Sample(1.9288114601193709, 232, values));
  EXPECT_THAT(text, ::testing::StartsWith("##TITLE= Lot 4711\r\n##JCAMP-DX= 5.01\r\n"));
  EXPECT_THAT(text, HasSubstr("##LONGDATE= 2026/11/21 10:59:00\r\n"));
  EXPECT_THAT(text, HasSubstr("##NPOINTS= 300\r\n"));
  EXPECT_THAT(text, ::testing::EndsWith("##END= \r\n"));
  for (std::size_t begin = 0; begin < text.size(); begin = text.find('\n', begin) + 1) {
    EXPECT_LE(text.find('\r', begin) - begin, 80u);
  }
}

TEST(SpectrumFileForm, ATitleChangedByAnotherProgramCounts) {
  StoredSpectrum saved = Sample();
  saved.name = " padded ";
  std::string text = Written(saved);
  text.replace(text.find("padded"), 6, "edited");
  EXPECT_EQ(ReadSpectrumFile("x", text).spectra[0].name, "edited");
}

TEST(SpectrumFileForm, WhatIsNotANumberIsRefusedBeforeAnythingIsWritten) {
  using tests::ErrorOf;
  for (const double bad : {std::nan(""), std::numeric_limits<double>::infinity()}) {
    EXPECT_EQ(ErrorOf([&] { Written(Sample(2, 400, {1, bad, 3})); }), 5);
    EXPECT_EQ(ErrorOf([&] { Written(Sample(bad)); }), 5);
  }
  EXPECT_EQ(ErrorOf([&] { Written(Sample(0)); }), 5);
  EXPECT_EQ(ErrorOf([&] { Written(Sample(2, 400, {})); }), 5);
  EXPECT_EQ(ErrorOf([&] { WriteJcamp({}); }), 5);
}

}  // namespace
}  // namespace veritane::simulator
