// The instrument line shape: what an interferometer of finite travel makes of an infinitely narrow line.
//
// The interferogram is multiplied by an apodization A(d/L) up to the greatest path difference L, so the
// spectrum is convolved with A's Fourier transform. The nominal resolution R is 1/L. Closed forms after P. R.
// Griffiths and J. A. de Haseth, "Fourier Transform Infrared Spectrometry", chapter 2; G. D. Happ and H.
// Genzel, Infrared Phys. 1 (1961) 39; R. H. Norton and R. Beer, J. Opt. Soc. Am. 66 (1976) 259, erratum 67
// (1977) 419.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace veritane::simulator {

enum class Apodization { kBoxcar, kTriangular, kHappGenzel, kNortonBeer };

// "Boxcar", "Triangular", "Happ-Genzel", "Norton-Beer" (the medium one).
std::string_view ApodizationName(Apodization apodization);
// The reverse, without regard to case; nothing for another text.
std::optional<Apodization> ApodizationNamed(std::string_view name);

// The line shape at `distance` cm⁻¹ from the line for the resolution R in cm⁻¹; its area is 1 cm⁻¹.
double LineShape(Apodization apodization, double resolution, double distance);

// The line shape at whole multiples of `step` up to `reach` on either side, scaled to the sum 1 so that
// convolving with it leaves a constant as it is.
std::vector<double> LineShapeTaps(Apodization apodization, double resolution, double step, double reach);

}  // namespace veritane::simulator
