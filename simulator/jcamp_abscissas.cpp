// Checks of the x values in a table.
#include "simulator/jcamp_abscissas.h"

#include <algorithm>
#include <cmath>

namespace veritane::simulator {

namespace {

// The x values as if FIRSTX were followed by equal steps.
struct Ladder {
  double first = 0;
  double step = 0;
  double At(double index) const { return first + index * step; }
};

double Deviation(const LineStart& line, double x_factor, const Ladder& ladder) {
  return std::abs(line.x * x_factor - ladder.At(static_cast<double>(line.index)));
}

// Lost points leave the lines before the gap on the declared ladder counted from the front, and those behind
// it on the same ladder counted from the back. A wrong NPOINTS leaves all lines on the decoded ladder.
bool PointsAreMissing(std::span<const LineStart> lines, const DeclaredAbscissas& declared,
                      const Ladder& decoded) {
  const auto declared_points = static_cast<double>(*declared.declaredPoints);
  const auto points = static_cast<double>(declared.points);
  if (declared_points < 2) return false;
  const double step = (declared.lastX - declared.firstX) / (declared_points - 1);
  const Ladder from_front{declared.firstX, step};
  const Ladder from_back{declared.lastX - (points - 1) * step, step};
  double off_declared = 0;
  double off_decoded = 0;
  for (const LineStart& line : lines) {
    off_declared +=
        std::min(Deviation(line, declared.xFactor, from_front), Deviation(line, declared.xFactor, from_back));
    off_decoded += Deviation(line, declared.xFactor, decoded);
  }
  const double slack = 0.05 * std::abs(step) * static_cast<double>(lines.size());
  return off_declared + slack < off_decoded;
}

std::optional<std::size_t> FirstOffLadder(std::span<const LineStart> lines, double x_factor,
                                          const Ladder& ladder) {
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const double tolerance = std::abs(ladder.step) + std::abs(x_factor) * lines[i].unit;
    if (!(Deviation(lines[i], x_factor, ladder) <= tolerance)) return i;
  }
  return std::nullopt;
}

std::optional<std::size_t> FirstUnevenAdvance(std::span<const LineStart> lines, double x_factor,
                                              double step) {
  for (std::size_t i = 1; i < lines.size(); ++i) {
    const double advance = (lines[i].x - lines[i - 1].x) * x_factor;
    const double expected = static_cast<double>(lines[i].index - lines[i - 1].index) * step;
    const double unit = std::abs(x_factor) * std::max(lines[i].unit, lines[i - 1].unit);
    if (!(std::abs(advance - expected) <= 0.5 * std::abs(step) + unit)) return i;
  }
  return std::nullopt;
}

}  // namespace

AbscissaFinding CheckLineStarts(std::span<const LineStart> lines, const DeclaredAbscissas& declared) {
  AbscissaFinding finding;
  const double range = declared.lastX - declared.firstX;
  const auto steps = static_cast<double>(declared.points - 1);
  const Ladder decoded{declared.firstX, range / steps};
  const bool counts_differ = declared.declaredPoints && *declared.declaredPoints != declared.points;

  if (const auto uneven = FirstUnevenAdvance(lines, declared.xFactor, decoded.step)) {
    finding.badLine = uneven;
    finding.reason = "x does not follow from the line before, data are lost or damaged";
    return finding;
  }
  if (counts_differ && PointsAreMissing(lines, declared, decoded)) {
    finding.badLine = lines.size() - 1;
    finding.reason = "NPOINTS declares " + std::to_string(*declared.declaredPoints) + " points, " +
                     std::to_string(declared.points) +
                     " are there, and the x values at the beginnings of the lines "
                     "show that data are lost before the end of the table";
    return finding;
  }
  const auto off = FirstOffLadder(lines, declared.xFactor, decoded);
  if (!off) {
    return finding;
  }
  // Some programs number their lines with the rounded DELTAX. Nothing is lost then as long as the count
  // agrees.
  const double rounded_step = std::copysign(declared.deltaX.value_or(0), range);
  const bool close = std::abs(rounded_step * steps - range) <= 1e-3 * std::abs(range);
  const Ladder rounded{declared.firstX, rounded_step};
  if (declared.declaredPoints && !counts_differ && close &&
      !FirstOffLadder(lines, declared.xFactor, rounded)) {
    finding.warning = "the x values in the table follow the rounded DELTAX; FIRSTX and LASTX were used";
    return finding;
  }
  finding.badLine = off;
  finding.reason = "x lies more than one step from where FIRSTX and LASTX put it, data are lost or damaged";
  return finding;
}

bool AreEvenlySpaced(std::span<const double> x) {
  if (x.size() < 2) return true;
  const double step = (x.back() - x.front()) / static_cast<double>(x.size() - 1);
  for (std::size_t i = 0; i < x.size(); ++i) {
    if (!(std::abs(x[i] - (x.front() + static_cast<double>(i) * step)) <= 0.05 * std::abs(step)))
      return false;
  }
  return step != 0;
}

}  // namespace veritane::simulator
