// Prints the match quality of every material against every other, as Markdown: a Standard of each row's
// material compared with a sample of each column's, each collected against a background of its own.
//
// material_matrix ROOT    (an empty folder, which becomes the data root)
#include "identification/correlation.h"
#include "platform/system/system_machine.h"
#include "simulator/instrument.h"
#include "simulator/materials.h"

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace {

using namespace veritane;

class Matrix {
public:
  explicit Matrix(const std::filesystem::path& root) : machine_(root, "C") {
    std::filesystem::create_directories(root / "drive_c");
    // The first is the empty compartment.
    for (const simulator::Material& material : simulator::Materials().subspan(1)) {
      materials_.emplace_back(material.key);
    }
  }

  void Print() {
    const std::vector<state::Ordinates> standards = CollectAll();
    const std::vector<state::Ordinates> samples = CollectAll();
    std::printf("| Standard \\ sample |");
    for (const std::string& material : materials_) std::printf(" %.12s |", material.c_str());
    std::printf("\n|---|");
    for (std::size_t i = 0; i < samples.size(); ++i) std::printf("---|");
    std::printf("\n");
    for (std::size_t i = 0; i < standards.size(); ++i) {
      std::printf("| %s |", materials_[i].c_str());
      for (const state::Ordinates& sample : samples) {
        std::printf(" %.2f |", identification::EuclideanComparison(standards[i], sample));
      }
      std::printf("\n");
    }
  }

private:
  std::vector<state::Ordinates> CollectAll() {
    std::vector<state::Ordinates> spectra;
    spectra.reserve(materials_.size());
    for (const std::string& material : materials_) spectra.push_back(Prepared(material));
    return spectra;
  }

  state::Ordinates Prepared(const std::string& material) {
    simulator::CollectRequest request;
    request.methodText = simulator::CollectMethodText({});
    const simulator::Measurement background = Collect("empty", request);
    auto stored = std::make_shared<simulator::StoredSpectrum>();
    stored->spacing = background.spacing;
    stored->ordinates = background.values;
    request.backgroundName = "back.bsp(1)";
    request.background = std::move(stored);
    state::SpectrumBuffer spectrum;
    spectrum.Data = Collect(material, request).values;
    spectrum.NumPts = static_cast<double>(spectrum.Data.Size());
    identification::PrepareForEuclidean(spectrum, {});
    return spectrum.Data;
  }

  simulator::Measurement Collect(const std::string& sample, const simulator::CollectRequest& request) {
    simulator::CompartmentState state;
    state.sample = sample;
    state.duration = 0;
    state.seed = 7;
    compartment_.Write(state);
    return instrument_.Collect(request);
  }

  platform::SystemMachine machine_;
  simulator::Compartment compartment_{machine_.files, "C:\\compartment.txt"};
  // Nothing here opens files, waits or is left to chance.
  simulator::SimulatedInstrument instrument_{compartment_, {}};
  std::vector<std::string> materials_;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: material_matrix ROOT\n", stderr);
    return 2;
  }
  Matrix(argv[1]).Print();
  return 0;
}
