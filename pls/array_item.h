// Arrays that count from 1, sized as a foreign library asks.
#pragma once

#include <cstdint>
#include <vector>

namespace veritane::pls {

// Makes the array `size` zeros. Error 9 for a negative size, 7 for more than 16,777,216 values: no item is
// near that, and taking the memory would bring the machine down before the program noticed.
void Redimension(std::vector<double>& values, std::int32_t size);

// Element `index`, counted from 1; error 9 outside the array.
double& ElementOf(std::vector<double>& values, std::int32_t index);

}  // namespace veritane::pls
