// The band tables against published positions, and how names become samples.
#include "simulator/materials.h"

#include "simulator/instrument_model.h"
#include "tests/support/errors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace veritane::simulator {
namespace {

struct PublishedPeaks {
  const char* material;
  double tolerance;  // cm⁻¹
  std::vector<double> wavenumbers;
};

// Wavenumbers of the maxima of a spectrum, parabola through three points.
std::vector<double> Maxima(const state::Ordinates& spectrum, double spacing) {
  std::vector<double> maxima;
  const std::vector<double>& y = spectrum.values;
  for (std::size_t i = 1; i + 1 < y.size(); ++i) {
    if (!(y[i] > y[i - 1] && y[i] >= y[i + 1])) continue;
    const double shift = (y[i - 1] - y[i + 1]) / (2 * (y[i - 1] - 2 * y[i] + y[i + 1]));
    maxima.push_back((spectrum.lower + static_cast<double>(i) + shift) * spacing);
  }
  return maxima;
}

class Peaks : public ::testing::TestWithParam<PublishedPeaks> {};

TEST_P(Peaks, LieWhereTheLiteratureHasThem) {
  const auto& [material, tolerance, wavenumbers] = GetParam();
  constexpr double kSpacing = 0.5;
  const std::vector<double> maxima =
      Maxima(AbsorbanceOf(material, GridOver(400, 4000, kSpacing), 2), kSpacing);
  for (double wavenumber : wavenumbers) {
    const auto nearest = std::min_element(maxima.begin(), maxima.end(), [=](double a, double b) {
      return std::abs(a - wavenumber) < std::abs(b - wavenumber);
    });
    ASSERT_NE(nearest, maxima.end());
    EXPECT_NEAR(*nearest, wavenumber, tolerance);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Published, Peaks,
    ::testing::Values(
        // The wavenumbers of polystyrene film that serve to calibrate instruments.
        PublishedPeaks{"polystyrene",
                       1.5,
                       {539.8, 841.9, 906.6, 1028.3, 1069.1, 1154.5, 1583.0, 1601.2, 2850.1, 3001.4, 3026.4,
                        3060.0, 3082.2}},
        // Hummel and Scholl, "Atlas of Polymer and Plastics Analysis".
        PublishedPeaks{"polyethylene", 3, {719, 731, 1463, 1473, 2849, 2917}},
        PublishedPeaks{"polypropylene", 4, {841, 973, 998, 1167, 1376, 1458, 2838, 2868, 2918, 2952}},
        PublishedPeaks{"PET", 5, {725, 872, 1018, 1096, 1245, 1409, 1717}},
        PublishedPeaks{"PVC", 5, {615, 637, 692, 966, 1254, 1331, 1428, 2911}},
        PublishedPeaks{"PMMA", 5, {750, 841, 988, 1147, 1192, 1241, 1435, 1730, 2951}},
        // Pharmacopoeia identity spectra.
        PublishedPeaks{"aspirin", 4, {917, 1189, 1306, 1606, 1690, 1754}},
        PublishedPeaks{"paracetamol", 4, {837, 1228, 1260, 1443, 1507, 1565, 1611, 1654, 3326}},
        PublishedPeaks{"caffeine", 4, {610, 745, 973, 1238, 1549, 1660, 1700}},
        PublishedPeaks{"lactose", 5, {876, 899, 1034, 1072, 3527}},
        // Shimanouchi, "Tables of Molecular Vibrational Frequencies"; Bertie and Lan for water.
        PublishedPeaks{"ethanol", 4, {880, 1046, 1089, 2973}}, PublishedPeaks{"water", 8, {1643, 2128}}),
    [](const auto& instance) { return std::string(instance.param.material); });

TEST(Materials, HaveTablesThatAnInstrumentCanMeasure) {
  std::set<std::string_view> keys;
  for (const Material& material : Materials()) {
    EXPECT_TRUE(keys.insert(material.key).second) << material.key;
    EXPECT_EQ(FindMaterial(material.key), &material);
    for (std::string_view alias : material.aliases) EXPECT_EQ(FindMaterial(alias), &material) << alias;
    if (material.key == "empty") continue;
    EXPECT_GE(material.bands.size(), 12u) << material.key;
    double strongest = 0;
    for (const Band& band : material.bands) {
      EXPECT_GE(band.wavenumber, 400) << material.key;
      EXPECT_LE(band.wavenumber, 4000) << material.key;
      EXPECT_GE(band.width, 4) << material.key << " " << band.wavenumber;
      EXPECT_GT(band.height, 0) << material.key << " " << band.wavenumber;
      EXPECT_TRUE(band.lorentz >= 0 && band.lorentz <= 1) << material.key << " " << band.wavenumber;
      strongest = std::max(strongest, band.height);
    }
    EXPECT_LE(strongest, 1) << material.key;
    EXPECT_GE(strongest, 0.58) << material.key;
  }
  EXPECT_EQ(Materials().front().key, "empty");
}

TEST(Materials, AreFoundWithoutRegardToCaseAndBlanksAround) {
  ASSERT_NE(FindMaterial("  Acetylsalicylic ACID "), nullptr);
  EXPECT_EQ(FindMaterial("Aspirin"), FindMaterial("acetylsalicylic acid"));
  EXPECT_EQ(FindMaterial("unobtainium"), nullptr);
  EXPECT_EQ(FindMaterial("poly styrene"), nullptr);
}

TEST(Bands, HaveTheirHeightHalfWidthAndShape) {
  const WavenumberGrid grid = GridOver(500, 1500, 0.5);
  for (double lorentz : {0.0, 0.5, 1.0}) {
    const Band band{1000, .8, 20, lorentz};
    std::vector<double> absorbance(grid.Size(), 0.0);
    AddBands({&band, 1}, 2, grid, absorbance);
    EXPECT_NEAR(absorbance[1000], 1.6, 1e-12);
    EXPECT_NEAR(absorbance[1000 + 20], 0.8, 1e-3);
    EXPECT_NEAR(absorbance[1000 - 20], 0.8, 1e-3);
    EXPECT_GE(*std::min_element(absorbance.begin(), absorbance.end()), 0);
    // One width from the centre a Lorentz curve has 1/5 of its height, a Gauss curve 1/16.
    EXPECT_NEAR(absorbance[1000 + 40], 1.6 * (lorentz / 5 + (1 - lorentz) / 16), 2e-3);
  }
}

TEST(Bands, NearTheEdgeOfAGridOrOutsideItAreCutOff) {
  const Band bands[] = {{99, 1, 10, 1}, {401, 1, 10, 1}, {5000, 1, 10, 1}};
  const WavenumberGrid grid = GridOver(400, 500, 1);
  std::vector<double> absorbance(grid.Size(), 0.0);
  AddBands(bands, 1, grid, absorbance);
  EXPECT_NEAR(absorbance[1], 1, 1e-12);
  EXPECT_LT(absorbance[100], 0.01);
}

TEST(Samples, AreMaterialsMixturesOrFiles) {
  const LoadSpectrum load = [](const std::string& path) {
    return state::SpectrumBuffer{{100, {0.5, 0.7, 0.9}}, 4, static_cast<double>(path.size())};
  };
  const std::vector<SamplePart> mixture = SampleOf(" polystyrene 0.6+PMMA .4 + water", load);
  ASSERT_EQ(mixture.size(), 3u);
  EXPECT_EQ(mixture[0].material->key, "polystyrene");
  EXPECT_EQ(mixture[0].share, 0.6);
  EXPECT_EQ(mixture[1].share, 0.4);
  EXPECT_EQ(mixture[2].share, 1);
  for (const char* path : {"C:\\Spectra\\a + b", "film.JDX", "Z:\\film.bsp"}) {
    const std::vector<SamplePart> file = SampleOf(path, load);
    ASSERT_EQ(file.size(), 1u);
    EXPECT_EQ(file[0].material, nullptr);
    EXPECT_EQ(SampleAbsorbance(file, GridOver(402, 406, 2)), (std::vector<double>{0.6, 0.7, 0.8}));
  }
  EXPECT_TRUE(SampleOf("", load)[0].material->bands.empty());
}

TEST(Samples, ThatNobodyKnowsAreRefusedByName) {
  for (const char* name :
       {"unobtainium", "polystyrene -1", "polystyrene + kryptonite 0.4", "0.5", "pmma 0,4"}) {
    EXPECT_EQ(tests::ErrorOf([&] { SampleOf(name, {}); }), 5) << name;
  }
  const LoadSpectrum with_gap = [](const std::string&) {
    return state::SpectrumBuffer{{100, {0.5, std::nan(""), 0.9}}, 4, 3};
  };
  EXPECT_EQ(tests::ErrorOf([&] { SampleOf("gap.jdx", with_gap); }), 13);
}

}  // namespace
}  // namespace veritane::simulator
