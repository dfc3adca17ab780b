// The lines of the atmosphere: water vapour from a table, carbon dioxide from its rotational constants.
//
// Line positions after the HITRAN database (I. E. Gordon et al., J. Quant. Spectrosc. Radiat. Transfer 277
// (2022) 107949), rounded, lines closer than about 1 cm⁻¹ taken together; strengths relative and rounded.
#include "simulator/instrument_atmosphere.h"

#include "simulator/materials.h"
#include "simulator/radiation_constants.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace veritane::simulator {

namespace {

struct Line {
  double wavenumber;
  double strength;  // relative to the strongest line of its gas
};

constexpr Line kWaterVapour[] = {
    // Bending vibration.
    {1394.5, .25},
    {1417.4, .35},
    {1419.4, .55},
    {1436.8, .60},
    {1447.9, .25},
    {1456.9, .85},
    {1464.9, .40},
    {1472.1, .55},
    {1487.3, .40},
    {1489.8, .45},
    {1496.2, .55},
    {1498.8, .50},
    {1505.6, .60},
    {1507.1, .75},
    {1508.5, .50},
    {1521.3, .70},
    {1522.7, .35},
    {1533.2, .65},
    {1539.1, .60},
    {1540.3, .80},
    {1542.0, .40},
    {1545.2, .35},
    {1554.4, .35},
    {1558.5, .95},
    {1559.7, .50},
    {1569.8, .60},
    {1576.2, .70},
    {1601.2, .15},
    {1616.7, .60},
    {1623.6, .35},
    {1627.8, .30},
    {1635.0, .45},
    {1635.7, .45},
    {1646.0, .60},
    {1647.4, .50},
    {1652.4, .40},
    {1653.3, 1.0},
    {1662.8, .45},
    {1669.4, .55},
    {1675.2, .70},
    {1684.8, .85},
    {1695.9, .65},
    {1699.9, .50},
    {1700.8, .40},
    {1704.5, .25},
    {1706.4, .25},
    {1717.4, .75},
    {1718.6, .40},
    {1733.4, .70},
    {1734.7, .50},
    {1739.8, .40},
    {1749.0, .40},
    {1751.4, .35},
    {1756.8, .20},
    {1761.8, .30},
    {1771.3, .60},
    {1772.7, .40},
    {1792.7, .45},
    {1799.6, .35},
    {1810.6, .25},
    {1825.2, .20},
    {1830.1, .20},
    {1844.2, .25},
    {1869.3, .20},
    {1889.6, .15},
    {1918.0, .10},
    {1942.5, .08},
    // Stretching vibrations.
    {3566.0, .20},
    {3587.0, .25},
    {3618.5, .20},
    {3629.4, .30},
    {3649.2, .45},
    {3669.9, .35},
    {3675.5, .35},
    {3688.5, .30},
    {3690.3, .35},
    {3701.8, .25},
    {3711.1, .50},
    {3726.6, .25},
    {3732.1, .30},
    {3736.5, .40},
    {3744.6, .65},
    {3749.4, .40},
    {3751.2, .35},
    {3759.8, .45},
    {3779.5, .30},
    {3796.4, .25},
    {3801.4, .55},
    {3806.9, .40},
    {3816.1, .40},
    {3820.7, .50},
    {3831.7, .25},
    {3837.9, .50},
    {3854.0, .75},
    {3865.1, .30},
    {3870.1, .40},
    {3880.2, .35},
    {3891.2, .25},
    {3902.9, .25}};

// Integrated absorbance of the strongest line in cm⁻¹ for an amount of 1.
constexpr double kWaterStrength = 0.08;
constexpr double kDioxideStrength = 0.06;

constexpr double kRoomTemperature = 296;  // K

// A vibration of CO2 with its branches. Only even J exist, the oxygen nuclei having no spin.
struct LinearVibration {
  double origin;    // cm⁻¹
  double upper;     // rotational constant of the excited state, cm⁻¹
  double lower;     // of the ground state
  double strength;  // relative
  double q_branch;  // integrated absorbance of the Q branch over the strongest line's; 0 without
};

constexpr LinearVibration kDioxide[] = {{2349.14, .38714, .39022, 1.0, 0}, {667.38, .39064, .39022, .18, 6}};

void AddBranches(const LinearVibration& vibration, std::vector<Line>& lines) {
  const double b = vibration.lower;
  std::vector<Line> branches;
  double strongest = 0;
  for (int j = 0; j <= 56; j += 2) {
    const double population = std::exp(-kSecondRadiationConstant * b * j * (j + 1) / kRoomTemperature);
    const auto add = [&](int upper_j, double weight) {
      const double position = vibration.origin + vibration.upper * upper_j * (upper_j + 1) - b * j * (j + 1);
      branches.push_back({position, weight * population});
      strongest = std::max(strongest, weight * population);
    };
    add(j + 1, j + 1);
    if (j > 0) add(j - 1, j);
  }
  for (const Line& line : branches) {
    lines.push_back({line.wavenumber, vibration.strength * line.strength / strongest});
  }
  if (vibration.q_branch > 0)
    lines.push_back({vibration.origin + .3, vibration.strength * vibration.q_branch});
}

std::vector<Line> DioxideLines() {
  std::vector<Line> lines;
  for (const LinearVibration& vibration : kDioxide) AddBranches(vibration, lines);
  return lines;
}

void AddLines(std::span<const Line> lines, double strength, const WavenumberGrid& grid,
              std::span<double> absorbance) {
  constexpr double kPressureBroadenedWidth = 0.15;  // cm⁻¹, full width at half maximum in air
  const double width = std::max(kPressureBroadenedWidth, 2 * grid.spacing);
  std::vector<Band> bands;
  bands.reserve(lines.size());
  for (const Line& line : lines) {
    // The area under a Lorentz curve is π/2 × height × width.
    bands.push_back({line.wavenumber, line.strength * 2 / (std::numbers::pi * width), width, 1});
  }
  AddBands(bands, strength, grid, absorbance);
}

}  // namespace

void AddAtmosphere(const Atmosphere& atmosphere, const WavenumberGrid& grid, std::span<double> absorbance) {
  static const std::vector<Line> dioxide = DioxideLines();
  AddLines(kWaterVapour, atmosphere.water * kWaterStrength, grid, absorbance);
  AddLines(dioxide, atmosphere.carbonDioxide * kDioxideStrength, grid, absorbance);
}

}  // namespace veritane::simulator
