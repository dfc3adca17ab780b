// From spectra and reference values to a calibration.
#include "plslibrary/calibration_builder.h"

#include "plslibrary/pls1.h"
#include "plslibrary/pls_error.h"
#include "plslibrary/prediction.h"

#include <algorithm>
#include <cmath>

namespace veritane::plslibrary {

namespace {

constexpr double kMostStudentized = 3;
constexpr double kMostProbable = 0.99;

Limits LimitsOf(const Eigen::VectorXd& values) {
  return {values.maxCoeff(), values.minCoeff()};
}

Eigen::MatrixXd UsedPointsOf(const std::vector<Band>& bands, const Eigen::MatrixXd& spectra) {
  Eigen::Index used = 0;
  for (const Band& band : bands) used += band.points;
  Eigen::MatrixXd points(spectra.rows(), used);
  Eigen::Index next = 0;
  for (const Band& band : bands) {
    points.middleCols(next, band.points) = spectra.middleCols(band.first, band.points);
    next += band.points;
  }
  return points;
}

void RequireEnough(const CalibrationPlan& plan, const Eigen::MatrixXd& spectra) {
  const auto require = [](bool holds, const std::string& fault) {
    if (!holds) throw PlsError(PlsCode::kNotEnoughInformation, fault);
  };
  require(spectra.rows() >= 4, "a calibration needs at least 4 samples");
  require(!plan.constituents.empty(), "a calibration needs a constituent");
  require(plan.groups == 0 || (plan.groups >= 2 && plan.groups <= spectra.rows()),
          "cross-validation needs at least 2 groups and no more than samples");
  for (const ConstituentPlan& constituent : plan.constituents) {
    if (!constituent.reference.allFinite()) {
      throw PlsError(PlsCode::kPreprocessing,
                     "reference values of \"" + constituent.name + "\" that are no numbers");
    }
    require(constituent.reference.maxCoeff() > constituent.reference.minCoeff(),
            "the reference values of \"" + constituent.name + "\" are all the same");
    require(constituent.factors <= spectra.rows() - 3,
            "\"" + constituent.name +
                "\": the number of factors has to be at least 3 below the number of samples");
  }
}

Eigen::Index ChosenFactors(const ConstituentPlan& plan, const CrossValidation& validation) {
  const Eigen::Index factors = plan.factors > 0 ? plan.factors : SuggestedFactors(validation);
  if (factors < 1 || factors > validation.Factors()) {
    throw PlsError(PlsCode::kNotEnoughInformation, "the spectra support no more than " +
                                                       std::to_string(validation.Factors()) +
                                                       " factors for \"" + plan.name + "\"");
  }
  return factors;
}

FactorSet FactorSetOf(const ConstituentPlan& plan, const Pls1Model& model, const Eigen::MatrixXd& processed,
                      const ConstituentStudy& study) {
  const Eigen::Index factors = study.factors;
  const auto samples = static_cast<double>(processed.rows());
  FactorSet set;
  set.constituent = plan.name;
  set.meanReference = plan.reference.mean();
  set.coefficients = Coefficients(model, factors);
  set.rotations = model.rotations.leftCols(factors);
  set.loadings = model.loadings.leftCols(factors);
  set.scoreVariances = model.scoreSquares.head(factors) / (samples - 1);
  const auto residuals = study.validation.residuals.col(factors - 1);
  // Exact data leave no residual at all; rounding is the least that a ratio can be taken to.
  set.residualSum = std::max(residuals.sum(), 1e-28 * processed.squaredNorm());
  set.concentrationLimits = LimitsOf(plan.reference);
  set.residualLimits = LimitsOf(residuals);
  set.distanceLimits = LimitsOf(study.validation.distances.col(factors - 1));
  for (Eigen::Index factor = 0; factor < factors; ++factor) {
    set.scoreLimits.push_back(LimitsOf(model.scores.col(factor)));
  }
  set.rmsecv = study.validation.Rmsecv()(factors - 1);
  return set;
}

void JudgeSamples(const Calibration& calibration, const FactorSet& set, const Pls1Model& model,
                  const Eigen::VectorXd& centred_reference, ConstituentStudy& study) {
  const Eigen::Index factors = study.factors;
  const Eigen::Index samples = calibration.samples;
  const double freedom = static_cast<double>(samples - factors - 1);
  const Eigen::VectorXd errors =
      model.scores.leftCols(factors) * model.inner.head(factors) - centred_reference;
  study.rmsec = std::sqrt(errors.squaredNorm() / freedom);
  const double most_leverage = 3 * static_cast<double>(factors + 1) / static_cast<double>(samples);
  for (Eigen::Index i = 0; i < samples; ++i) {
    const auto shares = model.scores.row(i).head(factors).transpose().array().square() /
                        model.scoreSquares.head(factors).array();
    SampleStatistics sample;
    sample.predicted = study.validation.predicted(i, factors - 1);
    sample.leverage = 1 / static_cast<double>(samples) + shares.sum();
    const double deviation = study.rmsec * std::sqrt(std::max(1 - sample.leverage, 0.0));
    sample.studentizedResidual = deviation > 0 ? errors(i) / deviation : 0;
    sample.distance = study.validation.distances(i, factors - 1);
    sample.residualProbability =
        ResidualProbability(calibration, set, study.validation.residuals(i, factors - 1));
    sample.highLeverage = sample.leverage > most_leverage;
    sample.highResidual = std::abs(sample.studentizedResidual) > kMostStudentized;
    sample.unusualSpectrum = sample.residualProbability > kMostProbable;
    study.samples.push_back(sample);
  }
}

}  // namespace

BuiltCalibration BuildCalibration(const CalibrationPlan& plan, const Eigen::MatrixXd& spectra) {
  RequireEnough(plan, spectra);
  BuiltCalibration built;
  Calibration& calibration = built.calibration;
  calibration.memo = plan.memo;
  calibration.axis = plan.axis;
  calibration.bands = plan.bands.empty() ? std::vector<Band>{{0, plan.axis.points}} : plan.bands;
  calibration.scaled = plan.scaled;
  calibration.samples = spectra.rows();
  calibration.groups = plan.groups == 0 ? spectra.rows() : plan.groups;

  const Eigen::MatrixXd points = UsedPointsOf(calibration.bands, spectra);
  if (!points.allFinite()) throw PlsError(PlsCode::kPreprocessing, "spectra with points that are no numbers");
  calibration.preprocessing = LearnPreprocessing(points, plan.scaled);
  const Eigen::MatrixXd processed = Preprocess(calibration.preprocessing, points);
  for (const ConstituentPlan& constituent : plan.constituents) {
    ConstituentStudy study;
    const Eigen::Index most =
        std::clamp<Eigen::Index>(std::max(plan.mostFactors, constituent.factors), 1, spectra.rows() - 3);
    study.validation = CrossValidate(points, constituent.reference, most, calibration.groups, plan.scaled);
    study.suggestedFactors = SuggestedFactors(study.validation);
    study.factors = ChosenFactors(constituent, study.validation);
    const Eigen::VectorXd centred = constituent.reference.array() - constituent.reference.mean();
    const Pls1Model model = FitPls1(processed, centred, study.factors);
    if (model.Factors() < study.factors) {
      throw PlsError(PlsCode::kNotEnoughInformation, "the spectra support fewer factors for \"" +
                                                         constituent.name + "\" than cross-validation did");
    }
    calibration.sets.push_back(FactorSetOf(constituent, model, processed, study));
    JudgeSamples(calibration, calibration.sets.back(), model, centred, study);
    built.studies.push_back(std::move(study));
  }
  RequireSound(calibration);
  return built;
}

}  // namespace veritane::plslibrary
