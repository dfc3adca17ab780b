// Real files of other programs. The expected values were decoded independently of this reader: a script split
// the tables with a regular expression and added whole numbers, scaled in decimal arithmetic.
#include "simulator/jcamp_reader.h"
#include "simulator/spectrum_file.h"
#include "tests/identification/reference.h"
#include "tests/simulator/jcamp_text_samples.h"
#include "tests/support/test_data.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace veritane::simulator {
namespace {

using ::testing::HasSubstr;
using ::testing::SizeIs;
using tests::TestDataBytes;

struct Expected {
  const char* file;
  std::size_t block;
  std::size_t points;
  double firstX, lastX;
  double first, hundredth, last, smallest, largest, sum;
};

class RealFiles : public ::testing::TestWithParam<Expected> {};

TEST_P(RealFiles, DecodeToTheIndependentlyKnownValues) {
  const Expected& expected = GetParam();
  const JcampFile file = ReadJcamp(TestDataBytes(expected.file));
  ASSERT_GT(file.spectra.size(), expected.block);
  const JcampSpectrum& spectrum = file.spectra[expected.block];
  const std::vector<double>& y = spectrum.ordinates;
  ASSERT_THAT(y, SizeIs(expected.points));
  EXPECT_EQ(spectrum.firstX, expected.firstX);
  EXPECT_EQ(spectrum.lastX, expected.lastX);
  const double tolerance = 1e-14 * std::max(std::abs(expected.largest), std::abs(expected.smallest));
  EXPECT_NEAR(y.front(), expected.first, tolerance);
  EXPECT_NEAR(y[100], expected.hundredth, tolerance);
  EXPECT_NEAR(y.back(), expected.last, tolerance);
  EXPECT_NEAR(*std::ranges::min_element(y), expected.smallest, tolerance);
  EXPECT_NEAR(*std::ranges::max_element(y), expected.largest, tolerance);
  const auto points = static_cast<double>(y.size());
  EXPECT_NEAR(std::accumulate(y.begin(), y.end(), 0.0), expected.sum, tolerance * points);
}

INSTANTIATE_TEST_SUITE_P(
    Jcamp, RealFiles,
    ::testing::Values(
        Expected{"jcamp/compound.jdx", 0, 1976, 4400, 450, 0.0467, 0.0596, 0.3528, 0.0212, 0.4932, 348.8832},
        Expected{"jcamp/compound.jdx", 1, 1976, 4400, 450, 0.0554, 0.0617, 0.4396, 0.0088, 0.5976, 429.5294},
        Expected{"jcamp/compound.jdx", 2, 3951, 4400, 450, 0.5607, 0.58, 0.6564, 0.0014, 0.694, 1983.6986},
        Expected{"jcamp/compound.jdx", 3, 1976, 4400, 450, 0.378, 0.3998, 0.3689, 0.1051, 0.6374, 863.5109},
        Expected{"jcamp/compound.jdx", 4, 3951, 4400, 450, 0.5385, 0.5516, 0.7228, 0.0141, 0.7271, 2001.8383},
        Expected{"jcamp/dupdec1.jdx", 0, 3951, 4400, 450, 82.25, 78.91, 78.58, 0.02, 87.1, 258441.61},
        Expected{"jcamp/dupinc1.jdx", 0, 440, 250, 469.5, 1.1663, 0.1853, 0.1626, 0.0769, 3.3747, 164.7604},
        Expected{"jcamp/fixdec1.jdx", 0, 3951, 4400.007, 450, 64.915172496, 65.565193968, 66.91711656,
                 -0.192259872, 81.98510256, 248877.248800704},
        Expected{"jcamp/fixinc1.jdx", 0, 3736, 399.263973, 4001.31938, 112.89056539461538, 71.2618827815154,
                 69.65283155395636, -0.198709964750895, 112.89056539461538, 220413.98681257755},
        Expected{"jcamp/fixinc3.jdx", 0, 360, 1, 360, 0.01745235193104, 0.98162403535872, 0,
                 -0.99999723552768, 0.99999723552768, 0},
        Expected{"jcamp/jtpolys.jdx", 0, 1844, 447.484259, 4002.28378, 0.9816334962780516, 1.0105406212740475,
                 0.9866095948154641, 0.3428528714157523, 1.0228160643510544, 1794.1582600976665},
        Expected{"jcamp/pacdec1.jdx", 0, 3301, 4000, 700, 101.6, 101.66, 101.24, 86.31, 101.89, 330088.99},
        Expected{"jcamp/sqzdec1.jdx", 0, 16384, 24038.5, 0, 2259260, -10538500, 1505988, -27593530, 972201806,
                 628687690},
        Expected{"jcamp/xyinc1.jdx", 0, 3601, 400, 4000, 0.448, 0.7848, 0.7456, -0.0023, 0.7945, 2291.4786}),
    [](const auto& test) {
      const std::string name = test.param.file;
      return name.substr(6, name.find('.') - 6) + "_" + std::to_string(test.param.block);
    });

StoredSpectrum Opened(const std::string& name) {
  const SpectrumFile file = ReadSpectrumFile(name, TestDataBytes(name));
  EXPECT_THAT(file.spectra, SizeIs(1));
  return file.spectra.front();
}

std::string TextParameter(const StoredSpectrum& spectrum, std::string_view name) {
  const auto found = std::ranges::find(spectrum.parameters, name, &NamedValue::name);
  return found == spectrum.parameters.end() ? "" : std::get<std::string>(found->value);
}

TEST(RealFilesOnTheirGrid, ExactGridsKeepTheirValuesAndNominalSpacing) {
  const StoredSpectrum decreasing = Opened("jcamp/dupdec1.jdx");
  EXPECT_EQ(decreasing.spacing, 1);
  EXPECT_EQ(decreasing.ordinates.lower, 450);
  EXPECT_EQ(decreasing.ordinates.values.back(), 82.25) << "descending x is turned";
  EXPECT_EQ(decreasing.time, "1997/01/01 13:24:13");
  EXPECT_THAT(TextParameter(decreasing, kWarningsParameter), HasSubstr("MINY declares 0.01"));
  EXPECT_EQ(TextParameter(decreasing, kInterpolatedParameter), "");

  // 414 and 232 steps of a spacing that the files give with nine digits.
  const StoredSpectrum rounded = Opened("jcamp/fixinc1.jdx");
  EXPECT_EQ(rounded.ordinates.lower, 414);
  EXPECT_NEAR(rounded.spacing, 0.964405731, 1e-8);
  EXPECT_EQ(TextParameter(rounded, kInterpolatedParameter), "");
  EXPECT_EQ(Opened("jcamp/jtpolys.jdx").ordinates.lower, 232);
}

TEST(RealFilesOnTheirGrid, AFileBesideItsGridIsInterpolatedAndSaysSo) {
  const StoredSpectrum spectrum = Opened("jcamp/fixdec1.jdx");
  EXPECT_EQ(spectrum.spacing, 1);
  EXPECT_EQ(spectrum.ordinates.lower, 450);
  EXPECT_EQ(spectrum.ordinates.Upper(), 4400);
  EXPECT_THAT(TextParameter(spectrum, kInterpolatedParameter), HasSubstr("450 to 4400.007"));
  EXPECT_NEAR(spectrum.ordinates.values.front(), 66.91711656, 1e-12) << "450 was a point of the file";
}

TEST(RealFilesOnTheirGrid, TheCompoundFileGivesFiveSpectraWithTheirNames) {
  const SpectrumFile file = ReadSpectrumFile("compound", TestDataBytes("jcamp/compound.jdx"));
  ASSERT_THAT(file.spectra, SizeIs(5));
  EXPECT_EQ(file.spectra[3].name, "trans-[Rh(py)4Cl2]Cl.5H2O");
  EXPECT_EQ(file.spectra[3].time, "1995/11/30 11:27:21");
  EXPECT_EQ(file.spectra[3].spacing, 2);
  EXPECT_EQ(file.spectra[3].ordinates.lower, 225);
  EXPECT_EQ(file.spectra[4].spacing, 1);
}

TEST(RealFilesOnTheirGrid, APeakTableSaysThatItIsOne) {
  EXPECT_THAT(FaultOf(TestDataBytes("jcamp/pktab1.jdx")), HasSubstr("line 21: ##PEAK TABLE= is not a table"));
}

TEST(RealFilesOnTheirGrid, ThePolymersLieOnTheirCommonGrid) {
  struct Grid {
    std::int32_t lower;
    std::size_t points;
  };
  const std::vector<Grid> grids{{80, 720}, {124, 676}, {144, 656}};
  const auto& groups = identification::reference::MaterialsByFirstWavenumber();
  ASSERT_THAT(groups, SizeIs(grids.size()));
  for (std::size_t i = 0; i < groups.size(); ++i) {
    for (const std::string& name : groups[i]) {
      const StoredSpectrum spectrum = Opened("ftir/" + name + ".jdx");
      EXPECT_EQ(spectrum.spacing, 5) << name;
      EXPECT_EQ(spectrum.ordinates.lower, grids[i].lower) << name;
      EXPECT_EQ(spectrum.ordinates.Size(), grids[i].points) << name;
      EXPECT_EQ(TextParameter(spectrum, kWarningsParameter), "") << name;
      EXPECT_EQ(TextParameter(spectrum, kInterpolatedParameter), "") << name;
      EXPECT_THAT(spectrum.labels, ::testing::Contains(::testing::Field(&FileLabel::name, "ORIGIN"))) << name;
    }
  }
}

}  // namespace
}  // namespace veritane::simulator
