// Whether the x values that stand in a table agree with the x that the labels declare: how lost lines are
// found.
#pragma once

#include "simulator/jcamp_table.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace veritane::simulator {

// What the labels and the decoded table say about x. firstX and lastX belong to the first and last of
// `points`.
struct DeclaredAbscissas {
  double firstX = 0;
  double lastX = 0;
  double xFactor = 1;
  std::size_t points = 0;                     // decoded, at least 2
  std::optional<std::size_t> declaredPoints;  // NPOINTS
  std::optional<double> deltaX;
};

struct AbscissaFinding {
  std::optional<std::size_t> badLine;  // index of the line that contradicts
  std::string reason;                  // for badLine
  std::string warning;                 // "" if all is well
};

// Compares the x at every line's start, a coarse value, with firstX + i × step: each must lie within one step
// (and one unit of its last digit), and from line to line x must advance as far as the line has points.
AbscissaFinding CheckLineStarts(std::span<const LineStart> lines, const DeclaredAbscissas& declared);

// Whether x values are evenly spaced: each within a twentieth of a step of its place between first and last.
bool AreEvenlySpaced(std::span<const double> x);

}  // namespace veritane::simulator
