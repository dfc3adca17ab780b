// Writing the report of a calibration.
#include "apps/veritane_calibrate/calibration_report.h"

#include <nlohmann/json.hpp>

#include <cstdio>

namespace veritane::calibrate {

namespace {

using nlohmann::ordered_json;
using plslibrary::ConstituentStudy;
using plslibrary::SampleStatistics;

std::vector<std::string> Reasons(const SampleStatistics& sample) {
  std::vector<std::string> reasons;
  if (sample.highLeverage) reasons.emplace_back("leverage");
  if (sample.highResidual) reasons.emplace_back("reference");
  if (sample.unusualSpectrum) reasons.emplace_back("spectrum");
  return reasons;
}

// Six significant digits, aligned.
std::string Figure(double number) {
  char text[32];
  std::snprintf(text, sizeof text, "%12.6g", number);
  return text;
}

ordered_json SamplesJson(const ConstituentStudy& study, const Eigen::VectorXd& reference,
                         const std::vector<Sample>& samples) {
  ordered_json list = ordered_json::array();
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const SampleStatistics& sample = study.samples[i];
    list.push_back({{"sample", samples[i].name},
                    {"reference", reference(static_cast<Eigen::Index>(i))},
                    {"predicted", sample.predicted},
                    {"leverage", sample.leverage},
                    {"studentizedResidual", sample.studentizedResidual},
                    {"distance", sample.distance},
                    {"residualProbability", sample.residualProbability},
                    {"outlier", Reasons(sample)}});
  }
  return list;
}

ordered_json StudyJson(const plslibrary::FactorSet& set, const ConstituentStudy& study,
                       const Eigen::VectorXd& reference, const std::vector<Sample>& samples) {
  const Eigen::VectorXd rmsecv = study.validation.Rmsecv();
  ordered_json numbers = ordered_json::array();
  for (Eigen::Index factors = 1; factors <= study.validation.Factors(); ++factors) numbers.push_back(factors);
  const double spread = (reference.array() - reference.mean()).square().sum();
  return {{"name", set.constituent},
          {"factors", study.factors},
          {"suggestedFactors", study.suggestedFactors},
          {"byFactors",
           {{"factors", numbers},
            {"press", std::vector<double>(study.validation.press.begin(), study.validation.press.end())},
            {"rmsecv", std::vector<double>(rmsecv.begin(), rmsecv.end())}}},
          {"rmsec", study.rmsec},
          {"rmsecv", set.rmsecv},
          {"q2", 1 - study.validation.press(study.factors - 1) / spread},
          {"samples", SamplesJson(study, reference, samples)}};
}

std::string StudyText(const plslibrary::FactorSet& set, const ConstituentStudy& study,
                      const std::vector<Sample>& samples) {
  std::string text = set.constituent + ":\n  factors        PRESS       RMSECV\n";
  const Eigen::VectorXd rmsecv = study.validation.Rmsecv();
  for (Eigen::Index factors = 1; factors <= study.validation.Factors(); ++factors) {
    const std::string number = std::to_string(factors);
    text += std::string(9 - number.size(), ' ') + number + Figure(study.validation.press(factors - 1)) + " " +
            Figure(rmsecv(factors - 1)) + "\n";
  }
  text += "  suggested: " + std::to_string(study.suggestedFactors) +
          ", taken: " + std::to_string(study.factors) + "\n";
  for (std::size_t i = 0; i < samples.size(); ++i) {
    if (!study.samples[i].IsOutlier()) continue;
    text += "  outlier: " + samples[i].name + " (";
    for (const std::string& reason : Reasons(study.samples[i])) {
      text += (text.ends_with('(') ? "" : ", ") + reason;
    }
    text += ")\n";
  }
  return text;
}

}  // namespace

std::string ReportText(const plslibrary::BuiltCalibration& built, const std::vector<Sample>& samples) {
  std::string text;
  for (std::size_t i = 0; i < built.studies.size(); ++i) {
    text += StudyText(built.calibration.sets[i], built.studies[i], samples);
  }
  return text;
}

std::string ReportJson(const plslibrary::BuiltCalibration& built, const plslibrary::CalibrationPlan& plan,
                       const std::vector<Sample>& samples) {
  const plslibrary::Calibration& calibration = built.calibration;
  ordered_json constituents = ordered_json::array();
  for (std::size_t i = 0; i < built.studies.size(); ++i) {
    constituents.push_back(
        StudyJson(calibration.sets[i], built.studies[i], plan.constituents[i].reference, samples));
  }
  const ordered_json report = {
      {"memo", calibration.memo},
      {"samples", calibration.samples},
      {"points", calibration.UsedPoints()},
      {"scaled", calibration.scaled},
      {"crossValidation",
       {{"leaveOneOut", calibration.groups == calibration.samples}, {"groups", calibration.groups}}},
      {"constituents", constituents}};
  return report.dump(2) + "\n";
}

}  // namespace veritane::calibrate
