// The spectra make sense to the comparison that they are meant for: a material passes as itself and as
// nothing else.
#include "tests/simulator/instrument_rig.h"

#include <gtest/gtest.h>

#include <string>

namespace veritane::simulator::instrument_tests {
namespace {

TEST(MaterialMatrix, EveryMaterialMatchesItselfAndNoOtherNorAnEmptyCompartment) {
  InstrumentRig rig;
  std::vector<std::string> names;
  std::vector<std::vector<double>> standards;
  std::vector<std::vector<double>> samples;
  for (const Material& material : Materials().subspan(1)) {
    names.emplace_back(material.key);
    standards.push_back(rig.Absorbance(names.back()));
    samples.push_back(rig.Absorbance(names.back()));
  }
  const std::vector<double> nothing = rig.Absorbance("empty");
  for (std::size_t i = 0; i < names.size(); ++i) {
    EXPECT_LT(MatchQuality(standards[i], nothing), 70) << names[i];
    for (std::size_t k = 0; k < names.size(); ++k) {
      const double quality = MatchQuality(standards[i], samples[k]);
      if (i == k) {
        EXPECT_GT(quality, 99) << names[i];
        EXPECT_LT(quality, 100) << names[i] << " without any noise";
      } else {
        EXPECT_LT(quality, 70) << names[i] << " and " << names[k];
      }
    }
  }
}

double SelfMatch(int scans, double noise, const std::string& sample = "paracetamol") {
  CompartmentState state = InstrumentRig::Seeded(3);
  InstrumentRig rig(state);
  const std::vector<double> standard = rig.Absorbance("paracetamol");
  state.noise = noise;
  rig.Put(state);
  rig.method.scans = scans;
  return MatchQuality(standard, rig.Absorbance(sample));
}

TEST(MaterialMatrix, FewerScansAndMoreNoiseLowerTheMatchGently) {
  const double usual = SelfMatch(16, 1);
  const double hasty = SelfMatch(1, 1);
  const double noisy = SelfMatch(1, 10);
  EXPECT_GT(usual, hasty);
  EXPECT_GT(hasty, noisy);
  EXPECT_GT(hasty, 98.5);
  EXPECT_GT(noisy, 90);
  EXPECT_LT(noisy, 99);
}

TEST(MaterialMatrix, AnAdmixtureLowersTheMatchWithItsShare) {
  const double little = SelfMatch(16, 1, "paracetamol 0.98 + caffeine 0.02");
  const double more = SelfMatch(16, 1, "paracetamol 0.9 + caffeine 0.1");
  const double half = SelfMatch(16, 1, "paracetamol 0.5 + caffeine 0.5");
  EXPECT_GT(little, 96);
  EXPECT_LT(more, little - 2);
  EXPECT_LT(half, 90);
}

TEST(MaterialMatrix, AThinnerSampleStillMatches) {
  EXPECT_GT(SelfMatch(16, 1, "paracetamol 0.8"), 96);
}

}  // namespace
}  // namespace veritane::simulator::instrument_tests
