// Reads a spectrum from text or from bare numbers: what instruments and spreadsheets hand over.
//
// Text holds one point a line, in one of two forms. Columns are separated by blanks, tabs, commas or
// semicolons; numbers have a decimal point; empty lines count for nothing.
//   two columns   x and y
//   one column    y, on evenly spaced points whose ends header lines name: "First X = 4000", "Last X: 400"
// Header lines stand before the first point and do not begin with a number. Of both forms they may name the
// units by their codes in SPC files, "X Type = 1" and "Y Type = 2"; what is not named is 0, arbitrary. In
// these four names only letters count, large or small; other header lines are passed over.
#pragma once

#include "plslibrary/measured_spectrum.h"

#include <string_view>

namespace veritane::plslibrary {

// The spectrum in the text's order of x. SpectrumReadError with the number of the line for text in neither
// form, and for x that are not evenly spaced.
MeasuredSpectrum ReadSpectrumText(std::string_view bytes);

// Ordinates alone, as 32-bit little-endian IEEE numbers one after the other. Nothing says where on x they
// lie: firstX and lastX are NaN, both types 0, and whoever uses the spectrum knows its points from elsewhere.
// SpectrumReadError for no numbers, a part of a number at the end, and numbers that are not finite.
MeasuredSpectrum ReadIeeeFloats(std::string_view bytes);

}  // namespace veritane::plslibrary
