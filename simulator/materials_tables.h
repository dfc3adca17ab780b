// The band tables by group of materials; materials.h is what the rest of the program uses.
#pragma once

#include "simulator/materials.h"

#include <span>

namespace veritane::simulator {

std::span<const Material> Polymers();
std::span<const Material> Pharmaceuticals();
std::span<const Material> Liquids();

}  // namespace veritane::simulator
