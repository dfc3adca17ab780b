// The data tables of JCAMP-DX: "(X++(Y..Y))" in every form (AFFN, PAC, SQZ, DIF, DUP, also mixed within a
// line) and "(XY..XY)". Nothing here knows of labels; what the table must agree with is checked by the block
// that holds it.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace veritane::simulator {

// The x that stands at the beginning of a line of "(X++(Y..Y))": a coarse check value.
struct LineStart {
  double x = 0;              // as written, that is before XFACTOR
  double unit = 1;           // weight of the last digit written
  std::size_t index = 0;     // of the ordinate that it belongs to
  std::size_t position = 0;  // of the line in the text
};

struct ContinuousTable {
  std::vector<double> values;  // as written, that is before YFACTOR
  std::vector<LineStart> lines;
  bool cutOff = false;  // the text ends within the last line
};

struct PairTable {
  std::vector<double> x;
  std::vector<double> y;
  bool cutOff = false;
};

struct TableHints {
  bool decimalComma = false;       // the labels are written with decimal commas
  bool decimalPoint = false;       // the labels are written with decimal points
  std::size_t expectedPoints = 0;  // NPOINTS; a hint for memory and nothing else
  std::size_t mostPoints = 0;      // a table that unfolds to more is refused
};

// Decodes the lines from `position` on and leaves it at the next label or at the end of the text. Faults:
// damaged for what no form allows, for a difference check that fails and for more than `mostPoints`; no
// spectrum for missing ordinates ("?"), since nothing may invent them.
ContinuousTable DecodeContinuousTable(std::string_view text, std::size_t& position, const TableHints& hints);
PairTable DecodePairTable(std::string_view text, std::size_t& position, const TableHints& hints);

}  // namespace veritane::simulator
