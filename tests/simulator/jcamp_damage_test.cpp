// Damaged JCAMP-DX texts: a clear fault, or a whole spectrum, or a warning; never a silent half spectrum.
#include "platform/run_time_error.h"
#include "simulator/jcamp_writer.h"
#include "simulator/spectrum_file.h"
#include "tests/simulator/jcamp_text_samples.h"

#include <gmock/gmock.h>

namespace veritane::simulator {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::SizeIs;

std::string TableFault(const std::string& lines, int points = 4) {
  SampleBlock block;
  block.lastX = block.points = std::to_string(points);
  block.table = "(X++(Y..Y))\n" + lines;
  return FaultOf(block.Text());
}

// Eight lines of four points from 400 on in steps of 2.
std::string LongTable(int left_out_line = -1) {
  std::string table = "(X++(Y..Y))\n";
  for (int line = 0; line < 8; ++line) {
    if (line == left_out_line) continue;
    table += std::to_string(400 + 8 * line);
    for (int i = 0; i < 4; ++i) table += " " + std::to_string(100 + 4 * line + i);
    table += "\n";
  }
  return table;
}

SampleBlock LongBlock() {
  SampleBlock block{.firstX = "400", .lastX = "462", .points = "32"};
  block.table = LongTable();
  return block;
}

TEST(JcampDamage, AFaultNamesTheLineAndQuotesIt) {
  EXPECT_THAT(TableFault("1 10 20\n3 3x0 40\n"), AllOf(HasSubstr("line 13: "), HasSubstr("\"3 3x0 40\"")));
  EXPECT_THAT(TableFault("1 10 20\r\n3 30 4!\r\n"), AllOf(HasSubstr("line 13: "), HasSubstr("\"3 30 4!\"")));
}

TEST(JcampDamage, WhatNoFormAllowsIsRefused) {
  EXPECT_THAT(TableFault("1 10 20\n3 30 40 #END\n"), HasSubstr("no data form"));
  EXPECT_THAT(TableFault("1JJJ\n"), HasSubstr("a difference without a value"));
  EXPECT_THAT(TableFault("1A0TT\n"), HasSubstr("a repetition without anything"));
  EXPECT_THAT(TableFault("1A0\n2T\n"), HasSubstr("a repetition without anything"));
  EXPECT_THAT(TableFault("1\n"), HasSubstr("a line without ordinates"));
  EXPECT_THAT(TableFault("1 +-10\n"), HasSubstr("no number"));
  EXPECT_THAT(TableFault("1 1e999\n"), HasSubstr("cannot be held"));
  EXPECT_THAT(TableFault(""), HasSubstr("the table is empty"));
}

TEST(JcampDamage, ACheckValueThatDiffersIsALostLine) {
  EXPECT_THAT(TableFault("1A0J%k\n4A0J0\n", 5), HasSubstr("does not repeat the last ordinate"));
}

TEST(JcampDamage, ALostLineIsFoundByItsX) {
  EXPECT_EQ(FaultOf(LongBlock().Text()), "");
  for (int line = 0; line < 8; ++line) {
    SampleBlock block = LongBlock();
    block.table = LongTable(line);
    EXPECT_THAT(FaultOf(block.Text()), HasSubstr("lost")) << "line " << line;
    block.points = "28";  // even where the count was made to agree
    EXPECT_THAT(FaultOf(block.Text()), HasSubstr("lost")) << "line " << line;
  }
}

TEST(JcampDamage, ASingleLostPointIsFoundWhereEveryPointHasItsX) {
  for (int lost = 0; lost < 32; ++lost) {
    SampleBlock block = LongBlock();
    block.table = "(X++(Y..Y))\n";
    for (int i = 0; i < 32; ++i) {
      if (i != lost) block.table += std::to_string(400 + 2 * i) + " 7\n";
    }
    EXPECT_THAT(FaultOf(block.Text()), HasSubstr("lost")) << "point " << lost;
  }
}

TEST(JcampDamage, AWrongPointCountAloneIsAWarning) {
  for (const char* points : {"31", "33", "40", "1000000000000", "0", "-5"}) {
    SampleBlock block = LongBlock();
    block.points = points;
    const JcampSpectrum spectrum = OnlySpectrum(block.Text());
    EXPECT_THAT(spectrum.ordinates, SizeIs(32)) << points;
    EXPECT_THAT(AllWarnings(spectrum), HasSubstr("32 are there")) << points;
  }
}

TEST(JcampDamage, ARoundedOrWrongDeltaXDoesNotMatter) {
  for (const char* delta : {"2.01", "-2", "17", "x"}) {
    SampleBlock block = LongBlock();
    block.more = std::string("##DELTAX= ") + delta + "\n";
    const JcampSpectrum spectrum = OnlySpectrum(block.Text());
    EXPECT_EQ(spectrum.lastX, 462);
    EXPECT_THAT(spectrum.ordinates, SizeIs(32));
  }
}

TEST(JcampDamage, CheckedOrdinatesThatDifferAreWarnings) {
  SampleBlock block;
  block.more = "##FIRSTY= 10.02\n##MAXY= 40.01\n##MINY= 10\n";
  EXPECT_THAT(AllWarnings(OnlySpectrum(block.Text())),
              AllOf(HasSubstr("FIRSTY declares 10.02, the data give 10"), ::testing::Not(HasSubstr("MAXY")),
                    ::testing::Not(HasSubstr("MINY"))));
  block.yFactor = "0.1";
  EXPECT_THAT(AllWarnings(OnlySpectrum(block.Text())), AllOf(HasSubstr("MAXY"), HasSubstr("MINY")));
}

TEST(JcampDamage, NumbersThatASpectrumRestsOnMustBeReadable) {
  SampleBlock block{.firstX = "here"};
  EXPECT_THAT(FaultOf(block.Text()), AllOf(HasSubstr("line 8"), HasSubstr("##FIRSTX= here")));
  EXPECT_THAT(FaultOf(SampleBlock{.lastX = "1"}.Text()), HasSubstr("FIRSTX and LASTX are equal"));
  EXPECT_THAT(FaultOf(SampleBlock{.yFactor = "0"}.Text()), HasSubstr("YFACTOR is 0"));
}

TEST(JcampDamage, AMissingEndIsAWarningAndHalfALineAFault) {
  const std::string whole = LongBlock().Text();
  const std::string without_end = whole.substr(0, whole.find("##END"));
  EXPECT_THAT(AllWarnings(OnlySpectrum(without_end)), HasSubstr("##END= is missing"));
  EXPECT_THAT(FaultOf(without_end.substr(0, without_end.size() - 6)),
              HasSubstr("the file ends in the middle"));
  const std::string link = "##TITLE= link\n##DATA TYPE= LINK\n##BLOCKS= 3\n" + whole + whole;
  EXPECT_THAT(FaultOf(link), HasSubstr("BLOCKS declares 3 spectra, 2 are there"));
}

TEST(JcampDamage, HostileSizesStayBounded) {
  EXPECT_THAT(TableFault("1A0Z99999999999999\n"), HasSubstr("beyond the largest spectrum"));
  EXPECT_THAT(TableFault("1A0Z9999999\n2A0Z9999999\n"), HasSubstr("largest spectrum"));
  EXPECT_THAT(TableFault("1i99999999999999r99999999999999Z999999\n"), HasSubstr("beyond any spectrum"));
  std::string nested;
  for (int i = 0; i < 100'000; ++i) nested += "##TITLE= a\n##BLOCKS= 1\n";
  EXPECT_THAT(FaultOf(nested), HasSubstr("no JCAMP-DX spectrum"));
  EXPECT_THAT(FaultOf(""), HasSubstr("no JCAMP-DX spectrum"));
  EXPECT_THAT(FaultOf(std::string(1000, '\0')), HasSubstr("no JCAMP-DX spectrum"));
}

// A spectrum that a damaged text still gives must have the declared points or carry a warning.
void ExpectWholeOrWarned(const std::string& text, std::size_t spectra, std::size_t points) {
  SpectrumFile file;
  try {
    file = ReadSpectrumFile("C:\\damaged.bsp", text);
  } catch (const platform::RunTimeError& error) {
    EXPECT_EQ(error.Number(), kInvalidFileFormat);
    EXPECT_THAT(error.what(), HasSubstr("C:\\damaged.bsp"));
    return;
  }
  bool warned = !file.leftOut.empty();
  bool whole = file.spectra.size() == spectra;
  for (const StoredSpectrum& spectrum : file.spectra) {
    whole = whole && spectrum.ordinates.Size() == points;
    for (const NamedValue& parameter : spectrum.parameters) {
      warned = warned || parameter.name == kWarningsParameter || parameter.name == kInterpolatedParameter;
    }
  }
  EXPECT_TRUE(whole || warned) << text;
}

void DamageEverywhere(const std::string& text, std::size_t spectra, std::size_t points) {
  for (std::size_t length = 0; length < text.size(); ++length) {
    ExpectWholeOrWarned(text.substr(0, length), spectra, points);
  }
  for (std::size_t i = 0; i < text.size(); ++i) {
    for (const int change : {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80, 0xFF}) {
      std::string damaged = text;
      damaged[i] = static_cast<char>(damaged[i] ^ change);
      ExpectWholeOrWarned(damaged, spectra, points);
    }
  }
}

TEST(JcampDamage, NoTruncationOrChangedByteOfAWrittenFileGivesAHalfSpectrumInSilence) {
  StoredSpectrum spectrum;
  spectrum.name = "a";
  spectrum.time = "2026/11/21 10:59:00";
  spectrum.parameters = {{"Comparison", 97.35}, {"Sample Name", std::string("x")}};
  spectrum.spacing = 2;
  spectrum.ordinates = {200, {}};
  for (int i = 0; i < 24; ++i) spectrum.ordinates.values.push_back(0.01 * i);
  const std::vector<const StoredSpectrum*> two = {&spectrum, &spectrum};
  DamageEverywhere(WriteJcamp(two), 2, 24);
}

TEST(JcampDamage, NoTruncationOrChangedByteOfADifferenceFileGivesAHalfSpectrumInSilence) {
  SampleBlock block{.firstX = "10", .lastX = "1", .points = "10"};
  block.table = "(X++(Y..Y))\n10A00J1TkU\n5A16%Tj2\n2A04i8\n";
  ASSERT_THAT(OnlySpectrum(block.Text()).ordinates, SizeIs(10));
  DamageEverywhere(block.Text(), 1, 10);
}

}  // namespace
}  // namespace veritane::simulator
