// Water vapour and carbon dioxide in the instrument's beam.
#pragma once

#include "simulator/wavenumber_grid.h"

#include <span>

namespace veritane::simulator {

// How much of each gas lies in the beam; 1 is a purged instrument on an ordinary day.
struct Atmosphere {
  double water = 1;
  double carbonDioxide = 1;
};

// Adds the gases' absorbance at the grid's wavenumbers. Their lines are far narrower than the line shape of
// the instrument; each keeps its area and is drawn at least two points wide, which gives the same spectrum
// once the line shape is applied.
void AddAtmosphere(const Atmosphere& atmosphere, const WavenumberGrid& grid, std::span<double> absorbance);

}  // namespace veritane::simulator
