// Small JCAMP-DX texts for the tests of the reader.
#pragma once

#include "simulator/jcamp_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veritane::simulator {

// A block with one table. `table` is everything behind "##XYDATA=", lines ended by "\n".
struct SampleBlock {
  std::string title = "sample";
  std::string firstX = "1";
  std::string lastX = "4";
  std::string points = "4";
  std::string xFactor = "1";
  std::string yFactor = "1";
  std::string more = "";  // further labels
  std::string table = "(X++(Y..Y))\n1 10 20 30 40\n";
  std::string label = "XYDATA";

  std::string Text() const {
    return "##TITLE= " + title + "\n##JCAMP-DX= 4.24\n##DATA TYPE= INFRARED SPECTRUM\n##XUNITS= 1/CM\n" +
           "##YUNITS= ABSORBANCE\n##XFACTOR= " + xFactor + "\n##YFACTOR= " + yFactor +
           "\n##FIRSTX= " + firstX + "\n##LASTX= " + lastX + "\n##NPOINTS= " + points + "\n" + more + "##" +
           label + "= " + table + "##END=\n";
  }
};

// The only spectrum of a text.
inline JcampSpectrum OnlySpectrum(const std::string& text) {
  const JcampFile file = ReadJcamp(text);
  EXPECT_EQ(file.spectra.size(), 1u);
  return file.spectra.front();
}

// The ordinates of `lines` as a table of (X++(Y..Y)) from 1 in steps of 1, without scaling.
inline std::vector<double> Ordinates(const std::string& lines, int points) {
  SampleBlock block;
  block.lastX = block.points = std::to_string(points);
  block.table = "(X++(Y..Y))\n" + lines;
  return OnlySpectrum(block.Text()).ordinates;
}

// What the reader says against a text; "" when it reads it.
inline std::string FaultOf(const std::string& text) {
  try {
    ReadJcamp(text);
  } catch (const JcampFault& fault) {
    return fault.what();
  }
  return "";
}

inline std::string AllWarnings(const JcampSpectrum& spectrum) {
  std::string all;
  for (const std::string& warning : spectrum.warnings) {
    all += warning + "\n";
  }
  return all;
}

}  // namespace veritane::simulator
