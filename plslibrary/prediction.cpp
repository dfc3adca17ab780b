// Predicting one spectrum.
#include "plslibrary/prediction.h"

#include "plslibrary/f_distribution.h"
#include "plslibrary/pls_error.h"

#include <cmath>

namespace veritane::plslibrary {

namespace {

void PredictSet(const FactorSet& set, const Eigen::VectorXd& processed, SetPrediction& prediction) {
  prediction.concentration = Concentration(set, processed);
  prediction.scores.noalias() = set.rotations.transpose() * processed;
  prediction.residualSpectrum = processed;
  prediction.residualSpectrum.noalias() -= set.loadings * prediction.scores;
  prediction.residual = prediction.residualSpectrum.squaredNorm();
  prediction.distance = std::sqrt((prediction.scores.array().square() / set.scoreVariances.array()).sum());
  if (!std::isfinite(prediction.concentration) || !std::isfinite(prediction.residual) ||
      !std::isfinite(prediction.distance)) {
    throw PlsError(PlsCode::kMathematics,
                   "\"" + set.constituent + "\" cannot be computed from this spectrum");
  }
}

}  // namespace

Prediction RoomForPrediction(const Calibration& calibration) {
  Prediction prediction;
  prediction.processed.resize(calibration.UsedPoints());
  for (const FactorSet& set : calibration.sets) {
    SetPrediction room;
    room.scores.resize(set.Factors());
    room.residualSpectrum.resize(calibration.UsedPoints());
    prediction.sets.push_back(std::move(room));
  }
  return prediction;
}

void PrepareSpectrum(const Calibration& calibration, const Eigen::Ref<const Eigen::VectorXd>& source,
                     Eigen::VectorXd& processed) {
  Eigen::Index used = 0;
  for (const Band& band : calibration.bands) {
    processed.segment(used, band.points) =
        (source.segment(band.first, band.points) - calibration.preprocessing.mean.segment(used, band.points))
            .cwiseProduct(calibration.preprocessing.factor.segment(used, band.points));
    used += band.points;
  }
}

double Concentration(const FactorSet& set, const Eigen::VectorXd& processed) {
  return set.meanReference + set.coefficients.dot(processed);
}

void Predict(const Calibration& calibration, const Eigen::Ref<const Eigen::VectorXd>& source,
             Prediction& prediction) {
  PrepareSpectrum(calibration, source, prediction.processed);
  if (!prediction.processed.allFinite()) {
    throw PlsError(PlsCode::kPreprocessing, "the spectrum holds points that are no numbers");
  }
  for (std::size_t i = 0; i < calibration.sets.size(); ++i) {
    PredictSet(calibration.sets[i], prediction.processed, prediction.sets[i]);
  }
}

FRatioPair FRatioOf(const Calibration& calibration, const FactorSet& set) {
  return {static_cast<double>(calibration.samples), set.residualSum};
}

double ResidualProbability(const Calibration& calibration, const FactorSet& set, double residual) {
  const FRatioPair pair = FRatioOf(calibration, set);
  return FProbability(residual * pair.samples / pair.residualSum, 1,
                      pair.samples - static_cast<double>(set.Factors()) - 2);
}

}  // namespace veritane::plslibrary
