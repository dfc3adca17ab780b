// Reads JCAMP-DX: the spectra of a file with one block, of a compound file, of several blocks one after the
// other. Form: McDonald and Wilks, Appl. Spectrosc. 42 (1988) 151; 5.01: Lampen et al., Appl. Spectrosc. 53
// (1999) 1 (labels and dates).
#pragma once

#include "simulator/jcamp_block.h"

#include <string>
#include <string_view>
#include <vector>

namespace veritane::simulator {

// The most points that all spectra of a file may have together.
inline constexpr std::size_t kMostJcampPoints = 16'000'000;

struct JcampFile {
  std::vector<JcampSpectrum> spectra;  // at least one
  // What the file holds besides, each as a sentence: peak tables, spectra with missing or uneven points. Also
  // among every spectrum's warnings.
  std::vector<std::string> leftOut;
};

// A JcampFault for damaged text and for text without a single usable spectrum. A damaged block spoils the
// file: nobody shall take the remaining ones for all there were.
JcampFile ReadJcamp(std::string_view text);

}  // namespace veritane::simulator
