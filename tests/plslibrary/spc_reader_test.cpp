// SPC files in every form, put together byte by byte, and what damage does to them.
#include "plslibrary/spc_reader.h"

#include "tests/plslibrary/spc_image.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace veritane::plslibrary {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::SizeIs;

constexpr std::uint8_t k16Bit = 0x01, kSeveral = 0x04, kOwnX = 0x40, kStoredX = 0x80;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

// The text of the refusal; "" when the bytes are read.
std::string SpcRefusal(const std::string& bytes) {
  try {
    ReadSpc(bytes);
  } catch (const SpectrumReadError& error) {
    return error.what();
  }
  return "";
}

MeasuredSpectrum Only(const SpcImage& image) {
  std::vector<MeasuredSpectrum> spectra = ReadSpc(image.bytes);
  EXPECT_THAT(spectra, SizeIs(1));
  return spectra.at(0);
}

// One spectrum of three IEEE numbers.
SpcImage Sound() {
  return NewHeader({.points = 3}).AppendSubheader().Append(std::vector<float>{0.5F, -1.25F, 3e-7F});
}

// Two spectra of three points with x of their own, behind them the directory.
SpcImage WithDirectory() {
  SpcImage image = NewHeader({.flags = kSeveral | kOwnX | kStoredX, .points = 616, .spectra = 2});
  image.AppendSubheader(-128, 3).Append(std::vector<float>{10, 20, 30, 1, 2, 3});
  image.AppendSubheader(1, 2).Append(std::vector<float>{9, 8}).Append(std::vector<std::int32_t>{1 << 30, 1});
  image.Set(616, std::uint32_t{512}).Append(std::uint32_t{56}).Append(0.0F);
  return image.Append(std::uint32_t{568}).Append(std::uint32_t{48}).Append(0.0F);
}

class NewForm : public ::testing::TestWithParam<std::endian> {};
INSTANTIATE_TEST_SUITE_P(BothByteOrders, NewForm, ::testing::Values(std::endian::little, std::endian::big),
                         [](const auto& order) {
                           return order.param == std::endian::big ? "Big" : "Little";
                         });

TEST_P(NewForm, IeeeNumbersAreTakenAsTheyAre) {
  SpcImage image = NewHeader({.points = 3, .firstX = 4000.125, .lastX = 399.5}, GetParam());
  image.AppendSubheader().Append(std::vector<float>{0.5F, -1.25F, 3e-7F});
  const MeasuredSpectrum spectrum = Only(image);
  EXPECT_EQ(spectrum.firstX, 4000.125);
  EXPECT_EQ(spectrum.lastX, 399.5);
  EXPECT_EQ(spectrum.xType, 1);
  EXPECT_EQ(spectrum.yType, 2);
  EXPECT_THAT(spectrum.y, ElementsAre(0.5, -1.25, static_cast<double>(3e-7F)));
}

TEST_P(NewForm, IntegersAreScaledByTheExponent) {
  SpcImage of32 = NewHeader({.exponent = 3, .points = 4}, GetParam());
  of32.AppendSubheader(77).Append(std::vector<std::int32_t>{1, -1, 0x12345678, -2147483647 - 1});
  EXPECT_THAT(Only(of32).y,
              ElementsAre(std::pow(2.0, -29), -std::pow(2.0, -29), 0x12345678 / 536870912.0, -4.0));
  SpcImage of16 = NewHeader({.flags = k16Bit, .exponent = -2, .points = 3}, GetParam());
  of16.AppendSubheader(77).Append(std::vector<std::int16_t>{1, 0x1234, -32768});
  EXPECT_THAT(Only(of16).y, ElementsAre(std::pow(2.0, -18), 0x1234 / 262144.0, -0.125));
}

TEST_P(NewForm, SeveralSpectraEachHaveTheirOwnExponent) {
  SpcImage image = NewHeader({.flags = kSeveral, .exponent = 9, .points = 2, .spectra = 3}, GetParam());
  image.AppendSubheader(-128).Append(std::vector<float>{1.5F, 2.5F});
  image.AppendSubheader(0).Append(std::vector<std::int32_t>{1 << 30, -(1 << 29)});
  image.AppendSubheader(-1).Append(std::vector<std::int32_t>{1 << 30, 1 << 29});
  const auto spectra = ReadSpc(image.bytes);
  ASSERT_THAT(spectra, SizeIs(3));
  EXPECT_THAT(spectra[0].y, ElementsAre(1.5, 2.5));
  EXPECT_THAT(spectra[1].y, ElementsAre(0.25, -0.125));
  EXPECT_THAT(spectra[2].y, ElementsAre(0.125, 0.0625));
  EXPECT_EQ(spectra[2].firstX, 400);
}

TEST_P(NewForm, StoredXCountWhereTheyAreEvenlySpacedAfterAll) {
  SpcImage image = NewHeader({.flags = kStoredX, .points = 4, .firstX = 1, .lastX = 2}, GetParam());
  image.Append(std::vector<float>{3999.9F, 3997.97F, 3996.04F, 3994.1F});
  image.AppendSubheader().Append(std::vector<float>{1, 2, 3, 4});
  const MeasuredSpectrum spectrum = Only(image);
  EXPECT_NEAR(spectrum.firstX, 3999.9, 1e-3);
  EXPECT_NEAR(spectrum.lastX, 3994.1, 1e-3);
  EXPECT_THAT(spectrum.y, ElementsAre(1, 2, 3, 4));
  image.Set(512 + 4, 3997.5F);
  EXPECT_THAT(SpcRefusal(image.bytes), HasSubstr("not evenly spaced"));
}

TEST(SpcReader, SpectraWithXOfTheirOwnAreFoundThroughTheDirectory) {
  const auto spectra = ReadSpc(WithDirectory().bytes);
  ASSERT_THAT(spectra, SizeIs(2));
  EXPECT_EQ(spectra[0].firstX, 10);
  EXPECT_EQ(spectra[0].lastX, 30);
  EXPECT_THAT(spectra[0].y, ElementsAre(1, 2, 3));
  EXPECT_EQ(spectra[1].firstX, 9);
  EXPECT_EQ(spectra[1].lastX, 8);
  EXPECT_THAT(spectra[1].y, ElementsAre(0.5, std::pow(2.0, -31)));
}

TEST(SpcReader, TheOldFormHoldsItsIntegersHighWordFirst) {
  SpcImage of32 = OldHeader({.exponent = 2, .points = 3, .firstX = 4000, .lastX = 400});
  of32.AppendSubheader(55).Append(std::vector<std::uint16_t>{0x1234, 0x5678, 0xFFFF, 0xFFFE, 0x4000, 0});
  const MeasuredSpectrum spectrum = Only(of32);
  EXPECT_THAT(spectrum.y, ElementsAre(0x12345678 / 1073741824.0, -2 / 1073741824.0, 1.0));
  EXPECT_EQ(spectrum.firstX, 4000);
  EXPECT_EQ(spectrum.lastX, 400);
  EXPECT_EQ(spectrum.xType, 1);
  EXPECT_EQ(spectrum.yType, 128);
  SpcImage of16 = OldHeader({.flags = k16Bit, .exponent = 1, .points = 2});
  of16.AppendSubheader().Append(std::vector<std::int16_t>{-0x4000, 0x0102});
  EXPECT_THAT(Only(of16).y, ElementsAre(-0.5, 0x0102 / 32768.0));
}

TEST(SpcReader, SpectraOfTheOldFormGoOnUntilTheEndOfTheFile) {
  SpcImage image = OldHeader({.flags = kSeveral, .exponent = 9, .points = 2});
  for (const int exponent : {0, 1, -1}) {
    image.AppendSubheader(static_cast<std::int8_t>(exponent));
    image.Append(std::vector<std::uint16_t>{0x4000, 0, 0xC000, 0});
  }
  const auto spectra = ReadSpc(image.bytes);
  ASSERT_THAT(spectra, SizeIs(3));
  EXPECT_THAT(spectra[0].y, ElementsAre(0.25, -0.25));
  EXPECT_THAT(spectra[1].y, ElementsAre(0.5, -0.5));
  EXPECT_THAT(spectra[2].y, ElementsAre(0.125, -0.125));
  image.bytes.pop_back();
  EXPECT_THAT(SpcRefusal(image.bytes), HasSubstr("spectrum 3: its 2 points reach beyond the end"));
}

TEST(SpcReader, IeeeNumbersOfTheOldFormAreReadInTheOrderThatGivesASpectrum) {
  const std::vector<float> values{0.1F, -0.37F, 0};
  const auto old = [](int exponent) {
    return OldHeader({.exponent = exponent, .points = 3}).AppendSubheader();
  };
  SpcImage plain = old(-128).Append(values);
  SpcImage swapped = old(128);
  for (const float value : values) {
    const auto bits = std::bit_cast<std::uint32_t>(value);
    swapped.Append(static_cast<std::uint16_t>(bits >> 16)).Append(static_cast<std::uint16_t>(bits & 0xFFFF));
  }
  const std::vector<double> expected(values.begin(), values.end());
  EXPECT_EQ(Only(plain).y, expected);
  EXPECT_EQ(Only(swapped).y, expected);
  const std::uint32_t either = 0x3F803F81;  // near 1 in both orders
  EXPECT_THAT(SpcRefusal(old(-128).Append(std::vector<std::uint32_t>{either, either, either}).bytes),
              HasSubstr("cannot be told"));
}

TEST(SpcReader, OtherFilesAreRefusedByTheirBytes) {
  EXPECT_THAT(SpcRefusal(""), HasSubstr("too short"));
  EXPECT_THAT(SpcRefusal("\x4B"), HasSubstr("too short"));
  EXPECT_THAT(SpcRefusal("##TITLE= no SPC"), HasSubstr("second byte is 35"));
  EXPECT_THAT(SpcRefusal(Sound().Set(1, std::uint8_t{0xCF}).bytes), HasSubstr("second byte is 207"));
}

TEST(SpcReader, AFileCutAnywhereIsRefused) {
  const std::vector<std::string> whole{
      Sound().bytes, WithDirectory().bytes,
      OldHeader({.points = 2}).AppendSubheader().Append(std::vector<float>{1, 2}).bytes,
      NewHeader({.flags = kStoredX, .points = 2})
          .Append(std::vector<float>{1, 2, 0, 0, 0, 0, 0, 0, 0, 0, 3, 4})
          .bytes};
  for (const std::string& bytes : whole) {
    EXPECT_EQ(SpcRefusal(bytes), "");
    for (std::size_t size = 0; size < bytes.size(); ++size) {
      EXPECT_NE(SpcRefusal(bytes.substr(0, size)), "") << size << " of " << bytes.size();
    }
  }
}

TEST(SpcReader, NumbersThatContradictTheFileAreRefused) {
  const auto text = [](std::size_t offset, auto number) {
    return SpcRefusal(Sound().Set(offset, number).bytes);
  };
  EXPECT_THAT(text(4, std::uint32_t{0}), HasSubstr("no points"));
  EXPECT_THAT(text(4, std::uint32_t{4}), HasSubstr("beyond the end"));
  EXPECT_THAT(text(4, std::int32_t{-1}), HasSubstr("its 4294967295 points reach beyond the end"));
  EXPECT_THAT(text(8, kNaN), HasSubstr("not a number"));
  EXPECT_THAT(SpcRefusal(Sound().Set(8, -1.7e308).Set(16, 1.7e308).bytes), HasSubstr("not a number"))
      << "the distance of two numbers";
  EXPECT_THAT(text(16, kInfinity), HasSubstr("not a number"));
  EXPECT_THAT(text(16, 400.0), HasSubstr("same x"));
  EXPECT_THAT(text(24, std::uint32_t{2}), HasSubstr("contradicts"));
  EXPECT_THAT(text(0, kOwnX), HasSubstr("none is stored"));
  EXPECT_THAT(text(544 + 4, static_cast<float>(kNaN)), HasSubstr("point 2 is not a number"));
  EXPECT_THAT(text(0, kStoredX), ::testing::Not(::testing::IsEmpty()));

  SpcImage several = NewHeader({.flags = kSeveral, .points = 1, .firstX = 7, .lastX = 7, .spectra = 0});
  several.AppendSubheader().Append(1.0F);
  EXPECT_THAT(SpcRefusal(several.bytes), HasSubstr("no spectrum"));
  EXPECT_THAT(SpcRefusal(several.Set(24, std::uint32_t{2}).bytes), HasSubstr("ends after 548 bytes"));
  EXPECT_THAT(SpcRefusal(several.Set(24, std::uint32_t{0xFFFFFFFF}).bytes),
              HasSubstr("ends after 548 bytes"));
  EXPECT_EQ(SpcRefusal(several.Set(24, std::uint32_t{1}).bytes), "");
}

TEST(SpcReader, ADirectoryThatLiesIsRefused) {
  const auto text = [](std::size_t offset, std::uint32_t number) {
    return SpcRefusal(WithDirectory().Set(offset, number).bytes);
  };
  EXPECT_EQ(text(620, 0), "") << "the entries' sizes are not needed";
  for (const std::uint32_t place : {0U, 511U, 617U, 640U, 0xFFFFFFFFU}) {
    EXPECT_THAT(text(4, place), HasSubstr("directory")) << place;
  }
  EXPECT_THAT(text(24, 0x7FFFFFFF), HasSubstr("directory"));
  EXPECT_THAT(text(616, 100), HasSubstr("spectrum 1: its place is inside the header"));
  EXPECT_THAT(text(628, 0xFFFFFFF0), HasSubstr("ends after"));
  EXPECT_THAT(text(628, 512), HasSubstr("overlap"));
  EXPECT_THAT(text(512 + 16, 0), HasSubstr("spectrum 1: there are no points"));
  EXPECT_THAT(text(512 + 16, 0xFFFFFFFF), HasSubstr("spectrum 1: its 4294967295 points"));
}

TEST(SpcReader, AnOldHeaderOfNonsenseIsRefused) {
  const auto text = [](std::size_t offset, auto number) {
    SpcImage image = OldHeader({.exponent = 1, .points = 1, .firstX = 7, .lastX = 7});
    return SpcRefusal(image.AppendSubheader().Append(std::int32_t{1}).Set(offset, number).bytes);
  };
  EXPECT_EQ(text(0, std::uint8_t{0}), "");
  for (const float points : {0.0F, -1.0F, 0.5F, 1e30F, static_cast<float>(kNaN)}) {
    EXPECT_THAT(text(4, points), HasSubstr("number of points")) << points;
  }
  EXPECT_THAT(text(4, 4e9F), HasSubstr("same x"));
  EXPECT_THAT(text(2, std::int16_t{129}), HasSubstr("exponent 129"));
  EXPECT_THAT(text(2, std::int16_t{-32768}), HasSubstr("exponent -32768"));
  EXPECT_THAT(text(0, kStoredX), HasSubstr("old form"));
  EXPECT_THAT(text(8, static_cast<float>(kInfinity)), HasSubstr("not a number"));
}

}  // namespace
}  // namespace veritane::plslibrary
