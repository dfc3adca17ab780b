// Prints the match quality of every material against every other, as Markdown: a Standard of each row's
// material compared with a sample of each column's. Arguments: scans (16), noise (1), seed (7).
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "tests/simulator/instrument_match_quality.h"
#include "tests/simulator/instrument_rig.h"

namespace {

using namespace veritane::simulator;
using namespace veritane::simulator::instrument_tests;

std::vector<std::vector<double>> CollectAll(InstrumentRig& rig) {
  std::vector<std::vector<double>> spectra;
  for (const Material& material : Materials()) {
    if (!material.bands.empty()) spectra.push_back(rig.Absorbance(std::string(material.key)));
  }
  return spectra;
}

}  // namespace

int main(int count, char** arguments) {
  CompartmentState state =
      InstrumentRig::Seeded(count > 3 ? static_cast<std::uint32_t>(std::atol(arguments[3])) : 7);
  if (count > 2) state.noise = std::atof(arguments[2]);
  InstrumentRig rig(state);
  if (count > 1) rig.method.scans = std::atoi(arguments[1]);

  const std::vector<std::vector<double>> standards = CollectAll(rig);
  const std::vector<std::vector<double>> samples = CollectAll(rig);
  std::printf("| Standard \\ sample |");
  for (const Material& material : Materials().subspan(1))
    std::printf(" %.12s |", std::string(material.key).c_str());
  std::printf("\n|---|");
  for (std::size_t i = 0; i < samples.size(); ++i) std::printf("---|");
  std::printf("\n");
  for (std::size_t i = 0; i < standards.size(); ++i) {
    std::printf("| %s |", std::string(Materials()[i + 1].key).c_str());
    for (const std::vector<double>& sample : samples)
      std::printf(" %.2f |", MatchQuality(standards[i], sample));
    std::printf("\n");
  }
  return 0;
}
