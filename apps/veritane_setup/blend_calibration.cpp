// Blends from 4 to 96 percent, and PLS1 models of both constituents.
#include "apps/veritane_setup/blend_calibration.h"

#include "apps/veritane_setup/measurement.h"
#include "platform/number_text.h"
#include "plslibrary/calibration_builder.h"
#include "plslibrary/calibration_file.h"

#include <span>

namespace veritane::setup {

namespace {

constexpr int kBlends = 24;
constexpr double kStep = 4;  // percent
constexpr std::uint64_t kFirstSeed = 41000;
constexpr Eigen::Index kMostFactors = 6;
// Unit codes of the axis: cm⁻¹ and absorbance.
constexpr int kWavenumber = 1;
constexpr int kAbsorbance = 2;

}  // namespace

std::string BlendCalibration(const simulator::CollectMethodSettings& method) {
  Eigen::MatrixXd spectra;
  Eigen::VectorXd polystyrene(kBlends);
  plslibrary::CalibrationPlan plan;
  for (int blend = 0; blend < kBlends; ++blend) {
    polystyrene[blend] = kStep * (blend + 1);
    const double share = polystyrene[blend] / 100;
    const state::Ordinates measured =
        MeasureAbsorbance("polystyrene " + platform::PlainNumberText(share) + " + polyethylene " +
                              platform::PlainNumberText(1 - share),
                          method, kFirstSeed + static_cast<std::uint64_t>(blend));
    if (blend == 0) {
      const double spacing = simulator::GridOf(method).spacing;
      plan.axis = {.firstX = measured.lower * spacing,
                   .lastX = measured.Upper() * spacing,
                   .points = static_cast<Eigen::Index>(measured.Size()),
                   .xType = kWavenumber,
                   .yType = kAbsorbance};
      spectra.resize(kBlends, plan.axis.points);
    }
    spectra.row(blend) = Eigen::Map<const Eigen::RowVectorXd>(measured.values.data(), plan.axis.points);
  }
  plan.memo = "Polystyrene and polyethylene in a blend, simulated";
  plan.mostFactors = kMostFactors;
  plan.constituents = {{.name = "Polystyrene [%]", .reference = polystyrene},
                       {.name = "Polyethylene [%]", .reference = 100 - polystyrene.array()}};
  const plslibrary::Calibration calibration = plslibrary::BuildCalibration(plan, spectra).calibration;
  return plslibrary::CalibrationFileText(std::span(&calibration, 1));
}

}  // namespace veritane::setup
