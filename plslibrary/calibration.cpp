// What makes a calibration sound, and what it can be applied to.
#include "plslibrary/calibration.h"

#include "plslibrary/pls_error.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace veritane::plslibrary {

namespace {

void Require(bool holds, const std::string& fault) {
  if (!holds) throw PlsError(PlsCode::kCalibrationRead, fault);
}

bool IsSound(const Limits& limits) {
  return std::isfinite(limits.high) && std::isfinite(limits.low) && limits.low <= limits.high;
}

void RequireSoundAxis(const Axis& axis) {
  Require(axis.points >= 2, "an axis of fewer than two points");
  Require(std::isfinite(axis.firstX) && std::isfinite(axis.lastX) && axis.firstX < axis.lastX &&
              std::isfinite(axis.lastX - axis.firstX),
          "an axis that does not ascend");
}

// The number of points in the bands.
Eigen::Index RequireSoundBands(const Calibration& calibration) {
  if (calibration.bands.empty()) throw PlsError(PlsCode::kNotEnoughInformation, "no bands");
  Eigen::Index next = 0;
  Eigen::Index used = 0;
  for (const Band& band : calibration.bands) {
    Require(band.first >= next && band.points >= 1 && band.points <= calibration.axis.points &&
                band.first <= calibration.axis.points - band.points,
            "bands outside the axis or out of order");
    next = band.first + band.points;
    used += band.points;
  }
  return used;
}

void RequireSoundSizes(const FactorSet& set, Eigen::Index used_points) {
  const Eigen::Index factors = set.Factors();
  Require(factors <= kMostFactors, "too many factors");
  Require(set.coefficients.size() == used_points && set.rotations.rows() == used_points &&
              set.rotations.cols() == factors && set.loadings.rows() == used_points &&
              set.loadings.cols() == factors && std::cmp_equal(set.scoreLimits.size(), factors),
          "parts of \"" + set.constituent + "\" that do not fit each other");
}

void RequireSoundNumbers(const FactorSet& set) {
  const bool finite = std::isfinite(set.meanReference) && set.coefficients.allFinite() &&
                      set.rotations.allFinite() && set.loadings.allFinite() &&
                      set.scoreVariances.allFinite() && std::isfinite(set.residualSum) &&
                      std::isfinite(set.rmsecv);
  Require(finite, "values of \"" + set.constituent + "\" that are no numbers");
  Require((set.scoreVariances.array() > 0).all() && set.residualSum > 0 && set.rmsecv >= 0,
          "variances of \"" + set.constituent + "\" that are not positive");
  Require(IsSound(set.concentrationLimits) && IsSound(set.residualLimits) && IsSound(set.distanceLimits) &&
              std::ranges::all_of(set.scoreLimits, IsSound),
          "limits of \"" + set.constituent + "\" the wrong way round");
}

void RequireSoundSet(const FactorSet& set, Eigen::Index used_points, Eigen::Index samples) {
  const std::optional<std::string> name = SingleByteText(set.constituent);
  Require(name && !name->empty() && name->size() <= kLongestName, "a constituent without a proper name");
  if (set.Factors() < 1 || samples < set.Factors() + 3) {
    throw PlsError(PlsCode::kNotEnoughInformation,
                   "\"" + set.constituent + "\" needs a factor, and three samples more than it has factors");
  }
  RequireSoundSizes(set, used_points);
  RequireSoundNumbers(set);
}

// The code point that begins at `position`, which moves behind it; nothing beyond U+00FF or for what is no
// UTF-8.
std::optional<unsigned> NextCharacter(std::string_view utf8, std::size_t& position) {
  const auto lead = static_cast<unsigned char>(utf8[position++]);
  if (lead < 0x80) return lead;
  if ((lead != 0xC2 && lead != 0xC3) || position == utf8.size()) return std::nullopt;
  const auto trail = static_cast<unsigned char>(utf8[position++]);
  if ((trail & 0xC0U) != 0x80) return std::nullopt;
  return ((lead & 3U) << 6U) | (trail & 0x3FU);
}

}  // namespace

double Axis::XOf(Eigen::Index point) const {
  return firstX + (lastX - firstX) * static_cast<double>(point) / static_cast<double>(points - 1);
}

void RequireSound(const Calibration& calibration) {
  Require(SingleByteText(calibration.memo).has_value(), "a memo that is no plain text");
  RequireSoundAxis(calibration.axis);
  const Eigen::Index used = RequireSoundBands(calibration);
  Require(calibration.preprocessing.mean.size() == used && calibration.preprocessing.factor.size() == used,
          "preprocessing that does not fit the bands");
  Require(calibration.preprocessing.mean.allFinite() && calibration.preprocessing.factor.allFinite() &&
              (calibration.preprocessing.factor.array() > 0).all(),
          "preprocessing that is no numbers");
  Require(calibration.groups >= 2 && calibration.groups <= calibration.samples, "a wrong number of groups");
  if (calibration.sets.empty()) throw PlsError(PlsCode::kNotEnoughInformation, "no constituents");
  for (const FactorSet& set : calibration.sets) {
    RequireSoundSet(set, used, calibration.samples);
  }
}

std::optional<std::string> SingleByteText(std::string_view utf8) {
  std::string text;
  for (std::size_t position = 0; position < utf8.size();) {
    const std::optional<unsigned> character = NextCharacter(utf8, position);
    if (!character || *character < 0x20 || (*character >= 0x7F && *character < 0xA0)) return std::nullopt;
    text.push_back(static_cast<char>(*character));
  }
  return text;
}

Eigen::VectorXd OnAxis(const Axis& axis, const MeasuredSpectrum& spectrum) {
  const auto require_same = [](bool same, const std::string& what) {
    if (!same)
      throw PlsError(PlsCode::kSourceMismatch, what + " of the spectrum differs from the calibration's");
  };
  require_same(std::cmp_equal(spectrum.y.size(), axis.points), "the number of points");
  const auto same_unit = [](int one, int other) { return one == other || one == 0 || other == 0; };
  require_same(same_unit(spectrum.xType, axis.xType), "the unit of x");
  require_same(same_unit(spectrum.yType, axis.yType), "the unit of y");

  const Eigen::Map<const Eigen::VectorXd> points(spectrum.y.data(), axis.points);
  if (std::isnan(spectrum.firstX) && std::isnan(spectrum.lastX)) return points;
  const bool turned = spectrum.firstX > spectrum.lastX;
  const double step = (axis.lastX - axis.firstX) / static_cast<double>(axis.points - 1);
  // File formats round the ends to 32-bit floats.
  const double tolerance = std::max(1e-3, 0.01 * step);
  require_same(std::abs((turned ? spectrum.lastX : spectrum.firstX) - axis.firstX) <= tolerance,
               "the first x");
  require_same(std::abs((turned ? spectrum.firstX : spectrum.lastX) - axis.lastX) <= tolerance, "the last x");
  if (turned) return points.reverse();
  return points;
}

}  // namespace veritane::plslibrary
